#include "desktop/win32/GridAccessible.h"

#include <windowsx.h>

#include <algorithm>

namespace desktop_win32 {

namespace {

using toolkit::MSFlexGrid;

// Painted by the program, as the system has no table of its kind: the fixed row and column stay in
// view, the rest is scrolled below them. The current row is the toolkit's; the window tells the
// grid what the user did, and highlights what the grid answers.
class MSFlexGridWindow final : public GridWindow {
public:
    using GridWindow::GridWindow;

    static std::shared_ptr<ControlWindow> make(MSFlexGrid& grid, HWND parent) {
        const auto it = std::make_shared<MSFlexGridWindow>(grid);
        ControlWindow::make(it, parent, nullptr, WS_TABSTOP | WS_HSCROLL | WS_VSCROLL,
                            WS_EX_CLIENTEDGE);
        return it;
    }

    void changed(toolkit::Prop which) override;
    void cellChanged(int row, int column) override {
        repaint();
        tellCell(*this, {row, column});
    }
    void paintAt(HDC dc, POINT place) override;

    RECT cellPlace(Cell cell) const override {
        const int left = start(columns(), cell.column), top = start(rows(), cell.row);
        return {left, top, left + size(columns(), cell.column), top + size(rows(), cell.row)};
    }
    RECT cellInView(Cell cell) const override {
        const RECT all = cellPlace(cell);
        const RECT view{begin(columns(), cell.column), begin(rows(), cell.row), room(columns()),
                        room(rows())};
        RECT seen{};
        IntersectRect(&seen, &all, &view);
        return seen;
    }
    Cell cellAt(POINT place) const override {
        return {at(rows(), place.y), at(columns(), place.x)};
    }

protected:
    LRESULT received(UINT message, WPARAM wParam, LPARAM lParam) override;
    void place() override {
        ControlWindow::place();
        showBars();
    }

private:
    // Either direction: rows from the top, or columns from the left.
    struct Axis {
        int bar; // SB_VERT or SB_HORZ
        int count, fixed;
    };
    Axis rows() const { return {SB_VERT, grid_.rows(), grid_.FixedRows}; }
    Axis columns() const { return {SB_HORZ, grid_.cols(), grid_.FixedCols}; }

    int size(const Axis& axis, int index) const {
        return pixels(axis.bar == SB_VERT ? grid_.RowHeight(index) : grid_.ColWidth(index), dpi());
    }
    int sizes(const Axis& axis, int from, int to) const {
        int all = 0;
        for (int i = from; i < to; ++i)
            all += size(axis, i);
        return all;
    }
    int room(const Axis& axis) const {
        RECT all{};
        GetClientRect(handle(), &all);
        return axis.bar == SB_VERT ? all.bottom : all.right;
    }
    // Where a row or column begins, and which one is at a place; -1 for none.
    int start(const Axis& axis, int index) const {
        return sizes(axis, 0, index) - (index < axis.fixed ? 0 : GetScrollPos(handle(), axis.bar));
    }
    int at(const Axis& axis, int place) const {
        for (int i = 0; i < axis.count && place < room(axis); ++i)
            if (place >= std::max(start(axis, i), begin(axis, i)) &&
                place < start(axis, i) + size(axis, i))
                return i;
        return -1;
    }
    // From where on it can be seen: what is scrolled goes below the fixed ones.
    int begin(const Axis& axis, int index) const {
        return index < axis.fixed ? 0 : sizes(axis, 0, std::min(axis.fixed, axis.count));
    }
    // The row of a data cell, 0 for a header cell, -1 for none.
    int rowAt(LPARAM place) const {
        const auto [row, column] = cellAt({GET_X_LPARAM(place), GET_Y_LPARAM(place)});
        return row < 0 || column < 0 ? -1 : grid_.isHeader(row, column) ? 0 : row;
    }

