// The menus of a form, for the menu bar of the frame.
#pragma once

#include "desktop/win32/System.h"
#include "toolkit/Form.h"

namespace desktop_win32 {

// Makes the bar of the form's menus; nullptr for a form without any. A bar that stands in no window
// goes with destroyMenus.
HMENU makeMenus(toolkit::Form& form);
void destroyMenus(HMENU bar);

// The entry was chosen that a WM_COMMAND names. False: it is none of the program's.
bool chooseMenu(UINT id);

// Commands from here on are free for the frame's pages.
inline constexpr UINT kAfterMenus = 0xC000;

} // namespace desktop_win32
