// The user's own style, with its lines made visible where a theme's colours hide them.
#pragma once

#include <QPalette>
#include <QProxyStyle>

namespace desktop_qt {

// How well two colours can be told apart, from 1 for equal ones to 21 for black and white.
double contrast(const QColor& one, const QColor& other);

// Styles draw some lines in shades of the ground and some texts in white, whatever the theme is. On
// a black ground or with a yellow highlight nothing is left of them.
class Style final : public QProxyStyle {
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
};

} // namespace desktop_qt
