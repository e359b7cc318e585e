// The way of a key through a form. A desktop translates, and rules nothing: it calls pressKey for
// each key that goes down while the keyboard is in a form's window, before any widget sees the key.
// Keys of a message box, of an open menu and of a window that they move are not told.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

class Menu;
class TextBox;

// Key codes. Letters and digits have their capital ASCII.
namespace key {
inline constexpr int Backspace = 8, Tab = 9, Enter = 13, Shift = 16, Ctrl = 17, Alt = 18,
                     Escape = 27, Space = 32, PageUp = 33, PageDown = 34, End = 35, Home = 36,
                     Left = 37, Up = 38, Right = 39, Down = 40, Insert = 45, Delete = 46, F1 = 112;
} // namespace key

// The modifier keys that are down once the key went down, the key itself counted.
enum ShiftMask : int { ShiftDown = 1, CtrlDown = 2, AltDown = 4 };

struct KeyStroke {
    int code = 0; // never 0 in a stroke: a key that has no code of its own comes as 255
    int shift = 0;
    int character = 0;    // what it types, as a Unicode code point; 0 for nothing
    bool repeats = false; // the key is held down and comes again
    bool copies = false;  // the desktop's key for copying
};

// The form sees the key before the control with the focus does; then the key presses a button,
// moves the focus, or does what it does in the control. False: the key is left to the widget.
bool pressKey(Form& form, const KeyStroke& key);

// Whether pressKey will press a button or a menu's entry with the key, so that a desktop must not
// give it to a menu's letter or shortcut of its own first.
bool comesBeforeMenus(const Form& form, const KeyStroke& key);

// Text that came without keys, such as from an input method: its characters are typed like any
// others. Gives what is left of it for the box.
std::string typeText(TextBox& box, const std::string& text);

inline bool isArrow(const KeyStroke& stroke) {
    return stroke.code >= key::Left && stroke.code <= key::Down;
}

// The letter underlined in a caption, a capital: 'F' of "&File"; 0 without one.
char letterOf(const std::string& caption);
// The caption as it is read.
std::string withoutLetter(const std::string& caption);

} // namespace toolkit
