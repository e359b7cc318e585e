#include "desktop/win32/ControlWindow.h"

#include "desktop/win32/Accessible.h"
#include "toolkit/Focus.h"

#include <utility>

namespace desktop_win32 {

using toolkit::Control;
using toolkit::Prop;

namespace {

class WindowPeer final : public toolkit::Peer {
public:
    explicit WindowPeer(std::shared_ptr<ObjectWindow> window) : window_(std::move(window)) {}
    ~WindowPeer() override { window_->destroy(); }

    const std::shared_ptr<ObjectWindow>& window() const { return window_; }

    void changed(Prop which) override {
        if (!window_->gone())
            window_->changed(which);
    }
    void cellChanged(int row, int column) override {
        if (!window_->gone())
            window_->cellChanged(row, column);
    }

private:
    std::shared_ptr<ObjectWindow> window_;
};

void attachTo(toolkit::Timer& timer, HWND /*parent*/) {
    timer.attach(makeTimer(timer));
}

template <class T>
void attachTo(T& control, HWND parent) {
    const std::shared_ptr<ControlWindow> window = makeControl(control, parent);
    SetWindowPos(window->handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    attachPeer(control, window);
}

// A screen reader gives the focus to pages that lie behind another, too.
void bringPageForward(toolkit::Form& form) {
    const auto page = form.kind == toolkit::Form::Kind::MDIChild ? windowOf(form) : nullptr;
    if (page && reinterpret_cast<HWND>(SendMessageW(GetParent(page->handle()), WM_MDIGETACTIVE, 0,
                                                    0)) != page->handle())
        toolkit::Screen.bringForward(form);
}

} // namespace

int ObjectWindow::dpi() const {
    HWND const root = GetAncestor(handle(), GA_ROOT);
    const auto object = std::dynamic_pointer_cast<ObjectWindow>(of(root));
    return object && object->dpi_ != 0 ? object->dpi_ : static_cast<int>(GetDpiForWindow(root));
}

void attachPeer(toolkit::Object& object, std::shared_ptr<ObjectWindow> window) {
    object.attach(std::make_unique<WindowPeer>(std::move(window)));
}

std::shared_ptr<ObjectWindow> windowOf(const toolkit::Object& object) {
    const auto* const peer = dynamic_cast<const WindowPeer*>(object.peer());
    return peer && !peer->window()->gone() ? peer->window() : nullptr;
}

void ControlWindow::make(const std::shared_ptr<ControlWindow>& it, HWND parent, const wchar_t* kind,
                         DWORD style, DWORD extended) {
    const Control& control = it->control_;
    style |= WS_CHILD | WS_CLIPSIBLINGS;
    if (!control.Enabled)
        style |= WS_DISABLED;
    create(it, {kind, style, extended, parent, {}});
    it->showCaption();
    it->lookChanged();
    it->showToolTip();
    ShowWindow(it->handle(), control.Visible ? SW_SHOWNA : SW_HIDE);
}

void ControlWindow::changed(Prop which) {
    switch (which) {
    case Prop::Caption:
        return showCaption();
    case Prop::Enabled:
        EnableWindow(handle(), control_.Enabled);
        return showLook();
    case Prop::Visible:
        ShowWindow(handle(), control_.Visible ? SW_SHOWNA : SW_HIDE);
        return;
    case Prop::ForeColor:
    case Prop::FontBold:
        if (control_.speaks)
            NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, handle(), OBJID_CLIENT, CHILDID_SELF);
        return showLook();
    case Prop::Left:
    case Prop::Top:
    case Prop::Width:
    case Prop::Height:
        return place();
    default:
        return;
    }
}

void ControlWindow::lookChanged() {
    place();
    showLook();
}

void ControlWindow::showCaption() {
    SetWindowTextW(handle(), wide(control_.Caption).c_str());
}

void ControlWindow::showLook() {
    HFONT const now = font(control_.font(), dpi());
    if (reinterpret_cast<HFONT>(SendMessageW(handle(), WM_GETFONT, 0, 0)) != now)
        SendMessageW(handle(), WM_SETFONT, reinterpret_cast<WPARAM>(now), TRUE);
}

void ControlWindow::place() {
    const RECT to = rectangle();
    SetWindowPos(handle(), nullptr, to.left, to.top, to.right - to.left, to.bottom - to.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

// The focus that goes may bring up a message box: behind it the button is long up again, and no
// click will follow. What a screen reader presses no mouse holds down, and its release does follow.
bool ControlWindow::enter(WPARAM held) {
    if (!toolkit::takesFocus(control_) || GetFocus() == handle())
        return true;
    SetFocus(handle());
    const bool comes = !(held & MK_LBUTTON) || GetKeyState(VK_LBUTTON) < 0;
    return !gone() && GetFocus() == handle() && comes;
}

LRESULT ControlWindow::received(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_LBUTTONDOWN && !enter(wParam))
        return 0;
    if (message == WM_GETOBJECT && static_cast<LONG>(lParam) == OBJID_CLIENT && !speaksItself())
        return accessibleObject(std::static_pointer_cast<ControlWindow>(shared_from_this()),
                                wParam);
    const LRESULT result = ObjectWindow::received(message, wParam, lParam);
    if (message == WM_SETFOCUS && !gone())
        reportFocus();
    return result;
}

void ControlWindow::reportFocus() {
    toolkit::Screen.focusMovedBySystem(control_);
    if (!gone() && toolkit::Screen.ActiveForm() == &control_.form())
        bringPageForward(control_.form());
}

Control* controlOf(HWND window) {
    for (; window; window = GetAncestor(window, GA_PARENT))
        if (const auto object = std::dynamic_pointer_cast<ControlWindow>(Window::of(window)))
            return object->gone() ? nullptr : &object->control();
    return nullptr;
}

void makeControls(toolkit::Container& container, HWND parent) {
    for (Control* const control : container.controls()) {
        toolkit::asItsKind(*control, [&](auto& it) { attachTo(it, parent); });
        if (auto* const inner = dynamic_cast<toolkit::Container*>(control))
            if (const auto window = windowOf(*control))
                makeControls(*inner, window->handle());
    }
}

} // namespace desktop_win32
