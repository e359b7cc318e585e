// Changes the rows of a number grid. A page makes one for a job, sets what the job needs, and
// writes prpActionToDo, which runs the job at once:
//
//     cFlexGrid rows;
//     rows.prpGrid = grd1.ref();
//     rows.prpStartPos = 1;
//     rows.prpEndPos = 49;
//     rows.prpActiveRow = 3;
//     rows.prpActionToDo = cFlexGrid::ClearRow;
//     rows.prpActionToDo = cFlexGrid::CloseGap;
//
// The grid is the data. A row is empty when its cell in column 1 is, whatever its other cells hold.
// Storing the changed rows is the page's business.
#pragma once

#include "toolkit/MSFlexGrid.h"

#include <memory>

namespace quorvanta {

class cFlexGrid {
public:
    enum Action {
        LayOut = 1,   // SetEmptyGrid: prpGrid, prpGridRows, prpGridCols
        ClearRow = 2, // DeleteGridRow: prpGrid, prpStartPos, prpEndPos, prpActiveRow
        CloseGap = 3, // MoveRowsUp: prpGrid, prpStartPos, prpEndPos
        SwapRows = 4  // ExchangeRows, then MoveRowsUp: likewise, prpActiveRow, prpSecondRow
    };

    std::shared_ptr<toolkit::MSFlexGrid> prpGrid;
    int prpGridRows = 0;
    int prpGridCols = 0;
    int prpStartPos = 0; // the columns of a row operation, both ends included
    int prpEndPos = 0;
    int prpActiveRow = 0; // the row to clear, or the first of two
    int prpSecondRow = 0;

    void run(int action);

    class ActionToDo {
    public:
        explicit ActionToDo(cFlexGrid& owner) : owner_(owner) {}
        ActionToDo(const ActionToDo&) = delete;
        ActionToDo& operator=(int action) {
            owner_.run(action);
            return *this;
        }

    private:
        cFlexGrid& owner_;
    };
    // Runs the action and doesn't keep it. Values that aren't an Action do nothing.
    ActionToDo prpActionToDo{*this};

private:
    void MoveRowsUp();
    void DeleteGridRow();
    void SetEmptyGrid();
    void ExchangeRows();

    toolkit::MSFlexGrid& grid() const;
};

} // namespace quorvanta
