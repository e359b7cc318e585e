#include "desktop/win32/ControlWindow.h"

namespace desktop_win32 {

namespace {

class CommandButtonWindow final : public ControlWindow {
public:
    CommandButtonWindow(toolkit::CommandButton& button) : ControlWindow(button) {}

    static std::shared_ptr<ControlWindow> make(toolkit::CommandButton& button, HWND parent) {
        const auto it = std::make_shared<CommandButtonWindow>(button);
        const DWORD kind = button.Default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
        ControlWindow::make(it, parent, L"BUTTON", WS_TABSTOP | kind);
        return it;
    }

    bool commanded(WPARAM wParam) override {
        if (HIWORD(wParam) == BN_CLICKED)
            control_.click();
        return true;
    }
};

} // namespace

std::shared_ptr<ControlWindow> makeControl(toolkit::CommandButton& button, HWND parent) {
    return CommandButtonWindow::make(button, parent);
}

} // namespace desktop_win32
