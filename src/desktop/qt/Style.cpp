#include "desktop/qt/Style.h"

#include "desktop/qt/Look.h"

#include <QFocusFrame>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyleOption>

namespace desktop_qt {

namespace {

// Styles draw in shades of the ground, and black on it, where another colour may be to be seen.
void keepFromBlack(QPalette& palette, const QColor& other) {
    const toolkit::Colour ground = number(palette.color(QPalette::Window));
    palette.setColor(QPalette::Window,
                     colour(toolkit::seenBeside(toolkit::kBlack, ground, number(other))));
}

// Circles and frames, in a dark shade of the ground.
bool isDrawnInLines(QStyle::PrimitiveElement element) {
    return element == QStyle::PE_IndicatorRadioButton || element == QStyle::PE_PanelButtonCommand ||
           element == QStyle::PE_FrameLineEdit || element == QStyle::PE_FrameGroupBox;
}

// The title of the page in front is drawn in white on the highlight, others in black on the ground.
QPalette withReadableTitle(QPalette palette) {
    QColor front = palette.color(QPalette::Highlight);
    while (toolkit::contrast(number(front), toolkit::kWhite) < toolkit::kReadable)
        front = front.darker(115);
    palette.setColor(QPalette::Highlight, front);
    keepFromBlack(palette, Qt::gray);
    return palette;
}

constexpr int kFocusLine = 2; // logical pixels

// The highlight where it can be seen on the ground, else the colour of texts.
QColor focusColour(const QPalette& palette) {
    return colour(toolkit::seenBeside(
        number(palette.color(QPalette::Window)), number(palette.color(QPalette::Highlight)),
        number(palette.color(QPalette::WindowText)), toolkit::kNoticed));
}

} // namespace

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    if (!option || !isDrawnInLines(element))
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    auto* const drawn = const_cast<QStyleOption*>(option); // of a kind that only the style knows
    const QScopedValueRollback before(drawn->palette);
    keepFromBlack(drawn->palette, drawn->palette.color(QPalette::WindowText));
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
    const auto* const ring = qobject_cast<const QFocusFrame*>(widget);
    if (element != CE_FocusFrame || !ring || !ring->widget())
        return QProxyStyle::drawControl(element, option, painter, widget);
    const QPalette palette = ring->widget()->parentWidget()->palette();
    const auto frame = [&](const QColor& colour, double width, double inset) {
        painter->setPen(QPen(colour, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter->drawRect(QRectF(option->rect).adjusted(inset, inset, -inset, -inset));
    };
    frame(focusColour(palette), kFocusLine, kFocusLine / 2.0);
    frame(palette.color(QPalette::Base), 1, kFocusLine + 0.5); // off a dark control
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
    return metric == PM_HeaderGripMargin || metric == PM_FocusFrameHMargin ||
                   metric == PM_FocusFrameVMargin
               ? 0
               : QProxyStyle::pixelMetric(metric, option, widget);
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* data) const {
    return hint == SH_FocusFrame_AboveWidget ? 1
                                             : QProxyStyle::styleHint(hint, option, widget, data);
}

} // namespace desktop_qt