    void showBars();
    void showBar(const Axis& axis, int room);
    void scrollTo(const Axis& axis, int position);
    void scroll(const Axis& axis, WORD how);
    void showRow();
    void paintCell(HDC dc, int row, int column, POINT place);
    void press(UINT message, LPARAM place);
};

void MSFlexGridWindow::changed(toolkit::Prop which) {
    switch (which) {
    case toolkit::Prop::Rows:
    case toolkit::Prop::ColWidth:
    case toolkit::Prop::RowHeight:
        showBars();
        return repaint();
    case toolkit::Prop::Row:
        showRow();
        repaint();
        return tellChosenRow(*this);
    default:
        return ControlWindow::changed(which);
    }
}

// Each bar takes room from the other direction, so the room without any of them counts: two bars
// that are there already would seem to need each other.
void MSFlexGridWindow::showBars() {
    RECT all{}, edges{};
    GetWindowRect(handle(), &all);
    AdjustWindowRectExForDpi(&edges, 0, FALSE, WS_EX_CLIENTEDGE, static_cast<UINT>(dpi()));
    const auto thickness = [this](int metric) {
        return GetSystemMetricsForDpi(metric, static_cast<UINT>(dpi()));
    };
    const int wide = sizes(columns(), 0, grid_.cols()), high = sizes(rows(), 0, grid_.rows());
    int width = all.right - all.left - (edges.right - edges.left);
    int height = all.bottom - all.top - (edges.bottom - edges.top);
    const bool down = high > height || (wide > width && high > height - thickness(SM_CYHSCROLL));
    width -= down ? thickness(SM_CXVSCROLL) : 0;
    height -= wide > width ? thickness(SM_CYHSCROLL) : 0;
    showBar(columns(), width);
    showBar(rows(), height);
}

void MSFlexGridWindow::showBar(const Axis& axis, int room) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = std::max(0, sizes(axis, axis.fixed, axis.count) - 1);
    info.nPage = static_cast<UINT>(std::max(1, room - begin(axis, axis.fixed)));
    SetScrollInfo(handle(), axis.bar, &info, TRUE);
}

void MSFlexGridWindow::scrollTo(const Axis& axis, int position) {
    if (SetScrollPos(handle(), axis.bar, position, TRUE) != position)
        repaint();
}

void MSFlexGridWindow::scroll(const Axis& axis, WORD how) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(handle(), axis.bar, &info);
    const int page = static_cast<int>(info.nPage);
    const int line = axis.count > axis.fixed ? size(axis, axis.fixed) : 1;
    int to = info.nPos;
    switch (how) {
    case SB_LINEUP:
    case SB_LINEDOWN:
        to += how == SB_LINEDOWN ? line : -line;
        break;
    case SB_PAGEUP:
    case SB_PAGEDOWN:
        to += how == SB_PAGEDOWN ? page : -page;
        break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        to = info.nTrackPos;
        break;
    default:
        return;
    }
    scrollTo(axis, std::clamp(to, 0, std::max(0, info.nMax + 1 - page)));
}

// Brings the current row wholly into view.
void MSFlexGridWindow::showRow() {
    const Axis axis = rows();
    const int row = grid_.row();
    if (row < axis.fixed)
        return;
    const int fixed = sizes(axis, 0, axis.fixed);
    const int above = start(axis, row) - fixed;
    const int below = start(axis, row) + size(axis, row) - room(axis);
    const int now = GetScrollPos(handle(), axis.bar);
    if (above < 0)
        scrollTo(axis, now + above);
    else if (below > 0)
        scrollTo(axis, now + std::min(below, above));
}

// The shadow of buttons where it can be seen on the cells, else the colour of their texts.
COLORREF lineColour() {
    const auto of = [](int index) { return static_cast<toolkit::Colour>(GetSysColor(index)); };
    return static_cast<COLORREF>(toolkit::seenBeside(of(COLOR_WINDOW), of(COLOR_BTNSHADOW),
                                                     of(COLOR_WINDOWTEXT), toolkit::kNoticed));
}

