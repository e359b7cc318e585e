// What both pages of number rows do, and what the Favorites page does in its own way.
#include "tests/support/ListPages.h"
#include "numbers/frmMain.h"

namespace {

using namespace quorvanta;
using namespace tests;

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
using FavoritesTest = ProgramTest;

TYPED_TEST(ListPagesTest, TheFirstRowWithoutAFirstNumberIsFilledAndThenTheLimitCounts) {
    fillRows(this->rows, "12345678");
    const std::string odd = this->kCustomize ? "8;9;" : "8;"; // of an edited file
    this->rows[9] = odd;
    auto& page = tests::open<TypeParam>();
    pick(page, this->kCustomize ? Numbers{1, 2, 3, 4, 5, 6, 7} : Numbers{1, 2});
    userClick(page.cmdCopy);
    EXPECT_TRUE(this->rows[9].starts_with(odd + ";") && this->rows[10].starts_with("1;2;"));
    EXPECT_TRUE(this->desk.boxes.empty());
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
    for (const Case& c :
         std::vector<Case>{{"12345", 3, toolkit::Yes, "1245------", "Do", 0, 0},
                           {"1234567812", 10, toolkit::Yes, "123456781-", "Do", 0, 0},
                           {"12345", 3, toolkit::No, "12345-----", "Do", 0, 1},
                           {"12345", 3, toolkit::Cancel, "12345-----", "Do", 0, 1},
                           {"12345", 7, toolkit::Yes, "12345-----", "Yo", 7, 0},
                           {"12", 0, toolkit::Yes, "2---------", "Do", 0, 0},
                           {"", 0, toolkit::Yes, "----------", "Yo", 1, 0},
                           {"12345", -1, toolkit::Yes, "12345-----", "Yo", 0, 0},
                           // Of an edited file; one pass moves each row up once.
                           {"12--5", 1, toolkit::Yes, "2--5------", "Do", 0, 0}}) {
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
    const std::map<char, std::function<void(TypeParam&)>> events{
        {'C', [](auto& page) { userKey(page, kCtrlKey, 2); }},
        {'S', [](auto& page) { userKey(page, kCtrlKey, 3); }}, // with Shift
        {'B', [](auto& page) { userClick(page.cmdReset); }},
        {'R', [](auto& page) { page.mnuReset.click(); }},
        {'D', [](auto& page) { userDoubleClickRow(page.grd1, 5); }}};
    struct Case {
        std::string events; // as above, or a digit for a click on a row
        bool on;
        std::string after = "12345-----";
        std::size_t boxes = 0;
    };
    for (const Case& c :
         std::vector<Case>{{"C24", false, "14325-----"},
                           {"C2413", false, "14325-----"},
                           {"C22", false},
                           {"C2C4", false},
                           {"C2CC4", true},
                           {"S24", false},
                           {"C6", true, "12345-----", 1},
                           {"C264", false, "14325-----", 1},
                           {"C024", false, "14325-----"},
                           {"C2R04", false, "14325-----"}, // no row is chosen by the header
                           {"C2B4", false},
                           {"CD", this->kCustomize, "1234------", 1},
                           // Row 5, the first pick, is gone.
                           {"CD2", false, "1234------", this->kCustomize ? 2U : 1U}}) {
        SCOPED_TRACE(c.events);
        auto& page = this->open();
        this->desk.answers = {toolkit::Yes};
        for (const char event : c.events)
            if (events.contains(event))
                events.at(event)(page);
            else
                userClickRow(page.grd1, event - '0');
        EXPECT_EQ(page.statBar1.Panels(1).get(), c.on ? "Shift mode" : "");
        EXPECT_EQ(tell(this->rows), c.after);
        EXPECT_EQ(page.grd1.text(0, 1), "# 1");
        EXPECT_EQ(this->desk.takeBoxes().size(), c.boxes);
        page.Unload();
    }
}

TEST_F(FavoritesTest, ASeventhKeyIsRefusedAndAnyOfTheSixCanBeTakenBack) {
    auto& page = open<frmFavorites>();
    pick(page, {10, 20, 30, 40, 5, 6, 7});
    EXPECT_EQ(picked(page), (Numbers{5, 6, 10, 20, 30, 40}));
    EXPECT_TRUE(desk.takeBoxes().at(0).starts_with("You allready have 6 favorite numbers."));
    pick(page, {10, 7});
    EXPECT_EQ(picked(page), (Numbers{5, 6, 7, 20, 30, 40}));
}

TEST_F(FavoritesTest, TwoNumbersMakeARowAndOneDoesNot) {
    auto& page = open<frmFavorites>();
    pick(page, {9});
    userClick(page.cmdCopy);
    EXPECT_TRUE(desk.takeBoxes().at(0).starts_with("You must have at least 2 Favorite "));
    EXPECT_EQ(gstrFavorites, RowTexts{});
    pick(page, {4});
    page.mnnuFileToGrid.click();
    EXPECT_EQ(gstrFavorites[1], "4;9;;;;;");
    EXPECT_EQ(gstrFavorites[10], ";;;;;;");
    EXPECT_EQ(picked(page), Numbers{});
}

TEST_F(FavoritesTest, TheGridTakesTheSizeOfItsContentAndTheFileMenuShowsPages) {
    auto& page = open<frmFavorites>();
    EXPECT_EQ(page.grd1.Height, 240 * 11 + 100);
    EXPECT_EQ(page.grd1.Width, 480 * 6 + 960 + 150);
    EXPECT_EQ(page.grd1.text(0, 0) + page.grd1.text(0, 6), "Favorites# 6");
    page.mnuMainForm.click();
    page.mnuCustomize.click();
    EXPECT_TRUE(frmMain::ifLoaded() && frmCustomize6::ifLoaded() && frmFavorites::ifLoaded());
}

} // namespace
