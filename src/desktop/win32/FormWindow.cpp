#include "desktop/win32/FormWindow.h"

#include "desktop/win32/MessageBox.h"
#include "toolkit/Desktop.h"
#include "toolkit/Focus.h"

namespace desktop_win32 {

using toolkit::Form;
using toolkit::Prop;

namespace {

void forInner(HWND window, const std::function<void(Window&, HWND)>& call) {
    EnumChildWindows(
        window,
        [](HWND inner, LPARAM with) -> BOOL {
            if (const auto object = Window::of(inner); object && !object->gone())
                (*reinterpret_cast<const std::function<void(Window&, HWND)>*>(with))(*object,
                                                                                     inner);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&call));
}

} // namespace

void FormWindow::changed(Prop which) {
    switch (which) {
    case Prop::Caption:
        SetWindowTextW(handle(), wide(form_.Caption).c_str());
        return;
    case Prop::Left:
    case Prop::Top:
        placeWindow();
        return;
    default:
        return;
    }
}

void FormWindow::lookChanged() {
    fit();
    placeWindow();
}

void FormWindow::show() {
    if (showBehindBox(handle()))
        return;
    ShowWindow(handle(), IsIconic(handle()) ? SW_RESTORE : SW_SHOW);
    SetForegroundWindow(handle());
}

void FormWindow::takeFocus() {
    const toolkit::Control* const target = toolkit::focusTarget(form_);
    if (const auto window = target ? windowOf(*target) : nullptr)
        SetFocus(window->handle());
}

void FormWindow::fit() {
    const int width = pixels(form_.clientWidth, dpi());
    const int height = pixels(form_.clientHeight, dpi());
    RECT outer{0, 0, width, height};
    AdjustWindowRectExForDpi(&outer, static_cast<DWORD>(GetWindowLongW(handle(), GWL_STYLE)),
                             form_.kind == Form::Kind::MDIFrame,
                             static_cast<DWORD>(GetWindowLongW(handle(), GWL_EXSTYLE)),
                             static_cast<UINT>(dpi()));
    OffsetRect(&outer, -outer.left, -outer.top);
    SetWindowPos(handle(), nullptr, 0, 0, outer.right, outer.bottom,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    form_.setBorders(twips(outer.right - width, dpi()), twips(outer.bottom - height, dpi()));
}

void FormWindow::placeWindow() {
    if (IsIconic(handle()) || IsZoomed(handle()))
        return;
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    GetMonitorInfoW(MonitorFromWindow(handle(), MONITOR_DEFAULTTOPRIMARY), &screen);
    const RECT to =
        rectangle(place_.within(place(screen.rcWork), form_, toolkit::kTwipsPerInch / dpi()));
    SetWindowPos(handle(), nullptr, to.left, to.top, to.right - to.left, to.bottom - to.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormWindow::moved() {
    RECT now{};
    if (!IsIconic(handle()) && GetWindowRect(handle(), &now))
        place_.moved(place(now), form_, toolkit::kTwipsPerInch / dpi());
}

void FormWindow::showNewLook() {
    forInner(handle(), [](Window& inner, HWND) { inner.lookChanged(); });
    lookChanged(); // at last: the frame puts its bars where its edges are
    RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

LRESULT FormWindow::received(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CLOSE: // unloading the form takes the window away
        if (IsWindowEnabled(GetAncestor(handle(), GA_ROOT))) // else a dialog or message is open
            form_.Unload(toolkit::FormControlMenu);
        return 0;
    case WM_QUERYENDSESSION:
        return TRUE;
    case WM_ENDSESSION:
        if (wParam)
            toolkit::desktop().sessionEnds();
        return 0;
    case WM_SETFOCUS:
        takeFocus();
        return 0;
    case WM_MOVE:
        moved();
        break;
    case WM_SETTINGCHANGE:
        if (wParam == SPI_SETWORKAREA)
            placeWindow();
        break;
    case WM_DISPLAYCHANGE:
        placeWindow();
        break;
    case WM_ERASEBKGND: {
        RECT all{};
        GetClientRect(handle(), &all);
        fill(reinterpret_cast<HDC>(wParam), all, colour(form_.BackColor, COLOR_BTNFACE));
        return TRUE;
    }
    case WM_DPICHANGED: {
        dpi_ = LOWORD(wParam);
        const RECT& wanted = *reinterpret_cast<const RECT*>(lParam);
        showNewLook();
        SetWindowPos(handle(), nullptr, wanted.left, wanted.top, wanted.right - wanted.left,
                     wanted.bottom - wanted.top, SWP_NOZORDER | SWP_NOACTIVATE);
        return 0;
    }
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED: // the system's own controls hear of it from their parent
        forInner(handle(), [=](Window&, HWND inner) { SendMessageW(inner, message, 0, 0); });
        RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        break;
    default:
        break;
    }
    return ObjectWindow::received(message, wParam, lParam);
}

std::shared_ptr<FormWindow> formWindowOf(HWND window) {
    for (; window; window = GetAncestor(window, GA_PARENT)) {
        const auto found = std::dynamic_pointer_cast<FormWindow>(Window::of(window));
        if (!found || found->gone())
            continue;
        const auto* const frame = dynamic_cast<const FrameWindow*>(found.get());
        const Form* const page = frame ? frame->activePage() : nullptr;
        return page ? std::dynamic_pointer_cast<FormWindow>(windowOf(*page)) : found;
    }
    return nullptr;
}

} // namespace desktop_win32
