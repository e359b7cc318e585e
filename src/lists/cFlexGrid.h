// Changes the rows of a number grid. A page makes one for a job, sets what the job needs, and
// writes prpActionToDo, which runs the job at once:
//
//     cFlexGrid rows;
//     rows.prpGrid.Set(grd1.ref());
//     rows.prpStartPos = 1;
//     rows.prpEndPos = 49;
//     rows.prpActiveRow = 3;
//     rows.prpActionToDo = cFlexGrid::ClearRow;
//     rows.prpActionToDo = cFlexGrid::CloseGap;
//
// The grid is the data. A row is empty when its cell in column 1 is, whatever its other cells hold.
// Storing the changed rows is the page's business.
#pragma once

#include "common/WorkerProperty.h"
#include "toolkit/MSFlexGrid.h"

namespace quorvanta {

class cFlexGrid {
    void run(const int& action);

public:
    enum Action {
        LayOut = 1,   // SetEmptyGrid: prpGrid, prpGridRows, prpGridCols
        ClearRow = 2, // DeleteGridRow: prpGrid, prpStartPos, prpEndPos, prpActiveRow
        CloseGap = 3, // MoveRowsUp: prpGrid, prpStartPos, prpEndPos
        SwapRows = 4  // ExchangeRows, then MoveRowsUp: likewise, prpActiveRow, prpSecondRow
    };

    ObjectProperty<toolkit::MSFlexGrid> prpGrid;
    ValueProperty<int> prpGridCols;
    // Runs the action and doesn't keep it. Values that aren't an Action do nothing.
    JobProperty<cFlexGrid, int, &cFlexGrid::run> prpActionToDo{*this};
    ValueProperty<int> prpGridRows;
    ValueProperty<int> prpStartPos;  // the columns of a row operation, both ends included
    ValueProperty<int> prpActiveRow; // the row to clear, or the first of two
    ValueProperty<int> prpEndPos;
    ValueProperty<int> prpSecondRow;

private:
    void MoveRowsUp();
    void DeleteGridRow();
    void SetEmptyGrid();
    void ExchangeRows();
};

} // namespace quorvanta
