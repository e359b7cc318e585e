#include "desktop/win32/Win32Desktop.h"

#include "desktop/win32/Loop.h"
#include "desktop/win32/MessageBox.h"
#include "desktop/win32/Notice.h"
#include "desktop/win32/Printer.h"

#include <map>
#include <memory>
#include <utility>

namespace desktop_win32 {

using toolkit::Control;
using toolkit::Form;

namespace {

// Runs calls that come from outside the event loop. No user sees it.
class CallWindow final : public Window {
public:
    static std::shared_ptr<CallWindow> make() {
        const auto it = std::make_shared<CallWindow>();
        create(it, {nullptr, 0, 0, HWND_MESSAGE, {}});
        return it;
    }

    static constexpr UINT kCall = WM_APP;

    // The number of the call.
    WPARAM add(std::function<void()> call) {
        calls_.emplace(++last_, std::move(call));
        return last_;
    }

protected:
    LRESULT received(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != kCall)
            return Window::received(message, wParam, lParam);
        // Once is enough, also while the call runs an event loop of its own.
        if (const auto call = calls_.extract(wParam))
            call.mapped()();
        return 0;
    }

private:
    std::map<WPARAM, std::function<void()>> calls_;
    WPARAM last_ = 0;
};

CallWindow& callWindow() {
    static const std::shared_ptr<CallWindow> it = CallWindow::make();
    return *it;
}

std::shared_ptr<FormWindow> windowOfForm(const Form& form) {
    return std::dynamic_pointer_cast<FormWindow>(windowOf(form));
}

std::shared_ptr<FrameWindow> frame() {
    const Form* const form = toolkit::Forms.frame();
    return form ? std::dynamic_pointer_cast<FrameWindow>(windowOf(*form)) : nullptr;
}

// The window in front, over which the next one comes up; nullptr without any.
HWND inFront() {
    const auto around = frame(); // a splash goes by itself, and would take with it what it owns
    return around ? GetLastActivePopup(around->handle()) : nullptr;
}

} // namespace

void Win32Desktop::open(Form& form) {
    std::shared_ptr<FormWindow> window;
    const auto around = frame();
    if (form.kind == Form::Kind::MDIFrame)
        window = FrameWindow::make(form);
    else if (around && form.kind == Form::Kind::MDIChild)
        window = makePageWindow(form, around);
    else
        window = TopLevelWindow::make(form, inFront());
    form.hWnd = reinterpret_cast<std::uintptr_t>(window->handle());
    attachPeer(form, window);
}

void Win32Desktop::show(Form& form, bool modal) {
    const auto window = windowOfForm(form);
    if (!window)
        return;
    const auto alone = modal ? std::dynamic_pointer_cast<TopLevelWindow>(window) : nullptr;
    if (alone)
        alone->block();
    {
        const toolkit::TimersHeld untilShown;
        window->show();
    }
    if (alone)
        runLoop([&] { return alone->gone(); });
}

void Win32Desktop::bringForward(Form& form) {
    if (const auto window = windowOfForm(form))
        window->bringForward();
}

void Win32Desktop::focus(Control& control) {
    const auto window = windowOf(control);
    if (!window)
        return;
    SetFocus(window->handle());
    // Where another program is in front nothing has the focus. What has lost it may have taken it
    // back.
    HWND const now = GetFocus();
    if (!window->gone() && (!now || now == window->handle()))
        toolkit::Screen.focusMoved(control);
}

void Win32Desktop::announce(Control& control, const std::string& said) {
    if (const auto window = windowOf(control))
        desktop_win32::announce(GetAncestor(window->handle(), GA_ROOT), said);
}

int Win32Desktop::messageBox(const toolkit::MessageBox& box) {
    return showMessageBox(box, inFront());
}

void Win32Desktop::doEvents() {
    runWaiting();
}

toolkit::Place Win32Desktop::screen() {
    const int dpi = static_cast<int>(GetDpiForSystem());
    return {0, 0, twips(GetSystemMetrics(SM_CXSCREEN), dpi),
            twips(GetSystemMetrics(SM_CYSCREEN), dpi)};
}

std::unique_ptr<toolkit::PrinterDevice> Win32Desktop::newPrinterDevice() {
    return makePrinterDevice();
}

int Win32Desktop::run() {
    return toolkit::Forms.Count() == 0 ? 0 : runLoop([] { return false; });
}

std::function<void()> Win32Desktop::waker(std::function<void()> event) {
    HWND const to = callWindow().handle();
    const WPARAM call = callWindow().add(std::move(event));
    return [to, call] { PostMessageW(to, CallWindow::kCall, call, 0); };
}

void Win32Desktop::endLoop() {
    PostQuitMessage(0);
}

} // namespace desktop_win32

std::unique_ptr<desktop::SystemDesktop> desktop::makeDesktop() {
    return std::make_unique<desktop_win32::Win32Desktop>();
}
