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
        it->fit();
        makeControls(form, it->handle());
        return it;
    }

    void show() override {
        if (IsIconic(handle()))
            SendMessageW(frame_->client(), WM_MDIRESTORE, reinterpret_cast<WPARAM>(handle()), 0);
        else
            ShowWindow(handle(), SW_SHOWNA);
    }

    void bringForward() override {
        SendMessageW(frame_->client(), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(handle()), 0);
        if (!gone())
            takeFocus();
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

private:
    std::shared_ptr<FrameWindow> frame_;
    HMENU menus_ = nullptr;
};

} // namespace

std::shared_ptr<FormWindow> makePageWindow(Form& form, const std::shared_ptr<FrameWindow>& frame) {
    return PageWindow::make(form, frame);
}

} // namespace desktop_win32
