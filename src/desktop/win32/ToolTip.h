// The text that comes up where the mouse rests on a window.
#pragma once

#include "desktop/win32/System.h"

#include <string>

namespace desktop_win32 {

class ToolTip {
public:
    ToolTip() = default;
    ToolTip(const ToolTip&) = delete;
    ToolTip& operator=(const ToolTip&) = delete;
    ~ToolTip();

    // Always for the same window. The empty text is for none to come up.
    void show(HWND over, const std::string& text);

private:
    HWND window_ = nullptr; // made with the first text: most windows have none
};

} // namespace desktop_win32
