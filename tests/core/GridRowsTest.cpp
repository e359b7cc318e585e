#include "lists/cFlexGrid.h"
#include "tests/support/ProgramTest.h"

namespace {

using quorvanta::cFlexGrid;
using Rows = std::vector<std::string>; // the cells of columns 1 to 3, " " between them

struct GridForm : toolkit::Form {
    toolkit::MSFlexGrid grid{*this, "grd1", {0, 0, 1000, 500}};
    GridForm() : Form(Kind::TopLevel, "form", 100, 100) {}
};

class GridRowsTest : public tests::ProgramTest {
protected:
    const std::shared_ptr<GridForm> form = std::make_shared<GridForm>();
    toolkit::MSFlexGrid& grid = form->grid;
    cFlexGrid job;

    GridRowsTest() {
        grid.Rows = 6;
        grid.Cols = 4;
        job.prpGrid = grid.ref();
        job.prpStartPos = 1;
        job.prpEndPos = 3;
    }
    // A cell is a letter, and "." an empty one.
    void fill(const Rows& rows) {
        for (int r = 0; r < 6; ++r)
            for (int c = 0; c < 4; ++c) {
                const std::string text(
                    1, rows.at(static_cast<std::size_t>(r)).at(static_cast<std::size_t>(c)));
                grid.TextMatrix(r, c) = text == "." ? "" : text;
            }
    }
    Rows shown() {
        Rows rows(6);
        for (int r = 0; r < 6; ++r)
            for (int c = 0; c < 4; ++c)
                rows[static_cast<std::size_t>(r)] +=
                    grid.TextMatrix(r, c).empty() ? "." : grid.text(r, c);
        return rows;
    }
};

TEST_F(GridRowsTest, ActionsChangeOnlyTheCellsOfTheirRows) {
    struct Case {
        const char* what;
        Rows before;
        int first, second;
        std::vector<int> actions;
        Rows after;
    };
    const Rows three{"#xyz", "1abc", "2de.", "3f..", "4...", "5..."};
    const Rows full{"#xyz", "1abc", "2de.", "3f..", "4gh.", "5ij."};
    const std::vector<Case> cases{
        {"first of three", three, 1, 0, {2, 3}, {"#xyz", "1de.", "2f..", "3...", "4...", "5..."}},
        {"last filled", three, 3, 0, {2, 3}, {"#xyz", "1abc", "2de.", "3...", "4...", "5..."}},
        {"last row", full, 5, 0, {2, 3}, {"#xyz", "1abc", "2de.", "3f..", "4gh.", "5..."}},
        {"cleared only", full, 2, 0, {2}, {"#xyz", "1abc", "2...", "3f..", "4gh.", "5ij."}},
        {"no gap", full, 0, 0, {3}, full},
        {"two gaps",
         {"#xyz", "1abc", "2...", "3...", "4gh.", "5..."},
         0,
         0,
         {3},
         {"#xyz", "1abc", "2...", "3gh.", "4...", "5..."}},
        {"empty by column 1",
         {"#xyz", "1.bc", "2de.", "3...", "4...", "5..."},
         0,
         0,
         {3},
         {"#xyz", "1de.", "2...", "3...", "4...", "5..."}},
        {"swap", three, 1, 3, {4}, {"#xyz", "1f..", "2de.", "3abc", "4...", "5..."}},
        {"swap with itself", three, 2, 2, {4}, three},
        {"no such action", three, 1, 2, {0, 5, -1}, three},
    };
    for (const Case& c : cases) {
        fill(c.before);
        job.prpActiveRow = c.first;
        job.prpSecondRow = c.second;
        for (const int action : c.actions)
            job.prpActionToDo = action;
        EXPECT_EQ(shown(), c.after) << c.what;
    }
    EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(GridRowsTest, AnEmptyGridHasColumnsOfOneWidth) {
    fill({"#xyz", "1abc", "2...", "3...", "4...", "5..."});
    job.prpGridRows = 3;
    job.prpGridCols = 7;
    job.prpActionToDo = cFlexGrid::LayOut;
    EXPECT_EQ(grid.rows(), 3);
    EXPECT_EQ(grid.cols(), 7);
    EXPECT_EQ(grid.FixedCols, 0);
    EXPECT_EQ(grid.ColWidth(0), 143);
    EXPECT_EQ(grid.ColWidth(6), 143);
    EXPECT_TRUE(grid.TextMatrix(1, 1).empty());
}

TEST_F(GridRowsTest, ACellOutsideTheGridIsReportedAndTheChangedCellsStay) {
    fill({"#xyz", "1abc", "2de.", "3f..", "4...", "5..."});
    job.prpEndPos = 5;
    job.prpActiveRow = 1;
    job.prpSecondRow = 2;
    desk.answers = {toolkit::Ignore, toolkit::Ignore};
    job.prpActionToDo = cFlexGrid::ClearRow;
    EXPECT_EQ(shown()[1], "1...");
    job.prpActionToDo = cFlexGrid::SwapRows; // Abort, in either of its two routines
    const std::string report = "An error has occured: 381\r\nInvalid property array index\r\n";
    EXPECT_EQ(desk.takeBoxes(),
              (Rows{report + "cFlexGrid.DeleteGridRow", report + "cFlexGrid.DeleteGridRow",
                    report + "cFlexGrid.ExchangeRows", report + "cFlexGrid.MoveRowsUp"}));
    job.prpGridRows = -1;
    job.prpActionToDo = cFlexGrid::LayOut;
    EXPECT_EQ(desk.takeBoxes(), Rows{"An error has occured: 5\r\nInvalid procedure call or "
                                     "argument\r\ncFlexGrid.SetEmptyGrid"});
}

} // namespace
