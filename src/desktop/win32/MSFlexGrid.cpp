#include "desktop/win32/GridAxis.h"

#include <windowsx.h>

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
        const int left = columns_.start(cell.column), top = rows_.start(cell.row);
        return {left, top, left + columns_.size(cell.column), top + rows_.size(cell.row)};
    }
    RECT cellInView(Cell cell) const override {
        const RECT all = cellPlace(cell);
        const RECT view{columns_.begin(cell.column), rows_.begin(cell.row), columns_.room(),
                        rows_.room()};
        RECT seen{};
        IntersectRect(&seen, &all, &view);
        return seen;
    }
    Cell cellAt(POINT place) const override { return {rows_.at(place.y), columns_.at(place.x)}; }

protected:
    LRESULT received(UINT message, WPARAM wParam, LPARAM lParam) override;
    void place() override {
        ControlWindow::place();
        showBars();
    }

private:
    // The row of a data cell, 0 for a header cell, -1 for none.
    int rowAt(LPARAM place) const {
        const auto [row, column] = cellAt({GET_X_LPARAM(place), GET_Y_LPARAM(place)});
        return row < 0 || column < 0 ? -1 : grid_.isHeader(row, column) ? 0 : row;
    }

    void showBars();
    void repaintIf(bool moved) {
        if (moved)
            repaint();
    }
    void paintCell(HDC dc, int row, int column, POINT place);
    void press(UINT message, LPARAM place);

    GridAxis rows_{*this, SB_VERT}, columns_{*this, SB_HORZ};
};

void MSFlexGridWindow::changed(toolkit::Prop which) {
    switch (which) {
    case toolkit::Prop::Rows:
    case toolkit::Prop::ColWidth:
    case toolkit::Prop::RowHeight:
        showBars();
        return repaint();
    case toolkit::Prop::Row:
        rows_.show(grid_.row());
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
    const int wide = columns_.size(), high = rows_.size();
    int width = all.right - all.left - (edges.right - edges.left);
    int height = all.bottom - all.top - (edges.bottom - edges.top);
    const bool down = high > height || (wide > width && high > height - thickness(SM_CYHSCROLL));
    width -= down ? thickness(SM_CXVSCROLL) : 0;
    height -= wide > width ? thickness(SM_CYHSCROLL) : 0;
    columns_.showBar(width);
    rows_.showBar(height);
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
    RECT cell{place.x, place.y, place.x + columns_.size(column), place.y + rows_.size(row)};
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
                              {place.x + columns_.start(column), place.y + rows_.start(row)});
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
        repaintIf((message == WM_HSCROLL ? columns_ : rows_).scroll(LOWORD(wParam)));
        return 0;
    case WM_MOUSEHWHEEL:
    case WM_MOUSEWHEEL: // the window around it may use what it can't
        if (GridAxis& turned = message == WM_MOUSEHWHEEL ? columns_ : rows_; turned.scrolls()) {
            repaintIf(turned.turn(GET_WHEEL_DELTA_WPARAM(wParam)));
            return 0;
        }
        break;
    case WM_KEYDOWN: // the other keys of a grid are the toolkit's
        if (wParam == VK_LEFT || wParam == VK_RIGHT)
            repaintIf(columns_.scroll(wParam == VK_LEFT ? SB_LINEUP : SB_LINEDOWN));
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
