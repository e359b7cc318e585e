#include "tests/support/ListPages.h"

namespace {

using namespace quorvanta;
using namespace tests;

template <class Page>
class ShiftModeTest : public ProgramTest {
protected:
    static constexpr bool kCustomize = std::is_same_v<Page, frmCustomize6>;
    RowTexts& rows = kCustomize ? gstrStammNumbers : gstrFavorites;
    const std::string five = "1 2 3 4 5 - - - - -";

    Page& open() {
        fillRows(rows, 5);
        Page::the().Show();
        return Page::the();
    }
    static bool isOn(Page& page) { return page.statBar1.Panels(1).get() == "Shift mode"; }
};
using Pages = ::testing::Types<frmCustomize6, frmFavorites>;
TYPED_TEST_SUITE(ShiftModeTest, Pages);

TYPED_TEST(ShiftModeTest, TwoPickedRowsChangePlacesAndTheModeEnds) {
    auto& page = this->open();
    page.grd1.TextMatrix(3, 4) = ""; // a row of another length
    page.grd1.TextMatrix(3, 5) = "";
    page.grd1.TextMatrix(3, 6) = "";
    userKey(page, kCtrlKey, 2);
    EXPECT_EQ(page.grd1.row(), 0);
    EXPECT_TRUE(this->isOn(page));
    userClickRow(page.grd1, 1);
    EXPECT_TRUE(this->isOn(page));
    userClickRow(page.grd1, 3);
    EXPECT_FALSE(this->isOn(page));
    EXPECT_EQ(firstCells(page), "3 2 1 4 5 - - - - -");
    EXPECT_EQ(this->rows[1].substr(0, 11), "3;21;22;;;;");
    EXPECT_EQ(this->rows[3].substr(0, 17), "1;21;22;23;24;25;");
    userClickRow(page.grd1, 4); // picks nothing any more
    userClickRow(page.grd1, 5);
    EXPECT_EQ(firstCells(page), "3 2 1 4 5 - - - - -");
    EXPECT_TRUE(this->desk.boxes.empty());
}

// Each case: keys "C" and clicks on rows, then whether the mode is on and what the rows are.
TYPED_TEST(ShiftModeTest, OnlyTwoFilledRowsAreSwapped) {
    struct Case {
        std::string events; // C Ctrl, X Ctrl and Shift, B a button, R Reset by menu, 0 to 9 a row
        bool on;
        std::string rows;
        std::size_t boxes = 0;
    };
    const std::vector<Case> cases{
        {"C22", false, this->five},
        {"C2C4", false, this->five},
        {"C2CC4", true, this->five},
        {"X24", false, this->five},
        {"C6", true, this->five, 1},
        {"C26", true, this->five, 1},
        {"C264", false, "1 4 3 2 5 - - - - -", 1},
        {"C0", true, this->five},
        {"C024", false, "1 4 3 2 5 - - - - -"},
        {"C2R0", true, this->five},
        {"C2R04", false, "1 4 3 2 5 - - - - -"},
        {"C2B4", false, this->five},
    };
    for (const Case& c : cases) {
        auto& page = this->open();
        for (const char event : c.events) {
            if (event == 'C' || event == 'X')
                userKey(page, kCtrlKey, event == 'C' ? 2 : 3);
            else if (event == 'B')
                userClick(page.cmdReset);
            else if (event == 'R')
                page.mnuReset.click();
            else
                userClickRow(page.grd1, event - '0');
        }
        EXPECT_EQ(this->isOn(page), c.on) << c.events;
        EXPECT_EQ(firstCells(page), c.rows) << c.events;
        EXPECT_EQ(page.grd1.text(0, 1), "# 1") << c.events;
        EXPECT_EQ(this->desk.takeBoxes().size(), c.boxes) << c.events;
        page.Unload();
    }
}

TYPED_TEST(ShiftModeTest, ADeletionBetweenThePicksSwapsNothing) {
    auto& page = this->open();
    userKey(page, kCtrlKey, 2);
    this->desk.answers = {toolkit::Yes};
    userDoubleClickRow(page.grd1, 5);
    EXPECT_EQ(this->isOn(page), this->kCustomize);
    this->desk.boxes.clear();
    userClickRow(page.grd1, 2);
    EXPECT_EQ(this->desk.boxes.size(), this->kCustomize ? 1U : 0U); // the first pick is empty now
    EXPECT_FALSE(this->isOn(page));
    EXPECT_EQ(firstCells(page), "1 2 3 4 - - - - - -");
}

TYPED_TEST(ShiftModeTest, APageOpensWithTheModeOff) {
    auto& page = this->open();
    userKey(page, kCtrlKey, 2);
    userClickRow(page.grd1, 1);
    page.Unload();
    auto& again = this->open();
    EXPECT_FALSE(this->isOn(again));
    userKey(again, kCtrlKey, 2);
    userClickRow(again.grd1, 3);
    EXPECT_EQ(firstCells(again), this->five);
}

} // namespace
