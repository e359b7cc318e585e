#include "numbers/frmMain.h"
#include "tests/support/ListPages.h"

namespace {

using namespace quorvanta;
using namespace tests;

class FavoritesTest : public ProgramTest {
protected:
    static frmFavorites& open() {
        frmFavorites::the().Show();
        return frmFavorites::the();
    }
};

TEST_F(FavoritesTest, ASeventhKeyIsRefusedAndAnyOfTheSixCanBeTakenBack) {
    auto& page = open();
    pick(page, {10, 20, 30, 40, 5, 6, 7});
    EXPECT_EQ(picked(page), "5 6 10 20 30 40 ");
    EXPECT_EQ(desk.takeBoxes().at(0).substr(0, 37), "You allready have 6 favorite numbers.");
    pick(page, {10, 7});
    EXPECT_EQ(picked(page), "5 6 7 20 30 40 ");
    EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(FavoritesTest, TwoNumbersMakeARowAndOneDoesNot) {
    auto& page = open();
    file(page, {9});
    EXPECT_EQ(desk.takeBoxes().at(0).substr(0, 34), "You must have at least 2 Favorite ");
    EXPECT_EQ(picked(page), "9 ");
    EXPECT_EQ(gstrFavorites, RowTexts{});
    file(page, {4});
    EXPECT_EQ(gstrFavorites[1], "4;9;;;;;");
    EXPECT_EQ(gstrFavorites[10], ";;;;;;");
    EXPECT_EQ(picked(page), "");
    EXPECT_EQ(page.grd1.row(), 0);
    EXPECT_TRUE(desk.boxes.empty());
    userClickRow(page.grd1, 1); // does nothing outside shift mode
    EXPECT_EQ(page.grd1.row(), 1);
    page.Unload();
    EXPECT_EQ(open().grd1.text(1, 2), "9");
}

TEST_F(FavoritesTest, TheRowLimitComesBeforeTheCount) {
    fillRows(gstrFavorites, 10);
    auto& page = open();
    userClick(page.cmdCopy);
    EXPECT_EQ(desk.takeBoxes().at(0).substr(0, 52),
              "You have reached the limit for your Favorite numbers");
}

TEST_F(FavoritesTest, EachWayOutOfADeletionLeavesItsOwnCurrentRow) {
    struct Case {
        const char* what;
        int row; // double clicked; 0 for the menu entry right after opening
        int answer;
        int rows; // stored before
        std::string after;
        int current;
        const char* box = "Do";
    };
    const std::vector<Case> cases{
        {"yes", 3, toolkit::Yes, 5, "1 2 4 5 - - - - - -", 0},
        {"last of ten", 10, toolkit::Yes, 10, "1 2 3 4 5 6 7 8 9 -", 0},
        {"no", 3, toolkit::No, 5, "1 2 3 4 5 - - - - -", 1},
        {"cancel", 3, toolkit::Cancel, 5, "1 2 3 4 5 - - - - -", 1},
        {"free row", 7, toolkit::Yes, 5, "1 2 3 4 5 - - - - -", 0, "Yo"},
        {"opened with data", 0, toolkit::Yes, 2, "2 - - - - - - - - -", 0},
        {"opened without", 0, toolkit::Yes, 0, "- - - - - - - - - -", 0, "Yo"},
    };
    for (const Case& c : cases) {
        gstrFavorites = {};
        fillRows(gstrFavorites, c.rows);
        auto& page = open();
        desk.answers = {c.answer};
        if (c.row == 0)
            page.mnuDeleteGridRow.click();
        else
            userDoubleClickRow(page.grd1, c.row);
        EXPECT_EQ(desk.takeBoxes().at(0).substr(0, 2), c.box) << c.what;
        EXPECT_EQ(firstCells(page), c.after) << c.what;
        EXPECT_EQ(page.grd1.row(), c.current) << c.what;
        page.Unload();
        EXPECT_EQ(firstCells(open()), c.after) << c.what;
        frmFavorites::the().Unload();
        desk.answers.clear();
    }
}

TEST_F(FavoritesTest, TheGridTakesTheSizeOfItsContent) {
    gstrFavorites[1] = "5;6"; // the second cell has no end
    auto& page = open();
    EXPECT_EQ(page.Caption.get(), "Quor Vanta  - Favorites");
    EXPECT_EQ(page.grd1.Height, 240 * 11 + 100);
    EXPECT_EQ(page.grd1.Width, 480 * 6 + 960 + 150);
    EXPECT_EQ(page.grd1.text(0, 0) + page.grd1.text(0, 6) + page.grd1.text(10, 0),
              "Favorites# 610.");
    EXPECT_EQ(page.grd1.text(1, 1), "5");
    EXPECT_TRUE(page.grd1.TextMatrix(1, 2).empty());
}

TEST_F(FavoritesTest, MenusAndKeysReachEverything) {
    auto& page = open();
    EXPECT_EQ(menuText(page.menuBar()),
              "File{6 From 49|Bankroll|Customize 6|Favorites (off)|-|&Close}"
              "|Favorites{Delete Grid Row|-|Reset|-|File to Grid|-|Print Favorite Numbers}"
              "|Quor Vanta{Quor Vanta Website}|Help{Contents|-|About}");
    const auto order = tabOrder(page);
    ASSERT_EQ(order.size(), 53U);
    EXPECT_EQ(order[0], &page.grd1);
    EXPECT_EQ(order[1], &page.cmdKey(1));
    EXPECT_EQ(order[50], &page.cmdCopy);
    EXPECT_EQ(order[51], &page.cmdReset);
    EXPECT_EQ(order[52], &page.cmdCancel);
    pick(page, {1, 2});
    page.mnnuFileToGrid.click();
    EXPECT_EQ(gstrFavorites[1], "1;2;;;;;");
    page.mnuMainForm.click();
    page.mnuCustomize.click();
    EXPECT_TRUE(frmMain::ifLoaded() && frmCustomize6::ifLoaded());
    page.mnuClose.click();
    EXPECT_EQ(frmFavorites::ifLoaded(), nullptr);
}

} // namespace
