#include "desktop/win32/ControlWindow.h"

namespace desktop_win32 {

namespace {

class LineWindow final : public ControlWindow {
public:
    using ControlWindow::ControlWindow;

    static std::shared_ptr<ControlWindow> make(toolkit::Line& line, HWND parent) {
        const auto it = std::make_shared<LineWindow>(line);
        ControlWindow::make(it, parent, L"STATIC", SS_ETCHEDHORZ);
        return it;
    }

protected:
    RECT rectangle() const override {
        RECT to = ControlWindow::rectangle();
        to.bottom = to.top + std::max(2, dpi() / 48); // a rule has no height of its own
        return to;
    }
};

} // namespace

std::shared_ptr<ControlWindow> makeControl(toolkit::Line& line, HWND parent) {
    return LineWindow::make(line, parent);
}

} // namespace desktop_win32
