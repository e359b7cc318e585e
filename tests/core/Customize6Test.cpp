#include "frame/MDIForm1.h"
#include "tests/support/ListPages.h"

namespace {

using namespace quorvanta;
using namespace tests;

struct Board {
    int pool = 0, red = 0;
    bool operator==(const Board&) const = default;
};

class Customize6Test : public ProgramTest {
protected:
    static frmCustomize6& open() {
        frmCustomize6::the().Show();
        return frmCustomize6::the();
    }
    // How many numbers stand in the pool, and how many are drawn.
    static Board board(frmCustomize6& page) {
        Board is;
        for (int n = 1; n <= 49; ++n) {
            is.pool += page.Label1(n).Enabled ? 1 : 0;
            is.red += page.Label1(n).ForeColor == toolkit::kRed ? 1 : 0;
        }
        return is;
    }
};

TEST_F(Customize6Test, PickedNumbersAreFiledInRisingOrderAndStoredAtOnce) {
    fillRows(gstrStammNumbers, 1);
    auto& page = open();
    EXPECT_EQ(page.Caption.get(), "Quor Vanta  - Customize 6");
    pick(page, {40, 12, 3, 9, 1, 2, 49, 17, 17});
    EXPECT_EQ(picked(page), "1 2 3 9 12 40 49 ");
    userClickRow(page.grd1, 1);
    userClick(page.cmdCopy);
    EXPECT_EQ(gstrStammNumbers[2], "1;2;3;9;12;40;49;" + std::string(42, ';'));
    EXPECT_EQ(gstrStammNumbers[3], std::string(49, ';'));
    EXPECT_EQ(page.grd1.text(2, 0) + page.grd1.text(0, 49), "2.# 49");
    EXPECT_EQ(picked(page), "");
    EXPECT_EQ(page.grd1.row(), 0);
}

TEST_F(Customize6Test, AllNumbersFillARowToItsEnd) {
    auto& page = open();
    pick(page, {5});
    userClick(page.cmdAll);
    userClick(page.cmdCopy);
    EXPECT_EQ(page.grd1.text(1, 49), "49");
    EXPECT_EQ(gstrStammNumbers[1].find(";;"), std::string::npos);
    EXPECT_EQ(gstrStammNumbers[1].substr(gstrStammNumbers[1].size() - 7), ";48;49;");
}

TEST_F(Customize6Test, RefusedRowsChangeNothing) {
    auto& page = open();
    file(page, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(picked(page), "1 2 3 4 5 6 ");
    EXPECT_EQ(gstrStammNumbers, RowTexts{});
    EXPECT_EQ(desk.takeBoxes().at(0).substr(0, 28), "You have not selected enough");
    page.mnuClose.click();
    fillRows(gstrStammNumbers, 10);
    auto& full = open();
    userClick(full.cmdCopy);
    pick(full, {30});
    full.mnuFileToGrid.click();
    const auto boxes = desk.takeBoxes();
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0].substr(0, 46), "You have reached the limit for your Customized");
    EXPECT_EQ(boxes[1], boxes[0]);
    EXPECT_EQ(picked(full), "30 ");
}

TEST_F(Customize6Test, ADeletionClosesTheGapAndStoresOnlyAfterYes) {
    struct Case {
        const char* what;
        int row; // double clicked; 0 for the menu entry with no row chosen
        int answer;
        const char* boxes;
        std::string after;
        int current;
    };
    const std::string six = "1 2 3 4 5 6 - - - -";
    const std::vector<Case> cases{
        {"yes", 4, toolkit::Yes, "Do", "1 2 3 5 6 - - - - -", 0},
        {"no", 4, toolkit::No, "Do", six, 0},
        {"cancel", 4, toolkit::Cancel, "Do", six, 0},
        {"free row", 8, toolkit::Yes, "Yo", six, 8},
        {"no row", 0, toolkit::Yes, "Yo", six, 0},
    };
    for (const Case& c : cases) {
        fillRows(gstrStammNumbers, 6);
        auto& page = open();
        if (c.row == 0) {
            pick(page, {1}); // a picked key leaves no row chosen
            page.mnuDeleteGridRow.click();
        } else {
            desk.answers = {c.answer};
            userDoubleClickRow(page.grd1, c.row);
        }
        EXPECT_EQ(desk.takeBoxes().at(0).substr(0, 2), c.boxes) << c.what;
        EXPECT_EQ(firstCells(page), c.after) << c.what;
        EXPECT_EQ(gstrStammNumbers[4].substr(0, 2),
                  c.answer == toolkit::Yes && c.row == 4 ? "5;" : "4;")
            << c.what;
        EXPECT_EQ(page.grd1.row(), c.current) << c.what;
        EXPECT_EQ(page.grd1.text(4, 0), "4.") << c.what;
        page.mnuClose.click();
        desk.answers.clear();
    }
}

