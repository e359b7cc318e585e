#include "desktop/win32/ControlWindow.h"

namespace desktop_win32 {

namespace {

// The group box holds its controls, so it gives them a ground, which the system's own doesn't.
class GroupBox final : public ControlWindow {
public:
    using ControlWindow::ControlWindow;

    static std::shared_ptr<ControlWindow> make(toolkit::Frame& frame, HWND parent) {
        const auto it = std::make_shared<GroupBox>(frame);
        ControlWindow::make(it, parent, L"BUTTON", BS_GROUPBOX | WS_CLIPCHILDREN,
                            WS_EX_CONTROLPARENT);
        return it;
    }

protected:
    LRESULT received(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
        case WM_ERASEBKGND: {
            RECT all{};
            GetClientRect(handle(), &all);
            FillRect(reinterpret_cast<HDC>(wParam), &all, GetSysColorBrush(COLOR_BTNFACE));
            return TRUE;
        }
        // A button inside it has its ground painted by it, and wants to go on in its own font.
        case WM_PRINTCLIENT: {
            HDC const dc = reinterpret_cast<HDC>(wParam);
            const int before = SaveDC(dc);
            const LRESULT result = ControlWindow::received(message, wParam, lParam);
            RestoreDC(dc, before);
            return result;
        }
        // Its own answers would be those of a button to its parent's.
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLOREDIT:
            return DefWindowProcW(handle(), message, wParam, lParam);
        default:
            return ControlWindow::received(message, wParam, lParam);
        }
    }
};

} // namespace

std::shared_ptr<ControlWindow> makeControl(toolkit::Frame& frame, HWND parent) {
    return GroupBox::make(frame, parent);
}

} // namespace desktop_win32
