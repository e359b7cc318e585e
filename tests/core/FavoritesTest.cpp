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
    pick(page, {9});
    userClick(page.cmdCopy);
    EXPECT_EQ(desk.takeBoxes().at(0).substr(0, 34), "You must have at least 2 Favorite ");
    EXPECT_EQ(gstrFavorites, RowTexts{});
    pick(page, {4});
    userClick(page.cmdCopy);
    EXPECT_EQ(gstrFavorites[1], "4;9;;;;;");
    EXPECT_EQ(gstrFavorites[10], ";;;;;;");
    EXPECT_EQ(picked(page), "");
    userClickRow(page.grd1, 1); // does nothing outside shift mode
    EXPECT_EQ(page.grd1.row(), 1);
    page.mnuClose.click();
    fillRows(gstrFavorites, 10);
    userClick(open().cmdCopy); // the limit counts, not that no key is picked
    EXPECT_EQ(desk.takeBoxes().at(0).substr(0, 44), "You have reached the limit for your Favorite");
}

TEST_F(FavoritesTest, TheGridTakesTheSizeOfItsContent) {
    gstrFavorites[1] = "5;6"; // the second cell has no end
    auto& page = open();
    EXPECT_EQ(page.Caption.get(), "Quor Vanta  - Favorites");
    EXPECT_EQ(page.grd1.Height, 240 * 11 + 100);
    EXPECT_EQ(page.grd1.Width, 480 * 6 + 960 + 150);
    EXPECT_EQ(page.grd1.text(0, 0) + page.grd1.text(0, 6) + page.grd1.text(10, 0),
              "Favorites# 610.");
    EXPECT_EQ(page.grd1.text(1, 1) + page.grd1.text(1, 2), "5");
}

TEST_F(FavoritesTest, MenusAndKeysReachEverything) {
    auto& page = open();
    EXPECT_EQ(menuText(page.menuBar()),
              "File{6 From 49|Bankroll|Customize 6|Favorites (off)|-|&Close}"
              "|Favorites{Delete Grid Row|-|Reset|-|File to Grid|-|Print Favorite Numbers}"
              "|Quor Vanta{Quor Vanta Website}|Help{Contents|-|About}");
    const auto order = tabOrder(page);
    ASSERT_EQ(order.size(), 53U);
    EXPECT_TRUE(order[0] == &page.grd1 && order[1] == &page.cmdKey(1));
    EXPECT_TRUE(order[50] == &page.cmdCopy && order[51] == &page.cmdReset);
    pick(page, {1, 2});
    page.mnnuFileToGrid.click();
    EXPECT_EQ(gstrFavorites[1], "1;2;;;;;");
    page.mnuMainForm.click();
    page.mnuCustomize.click();
    EXPECT_TRUE(frmMain::ifLoaded() && frmCustomize6::ifLoaded() && frmFavorites::ifLoaded());
}

} // namespace
