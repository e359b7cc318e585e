// Message boxes.
#pragma once

#include "desktop/win32/System.h"
#include "toolkit/MessageBox.h"

namespace desktop_win32 {

// Shows the system's message box over the owner, which may be nullptr, and gives the button.
int showMessageBox(const toolkit::MessageBox& box, HWND owner);

} // namespace desktop_win32
