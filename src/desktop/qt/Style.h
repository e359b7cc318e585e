// The user's own style, with its lines made visible where a theme's colours hide them, and with a
// line around the control that has the keyboard.
#pragma once

#include <QProxyStyle>

namespace desktop_qt {

// Styles draw some lines in shades of the ground and some texts in white, whatever the theme is. On
// a black ground or with a yellow highlight nothing is left of them.
class Style final : public QProxyStyle {
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    // The line around the control with the focus. Styles have a hairline there, on one cell of a
    // grid, or nothing before the first Tab.
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
};

} // namespace desktop_qt
