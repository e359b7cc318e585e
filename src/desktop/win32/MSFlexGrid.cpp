#include "desktop/win32/ControlWindow.h"

namespace desktop_win32 {

std::shared_ptr<ControlWindow> makeMSFlexGrid(toolkit::MSFlexGrid& /*grid*/, HWND /*parent*/) {
    return nullptr;
}

} // namespace desktop_win32
