#include "desktop/win32/FormWindow.h"

namespace desktop_win32 {

std::shared_ptr<TopLevelWindow> TopLevelWindow::make(toolkit::Form& form, HWND owner) {
    const auto it = std::make_shared<TopLevelWindow>(form);
    const DWORD border = form.Borderless ? 0 : WS_CAPTION | WS_SYSMENU;
    create(it, {nullptr,
                WS_POPUP | WS_CLIPCHILDREN | border,
                form.Borderless ? 0U : WS_EX_DLGMODALFRAME,
                owner,
                {}});
    it->changed(toolkit::Prop::Caption);
    it->fit();
    makeControls(form, it->handle());
    return it;
}

void TopLevelWindow::show() {
    FormWindow::show();
    RedrawWindow(handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void TopLevelWindow::block() {
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND other, LPARAM self) -> BOOL {
            auto& window = *reinterpret_cast<TopLevelWindow*>(self);
            if (other != window.handle() && IsWindowVisible(other) && IsWindowEnabled(other)) {
                window.blocked_.push_back(other);
                EnableWindow(other, FALSE);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(this));
}

// The others are in use again before this one goes, or another program would come to the front.
void TopLevelWindow::destroyWindow() {
    for (HWND const other : blocked_)
        EnableWindow(other, TRUE);
    FormWindow::destroyWindow();
}

} // namespace desktop_win32
