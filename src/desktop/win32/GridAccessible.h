// What a screen reader meets in a grid: a table whose children are the cells, row by row, those of
// the fixed row and column among them.
#pragma once

#include "desktop/win32/ControlWindow.h"

namespace desktop_win32 {

// A window that shows a grid, and knows where its cells are.
class GridWindow : public PaintedWindow {
public:
    explicit GridWindow(toolkit::MSFlexGrid& grid) : PaintedWindow(grid), grid_(grid) {}

    struct Cell {
        int row = -1, column = -1; // -1 for none
    };

    toolkit::MSFlexGrid& grid() const { return grid_; }
    // In pixels of the window: a cell wherever it is scrolled to, what of it can be seen, and the
    // cell that is seen at a place.
    virtual RECT cellPlace(Cell cell) const = 0;
    virtual RECT cellInView(Cell cell) const = 0;
    virtual Cell cellAt(POINT place) const = 0;

protected:
    toolkit::MSFlexGrid& grid_;
};

// The answer to WM_GETOBJECT for the inside of the window; 0 leaves it to the system.
LRESULT accessibleGrid(const std::shared_ptr<GridWindow>& window, WPARAM wParam);

// Tell screen readers of another text, another chosen row, and of the focus within the grid.
void tellCell(const GridWindow& window, GridWindow::Cell cell);
void tellChosenRow(const GridWindow& window);
void tellFocus(const GridWindow& window);

} // namespace desktop_win32
