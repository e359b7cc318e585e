#include "desktop/win32/ControlWindow.h"

namespace desktop_win32 {

namespace {

// Where the inside of the window lies on the screen.
RECT insideOf(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&area), 2);
    return area;
}

} // namespace

void PaintedWindow::repaint() {
    if (!isTransparent()) {
        InvalidateRect(handle(), nullptr, FALSE);
        return;
    }
    RECT area = insideOf(handle());
    MapWindowPoints(nullptr, GetParent(handle()), reinterpret_cast<POINT*>(&area), 2);
    RedrawWindow(GetParent(handle()), &area, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

RECT PaintedWindow::areaAt(POINT place) const {
    RECT area{};
    GetClientRect(handle(), &area);
    OffsetRect(&area, place.x, place.y);
    return area;
}

void PaintedWindow::paint() {
    PAINTSTRUCT painting{};
    HDC const dc = BeginPaint(handle(), &painting);
    const RECT all = areaAt({0, 0});
    // On paper first, so that nothing is seen half painted.
    HDC const paper = CreateCompatibleDC(dc);
    HBITMAP const sheet = CreateCompatibleBitmap(dc, all.right, all.bottom);
    HGDIOBJ const before = SelectObject(paper, sheet);
    if (isTransparent())
        paintBelow(paper);
    paintAt(paper, {0, 0});
    BitBlt(dc, 0, 0, all.right, all.bottom, paper, 0, 0, SRCCOPY);
    SelectObject(paper, before);
    DeleteObject(sheet);
    DeleteDC(paper);
    EndPaint(handle(), &painting);
}

void PaintedWindow::paintBelow(HDC dc) const {
    const RECT ours = insideOf(handle());
    fill(dc, areaAt({0, 0}), colour(control_.form().BackColor, COLOR_BTNFACE));
    for (const toolkit::Control* const below : control_.parent().controls()) {
        if (below == &control_)
            return; // what comes later stands in front
        const auto window =
            below->Visible ? std::dynamic_pointer_cast<PaintedWindow>(windowOf(*below)) : nullptr;
        if (!window)
            continue;
        const RECT theirs = insideOf(window->handle());
        if (RECT common{}; IntersectRect(&common, &theirs, &ours))
            window->paintAt(dc, {theirs.left - ours.left, theirs.top - ours.top});
    }
}

LRESULT PaintedWindow::received(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT:
        paint();
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        repaint();
        break;
    default:
        break;
    }
    return ControlWindow::received(message, wParam, lParam);
}

} // namespace desktop_win32
