#include "toolkit/MSFlexGrid.h"

#include "toolkit/Form.h"
#include "toolkit/Keyboard.h"

#include <algorithm>
#include <utility>

namespace toolkit {

namespace {
std::size_t at(int index) {
    return static_cast<std::size_t>(index);
}
} // namespace

MSFlexGrid::MSFlexGrid(Container& parent, std::string name, Place place)
    : Control(parent, std::move(name), {}, place) {
    resize(rows_, cols_);
}

void MSFlexGrid::resize(int rows, int cols) {
    if (rows < 0 || cols < 0)
        throw platform::RuntimeError(platform::InvalidCall);
    rows_ = rows;
    cols_ = cols;
    cells_.resize(at(rows));
    for (auto& row : cells_)
        row.resize(at(cols));
    colWidths_.resize(at(cols), kDefaultColWidth);
    rowHeights_.resize(at(rows), kDefaultRowHeight);
    row_ = std::clamp(row_, 0, std::max(0, rows - 1));
    tellPeer(*this, Prop::Rows);
}

void MSFlexGrid::setRows(int rows) {
    resize(rows, cols_);
}
void MSFlexGrid::setCols(int cols) {
    resize(rows_, cols);
}

void MSFlexGrid::checkCell(int row, int column) const {
    if (row < 0 || row >= rows_ || column < 0 || column >= cols_)
        throw platform::RuntimeError(platform::InvalidArrayIndex);
}

const std::string& MSFlexGrid::text(int row, int column) const {
    checkCell(row, column);
    return cells_[at(row)][at(column)];
}

void MSFlexGrid::setText(int row, int column, const std::string& text) {
    checkCell(row, column);
    std::string& cell = cells_[at(row)][at(column)];
    if (cell == text)
        return;
    cell = text;
    if (peer())
        peer()->cellChanged(row, column);
}

void MSFlexGrid::setRow(int row) {
    if (row < 0 || row >= rows_)
        throw platform::RuntimeError(platform::InvalidCall);
    if (std::exchange(row_, row) != row)
        tellPeer(*this, Prop::Row);
}

int MSFlexGrid::ColWidth(int column) const {
    checkCell(0, column);
    return colWidths_[at(column)];
}

void MSFlexGrid::setColWidth(int column, int width) {
    checkCell(0, column);
    if (std::exchange(colWidths_[at(column)], width) != width)
        tellPeer(*this, Prop::ColWidth);
}

int MSFlexGrid::RowHeight(int row) const {
    checkCell(row, 0);
    return rowHeights_[at(row)];
}

void MSFlexGrid::setRowHeight(int row, int height) {
    checkCell(row, 0);
    if (std::exchange(rowHeights_[at(row)], height) != height)
        tellPeer(*this, Prop::RowHeight);
}

void MSFlexGrid::Clear() {
    for (int row = 0; row < rows_; ++row)
        for (int column = 0; column < cols_; ++column)
            setText(row, column, {});
}

void MSFlexGrid::clickRow(int row) {
    if (!takesInput() || row < 0 || row >= rows_)
        return;
    if (row >= FixedRows)
        setRow(row);
    raiseClick();
}

void MSFlexGrid::doubleClickRow(int row) {
    pressed_ = -1; // the click that it begins with has been told
    if (row >= FixedRows && row < rows_)
        doubleClick();
}

void MSFlexGrid::press(int row) {
    pressed_ = row;
    moveToRow(row);
}

void MSFlexGrid::release(int row) {
    if (std::exchange(pressed_, -1) == row)
        clickRow(row);
}

void MSFlexGrid::moveToRow(int row) {
    if (takesInput() && row >= FixedRows && row < rows_)
        setRow(row);
}

// One row stays in view.
int MSFlexGrid::rowsToAPage() const {
    const double room = Height - (rows_ > 0 ? RowHeight(0) : 0);
    const int height = rows_ > FixedRows ? RowHeight(FixedRows) : 0;
    return height > 0 ? std::max(1, static_cast<int>(room / height) - 1) : 1;
}

bool MSFlexGrid::useKey(const KeyStroke& key) {
    const int first = FixedRows;
    const int last = rows_ - 1;
    switch (key.code) {
    case key::Up:
        moveToRow(std::max(first, row_ - 1));
        return true;
    case key::Down:
        moveToRow(std::min(last, row_ + 1));
        return true;
    case key::PageUp:
        moveToRow(std::max(first, row_ - rowsToAPage()));
        return true;
    case key::PageDown:
        moveToRow(std::min(last, row_ + rowsToAPage()));
        return true;
    case key::Home:
        moveToRow(first);
        return true;
    case key::End:
        moveToRow(last);
        return true;
    case key::Space:
    case key::Enter:
        if (!key.repeats) // one press picks one row
            clickRow(row_);
        return true;
    default:
        return false;
    }
}

std::shared_ptr<MSFlexGrid> MSFlexGrid::ref() {
    return {form().shared_from_this(), this};
}

} // namespace toolkit
