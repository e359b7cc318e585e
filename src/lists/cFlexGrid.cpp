#include "lists/cFlexGrid.h"

#include "common/Trap.h"

#include <cmath>
#include <map>
#include <string>

namespace quorvanta {

toolkit::MSFlexGrid& cFlexGrid::grid() const {
    if (!prpGrid)
        throw platform::RuntimeError(platform::InvalidCall);
    return *prpGrid;
}

void cFlexGrid::run(int action) {
    switch (action) {
    case LayOut:
        return SetEmptyGrid();
    case ClearRow:
        return DeleteGridRow();
    case CloseGap:
        return MoveRowsUp();
    case SwapRows:
        ExchangeRows();
        return MoveRowsUp();
    default:
        return;
    }
}

// One pass: the row that has been emptied is the next to be looked at, so a gap of one row runs
// down the whole grid.
void cFlexGrid::MoveRowsUp() {
    trapped("cFlexGrid.MoveRowsUp", [&](auto step) {
        int last = 0;
        step([&] { last = grid().Rows - 2; });
        for (int i = 0; i <= last; ++i) {
            bool empty = true;
            step([&] { empty = grid().TextMatrix(i, 1).empty(); });
            if (!empty)
                continue;
            for (int c = prpStartPos; c <= prpEndPos; ++c) {
                step([&] { grid().TextMatrix(i, c) = grid().TextMatrix(i + 1, c); });
                step([&] { grid().TextMatrix(i + 1, c) = ""; });
            }
        }
    });
}

void cFlexGrid::DeleteGridRow() {
    trapped("cFlexGrid.DeleteGridRow", [&](auto step) {
        for (int c = prpStartPos; c <= prpEndPos; ++c)
            step([&] { grid().TextMatrix(prpActiveRow, c) = ""; });
    });
}

void cFlexGrid::SetEmptyGrid() {
    trapped("cFlexGrid.SetEmptyGrid", [&](auto step) {
        step([&] { grid().Clear(); });
        step([&] { grid().Rows = prpGridRows; });
        step([&] { grid().Cols = prpGridCols; });
        step([&] { grid().FixedCols = 0; });
        for (int c = 0; c < prpGridCols; ++c)
            step([&] {
                grid().setColWidth(c, static_cast<int>(std::nearbyint(grid().Width / prpGridCols)));
            });
    });
}

void cFlexGrid::ExchangeRows() {
    trapped("cFlexGrid.ExchangeRows", [&](auto step) {
        std::map<int, std::string> first, second; // by column
        for (int c = prpStartPos; c <= prpEndPos; ++c)
            step([&] { first[c] = grid().text(prpActiveRow, c); });
        for (int c = prpStartPos; c <= prpEndPos; ++c)
            step([&] { second[c] = grid().text(prpSecondRow, c); });
        for (int c = prpStartPos; c <= prpEndPos; ++c)
            step([&] { grid().TextMatrix(prpSecondRow, c) = first[c]; });
        for (int c = prpStartPos; c <= prpEndPos; ++c)
            step([&] { grid().TextMatrix(prpActiveRow, c) = second[c]; });
    });
}

} // namespace quorvanta
