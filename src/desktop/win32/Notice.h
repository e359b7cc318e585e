// What a screen reader says once, wherever the focus is.
#pragma once

#include "desktop/win32/System.h"

#include <string>

namespace desktop_win32 {

void announce(HWND window, const std::string& text);

} // namespace desktop_win32
