#include "desktop/win32/ControlWindow.h"

namespace desktop_win32 {

namespace {

// The system's own rule, so that readers know it for one. It would paint two rows of pixels alone,
// which is too fine for a high resolution.
class LineWindow final : public PaintedWindow {
public:
    using PaintedWindow::PaintedWindow;

    static std::shared_ptr<ControlWindow> make(toolkit::Line& line, HWND parent) {
        const auto it = std::make_shared<LineWindow>(line);
        ControlWindow::make(it, parent, L"STATIC", SS_ETCHEDHORZ);
        return it;
    }

    // Etched: a dark edge above a light one.
    void paintAt(HDC dc, POINT place) override {
        RECT edge = areaAt(place);
        FillRect(dc, &edge, GetSysColorBrush(COLOR_3DHIGHLIGHT));
        edge.bottom -= (edge.bottom - edge.top) / 2;
        FillRect(dc, &edge, GetSysColorBrush(COLOR_3DSHADOW));
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