void MSFlexGridWindow::paintCell(HDC dc, int row, int column, POINT place) {
    const bool header = grid_.isHeader(row, column);
    const bool chosen = !header && row == grid_.row();
    RECT cell{place.x, place.y, place.x + size(columns(), column), place.y + size(rows(), row)};
    const int ground = header ? COLOR_BTNFACE : chosen ? COLOR_HIGHLIGHT : COLOR_WINDOW;
    FillRect(dc, &cell, GetSysColorBrush(ground));
    fill(dc, {cell.left, cell.bottom - 1, cell.right, cell.bottom}, lineColour());
    fill(dc, {cell.right - 1, cell.top, cell.right, cell.bottom}, lineColour());
    SetTextColor(dc, GetSysColor(header   ? COLOR_BTNTEXT
                                 : chosen ? COLOR_HIGHLIGHTTEXT
                                          : COLOR_WINDOWTEXT));
    const std::wstring text = wide(grid_.text(row, column));
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &cell,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

// The scrolled cells first: the fixed ones cover what has moved below them.
void MSFlexGridWindow::paintAt(HDC dc, POINT place) {
    const RECT all = areaAt(place);
    FillRect(dc, &all, GetSysColorBrush(COLOR_WINDOW));
    SetBkMode(dc, TRANSPARENT);
    HGDIOBJ const before = SelectObject(dc, font(grid_.font(), dpi()));
    for (const auto& [fixedRow, fixedColumn] :
         {std::pair{false, false}, {true, false}, {false, true}, {true, true}})
        for (int row = 0; row < grid_.rows(); ++row)
            for (int column = 0; column < grid_.cols(); ++column)
                if ((row < grid_.FixedRows) == fixedRow &&
                    (column < grid_.FixedCols) == fixedColumn)
                    paintCell(dc, row, column,
                              {place.x + start(columns(), column), place.y + start(rows(), row)});
    SelectObject(dc, before);
    if (GetFocus() == handle())
        DrawFocusRect(dc, &all);
}

void MSFlexGridWindow::press(UINT message, LPARAM place) {
    const int row = rowAt(place);
    if (message == WM_LBUTTONDOWN) {
        SetCapture(handle()); // the release is told wherever it is
        grid_.press(row);
    } else if (message == WM_LBUTTONUP) {
        ReleaseCapture();
        grid_.release(row);
    } else { // the second press of a double click is told as this
        grid_.doubleClickRow(row);
    }
}

LRESULT MSFlexGridWindow::received(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_HSCROLL:
    case WM_VSCROLL:
        scroll(message == WM_HSCROLL ? columns() : rows(), LOWORD(wParam));
        return 0;
    case WM_MOUSEWHEEL:
        for (int i = 0; i < 3; ++i)
            scroll(rows(), GET_WHEEL_DELTA_WPARAM(wParam) > 0 ? SB_LINEUP : SB_LINEDOWN);
        return 0;
    case WM_KEYDOWN: // the other keys of a grid are the toolkit's
        if (wParam == VK_LEFT || wParam == VK_RIGHT)
            scroll(columns(), wParam == VK_LEFT ? SB_LINEUP : SB_LINEDOWN);
        return 0;
    case WM_GETOBJECT:
        if (static_cast<LONG>(lParam) == OBJID_CLIENT)
            return accessibleGrid(std::static_pointer_cast<GridWindow>(shared_from_this()), wParam);
        break;
    case WM_SETFOCUS:
        tellFocus(*this);
        break;
    case WM_SIZE:
        showBars();
        break;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
        if (message != WM_LBUTTONDOWN || enter())
            press(message, lParam);
        return 0;
    default:
        break;
    }
    return PaintedWindow::received(message, wParam, lParam);
}

} // namespace

std::shared_ptr<ControlWindow> makeControl(MSFlexGrid& grid, HWND parent) {
    return MSFlexGridWindow::make(grid, parent);
}

} // namespace desktop_win32
