#include "desktop/win32/ControlWindow.h"

namespace desktop_win32 {

namespace {

// The system's own label, so that readers know it for one, in the program's painting: the system's
// knows no colours.
class LabelWindow final : public PaintedWindow {
public:
    LabelWindow(toolkit::Label& label) : PaintedWindow(label), label_(label) {}

    static std::shared_ptr<ControlWindow> make(toolkit::Label& label, HWND parent) {
        const auto it = std::make_shared<LabelWindow>(label);
        ControlWindow::make(it, parent, L"STATIC",
                            SS_NOPREFIX | (label.shrinksText ? SS_NOTIFY : 0)); // for its tip
        return it;
    }

    bool isTransparent() const override { return label_.BackColor == toolkit::kThemeColour; }
    void paintAt(HDC dc, POINT place) override;

protected:
    LRESULT received(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == WM_SETTEXT // the system's label would paint it at once
                   ? DefWindowProcW(handle(), message, wParam, lParam)
                   : PaintedWindow::received(message, wParam, lParam);
    }
    void showCaption() override {
        ControlWindow::showCaption();
        place();
        repaint();
        showToolTip();
    }
    void showToolTip() override {
        const bool cut =
            label_.shrinksText && extent(wide(label_.Caption), shownFont(room())).cx > room();
        toolTip_.show(handle(), label_.shownTip(cut));
    }
    RECT rectangle() const override;

private:
    // The width that a text has within the border.
    int room() const { return areaAt({0, 0}).right - (label_.BorderStyle ? 2 * kMargin : 0); }
    HFONT shownFont(int width) const {
        return label_.shrinksText ? fittingFont(label_.font(), dpi(), wide(label_.Caption), width)
                                  : font(label_.font(), dpi());
    }
    COLORREF textColour() const {
        return colour(label_.textColour(), label_.Enabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT);
    }
    UINT format() const;

    static constexpr int kMargin = 2; // between the edge and the text, with the border

    toolkit::Label& label_;
};

UINT LabelWindow::format() const {
    UINT how = DT_NOPREFIX;
    if (label_.BorderStyle)
        how |= DT_VCENTER | DT_SINGLELINE;
    if (label_.shrinksText)
        how |= DT_END_ELLIPSIS | DT_SINGLELINE;
    if (label_.wraps())
        how |= DT_WORDBREAK;
    switch (label_.shownAlign()) {
    case toolkit::Alignment::Right:
        return how | DT_RIGHT;
    case toolkit::Alignment::Centre:
        return how | DT_CENTER;
    default:
        return how;
    }
}

RECT LabelWindow::rectangle() const {
    RECT to = PaintedWindow::rectangle();
    if (label_.AutoSize) {
        const SIZE room = extent(wide(label_.Caption), shownFont(0));
        to.right = std::max(to.right, to.left + room.cx);
        to.bottom = std::max(to.bottom, to.top + room.cy);
    }
    return to;
}

void LabelWindow::paintAt(HDC dc, POINT place) {
    RECT area = areaAt(place);
    if (!isTransparent())
        fill(dc, area, colour(label_.BackColor, COLOR_BTNFACE));
    if (label_.BorderStyle) {
        SetDCBrushColor(dc, static_cast<COLORREF>(toolkit::kBorder));
        FrameRect(dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
        InflateRect(&area, -kMargin, 0);
    }
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, textColour());
    HGDIOBJ const before = SelectObject(dc, shownFont(room()));
    const std::wstring caption = wide(label_.Caption);
    DrawTextW(dc, caption.c_str(), static_cast<int>(caption.size()), &area, format());
    SelectObject(dc, before);
}

} // namespace

std::shared_ptr<ControlWindow> makeControl(toolkit::Label& label, HWND parent) {
    return LabelWindow::make(label, parent);
}

} // namespace desktop_win32
