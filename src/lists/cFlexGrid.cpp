#include "lists/cFlexGrid.h"

#include "common/Trap.h"

#include <cmath>
#include <map>
#include <string>

namespace quorvanta {

void cFlexGrid::run(const int& action) {
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
        step([&] { last = prpGrid().Rows - 2; });
        for (int i = 0; i <= last; ++i) {
            bool empty = true;
            step([&] { empty = prpGrid().TextMatrix(i, 1).empty(); });
            if (!empty)
                continue;
            for (int c = prpStartPos(); c <= prpEndPos(); ++c) {
                step([&] { prpGrid().TextMatrix(i, c) = prpGrid().TextMatrix(i + 1, c); });
                step([&] { prpGrid().TextMatrix(i + 1, c) = ""; });
            }
        }
    });
}

void cFlexGrid::DeleteGridRow() {
    trapped("cFlexGrid.DeleteGridRow", [&](auto step) {
        for (int c = prpStartPos(); c <= prpEndPos(); ++c)
            step([&] { prpGrid().TextMatrix(prpActiveRow(), c) = ""; });
    });
}

void cFlexGrid::SetEmptyGrid() {
    trapped("cFlexGrid.SetEmptyGrid", [&](auto step) {
        step([&] { prpGrid().Clear(); });
        step([&] { prpGrid().Rows = prpGridRows(); });
        step([&] { prpGrid().Cols = prpGridCols(); });
        step([&] { prpGrid().FixedCols = 0; });
        for (int c = 0; c < prpGridCols(); ++c)
            step([&] {
                prpGrid().setColWidth(
                    c, static_cast<int>(std::nearbyint(prpGrid().Width / prpGridCols())));
            });
    });
}

void cFlexGrid::ExchangeRows() {
    trapped("cFlexGrid.ExchangeRows", [&](auto step) {
        std::map<int, std::string> first, second; // by column
        for (int c = prpStartPos(); c <= prpEndPos(); ++c)
            step([&] { first[c] = prpGrid().text(prpActiveRow(), c); });
        for (int c = prpStartPos(); c <= prpEndPos(); ++c)
            step([&] { second[c] = prpGrid().text(prpSecondRow(), c); });
        for (int c = prpStartPos(); c <= prpEndPos(); ++c)
            step([&] { prpGrid().TextMatrix(prpSecondRow(), c) = first[c]; });
        for (int c = prpStartPos(); c <= prpEndPos(); ++c)
            step([&] { prpGrid().TextMatrix(prpActiveRow(), c) = second[c]; });
    });
}

} // namespace quorvanta
