#include "desktop/win32/FormWindow.h"
#include "desktop/win32/Menu.h"

namespace desktop_win32 {

using toolkit::Form;

std::shared_ptr<FrameWindow> FrameWindow::make(Form& form) {
    const auto it = std::make_shared<FrameWindow>(form);
    it->menus_ = makeMenus(form);
    create(it, {nullptr, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0, nullptr, {}, it->menus_});
    CLIENTCREATESTRUCT pages{nullptr, kAfterMenus};
    it->client_ =
        CreateWindowExW(WS_EX_CLIENTEDGE, L"MDICLIENT", L"",
                        WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_VISIBLE | WS_HSCROLL |
                            WS_VSCROLL | MDIS_ALLCHILDSTYLES,
                        0, 0, 0, 0, it->handle(), nullptr, GetModuleHandleW(nullptr), &pages);
    makeControls(form, it->handle());
    it->fit();
    it->layOut();
    return it;
}

Form* FrameWindow::activePage() const {
    const auto active = reinterpret_cast<HWND>(SendMessageW(client_, WM_MDIGETACTIVE, 0, 0));
    const auto page = std::dynamic_pointer_cast<FormWindow>(of(active));
    return page && !page->gone() ? &page->form() : nullptr;
}

void FrameWindow::showMenus(HMENU menus) {
    if (!menus)
        menus = menus_;
    if (gone() || GetMenu(handle()) == menus)
        return;
    SendMessageW(client_, WM_MDISETMENU, reinterpret_cast<WPARAM>(menus), 0);
    DrawMenuBar(handle());
}

void FrameWindow::lookChanged() {
    layOut();
}

// The bars lie along the edges, the pages have the rest.
void FrameWindow::layOut() {
    if (gone() || !client_)
        return;
    RECT rest{};
    GetClientRect(handle(), &rest);
    for (const toolkit::Control* const control : form_.controls()) {
        const auto window = windowOf(*control);
        if (!window)
            continue;
        const int height = pixels(control->Height, dpi());
        const bool atTop = dynamic_cast<const toolkit::Toolbar*>(control) != nullptr;
        SetWindowPos(window->handle(), nullptr, 0, atTop ? rest.top : rest.bottom - height,
                     rest.right, height, SWP_NOZORDER | SWP_NOACTIVATE);
        (atTop ? rest.top : rest.bottom) += atTop ? height : -height;
    }
    SetWindowPos(client_, nullptr, 0, rest.top, rest.right, rest.bottom - rest.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT FrameWindow::received(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        if (lParam == 0 && chooseMenu(LOWORD(wParam)))
            return 0;
        break;
    case WM_SIZE:
        layOut();
        moved();
        return 0;
    case WM_SETFOCUS: // to the page in front
        return byDefault(message, wParam, lParam);
    default:
        break;
    }
    return FormWindow::received(message, wParam, lParam);
}

LRESULT FrameWindow::byDefault(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefFrameProcW(handle(), client_, message, wParam, lParam);
}

} // namespace desktop_win32