TEST_F(Customize6Test, TheBoardShowsTheChosenRowAndADrawTakesSixOfIt) {
    fillRows(gstrStammNumbers, 1);
    auto& page = open();
    EXPECT_EQ(board(page), (Board{49, 0}));
    page.mnuJackpotGenerator.click(); // the page opens with row 1
    EXPECT_EQ(board(page), (Board{7, 6}));
    userClickRow(page.grd1, 1);
    EXPECT_EQ(board(page), (Board{7, 0}));
    EXPECT_TRUE(page.Label1(26).Enabled && !page.Label1(27).Enabled);
    userClick(page.cmdJackpot);
    userClickRow(page.grd1, 2);
    EXPECT_EQ(board(page), (Board{0, 0}));
    userClick(page.cmdJackpot);
    EXPECT_EQ(board(page), (Board{0, 0}));
    pick(page, {7}); // leaves no row chosen, and plays no part in a draw
    userClick(page.cmdJackpot);
    EXPECT_EQ(board(page), (Board{49, 6}));
    userClick(page.cmdReset);
    EXPECT_EQ(board(page), (Board{49, 0}));
    EXPECT_TRUE(desk.boxes.empty());
}

// Rows that only a file edited by hand can bring.
TEST_F(Customize6Test, AnOddRowIsStoredAsItWasAndNeverHangsADraw) {
    struct Case {
        std::string text, stored;
        Board drawn;
        std::vector<int> failures;
    };
    const std::vector<Case> cases{
        {"1;2;3;", "1;2;3;", {3, 3}, {}},
        {"5;5;9;9;5;", "5;5;9;9;5;", {2, 2}, {}},
        {"1;abc;3;", "1;abc;3;", {2, 2}, {13}},
        {"50;-1;7;", "50;-1;7;", {1, 1}, {340, 340}},
        {"007; 8 ;9;", "007; 8 ;9;", {3, 3}, {}},
        {"4;5; ;6;", "4;5; ;6;", {2, 2}, {}},
        {"0;70000;2;", "0;70000;2;", {1, 1}, {340, 6}},
        {"8;", "8;", {0, 0}, {}},
        {"1;2;3", "1;2;", {2, 2}, {}},
        {"", "", {0, 0}, {}},
    };
    desk.onBox = [&] { desk.answers = {toolkit::Ignore}; };
    for (const Case& c : cases) {
        gstrStammNumbers[1] = c.text;
        auto& page = open();
        page.mnuJackpotGenerator.click();
        EXPECT_EQ(board(page), c.drawn) << c.text;
        const auto boxes = desk.takeBoxes();
        ASSERT_EQ(boxes.size(), c.failures.size()) << c.text;
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            EXPECT_EQ(
                boxes[i].find("An error has occured: " + std::to_string(c.failures[i]) + "\r\n"),
                0U);
            EXPECT_NE(boxes[i].find("\r\ncLotto.SetCustomNumbers"), std::string::npos);
        }
        userClick(page.cmdCancel);
        const auto cells = std::count(c.stored.begin(), c.stored.end(), ';');
        EXPECT_EQ(gstrStammNumbers[1],
                  c.stored + std::string(static_cast<std::size_t>(49 - cells), ';'));
    }
    gstrStammNumbers[2] = std::string(49, ';') + "1;2;3;";
    EXPECT_TRUE(open().grd1.TextMatrix(2, 1).empty());
    frmCustomize6::the().Unload();
    EXPECT_EQ(gstrStammNumbers[2], std::string(49, ';'));
}

