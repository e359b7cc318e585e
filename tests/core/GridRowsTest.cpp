#include "lists/cFlexGrid.h"
#include "tests/support/ProgramTest.h"

namespace {

using quorvanta::cFlexGrid;

struct GridForm : toolkit::Form {
    toolkit::MSFlexGrid grid{*this, "grd1", {0, 0, 1000, 500}};
    GridForm() : Form(Kind::TopLevel, "form", 100, 100) {}
};

// A grid of six rows and four columns is told as a text, a letter a cell, "." for an empty one.
class GridRowsTest : public tests::ProgramTest {
protected:
    const std::shared_ptr<GridForm> form = std::make_shared<GridForm>();
    toolkit::MSFlexGrid& grid = form->grid;
    cFlexGrid job;
    const std::string three = "#xyz 1abc 2de. 3f.. 4... 5... ";

    void fill(const std::string& cells) {
        grid.Rows = 6;
        grid.Cols = 4;
        for (int i = 0; i < 30; ++i)
            if (const char cell = cells.at(static_cast<std::size_t>(i)); i % 5 < 4)
                grid.setText(i / 5, i % 5, cell == '.' ? "" : std::string(1, cell));
        job.prpGrid = grid.ref();
        job.prpStartPos = 1;
        job.prpEndPos = 3;
    }
    std::string shown() const {
        std::string cells;
        for (int i = 0; i < 30; ++i)
            cells += i % 5 == 4 ? " " : (grid.text(i / 5, i % 5) + ".").substr(0, 1);
        return cells;
    }
};

TEST_F(GridRowsTest, ActionsChangeOnlyTheCellsOfTheirRows) {
    struct Case {
        std::string before;
        int first, second;
        std::vector<int> actions;
        std::string after;
    };
    const std::string full = "#xyz 1abc 2de. 3f.. 4gh. 5ij. ";
    for (const Case& c : std::vector<Case>{
             {three, 1, 0, {2, 3}, "#xyz 1de. 2f.. 3... 4... 5... "},
             {three, 3, 0, {2, 3}, "#xyz 1abc 2de. 3... 4... 5... "},
             {full, 5, 0, {2, 3}, "#xyz 1abc 2de. 3f.. 4gh. 5... "},
             {full, 2, 0, {2}, "#xyz 1abc 2... 3f.. 4gh. 5ij. "},
             {full, 0, 0, {3}, full},
             {"#xyz 1abc 2... 3... 4gh. 5... ", 0, 0, {3}, "#xyz 1abc 2... 3gh. 4... 5... "},
             {"#xyz 1.bc 2de. 3... 4... 5... ", 0, 0, {3}, "#xyz 1de. 2... 3... 4... 5... "},
             {three, 1, 3, {4}, "#xyz 1f.. 2de. 3abc 4... 5... "},
             {three, 2, 2, {4}, three},
             {three, 1, 2, {0, 5, -1}, three}}) {
        fill(c.before);
        job.prpActiveRow = c.first;
        job.prpSecondRow = c.second;
        for (const int action : c.actions)
            job.prpActionToDo = action;
        EXPECT_EQ(shown(), c.after) << "from " << c.before;
    }
    EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(GridRowsTest, AnEmptyGridHasColumnsOfOneWidth) {
    fill(three);
    job.prpGridRows = 3;
    job.prpGridCols = 7;
    job.prpActionToDo = cFlexGrid::LayOut;
    EXPECT_TRUE(grid.rows() == 3 && grid.cols() == 7 && grid.FixedCols == 0);
    EXPECT_EQ(grid.ColWidth(6), 143);
    EXPECT_TRUE(grid.TextMatrix(1, 1).empty());
}

TEST_F(GridRowsTest, ACellOutsideTheGridIsReportedAndTheChangedCellsStay) {
    fill(three);
    job.prpEndPos = 5;
    job.prpActiveRow = 1;
    job.prpSecondRow = 2;
    desk.answers = {toolkit::Ignore, toolkit::Ignore}; // then Abort
    job.prpActionToDo = cFlexGrid::ClearRow;
    EXPECT_EQ(shown(), "#xyz 1... 2de. 3f.. 4... 5... ");
    job.prpActionToDo = cFlexGrid::SwapRows;
    job.prpGridRows = -1;
    job.prpActionToDo = cFlexGrid::LayOut;
    EXPECT_EQ(desk.takeReports(),
              (std::vector<std::string>{"381 cFlexGrid.DeleteGridRow",
                                        "381 cFlexGrid.DeleteGridRow", "381 cFlexGrid.ExchangeRows",
                                        "381 cFlexGrid.MoveRowsUp", "5 cFlexGrid.SetEmptyGrid"}));
}

} // namespace
