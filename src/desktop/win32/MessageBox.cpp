#include "desktop/win32/MessageBox.h"

#include "desktop/win32/Look.h"

#include <vector>

namespace desktop_win32 {

using toolkit::MessageBox;

namespace {

UINT buttons(const MessageBox& box) {
    switch (box.buttons) {
    case MessageBox::Buttons::YesNo:
        return MB_YESNO;
    case MessageBox::Buttons::YesNoCancel:
        return MB_YESNOCANCEL;
    case MessageBox::Buttons::AbortRetryIgnore:
        return MB_ABORTRETRYIGNORE;
    default:
        return MB_OK;
    }
}

UINT icon(const MessageBox& box) {
    switch (box.icon) {
    case MessageBox::Icon::Critical:
        return MB_ICONERROR;
    case MessageBox::Icon::Question:
        return MB_ICONQUESTION;
    case MessageBox::Icon::Exclamation:
        return MB_ICONWARNING;
    default:
        return MB_ICONINFORMATION;
    }
}

UINT defaultButton(const MessageBox& box) {
    return box.defaultButton == 3   ? MB_DEFBUTTON3
           : box.defaultButton == 2 ? MB_DEFBUTTON2
                                    : MB_DEFBUTTON1;
}

// Esc and the close box answer as the toolkit rules it, also where the system's box takes neither.
LRESULT CALLBACK escapable(HWND box, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                           DWORD_PTR answer) {
    if (message == WM_CLOSE || (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL)) {
        if (answer == 0)
            return 0;
        message = WM_COMMAND;
        wParam = MAKEWPARAM(answer, BN_CLICKED);
        lParam = reinterpret_cast<LPARAM>(GetDlgItem(box, static_cast<int>(answer)));
    }
    return DefSubclassProc(box, message, wParam, lParam);
}

struct Opening {
    const MessageBox* box;
    HHOOK hook;
};
Opening opening{}; // the box that is just coming up

// The box that is up, and the windows that came up behind it.
struct Up {
    HWND box = nullptr;
    std::vector<HWND> behind;
};
Up up;

LRESULT CALLBACK comesUp(int code, WPARAM wParam, LPARAM lParam) {
    HHOOK const hook = opening.hook;
    if (code == HCBT_ACTIVATE && opening.box) {
        const MessageBox& box = *std::exchange(opening.box, nullptr);
        HWND const window = reinterpret_cast<HWND>(wParam);
        up.box = window;
        for (const toolkit::Button button : box.answers())
            SetDlgItemTextW(window, button, wide(toolkit::labelOf(button)).c_str());
        const int escape = box.escapeAnswer();
        if (escape == 0 || (escape != IDCANCEL && GetDlgItem(window, escape))) {
            SetWindowSubclass(window, escapable, 0, static_cast<DWORD_PTR>(escape));
            EnableMenuItem(GetSystemMenu(window, FALSE), SC_CLOSE,
                           MF_BYCOMMAND | static_cast<UINT>(escape == 0 ? MF_GRAYED : MF_ENABLED));
        }
    }
    return CallNextHookEx(hook, code, wParam, lParam);
}

} // namespace

int showMessageBox(const MessageBox& box, HWND owner) {
    opening = {&box, SetWindowsHookExW(WH_CBT, comesUp, nullptr, GetCurrentThreadId())};
    HHOOK const hook = opening.hook;
    const Up before = std::exchange(up, {});
    const int answer = MessageBoxW(owner, wide(box.text).c_str(), wide(box.title).c_str(),
                                   buttons(box) | icon(box) | defaultButton(box) |
                                       (owner ? 0 : MB_TASKMODAL | MB_SETFOREGROUND));
    UnhookWindowsHookEx(hook);
    for (HWND const window : std::exchange(up, before).behind) {
        EnableWindow(window, TRUE);
        SetForegroundWindow(window);
    }
    return answer; // the toolkit's numbers are the system's
}

bool showBehindBox(HWND window) {
    if (!up.box)
        return false;
    up.behind.push_back(window);
    EnableWindow(window, FALSE);
    SetWindowLongPtrW(up.box, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(window));
    ShowWindow(window, SW_SHOWNA);
    BringWindowToTop(up.box);
    return true;
}

} // namespace desktop_win32
