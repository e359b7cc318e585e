// Message boxes.
#pragma once

#include "desktop/win32/System.h"
#include "toolkit/MessageBox.h"

namespace desktop_win32 {

// Shows the system's message box over the owner, which may be nullptr, and gives the button.
int showMessageBox(const toolkit::MessageBox& box, HWND owner);

// Shows a window while a message box is up: behind the box, and out of use until the box is
// answered. False where no box is up.
bool showBehindBox(HWND window);

} // namespace desktop_win32
