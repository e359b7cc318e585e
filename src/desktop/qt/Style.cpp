#include "desktop/qt/Style.h"

#include <QScopedValueRollback>
#include <QStyleOption>

#include <cmath>

namespace desktop_qt {

namespace {

constexpr double kReadable = 3; // the contrast that lines and titles need at least

double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

// Circles and frames are drawn in a dark shade of the ground.
QPalette withVisibleLines(QPalette palette) {
    if (contrast(palette.color(QPalette::Window), Qt::black) < kReadable)
        palette.setColor(QPalette::Window, palette.color(QPalette::WindowText));
    return palette;
}

bool isDrawnInLines(QStyle::PrimitiveElement element) {
    return element == QStyle::PE_IndicatorRadioButton || element == QStyle::PE_PanelButtonCommand ||
           element == QStyle::PE_FrameLineEdit || element == QStyle::PE_FrameGroupBox;
}

// The title of the page in front is drawn in white on the highlight, others in black on the ground.
QPalette withReadableTitle(QPalette palette) {
    QColor front = palette.color(QPalette::Highlight);
    while (contrast(front, Qt::white) < kReadable)
        front = front.darker(115);
    palette.setColor(QPalette::Highlight, front);
    if (contrast(palette.color(QPalette::Window), Qt::black) < kReadable)
        palette.setColor(QPalette::Window, Qt::gray);
    return palette;
}

} // namespace

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    if (!option || !isDrawnInLines(element))
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    auto* const drawn = const_cast<QStyleOption*>(option); // of a kind that only the style knows
    const QScopedValueRollback palette(drawn->palette, withVisibleLines(drawn->palette));
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                               QPainter* painter, const QWidget* widget) const {
    const auto* const title = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (control != CC_TitleBar || !title)
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    QStyleOptionTitleBar readable(*title);
    readable.palette = withReadableTitle(readable.palette);
    QProxyStyle::drawComplexControl(control, &readable, painter, widget);
}

// No header is resized with the mouse, so its cells take clicks up to their edges.
int Style::pixelMetric(PixelMetric metric, const QStyleOption* option,
                       const QWidget* widget) const {
    return metric == PM_HeaderGripMargin ? 0 : QProxyStyle::pixelMetric(metric, option, widget);
}

} // namespace desktop_qt