TEST_F(Customize6Test, ADrawUnderWayBearsWhateverTheUserDoes) {
    struct Case {
        const char* what;
        std::function<void(frmCustomize6&)> during;
        Board after;
    };
    const std::vector<Case> cases{
        {"another row", [](auto& page) { userClickRow(page.grd1, 3); }, {7, 6}},
        {"a free row", [](auto& page) { userClickRow(page.grd1, 9); }, {0, 1}},
        {"delete", [](auto& page) { userDoubleClickRow(page.grd1, 2); }, {7, 6}},
        {"reset", [](auto& page) { userClick(page.cmdReset); }, {49, 6}},
        {"all gone",
         [](auto& page) {
             for (int n = 1; n <= 49; ++n)
                 page.Label1(n).Enabled = false;
         },
         {0, 1}},
        {"close", [](auto& page) { userClick(page.cmdCancel); }, {7, 6}},
    };
    for (const Case& c : cases) {
        fillRows(gstrStammNumbers, 3);
        const auto page = std::static_pointer_cast<frmCustomize6>(open().shared_from_this());
        userClickRow(page->grd1, 2);
        // The first draw gives 2, a number of the row; the user acts behind the second.
        os.random.script = {1.5F / 49, 1.5F / 49};
        int yields = 0;
        desk.onDoEvents = [&] {
            if (++yields == 2)
                c.during(*page);
        };
        desk.answers = {toolkit::Yes};
        userClick(page->cmdJackpot);
        EXPECT_EQ(board(*page).pool, c.after.pool) << c.what;
        EXPECT_EQ(board(*page).red, c.after.red) << c.what;
        desk.onDoEvents = nullptr;
        page->Unload();
        desk.boxes.clear();
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
    EXPECT_EQ(board(page).pool, 7);
    EXPECT_GE(board(page).red, 6);
}

TEST_F(Customize6Test, TheProgramEndsFromWithinADraw) {
    MDIForm1::the().Show();
    auto& page = open();
    file(page, {1, 2, 3, 4, 5, 6, 7});
    desk.onDoEvents = [&] {
        MDIForm1::the().tlbar1.clickButton({.Key = "exit", .ToolTipText = {}});
    };
    EXPECT_THROW(userClick(page.cmdJackpot), ProcessEnded);
    EXPECT_TRUE(os.process.ended);
    EXPECT_NE(os.files.content["/app/Quorvanta.txt"].find("1;2;3;4;5;6;7;;;;"), std::string::npos);
}

TEST_F(Customize6Test, MenusAndKeysReachEverything) {
    auto& page = open();
    EXPECT_EQ(menuText(page.menuBar()),
              "&File{6 From 49|Bankroll|Customize 6 (off)|Favorites|-|&Close}"
              "|Customize{All Numbers|-|Delete Grid Row|-|File to Grid|-|Reset|-|Jackpot Generator}"
              "|Quor Vanta{Quorvanta Lite Website}|Help{Contents|-|About}");
    EXPECT_EQ(page.mnuJackpotGenerator.Shortcut, "F5");
    page.mnuAllNumbers.click();
    page.mnuFileToGrid.click();
    EXPECT_EQ(page.grd1.text(1, 49), "49");
    page.mnuAllNumbers.click();
    page.mnuReset.click();
    EXPECT_EQ(picked(page), "");
    page.mnuContents.click();
    EXPECT_EQ(desk.helps.size(), 1U);
    page.mnuFavorites.click();
    EXPECT_NE(frmFavorites::ifLoaded(), nullptr);
    EXPECT_NE(frmCustomize6::ifLoaded(), nullptr);
    const auto order = tabOrder(page);
    ASSERT_EQ(order.size(), 55U);
    EXPECT_EQ(order[0], &page.cmdKey(1));
    EXPECT_EQ(order[48], &page.cmdKey(49));
    EXPECT_EQ(order[54], &page.cmdJackpot);
}

} // namespace
