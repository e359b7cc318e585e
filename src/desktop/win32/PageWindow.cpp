#include "desktop/win32/FormWindow.h"
#include "desktop/win32/Menu.h"

namespace desktop_win32 {

using toolkit::Form;

namespace {

class PageWindow final : public FormWindow {
public:
    PageWindow(Form& form, std::shared_ptr<FrameWindow> frame)
        : FormWindow(form), frame_(std::move(frame)) {}

    static std::shared_ptr<FormWindow> make(Form& form, const std::shared_ptr<FrameWindow>& frame) {
        const auto it = std::make_shared<PageWindow>(form, frame);
        it->menus_ = makeMenus(form);
        const DWORD style = WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_CAPTION | WS_SYSMENU |
                            (form.MinButton ? WS_MINIMIZEBOX : 0);
        create(it, {nullptr, style, WS_EX_MDICHILD, frame->client(), {}});
        for (const UINT entry : {SC_SIZE, SC_MAXIMIZE}) // a page has the size of its form
            DeleteMenu(GetSystemMenu(it->handle(), FALSE), entry, MF_BYCOMMAND);
        it->fit();
        makeControls(form, it->handle());
        return it;
    }

    void show() override {
        if (IsIconic(handle()))
            SendMessageW(frame_->client(), WM_MDIRESTORE, reinterpret_cast<WPARAM>(handle()), 0);
        else if (IsWindowVisible(handle()))
            bringIntoView();
        else
            ShowWindow(handle(), SW_SHOWNA);
    }

    void bringForward() override {
        SendMessageW(frame_->client(), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(handle()), 0);
        if (!gone())
            takeFocus();
    }

    void openMenu() override {
        HMENU const menu = GetSystemMenu(handle(), FALSE);
        const auto enable = [&](UINT entry, bool enabled) {
            EnableMenuItem(menu, entry, enabled ? MF_ENABLED : MF_GRAYED);
        };
        enable(SC_RESTORE, IsIconic(handle()));
        enable(SC_MINIMIZE, form_.MinButton && !IsIconic(handle()));
        POINT below{0, 0}; // its title
        ClientToScreen(handle(), &below);
        const auto chosen = static_cast<WPARAM>(
            TrackPopupMenu(menu, TPM_RETURNCMD, below.x, below.y, 0, handle(), nullptr));
        if (chosen != 0 && !gone())
            PostMessageW(handle(), WM_SYSCOMMAND, chosen, 0);
    }

protected:
    LRESULT received(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_SETFOCUS) {
            byDefault(message, wParam, lParam); // brings the page to the front
        } else if (message == WM_MDIACTIVATE) {
            const auto now = reinterpret_cast<HWND>(lParam);
            if (now == handle()) {
                frame_->showMenus(menus_);
                toolkit::Screen.activated(form_);
            }
        } else if (message == WM_SIZE) {
            form_.minimized = wParam == SIZE_MINIMIZED;
        }
        return FormWindow::received(message, wParam, lParam);
    }
    LRESULT byDefault(UINT message, WPARAM wParam, LPARAM lParam) override {
        return DefMDIChildProcW(handle(), message, wParam, lParam);
    }
    void destroyWindow() override {
        SendMessageW(frame_->client(), WM_MDIDESTROY, reinterpret_cast<WPARAM>(handle()), 0);
        if (!frame_->activePage())
            frame_->showMenus(nullptr);
        destroyMenus(menus_);
    }

    void placeWindow() override { moveTo(pixels(form_.Left, dpi()), pixels(form_.Top, dpi())); }
    void moved() override {
        if (IsIconic(handle()))
            return;
        const RECT now = placeInFrame();
        form_.Left.assume(twips(now.left, dpi()));
        form_.Top.assume(twips(now.top, dpi()));
    }

private:
    RECT placeInFrame() const {
        RECT place{};
        GetWindowRect(handle(), &place);
        MapWindowPoints(nullptr, frame_->client(), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    void moveTo(int left, int top) {
        SetWindowPos(handle(), nullptr, left, top, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    void bringIntoView() {
        RECT view{};
        GetClientRect(frame_->client(), &view);
        const RECT now = placeInFrame();
        const RECT to = rectangle(toolkit::intoView(
            place(now), place(view), now.bottom - now.top - pixels(form_.clientHeight, dpi())));
        moveTo(to.left, to.top);
    }

    std::shared_ptr<FrameWindow> frame_;
    HMENU menus_ = nullptr;
};

} // namespace

std::shared_ptr<FormWindow> makePageWindow(Form& form, const std::shared_ptr<FrameWindow>& frame) {
    return PageWindow::make(form, frame);
}

} // namespace desktop_win32
