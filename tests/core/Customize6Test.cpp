#include "tests/support/ListPages.h"

namespace {

using namespace quorvanta;
using namespace tests;

using Customize6Test = ProgramTest;
using Board = std::pair<std::size_t, std::size_t>;

// How many numbers are in the pool, and how many are drawn.
Board board(const frmCustomize6& page) {
    return {pool(page).size(), drawn(page).size()};
}

TEST_F(Customize6Test, SevenPickedNumbersAreFiledInRisingOrderAndStoredAtOnce) {
    fillRows(gstrStammNumbers, "1");
    auto& page = open<frmCustomize6>();
    pick(page, {40, 12, 3, 9, 1, 2, 17, 17});
    userClick(page.cmdCopy);
    EXPECT_TRUE(desk.takeBoxes().at(0).starts_with("You have not selected enough"));
    EXPECT_EQ(picked(page), (Numbers{1, 2, 3, 9, 12, 40}));
    EXPECT_TRUE(gstrStammNumbers[2].empty());
    pick(page, {49});
    userClickRow(page.grd1, 1);
    userClick(page.cmdCopy);
    EXPECT_EQ(gstrStammNumbers[2], "1;2;3;9;12;40;49;" + std::string(42, ';'));
    EXPECT_EQ(gstrStammNumbers[3], std::string(49, ';'));
    EXPECT_EQ(picked(page), Numbers{});
    EXPECT_EQ(page.grd1.row(), 0);
}

// Rows that only a file edited by hand can bring.
TEST_F(Customize6Test, AnOddRowIsStoredAsItWasAndNeverHangsADraw) {
    struct Case {
        std::string text;
        Numbers numbers; // six at most, so a draw takes them all
        std::vector<std::string> reports = {};
        std::string cut = ""; // what is lost of the text
    };
    const std::string in = " cLotto.SetCustomNumbers";
    desk.onBox = [&] { desk.answers = {toolkit::Ignore}; };
    for (const Case& c :
         std::vector<Case>{{"1;2;3;", {1, 2, 3}},
                           {"5;5;9;9;5;", {5, 9}},
                           {"1;abc;3;", {1, 3}, {"13" + in}},
                           {"50;0;70000;7;", {7}, {"340" + in, "340" + in, "6" + in}},
                           {"007; 8 ;9;", {7, 8, 9}},
                           {"4;5; ;6;", {4, 5}},
                           {"8;", {}},
                           {std::string(49, ';') + "7;", {}, {}, "7;"},
                           {"1;2;3", {1, 2}, {}, "3"}}) {
        gstrStammNumbers[1] = c.text;
        auto& page = open<frmCustomize6>();
        page.mnuJackpotGenerator.click();
        EXPECT_EQ(pool(page), c.numbers) << c.text;
        EXPECT_EQ(drawn(page), c.numbers) << c.text;
        EXPECT_EQ(desk.takeReports(), c.reports) << c.text;
        userClick(page.cmdCancel);
        std::string stored = c.text.substr(0, c.text.size() - c.cut.size());
        while (std::ranges::count(stored, ';') < 49)
            stored += ';';
        EXPECT_EQ(gstrStammNumbers[1], stored);
    }
}

TEST_F(Customize6Test, ADrawUnderWayBearsWhateverTheUserDoes) {
    using Action = std::function<void(frmCustomize6&)>;
    for (const auto& [during, after] : std::vector<std::pair<Action, Board>>{
             {[](auto& page) { userClickRow(page.grd1, 3); }, {7, 6}},
             {[](auto& page) { userClickRow(page.grd1, 9); }, {0, 1}}, // a free row
             {[](auto& page) { userDoubleClickRow(page.grd1, 2); }, {7, 6}},
             {[](auto& page) { userClick(page.cmdReset); }, {49, 6}},
             {[](auto& page) { userClick(page.cmdCancel); }, {7, 6}}}) {
        fillRows(gstrStammNumbers, "123");
        const auto page =
            std::static_pointer_cast<frmCustomize6>(open<frmCustomize6>().shared_from_this());
        userClickRow(page->grd1, 2);
        os.random.script = {1.5F / 49, 1.5F / 49}; // 2, a number of the row, twice
        int yields = 0;
        desk.onDoEvents = [&] {
            if (++yields == 2)
                during(*page);
        };
        desk.answers = {toolkit::Yes};
        userClick(page->cmdJackpot);
        EXPECT_EQ(board(*page), after);
        page->Unload();
    }
}

} // namespace
