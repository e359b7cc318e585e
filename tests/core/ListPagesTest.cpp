// What both pages of number rows do, and what each of them does in its own way.
#include "tests/support/ListPages.h"
#include "lists/cFlexGrid.h"

namespace {

using namespace quorvanta;
using namespace tests;
using toolkit::Yes, toolkit::No, toolkit::Cancel, toolkit::Ignore;

template <class Page>
class ListPagesTest : public ProgramTest {
protected:
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

TYPED_TEST(ListPagesTest, OnlyYesDeletesAndEachWayOutLeavesItsOwnCurrentRow) {
    struct Case {
        std::string before;
        int row; // double clicked; 0 for the menu entry right after opening, -1 after a picked key
        int answer;
        std::string after, box;
        int current, currentFavorites;
    };
    for (const Case& c : std::vector<Case>{{"1234567812", 9, Yes, "123456782-", "Do", 0, 0},
                                           {"12345", 3, No, "12345-----", "Do", 0, 1},
                                           {"12345", 3, Cancel, "12345-----", "Do", 0, 1},
                                           {"12345", 7, Yes, "12345-----", "Yo", 7, 0},
                                           {"12", 0, Yes, "2---------", "Do", 0, 0},
                                           {"12345", -1, Yes, "12345-----", "Yo", 0, 0},
                                           // Of an edited file; one pass moves each row up once.
                                           {"12--5", 1, Yes, "2--5------", "Do", 0, 0}}) {
        SCOPED_TRACE(c.before + ", row " + std::to_string(c.row));
        auto& page = this->open(c.before);
        this->desk.answers = {c.answer};
        if (c.row > 0)
            userDoubleClickRow(page.grd1, c.row);
        if (c.row < 0)
            pick(page, {1});
        if (c.row <= 0)
            page.mnuDeleteGridRow.click();
        EXPECT_EQ(this->desk.takeBoxes().at(0).substr(0, 2), c.box);
        EXPECT_EQ(tell(this->rows), c.after); // stored before the page is closed
        EXPECT_EQ(page.grd1.row(), this->kCustomize ? c.current : c.currentFavorites);
        EXPECT_EQ(page.grd1.text(4, 0), "4.");
        page.Unload();
    }
}

TYPED_TEST(ListPagesTest, ShiftModeSwapsTwoFilledRowsAndEnds) {
    using Event = std::function<void(TypeParam&)>;
    const auto row = [](int number) -> Event {
        return [=](auto& page) { userClickRow(page.grd1, number); };
    };
    const Event ctrl = [](auto& page) { userKey(page, kCtrlKey, 2); };
    const Event ctrlAndShift = [](auto& page) { userKey(page, kCtrlKey, 3); };
    const Event resetButton = [](auto& page) { userClick(page.cmdReset); };
    const Event resetEntry = [](auto& page) { page.mnuReset.click(); };
    const Event deleteRow5 = [](auto& page) { userDoubleClickRow(page.grd1, 5); };
    struct Case {
        std::vector<Event> events;
        bool on;
        std::string after = "12345-----";
        std::size_t boxes = 0;
    };
    const Case cases[] = {
        {{ctrl, row(2), row(4), row(1), row(3)}, false, "14325-----"},
        {{ctrl, row(2), row(2)}, false},
        {{ctrl, row(2), ctrl, row(4)}, false},
        {{ctrl, row(2), ctrl, ctrl, row(4)}, true},
        {{ctrlAndShift, row(2), row(4)}, false},
        {{ctrl, row(2), row(6), row(4)}, false, "14325-----", 1},
        {{ctrl, row(0), row(2), row(4)}, false, "14325-----"},
        // The header picks no row.
        {{ctrl, row(2), resetEntry, row(0), row(4)}, false, "14325-----"},
        {{ctrl, row(2), resetButton, row(4)}, false},
        {{ctrl, deleteRow5}, this->kCustomize, "1234------", 1},
        // Row 5, the first pick, is gone.
        {{ctrl, deleteRow5, row(2)}, false, "1234------", this->kCustomize ? 2U : 1U}};
    for (const Case& c : cases) {
        SCOPED_TRACE("case " + std::to_string(&c - cases));
        auto& page = this->open();
        this->desk.answers = {Yes};
        for (const Event& event : c.events)
            event(page);
        EXPECT_EQ(page.statBar1.Panels(1).get(), c.on ? "Shift mode" : "");
        EXPECT_EQ(tell(this->rows), c.after);
        EXPECT_EQ(page.grd1.text(0, 1), "# 1");
        EXPECT_EQ(this->desk.takeBoxes().size(), c.boxes);
        page.Unload();
    }
}

class GridRowsTest : public ProgramTest {};

TEST_F(GridRowsTest, LayingOutEmptiesAGridAndOtherActionsLeaveItAlone) {
    auto& grid = open<frmFavorites>().grd1;
    cFlexGrid rows;
    rows.prpGrid.Set(grid.ref());
    rows.prpGridRows = 4;
    rows.prpGridCols = 3;
    for (const int none : {-1, 0, 5}) {
        rows.prpActionToDo = none;
        EXPECT_EQ(grid.rows() * 100 + grid.cols(), 1107);
    }
    grid.Width = 3002;
    rows.prpActionToDo = cFlexGrid::LayOut;
    EXPECT_EQ(std::tuple(grid.rows(), grid.cols(), grid.FixedRows.get(), grid.FixedCols.get()),
              std::tuple(4, 3, 1, 0));
    for (int c = 0; c < 3; ++c)
        EXPECT_EQ(std::pair(grid.ColWidth(c), grid.text(0, c)), std::pair(1001, std::string()));
}

class FavoritesTest : public ProgramTest {};

TEST_F(FavoritesTest, TheGridIsSizedToItsContent) {
    const auto& page = open<frmFavorites>();
    EXPECT_EQ(std::pair(page.grd1.Width.get(), page.grd1.Height.get()),
              std::pair(6 * 480 + 960 + 150.0, 11 * 240 + 100.0));
    EXPECT_EQ(page.grd1.text(0, 0) + page.grd1.text(0, 6) + page.grd1.text(10, 0),
              "Favorites# 610.");
}

TEST_F(FavoritesTest, ASeventhKeyIsRefusedAndAnyOfTheSixCanBeTakenBack) {
    auto& page = open<frmFavorites>();
    pick(page, {10, 20, 30, 40, 5, 6, 7});
    EXPECT_TRUE(desk.takeBoxes().at(0).starts_with("You allready have 6 favorite numbers."));
    pick(page, {10, 8});
    EXPECT_EQ(picked(page), (Numbers{5, 6, 8, 20, 30, 40}));
}

class Customize6Test : public ProgramTest {};

// Rows that only a file edited by hand can bring.
TEST_F(Customize6Test, AnOddRowIsStoredAsItWasAndNeverHangsADraw) {
    struct Case {
        std::string text;
        Numbers numbers; // six at most, so a draw takes them all
        std::vector<std::string> reports = {};
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
        userClick(page.cmdCancel);
        std::string stored = c.text.substr(0, c.text.size() - c.cut.size());
        while (std::ranges::count(stored, ';') < 49)
            stored += ';';
        EXPECT_EQ(gstrStammNumbers[1], stored);
    }
}

TEST_F(Customize6Test, ADrawUnderWayBearsWhateverTheUserDoes) {
    struct Case {
        std::function<void(frmCustomize6&)> during;
        std::size_t pool, drawn;
    };
    for (const Case& c :
         std::vector<Case>{{[](auto& page) { userClickRow(page.grd1, 3); }, 7, 6},
                           {[](auto& page) { userClickRow(page.grd1, 9); }, 0, 1}, // a free row
                           {[](auto& page) { userDoubleClickRow(page.grd1, 2); }, 7, 6},
                           {[](auto& page) { userClick(page.cmdReset); }, 49, 6},
                           {[](auto& page) { userClick(page.cmdCancel); }, 7, 6}}) {
        fillRows(gstrStammNumbers, "123");
        const auto page =
            std::static_pointer_cast<frmCustomize6>(open<frmCustomize6>().shared_from_this());
        userClickRow(page->grd1, 2);
        os.random.script = {1.5F / 49, 1.5F / 49}; // 2, a number of the row, twice
        int yields = 0;
        desk.onDoEvents = [&] {
            if (++yields == 2)
                c.during(*page);
        };
        desk.answers = {Yes};
        userClick(page->cmdJackpot);
        EXPECT_EQ(pool(*page).size(), c.pool);
        EXPECT_EQ(drawn(*page).size(), c.drawn);
        page->Unload();
    }
}

} // namespace
