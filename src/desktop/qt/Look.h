// The toolkit's units and values in Qt's.
#pragma once

#include "toolkit/Control.h"

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPixmap>
#include <QRect>
#include <QString>

namespace desktop_qt {

inline constexpr double kTwipsPerPixel = 15;

inline int pixels(double twips) {
    return qRound(twips / kTwipsPerPixel);
}
inline double twips(int pixels) {
    return pixels * kTwipsPerPixel;
}

inline QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

// Blue-green-red to a colour.
QColor colour(toolkit::Colour bgr);

// The design font, its weight overridden by FontBold. Its size is in logical pixels, as all else on
// a form, so that texts fit their controls at every resolution.
QFont font(const toolkit::Font& design, bool bold);

// The design font in a size, down to three quarters of the design's, in which the text is no wider
// than `width` pixels.
QFont fittingFont(const toolkit::Font& design, bool bold, const QString& text, int width);

// A picture of the program, by its name, for this many logical pixels on a screen of this scale:
// the one that was drawn for it, else the next larger one made smaller. None of the name is a null
// one.
QPixmap pixmapOf(const std::string& name, QSize size, double scale);

// The same for a button or a window, which asks for its own screen's scale when it is painted.
QIcon iconOf(const std::string& name);

QRect rectangle(const toolkit::Control& control);

} // namespace desktop_qt
