// What the system's accessibility says of a control, where the toolkit has more to say than the
// control's window.
#pragma once

#include "desktop/win32/ControlWindow.h"

namespace desktop_win32 {

// The answer to WM_GETOBJECT for the inside of the control's window; 0 leaves it to the system.
LRESULT accessibleObject(const std::shared_ptr<ControlWindow>& window, WPARAM wParam);

} // namespace desktop_win32
