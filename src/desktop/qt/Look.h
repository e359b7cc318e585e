// The toolkit's units and values in Qt's.
#pragma once

#include "toolkit/Units.h"

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPixmap>
#include <QRect>
#include <QString>

namespace desktop_qt {

using toolkit::pixels;
using toolkit::twips;

inline QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

// With line feeds alone.
QString lines(const std::string& utf8);

QColor colour(toolkit::Colour bgr);
toolkit::Colour number(const QColor& colour);

QFont font(const toolkit::Font& design);

// The font in a size in which the text is no wider than `width` pixels, if there is one.
QFont fittingFont(const toolkit::Font& design, const QString& text, int width);

// A picture of the program, by its name, for this many logical pixels on a screen of this scale:
// the one that was drawn for it, else the next larger one made smaller. None of the name is a null
// one.
QPixmap pixmapOf(const std::string& name, QSize size, double scale);

// The same for a button or a window, which asks for its own screen's scale when it is painted.
QIcon iconOf(const std::string& name);

toolkit::Place place(const QRect& area);
QRect rectangle(const toolkit::Place& area);
QRect rectangle(const toolkit::Control& control); // twips in pixels

} // namespace desktop_qt
