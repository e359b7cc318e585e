#include "desktop/win32/Keys.h"

namespace desktop_win32 {

namespace {

bool isDown(int key) {
    return GetKeyState(key) < 0;
}

// A character beyond the first 65536 comes in two messages.
int character(const std::vector<MSG>& typed) {
    if (typed.empty() || typed.front().message != WM_CHAR)
        return 0;
    const auto first = static_cast<int>(typed.front().wParam);
    if (!IS_HIGH_SURROGATE(first) || typed.size() < 2)
        return first;
    return 0x10000 + ((first & 0x3FF) << 10) + (static_cast<int>(typed[1].wParam) & 0x3FF);
}

} // namespace

toolkit::KeyStroke keyStroke(const MSG& key, const std::vector<MSG>& typed) {
    const bool ctrl = isDown(VK_CONTROL);
    return {.code = static_cast<int>(key.wParam),
            .shift = (isDown(VK_SHIFT) ? toolkit::ShiftDown : 0) | (ctrl ? toolkit::CtrlDown : 0) |
                     (isDown(VK_MENU) ? toolkit::AltDown : 0),
            .character = character(typed),
            .repeats = (HIWORD(key.lParam) & KF_REPEAT) != 0,
            .copies = ctrl && (key.wParam == 'C' || key.wParam == VK_INSERT)};
}

} // namespace desktop_win32
