#include "desktop/win32/ControlWindow.h"

namespace desktop_win32 {

namespace {

// Which option is selected is the toolkit's: the window shows it, and selects nothing by itself.
class OptionButtonWindow final : public ControlWindow {
public:
    OptionButtonWindow(toolkit::OptionButton& option) : ControlWindow(option), option_(option) {}

    static std::shared_ptr<ControlWindow> make(toolkit::OptionButton& option, HWND parent) {
        const auto it = std::make_shared<OptionButtonWindow>(option);
        ControlWindow::make(it, parent, L"BUTTON", WS_TABSTOP | BS_RADIOBUTTON);
        it->showValue();
        return it;
    }

    void changed(toolkit::Prop which) override {
        if (which == toolkit::Prop::Value)
            showValue();
        else
            ControlWindow::changed(which);
    }

    bool commanded(WPARAM wParam) override {
        if (HIWORD(wParam) == BN_CLICKED && !focusing_)
            option_.click();
        return true;
    }

protected:
    LRESULT received(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_SETFOCUS)
            return ControlWindow::received(message, wParam, lParam);
        // The system's own takes the coming focus for a click.
        SendMessageW(handle(), BM_SETDONTCLICK, TRUE, 0);
        focusing_ = true;
        byDefault(message, wParam, lParam);
        focusing_ = false;
        reportFocus();
        return 0;
    }

private:
    void showValue() {
        SendMessageW(handle(), BM_SETCHECK, option_.Value ? BST_CHECKED : BST_UNCHECKED, 0);
    }

    toolkit::OptionButton& option_;
    bool focusing_ = false;
};

} // namespace

std::shared_ptr<ControlWindow> makeControl(toolkit::OptionButton& option, HWND parent) {
    return OptionButtonWindow::make(option, parent);
}

} // namespace desktop_win32
