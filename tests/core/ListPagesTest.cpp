// What both pages of number rows do, and what each of them does in its own way.
#include "lists/cFlexGrid.h"
#include "tests/support/ProgramTest.h"

namespace {

using namespace quorvanta;
using namespace tests;
using toolkit::Yes, toolkit::No, toolkit::Cancel, toolkit::Ignore;

template <class Page>
struct ListPagesTest : ProgramTest {
    static constexpr bool kCustomize = std::is_same_v<Page, frmCustomize6>;
    RowTexts& rows = kCustomize ? gstrStammNumbers : gstrFavorites;

    Page& open(const std::string& told = "12345") {
        rows = {};
        fillRows(rows, told);
        return tests::open<Page>();
    }
};
using Pages = ::testing::Types<frmCustomize6, frmFavorites>;
TYPED_TEST_SUITE(ListPagesTest, Pages);

TYPED_TEST(ListPagesTest, EnoughPickedNumbersAreFiledInRisingOrderAndStoredAtOnce) {
    auto& page = this->open("1");
    Numbers numbers = this->kCustomize ? Numbers{1, 2, 3, 9, 12, 40} : Numbers{40};
    pick(page, {17, 17});
    pick(page, numbers);
    userClick(page.cmdCopy);
    EXPECT_TRUE(this->desk.takeBoxes().at(0).starts_with(this->kCustomize ? "You have not selected"
                                                                          : "You must have at"));
    EXPECT_EQ(picked(page), numbers);
    EXPECT_EQ(tell(this->rows), "1---------");
    pick(page, {8});
    userClickRow(page.grd1, 1);
    userClick(page.cmdCopy);
    EXPECT_EQ(this->rows[2],
              this->kCustomize ? "1;2;3;8;9;12;40;" + std::string(42, ';') : "8;40;;;;;");
    EXPECT_EQ(this->rows[3], std::string(this->kCustomize ? 49 : 6, ';'));
    EXPECT_EQ(picked(page), Numbers{});
    EXPECT_EQ(page.grd1.row(), 0);
}

TYPED_TEST(ListPagesTest, TheFirstRowWithoutAFirstNumberIsFilledAndThenTheLimitCounts) {
    fillRows(this->rows, "12345678");
    const std::string odd = this->kCustomize ? "8;9;" : "8;"; // of an edited file
    this->rows[9] = odd;
    auto& page = tests::open<TypeParam>();
    pick(page, this->kCustomize ? Numbers{1, 2, 3, 4, 5, 6, 7} : Numbers{1, 2});
    userClick(page.cmdCopy);
    EXPECT_TRUE(this->rows[9].starts_with(odd + ";") && this->rows[10].starts_with("1;2;"));
    userClick(page.cmdCopy); // with too few numbers picked
    EXPECT_TRUE(this->desk.takeBoxes().at(0).starts_with(
        "You have reached the limit for your " + std::string(this->kCustomize ? "C" : "F")));
    userDoubleClickRow(page.grd1, 9);
    EXPECT_TRUE(this->desk.takeBoxes().at(0).starts_with(this->kCustomize ? "You have either"
                                                                          : "Do you want"));
}

// Does what a text tells: a digit clicks a row, 0 the header.
template <class Page>
void play(Page& page, const std::string& events) {
    const std::map<char, std::function<void()>> known{
        {'*', [&] { page.grd1.doubleClickRow(page.grd1.row()); }}, // behind its first click
        {'C', [&] { userKey(page, toolkit::key::Ctrl, toolkit::CtrlDown); }},
        {'S', [&] { userKey(page, toolkit::key::Ctrl, toolkit::CtrlDown | toolkit::ShiftDown); }},
        {'D', [&] { page.mnuDeleteGridRow.click(); }},
        {'E', [&] { page.mnuReset.click(); }},
        {'R', [&] { userClick(page.cmdReset); }},
        {'P', [&] { pick(page, {1}); }},
        {'X', [&] { userClick(page.cmdCancel); }}};
    for (const char event : events)
        std::isdigit(event) ? userClickRow(page.grd1, event - '0') : known.at(event)();
}

TYPED_TEST(ListPagesTest, OnlyYesDeletesAndShiftModeSwapsTwoFilledRowsAndEnds) {
    struct Case {
        std::string before, events;
        int answer;
        std::string after, boxes; // the beginning of each
        int current, currentFavorites;
        bool shiftMode = false;
    };
    const std::string five = "12345-----", swapped = "14325-----";
    const bool here = this->kCustomize;
    for (const Case& c :
         std::vector<Case>{{"1234567812", "9*", Yes, "123456782-", "Do", 0, 0},
                           {five, "3*", No, five, "Do", 0, 1},
                           {five, "3*", Cancel, five, "Do", 0, 1},
                           {five, "7*", Yes, five, "Yo", 7, 0},
                           {"12", "D", Yes, "2---------", "Do", 0, 0}, // right after opening
                           {five, "PD", Yes, five, "Yo", 0, 0},
                           // Of an edited file; one pass moves each row up once.
                           {"12--5", "1*", Yes, "2--5------", "Do", 0, 0},
                           {five, "C2413", Yes, swapped, "", 3, 3},
                           {five, "C22", Yes, five, "", 2, 2},
                           {five, "C2C4", Yes, five, "", 4, 4},
                           {five, "C2CC4", Yes, five, "", 4, 4, true},
                           {five, "S24", Yes, five, "", 4, 4},
                           {five, "C264", Yes, swapped, "Th", 4, 4},
                           {five, "C024", Yes, swapped, "", 4, 4},
                           {five, "C2E04", Yes, swapped, "", 4, 4}, // the header picks no row
                           {five, "C2R4", Yes, five, "", 4, 4},
                           {five, "C5*", Yes, "1234------", "Do", 0, 0, here},
                           // The first pick is gone.
                           {five, "C5*2", Yes, "1234------", here ? "DoTh" : "Do", 2, 2}}) {
        SCOPED_TRACE(c.before + " " + c.events);
        auto& page = this->open(c.before);
        this->desk.answers = {c.answer};
        play(page, c.events);
        std::string boxes;
        for (const auto& text : this->desk.takeBoxes())
            boxes += text.substr(0, 2);
        EXPECT_EQ(boxes, c.boxes);
        EXPECT_EQ(tell(this->rows), c.after); // stored before the page is closed
        EXPECT_EQ(page.grd1.row(), here ? c.current : c.currentFavorites);
        EXPECT_EQ(page.statBar1.Panels(1).Text.get(), c.shiftMode ? "Shift mode" : "");
        EXPECT_EQ(page.grd1.text(0, 1) + page.grd1.text(4, 0), "# 14.");
        page.Unload();
    }
}

TEST_F(ProgramTest, LayingOutEmptiesAGridAndOtherActionsLeaveItAlone) {
    auto& grid = open<frmFavorites>().grd1;
    EXPECT_EQ(std::tuple(grid.Width.get(), grid.Height.get(), grid.ColWidth(1), grid.ColWidth(6)),
              std::tuple(6 * 480 + 960 + 150.0, 11 * 240 + 100.0, 480, 480));
    EXPECT_EQ(grid.text(0, 0) + grid.text(0, 6) + grid.text(10, 0), "Favorites# 610.");
    cFlexGrid rows;
    rows.prpGrid.Set(grid.ref());
    rows.prpGridRows = 4;
    rows.prpGridCols = 3;
    for (const int none : {-1, 0, 5}) {
        rows.prpActionToDo = none;
        EXPECT_EQ(std::pair(grid.rows(), grid.cols()), std::pair(11, 7));
    }
    grid.Width = 3002;
    rows.prpActionToDo = cFlexGrid::LayOut;
    EXPECT_EQ(std::tuple(grid.rows(), grid.cols(), grid.FixedRows.get(), grid.FixedCols.get()),
              std::tuple(4, 3, 1, 0));
    for (int c = 0; c < 3; ++c)
        EXPECT_EQ(std::to_string(grid.ColWidth(c)) + grid.text(0, c) + grid.text(1, c), "1001");
}

TEST_F(ProgramTest, ASeventhFavoriteIsRefusedAndAnyOfTheSixCanBeTakenBack) {
    auto& page = open<frmFavorites>();
    pick(page, {10, 20, 30, 40, 5, 6, 7});
    EXPECT_TRUE(desk.takeBoxes().at(0).starts_with("You allready have 6 favorite numbers."));
    pick(page, {10, 8});
    EXPECT_EQ(picked(page), (Numbers{5, 6, 8, 20, 30, 40}));
}

// Rows that only a file edited by hand can bring.
TEST_F(ProgramTest, AnOddRowIsStoredAsItWasAndNeverHangsADraw) {
    struct Case {
        std::string text;
        Numbers numbers; // six at most, so a draw takes them all
        Texts reports = {};
        std::string cut = ""; // what is lost of the text
    };
    const std::string in = " cLotto.SetCustomNumbers";
    desk.last = Ignore;
    for (const Case& c :
         std::vector<Case>{{"5;5;9;9;5;", {5, 9}},
                           {"1;abc;3;", {1, 3}, {"13" + in}},
                           {"50;0;70000;7;", {7}, {"340" + in, "340" + in, "6" + in}},
                           {"4; 8 ; ;6;", {4, 8}},
                           {"8;", {}},
                           {std::string(49, ';') + "7;", {}, {}, "7;"},
                           {"1;2;3", {1, 2}, {}, "3"}}) {
        gstrStammNumbers[1] = c.text;
        auto& page = open<frmCustomize6>();
        page.mnuJackpotGenerator.click();
        EXPECT_EQ(pool(page), c.numbers) << c.text;
        EXPECT_EQ(drawn(page), c.numbers) << c.text;
        EXPECT_EQ(desk.takeReports(), c.reports) << c.text;
        userClickRow(page.grd1, 2);
        EXPECT_EQ(drawn(page), Numbers{}) << "behind an empty row";
        userClick(page.cmdCancel);
        std::string stored = c.text.substr(0, c.text.size() - c.cut.size());
        while (std::ranges::count(stored, ';') < 49)
            stored += ';';
        EXPECT_EQ(gstrStammNumbers[1], stored);
    }
}

TEST_F(ProgramTest, ADrawUnderWayBearsWhateverTheUserDoes) {
    for (const auto& [during, inPool, marked] :
         {std::tuple("3", 7U, 6U), {"9", 0, 1}, {"2*", 7, 6}, {"R", 49, 6}, {"X", 7, 6}}) {
        fillRows(gstrStammNumbers, "123");
        const auto page =
            std::static_pointer_cast<frmCustomize6>(open<frmCustomize6>().shared_from_this());
        userClickRow(page->grd1, 2);
        os.random.script = {1.5F / 49, 1.5F / 49}; // 2, a number of the row, twice
        int yields = 0;
        desk.onDoEvents = [&] {
            if (++yields == 2)
                play(*page, during);
        };
        desk.answers = {Yes};
        userClick(page->cmdJackpot);
        EXPECT_EQ(pool(*page).size(), inPool) << during;
        EXPECT_EQ(drawn(*page).size(), marked) << during;
        page->Unload();
    }
}

} // namespace
