// What both pages of number rows do: deleting a row, and shift mode.
#include "tests/support/ListPages.h"

namespace {

using namespace quorvanta;
using namespace tests;

template <class Page>
class ListPagesTest : public ProgramTest {
protected:
    static constexpr bool kCustomize = std::is_same_v<Page, frmCustomize6>;
    RowTexts& rows = kCustomize ? gstrStammNumbers : gstrFavorites;

    Page& open(int count = 5) {
        rows = {};
        fillRows(rows, count);
        Page::the().Show();
        return Page::the();
    }
    static bool shiftModeIsOn(Page& page) { return page.statBar1.Panels(1).get() == "Shift mode"; }
};
using Pages = ::testing::Types<frmCustomize6, frmFavorites>;
TYPED_TEST_SUITE(ListPagesTest, Pages);

TYPED_TEST(ListPagesTest, OnlyYesDeletesAndEachWayOutLeavesItsOwnCurrentRow) {
    struct Case {
        int count;
        int row; // double clicked; 0 for the menu entry right after opening, -1 after a picked key
        int answer;
        std::string after, box;
        int current, currentFavorites;
    };
    const std::string five = "1 2 3 4 5 - - - - -";
    for (const Case& c :
         std::vector<Case>{{5, 3, toolkit::Yes, "1 2 4 5 - - - - - -", "Do", 0, 0},
                           {10, 10, toolkit::Yes, "1 2 3 4 5 6 7 8 9 -", "Do", 0, 0},
                           {5, 3, toolkit::No, five, "Do", 0, 1},
                           {5, 3, toolkit::Cancel, five, "Do", 0, 1},
                           {5, 7, toolkit::Yes, five, "Yo", 7, 0},
                           {2, 0, toolkit::Yes, "2 - - - - - - - - -", "Do", 0, 0},
                           {0, 0, toolkit::Yes, "- - - - - - - - - -", "Yo", 1, 0},
                           {5, -1, toolkit::Yes, five, "Yo", 0, 0}}) {
        auto& page = this->open(c.count);
        this->desk.answers = {c.answer};
        if (c.row > 0)
            userDoubleClickRow(page.grd1, c.row);
        if (c.row < 0)
            pick(page, {1});
        if (c.row <= 0)
            page.mnuDeleteGridRow.click();
        const std::string what = c.after + " from row " + std::to_string(c.row);
        EXPECT_EQ(this->desk.takeBoxes().at(0).substr(0, 2), c.box) << what;
        EXPECT_EQ(firstCells(page), c.after) << what;
        EXPECT_EQ(firstCells(this->rows), c.after) << what; // before the page is closed
        EXPECT_EQ(page.grd1.row(), this->kCustomize ? c.current : c.currentFavorites) << what;
        EXPECT_EQ(page.grd1.text(4, 0), "4.");
        page.Unload();
        this->desk.answers.clear();
    }
}

TYPED_TEST(ListPagesTest, RowsOfDifferentLengthSwapAllTheirCells) {
    auto& page = this->open();
    for (int c = 4; c <= 6; ++c)
        page.grd1.TextMatrix(3, c) = "";
    userKey(page, kCtrlKey, 2);
    EXPECT_EQ(page.grd1.row(), 0);
    userClickRow(page.grd1, 1);
    EXPECT_TRUE(this->shiftModeIsOn(page));
    userClickRow(page.grd1, 3);
    EXPECT_EQ(this->rows[1].substr(0, 11), "3;21;22;;;;");
    EXPECT_EQ(this->rows[3].substr(0, 17), "1;21;22;23;24;25;");
    EXPECT_EQ(firstCells(this->rows), "3 2 1 4 5 - - - - -");
}

TYPED_TEST(ListPagesTest, ShiftModeSwapsTwoFilledRowsAndEnds) {
    struct Case {
        std::string events; // C Ctrl, X Ctrl and Shift, B a button, R Reset by menu, D a deletion
                            // of row 5, P closes and opens the page, 0 to 9 a click on a row
        bool on;
        std::string rows = "1 2 3 4 5 - - - - -";
        std::size_t boxes = 0;
    };
    const std::string swapped = "1 4 3 2 5 - - - - -", deleted = "1 2 3 4 - - - - - -";
    for (const Case& c :
         std::vector<Case>{{"C24", false, swapped},
                           {"C2413", false, swapped},
                           {"C22", false},
                           {"C2C4", false},
                           {"C2CC4", true},
                           {"X24", false},
                           {"C6", true, "1 2 3 4 5 - - - - -", 1},
                           {"C264", false, swapped, 1},
                           {"C024", false, swapped},
                           {"C2R0", true},
                           {"C2R04", false, swapped},
                           {"C2B4", false},
                           {"C2PC4", true},
                           {"CD", this->kCustomize, deleted, 1},
                           {"CD2", false, deleted,
                            this->kCustomize ? 2U : 1U}}) { // row 5, the first pick, is gone
        auto* page = &this->open();
        for (const char event : c.events) {
            this->desk.answers = {toolkit::Yes};
            if (event == 'C' || event == 'X')
                userKey(*page, kCtrlKey, event == 'C' ? 2 : 3);
            else if (event == 'B')
                userClick(page->cmdReset);
            else if (event == 'R')
                page->mnuReset.click();
            else if (event == 'D')
                userDoubleClickRow(page->grd1, 5);
            else if (event == 'P')
                page->Unload(), page = &this->open();
            else
                userClickRow(page->grd1, event - '0');
        }
        EXPECT_EQ(this->shiftModeIsOn(*page), c.on) << c.events;
        EXPECT_EQ(firstCells(*page), c.rows) << c.events;
        EXPECT_EQ(page->grd1.text(0, 1), "# 1") << c.events;
        EXPECT_EQ(this->desk.takeBoxes().size(), c.boxes) << c.events;
        page->Unload();
    }
}

} // namespace
