// A table of text cells with one fixed row, one fixed column, and one current row.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

class MSFlexGrid : public Control {
public:
    MSFlexGrid(Container& parent, std::string name, Place place = {});

    static constexpr int kDefaultColWidth = 960;  // twips
    static constexpr int kDefaultRowHeight = 240; // twips

    // A cell to be read or set. A cell that nobody has set gives the empty text.
    class Cell {
    public:
        Cell(MSFlexGrid& grid, int row, int column) : grid_(grid), row_(row), column_(column) {}
        Cell(const Cell&) = default;

        operator const std::string&() const { return grid_.text(row_, column_); }
        bool empty() const { return grid_.text(row_, column_).empty(); }
        Cell& operator=(const std::string& text) {
            grid_.setText(row_, column_, text);
            return *this;
        }
        Cell& operator=(const Cell& other) {
            return *this = std::string(static_cast<const std::string&>(other));
        }

    private:
        MSFlexGrid& grid_;
        int row_, column_;
    };

    // Fixed cells too. Raises InvalidArrayIndex outside the grid.
    Cell TextMatrix(int row, int column) { return {*this, row, column}; }
    const std::string& text(int row, int column) const;
    void setText(int row, int column, const std::string& text);

    // Rows and columns count from 0. Raises InvalidCall for a negative count.
    int rows() const { return rows_; }
    int cols() const { return cols_; }
    void setRows(int rows);
    void setCols(int cols);
    Accessor<MSFlexGrid, int, &MSFlexGrid::rows, &MSFlexGrid::setRows> Rows{*this};
    Accessor<MSFlexGrid, int, &MSFlexGrid::cols, &MSFlexGrid::setCols> Cols{*this};
    Property<int> FixedRows{*this, Prop::Rows, 1};
    Property<int> FixedCols{*this, Prop::Rows, 1};
    bool isHeader(int row, int column) const { return row < FixedRows || column < FixedCols; }

    // The current row, 1 at first. Row 0, the header, means that no row is chosen. Setting it makes
    // RowSel, the end of the selection, the same. Raises InvalidCall for a row that isn't there.
    int row() const { return row_; }
    void setRow(int row);
    Accessor<MSFlexGrid, int, &MSFlexGrid::row, &MSFlexGrid::setRow> Row{*this};
    int RowSel() const { return row_; }

    // In twips. Raise InvalidArrayIndex for a column or row that isn't there.
    int ColWidth(int column) const;
    void setColWidth(int column, int width);
    int RowHeight(int row) const;
    void setRowHeight(int row, int height);

    // Takes away all cell texts.
    void Clear();

    // The user clicks a data row, or presses Enter on it: it becomes current before Click is
    // raised. A click on a header cell, of the row, of the column or the corner, is told as row 0
    // and changes nothing. A double click is told after the click that it begins with; on a header
    // cell it means nothing.
    void clickRow(int row);
    void doubleClickRow(int row);

    // The mouse button goes down and up on a row, 0 for a header cell, -1 beside the cells. A data
    // row becomes current when it goes down; only where it comes up on the same row, that is a
    // click. The second press of a double click isn't told as a press.
    void press(int row);
    void release(int row);

    // The user moves to a data row with the keyboard: it becomes current, with no Click.
    void moveToRow(int row);

    bool takesKeys() const override { return true; }
    // Keys that move to another row or click the current one. Left and right are the desktop's: it
    // scrolls its view sideways.
    bool useKey(const KeyStroke& key) override;

    // A counted reference: it keeps the grid alive after its form has been unloaded.
    std::shared_ptr<MSFlexGrid> ref();

private:
    void checkCell(int row, int column) const;
    void resize(int rows, int cols);
    int rowsToAPage() const;

    int rows_ = 2, cols_ = 2;
    int row_ = 1;
    int pressed_ = -1;                            // the row under the mouse button that is down
    std::vector<std::vector<std::string>> cells_; // by row, then column
    std::vector<int> colWidths_, rowHeights_;
};

} // namespace toolkit
