#include "desktop/win32/Window.h"

#include <unordered_map>
#include <utility>

namespace desktop_win32 {

namespace {

std::unordered_map<HWND, std::shared_ptr<Window>> windows;
std::shared_ptr<Window> creating; // the object whose window is just being made

} // namespace

std::shared_ptr<Window> Window::of(HWND window) {
    const auto found = windows.find(window);
    return found == windows.end() ? nullptr : found->second;
}

const wchar_t* Window::ownClass() {
    static const wchar_t* const name = [] {
        WNDCLASSEXW kind{};
        kind.cbSize = sizeof kind;
        kind.style = CS_DBLCLKS;
        kind.lpfnWndProc = procedure;
        kind.hInstance = GetModuleHandleW(nullptr);
        kind.hIcon = LoadIconW(kind.hInstance, MAKEINTRESOURCEW(1));
        kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        kind.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
        kind.lpszClassName = L"Quorvanta";
        RegisterClassExW(&kind);
        return kind.lpszClassName;
    }();
    return name;
}

void Window::create(const std::shared_ptr<Window>& it, const Design& design) {
    const RECT& place = design.place;
    if (!design.kind)
        creating = it; // its first messages come before the call returns
    HWND const window =
        CreateWindowExW(design.extended, design.kind ? design.kind : ownClass(), L"", design.style,
                        place.left, place.top, place.right - place.left, place.bottom - place.top,
                        design.parent, design.menu, GetModuleHandleW(nullptr), nullptr);
    creating = nullptr;
    if (!window || !design.kind)
        return;
    windows[window] = it;
    it->handle_ = window;
    it->stock_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

void Window::destroy() {
    if (gone())
        return;
    const auto keep = shared_from_this();
    EnumChildWindows(
        handle_,
        [](HWND inner, LPARAM) -> BOOL {
            if (const auto object = of(inner))
                object->gone_ = true;
            return TRUE;
        },
        0);
    gone_ = true;
    destroyWindow();
}

LRESULT CALLBACK Window::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (creating) {
        creating->handle_ = window;
        windows[window] = std::exchange(creating, nullptr);
    }
    const auto object = of(window);
    if (!object)
        return DefWindowProcW(window, message, wParam, lParam);
    const LRESULT result = object->gone_ ? object->byDefault(message, wParam, lParam)
                                         : object->received(message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        object->handle_ = nullptr;
        windows.erase(window);
    }
    return result;
}

LRESULT Window::byDefault(UINT message, WPARAM wParam, LPARAM lParam) {
    return stock_ ? CallWindowProcW(stock_, handle_, message, wParam, lParam)
                  : DefWindowProcW(handle_, message, wParam, lParam);
}

LRESULT Window::received(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND && lParam != 0) {
        const auto control = of(reinterpret_cast<HWND>(lParam));
        if (control && !control->gone_ && control->commanded(wParam))
            return 0;
    } else if (message == WM_NOTIFY) {
        auto& header = *reinterpret_cast<NMHDR*>(lParam);
        const auto control = of(header.hwndFrom);
        LRESULT result = 0;
        if (control && !control->gone_ && control->notified(header, result))
            return result;
    }
    return byDefault(message, wParam, lParam);
}

} // namespace desktop_win32
