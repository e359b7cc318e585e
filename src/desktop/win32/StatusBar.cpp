#include "desktop/win32/ControlWindow.h"

namespace desktop_win32 {

namespace {

class StatusBarWindow final : public ControlWindow {
public:
    StatusBarWindow(toolkit::StatusBar& bar) : ControlWindow(bar), bar_(bar) {}

    bool speaksItself() const override { return true; }

    static std::shared_ptr<ControlWindow> make(toolkit::StatusBar& bar, HWND parent) {
        const auto it = std::make_shared<StatusBarWindow>(bar);
        ControlWindow::make(it, parent, STATUSCLASSNAMEW, CCS_NORESIZE | CCS_NOPARENTALIGN);
        it->showText();
        return it;
    }

    void changed(toolkit::Prop which) override {
        if (which == toolkit::Prop::Text)
            showText();
        else
            ControlWindow::changed(which);
    }

private:
    void showText() {
        SendMessageW(handle(), SB_SETTEXTW, 0,
                     reinterpret_cast<LPARAM>(wide(bar_.Panels(1).Text).c_str()));
    }

    toolkit::StatusBar& bar_;
};

} // namespace

std::shared_ptr<ControlWindow> makeControl(toolkit::StatusBar& bar, HWND parent) {
    return StatusBarWindow::make(bar, parent);
}

} // namespace desktop_win32
