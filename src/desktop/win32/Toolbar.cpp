#include "desktop/win32/ControlWindow.h"
#include "desktop/win32/Picture.h"

namespace desktop_win32 {

namespace {

class ToolbarWindow final : public ControlWindow {
public:
    ToolbarWindow(toolkit::Toolbar& bar) : ControlWindow(bar), bar_(bar) {}
    ~ToolbarWindow() override { ImageList_Destroy(images_); }

    bool speaksItself() const override { return true; }

    static std::shared_ptr<ControlWindow> make(toolkit::Toolbar& bar, HWND parent) {
        const auto it = std::make_shared<ToolbarWindow>(bar);
        ControlWindow::make(it, parent, TOOLBARCLASSNAMEW,
                            TBSTYLE_FLAT | TBSTYLE_LIST | TBSTYLE_TOOLTIPS | CCS_NORESIZE |
                                CCS_NOPARENTALIGN | CCS_NODIVIDER | CCS_NOMOVEY);
        return it;
    }

    // A command's number is that of its button, from 1 on.
    bool commanded(WPARAM wParam) override {
        const std::size_t button = LOWORD(wParam) - 1U;
        if (button < bar_.Buttons.size())
            bar_.clickButton(bar_.Buttons[button]);
        return true;
    }

    void lookChanged() override {
        if (SendMessageW(handle(), TB_BUTTONCOUNT, 0, 0) == 0)
            addButtons();
        showImages();
        SendMessageW(handle(), TB_SETBUTTONSIZE, 0,
                     MAKELPARAM(scaled(bar_.kButtonWidth), scaled(bar_.kButtonHeight)));
        setWidths();
        ControlWindow::lookChanged();
    }

private:
    int scaled(int logical) const { return MulDiv(logical, dpi(), 96); }

    // A button's text is not shown: it is the tool tip, and what a screen reader says.
    void addButtons() {
        SendMessageW(handle(), TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
        SendMessageW(handle(), TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_MIXEDBUTTONS);
        SendMessageW(handle(), TB_SETMAXTEXTROWS, 0, 0);
        int number = 0;
        for (const toolkit::ToolbarButton& button : bar_.Buttons) {
            const std::wstring tip = wide(button.ToolTipText);
            TBBUTTON added{};
            added.iBitmap = button.Image - 1;
            added.idCommand = ++number;
            added.fsState = TBSTATE_ENABLED;
            added.fsStyle = BTNS_BUTTON;
            added.iString = reinterpret_cast<INT_PTR>(tip.c_str());
            if (button.Key.empty())
                added = {0, 0, 0, BTNS_SEP, {}, 0, 0};
            SendMessageW(handle(), TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&added));
        }
    }

    // The system would give each the width of its image and an edge of its own.
    void setWidths() {
        TBBUTTONINFOW button{};
        button.cbSize = sizeof button;
        button.dwMask = TBIF_SIZE;
        button.cx = static_cast<WORD>(scaled(bar_.kButtonWidth));
        for (std::size_t number = 1; number <= bar_.Buttons.size(); ++number)
            if (!bar_.Buttons[number - 1].Key.empty())
                SendMessageW(handle(), TB_SETBUTTONINFOW, number,
                             reinterpret_cast<LPARAM>(&button));
    }

    void showImages() {
        const SIZE size{scaled(bar_.kImage), scaled(bar_.kImage)};
        HIMAGELIST const images = ImageList_Create(
            size.cx, size.cy, ILC_COLOR32, static_cast<int>(bar_.Images->ListImages.size()), 0);
        for (const std::string& name : bar_.Images->ListImages) {
            HBITMAP const image = picture(name, size);
            ImageList_Add(images, image, nullptr);
            DeleteObject(image);
        }
        SendMessageW(handle(), TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images));
        ImageList_Destroy(std::exchange(images_, images));
    }

    toolkit::Toolbar& bar_;
    HIMAGELIST images_ = nullptr;
};

} // namespace

std::shared_ptr<ControlWindow> makeControl(toolkit::Toolbar& bar, HWND parent) {
    return ToolbarWindow::make(bar, parent);
}

} // namespace desktop_win32
