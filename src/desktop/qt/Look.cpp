#include "desktop/qt/Look.h"

#include <QFontMetrics>

namespace desktop_qt {

QColor colour(toolkit::Colour bgr) {
    return {bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF};
}

QFont font(const toolkit::Font& design, bool bold) {
    QFont font;
    font.setFamilies({text(design.name), QStringLiteral("Liberation Sans")});
    font.setPixelSize(qRound(design.size * 96 / 72));
    font.setBold(bold);
    font.setItalic(design.italic);
    font.setUnderline(design.underline);
    return font;
}

QFont fittingFont(const toolkit::Font& design, bool bold, const QString& text, int width) {
    QFont fitting = font(design, bold);
    const int smallest = fitting.pixelSize() * 3 / 4;
    while (fitting.pixelSize() > smallest && QFontMetrics(fitting).horizontalAdvance(text) > width)
        fitting.setPixelSize(fitting.pixelSize() - 1);
    return fitting;
}

QIcon picture(const std::string& name) {
    return QIcon(QStringLiteral(":/pictures/%1.svg").arg(text(name)));
}

QRect rectangle(const toolkit::Control& control) {
    return {pixels(control.Left), pixels(control.Top), pixels(control.Width),
            pixels(control.Height)};
}

} // namespace desktop_qt
