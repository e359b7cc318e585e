#include "desktop/win32/ControlWindow.h"
#include "toolkit/Keyboard.h"

#include <utility>

namespace desktop_win32 {

namespace {

class TextBoxWindow final : public ControlWindow {
public:
    TextBoxWindow(toolkit::TextBox& box) : ControlWindow(box), box_(box) {}

    static std::shared_ptr<ControlWindow> make(toolkit::TextBox& box, HWND parent) {
        const auto it = std::make_shared<TextBoxWindow>(box);
        const DWORD kind = (box.TextAlign == toolkit::Alignment::Right ? ES_RIGHT : ES_LEFT) |
                           (box.Locked ? ES_READONLY : 0);
        ControlWindow::make(it, parent, L"EDIT", WS_TABSTOP | ES_AUTOHSCROLL | kind,
                            WS_EX_CLIENTEDGE);
        it->showText();
        return it;
    }

    void changed(toolkit::Prop which) override {
        if (which == toolkit::Prop::Text)
            showText();
        else if (which == toolkit::Prop::Selection)
            select();
        else
            ControlWindow::changed(which);
    }

    bool commanded(WPARAM wParam) override {
        if (HIWORD(wParam) != EN_CHANGE || showing_)
            return true;
        box_.Text.assume(narrow(shownText())); // typed, pasted, or set by a screen reader
        if (box_.shrinksText)
            showLook();
        return true;
    }

protected:
    LRESULT received(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_IME_CHAR) {
            compose(static_cast<wchar_t>(wParam), lParam);
            return 0;
        }
        // The menu of the right button reads the selection, which may come with the focus.
        if (message == WM_RBUTTONDOWN && GetFocus() != handle()) {
            SetFocus(handle());
            if (gone())
                return 0;
        }
        // A press that brings the focus leaves what the program has selected when the focus came.
        if (message == WM_LBUTTONDOWN && GetFocus() != handle() && (!enter() || box_.SelLength > 0))
            return 0;
        const LRESULT result = ControlWindow::received(message, wParam, lParam);
        if (!gone())
            takeSelection();
        return result;
    }
    void showCaption() override {}
    void showLook() override {
        if (!box_.shrinksText)
            return ControlWindow::showLook();
        RECT room{};
        byDefault(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
        HFONT const now = fittingFont(box_.font(), dpi(), shownText(), room.right - room.left);
        SendMessageW(handle(), WM_SETFONT, reinterpret_cast<WPARAM>(now), TRUE);
    }

private:
    // What an input method or a panel on the screen composes comes without keys, and a character
    // beyond the first 65536 in two parts.
    void compose(wchar_t part, LPARAM lParam) {
        composed_ += part;
        if (IS_HIGH_SURROGATE(part))
            return;
        const std::wstring typed = std::exchange(composed_, {});
        if (wide(toolkit::typeText(box_, narrow(typed))) != typed)
            return;
        for (const wchar_t typedPart : typed)
            if (!gone())
                byDefault(WM_CHAR, typedPart, lParam);
        if (!gone())
            takeSelection();
    }

    void showText() {
        showing_ = true; // bytes that are no character stay as they are in the box's own text
        SetWindowTextW(handle(), wide(box_.Text).c_str());
        showing_ = false;
        showLook();
    }
    std::wstring shownText() {
        std::wstring text(static_cast<std::size_t>(byDefault(WM_GETTEXTLENGTH, 0, 0)), L'\0');
        byDefault(WM_GETTEXT, text.size() + 1, reinterpret_cast<LPARAM>(text.data()));
        return text;
    }

    void select() {
        const auto [from, to] = box_.selectionIn(narrow(shownText()));
        byDefault(EM_SETSEL, static_cast<WPARAM>(from), to);
    }
    void takeSelection() {
        DWORD from = 0, to = 0;
        byDefault(EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
        if (from == from_ && to == to_)
            return;
        from_ = from;
        to_ = to;
        box_.assumeSelection(narrow(shownText()), {static_cast<int>(from), static_cast<int>(to)});
    }

    toolkit::TextBox& box_;
    std::wstring composed_;   // of a character in two parts, the first
    DWORD from_ = 0, to_ = 0; // the selection that was taken over last
    bool showing_ = false;
};

} // namespace

std::shared_ptr<ControlWindow> makeControl(toolkit::TextBox& box, HWND parent) {
    return TextBoxWindow::make(box, parent);
}

} // namespace desktop_win32
