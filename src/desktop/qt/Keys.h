// Keys as the toolkit's events deliver them.
#pragma once

#include <QKeyEvent>

namespace desktop_qt {

// The key code of KeyDown: letters and digits by their capital ASCII, the others by the numbers
// that they have had since the first forms (13 Enter, 17 Ctrl, 27 Esc, 112 F1, ...).
int keyCode(const QKeyEvent& event);

// The mask of the modifier keys that are down after the key went down: 1 Shift, 2 Ctrl, 4 Alt. A
// held key that repeats counts itself too.
int shiftMask(const QKeyEvent& event);

// The character of KeyPress, or 0 for a key that gives none.
int keyAscii(const QKeyEvent& event);

} // namespace desktop_qt
