#include "frame/MDIForm1.h"
#include "tests/support/ListPages.h"

namespace {

using namespace quorvanta;
using namespace tests;

class Customize6Test : public ProgramTest {
protected:
    static frmCustomize6& open() {
        frmCustomize6::the().Show();
        return frmCustomize6::the();
    }
    // How many numbers stand in the pool, and how many are drawn.
    static std::pair<int, int> board(frmCustomize6& page) {
        std::pair<int, int> is;
        for (int n = 1; n <= 49; ++n) {
            is.first += page.Label1(n).Enabled ? 1 : 0;
            is.second += page.Label1(n).ForeColor == toolkit::kRed ? 1 : 0;
        }
        return is;
    }
    using Board = std::pair<int, int>;
};

TEST_F(Customize6Test, PickedNumbersAreFiledInRisingOrderAndStoredAtOnce) {
    fillRows(gstrStammNumbers, 1);
    auto& page = open();
    EXPECT_EQ(page.Caption.get(), "Quor Vanta  - Customize 6");
    pick(page, {40, 12, 3, 9, 1, 2, 49, 17, 17});
    userClickRow(page.grd1, 1);
    userClick(page.cmdCopy);
    EXPECT_EQ(gstrStammNumbers[2], "1;2;3;9;12;40;49;" + std::string(42, ';'));
    EXPECT_EQ(gstrStammNumbers[3], std::string(49, ';'));
    EXPECT_EQ(page.grd1.text(0, 0) + page.grd1.text(2, 0) + page.grd1.text(0, 49),
              "Customized2.# 49");
    EXPECT_EQ(picked(page), "");
    EXPECT_EQ(page.grd1.row(), 0);
}

TEST_F(Customize6Test, RefusedRowsChangeNothing) {
    auto& page = open();
    pick(page, {1, 2, 3, 4, 5, 6});
    userClick(page.cmdCopy);
    EXPECT_EQ(picked(page), "1 2 3 4 5 6 ");
    EXPECT_EQ(gstrStammNumbers, RowTexts{});
    EXPECT_EQ(desk.takeBoxes().at(0).substr(0, 28), "You have not selected enough");
    page.mnuClose.click();
    gstrStammNumbers[1] = "1;2;"; // too short to be a filed row
    userDoubleClickRow(open().grd1, 1);
    EXPECT_EQ(desk.takeBoxes().at(0).substr(0, 15), "You have either");
    frmCustomize6::the().mnuClose.click();
    fillRows(gstrStammNumbers, 10);
    open().mnuFileToGrid.click(); // the limit counts, not that no key is picked
    EXPECT_EQ(desk.takeBoxes().at(0).substr(0, 46),
              "You have reached the limit for your Customized");
}

TEST_F(Customize6Test, TheBoardShowsTheChosenRowAndADrawTakesSixOfIt) {
    fillRows(gstrStammNumbers, 1);
    auto& page = open();
    EXPECT_EQ(board(page), Board(49, 0));
    page.mnuJackpotGenerator.click(); // the page opens with row 1
    EXPECT_EQ(board(page), Board(7, 6));
    userClickRow(page.grd1, 1);
    EXPECT_EQ(board(page), Board(7, 0));
    EXPECT_TRUE(page.Label1(26).Enabled && !page.Label1(27).Enabled);
    userClick(page.cmdJackpot);
    userClickRow(page.grd1, 2);
    userClick(page.cmdJackpot);
    EXPECT_EQ(board(page), Board(0, 0));
    pick(page, {7}); // leaves no row chosen, and plays no part in a draw
    userClick(page.cmdJackpot);
    EXPECT_EQ(board(page), Board(49, 6));
    userClick(page.cmdReset);
    EXPECT_EQ(board(page), Board(49, 0));
    EXPECT_TRUE(desk.boxes.empty());
}

// Rows that only a file edited by hand can bring.
TEST_F(Customize6Test, AnOddRowIsStoredAsItWasAndNeverHangsADraw) {
    struct Case {
        std::string text, stored;
        int drawn;
        std::vector<std::string> reports;
    };
    const std::string in = " cLotto.SetCustomNumbers";
    desk.onBox = [&] { desk.answers = {toolkit::Ignore}; };
    for (const Case& c : std::vector<Case>{{"1;2;3;", "1;2;3;", 3, {}},
                                           {"5;5;9;9;5;", "5;5;9;9;5;", 2, {}},
                                           {"1;abc;3;", "1;abc;3;", 2, {"13" + in}},
                                           {"50;-1;7;", "50;-1;7;", 1, {"340" + in, "340" + in}},
                                           {"007; 8 ;9;", "007; 8 ;9;", 3, {}},
                                           {"4;5; ;6;", "4;5; ;6;", 2, {}},
                                           {"0;70000;2;", "0;70000;2;", 1, {"340" + in, "6" + in}},
                                           {"8;", "8;", 0, {}},
                                           {"1;2;3", "1;2;", 2, {}},
                                           {";;" + std::string(47, ';') + "7;", ";;", 0, {}}}) {
        gstrStammNumbers[1] = c.text;
        auto& page = open();
        page.mnuJackpotGenerator.click();
        EXPECT_EQ(board(page), Board(c.drawn, c.drawn)) << c.text;
        EXPECT_EQ(desk.takeReports(), c.reports) << c.text;
        userClick(page.cmdCancel);
        const auto cells = std::count(c.stored.begin(), c.stored.end(), ';');
        EXPECT_EQ(gstrStammNumbers[1],
                  c.stored + std::string(static_cast<std::size_t>(49 - cells), ';'));
    }
}

TEST_F(Customize6Test, ADrawUnderWayBearsWhateverTheUserDoes) {
    struct Case {
        std::function<void(frmCustomize6&)> during;
        Board after;
    };
    for (const Case& c :
         std::vector<Case>{{[](auto& page) { userClickRow(page.grd1, 3); }, {7, 6}},
                           {[](auto& page) { userClickRow(page.grd1, 9); }, {0, 1}}, // a free row
                           {[](auto& page) { userDoubleClickRow(page.grd1, 2); }, {7, 6}},
                           {[](auto& page) { userClick(page.cmdReset); }, {49, 6}},
                           {[](auto& page) { userClick(page.cmdCancel); }, {7, 6}}}) {
        fillRows(gstrStammNumbers, 3);
        const auto page = std::static_pointer_cast<frmCustomize6>(open().shared_from_this());
        userClickRow(page->grd1, 2);
        os.random.script = {1.5F / 49, 1.5F / 49}; // 2, a number of the row, twice
        int yields = 0;
        desk.onDoEvents = [&] {
            if (++yields == 2)
                c.during(*page);
        };
        desk.answers = {toolkit::Yes};
        userClick(page->cmdJackpot);
        EXPECT_EQ(board(*page), c.after);
        page->Unload();
    }
}

TEST_F(Customize6Test, DrawsStartedInsideOneAnotherEnd) {
    fillRows(gstrStammNumbers, 2);
    auto& page = open();
    int depth = 0;
    desk.onDoEvents = [&] {
        if (depth == 10)
            return;
        ++depth;
        userClickRow(page.grd1, depth % 2 + 1);
        page.mnuJackpotGenerator.click();
    };
    page.mnuJackpotGenerator.click();
    EXPECT_EQ(depth, 10);
    EXPECT_EQ(board(page).first, 7);
    EXPECT_GE(board(page).second, 6);
}

TEST_F(Customize6Test, TheProgramEndsFromWithinADraw) {
    MDIForm1::the().Show();
    auto& page = open();
    page.mnuAllNumbers.click();
    page.mnuFileToGrid.click();
    desk.onDoEvents = [&] { MDIForm1::the().Unload(toolkit::FormControlMenu); };
    EXPECT_THROW(userClick(page.cmdJackpot), ProcessEnded);
    EXPECT_NE(os.files.content["/app/Quorvanta.txt"].find("1.1;2;3;4;5;6;7;8;"), std::string::npos);
}

TEST_F(Customize6Test, MenusAndKeysReachEverything) {
    auto& page = open();
    EXPECT_EQ(menuText(page.menuBar()),
              "&File{6 From 49|Bankroll|Customize 6 (off)|Favorites|-|&Close}"
              "|Customize{All Numbers|-|Delete Grid Row|-|File to Grid|-|Reset|-|Jackpot Generator}"
              "|Quor Vanta{Quorvanta Lite Website}|Help{Contents|-|About}");
    EXPECT_EQ(page.mnuJackpotGenerator.Shortcut, "F5");
    userClick(page.cmdAll);
    page.mnuReset.click();
    EXPECT_EQ(picked(page), "");
    page.mnuFavorites.click();
    EXPECT_TRUE(frmFavorites::ifLoaded() && frmCustomize6::ifLoaded());
    const auto order = tabOrder(page);
    ASSERT_EQ(order.size(), 55U);
    EXPECT_EQ(order[0], &page.cmdKey(1));
    EXPECT_EQ(order[54], &page.cmdJackpot);
}

} // namespace
