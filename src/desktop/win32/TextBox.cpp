#include "desktop/win32/ControlWindow.h"

namespace desktop_win32 {

namespace {

class TextBoxWindow final : public ControlWindow {
public:
    TextBoxWindow(toolkit::TextBox& box) : ControlWindow(box), box_(box) {}

    static std::shared_ptr<ControlWindow> make(toolkit::TextBox& box, HWND parent) {
        const auto it = std::make_shared<TextBoxWindow>(box);
        const DWORD side = box.TextAlign == toolkit::Alignment::Right ? ES_RIGHT : ES_LEFT;
        ControlWindow::make(it, parent, L"EDIT",
                            WS_TABSTOP | ES_AUTOHSCROLL | side | (box.Locked ? ES_READONLY : 0),
                            WS_EX_CLIENTEDGE);
        it->showText();
        return it;
    }

    void changed(toolkit::Prop which) override {
        if (which == toolkit::Prop::Text)
            showText();
        else if (which == toolkit::Prop::Selection)
            SendMessageW(handle(), EM_SETSEL, static_cast<WPARAM>(box_.SelStart.get()),
                         box_.SelStart.get() + box_.SelLength.get());
        else
            ControlWindow::changed(which);
    }

    bool commanded(WPARAM wParam) override {
        if (HIWORD(wParam) == EN_CHANGE && !showing_)
            box_.Text.assume(narrow(shownText()));
        return true;
    }

protected:
    void showCaption() override {}

private:
    void showText() {
        showing_ = true; // bytes that are no character stay as they are in the box's own text
        SetWindowTextW(handle(), wide(box_.Text).c_str());
        showing_ = false;
    }
    std::wstring shownText() const {
        std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(handle())), L'\0');
        GetWindowTextW(handle(), text.data(), static_cast<int>(text.size()) + 1);
        return text;
    }

    toolkit::TextBox& box_;
    bool showing_ = false;
};

} // namespace

std::shared_ptr<ControlWindow> makeTextBox(toolkit::TextBox& box, HWND parent) {
    return TextBoxWindow::make(box, parent);
}

} // namespace desktop_win32
