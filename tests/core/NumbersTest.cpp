// Draws, and the page "6 From 49".
#include "numbers/cLotto.h"
#include "numbers/frmMain.h"
#include "tests/support/ProgramTest.h"

namespace {

using namespace quorvanta;
using namespace tests;

struct NumbersTest : ProgramTest {
    std::string& setting = os.settings.values["Zephyrwick/Quor Vanta /system"];

    NumbersTest() { setting = "0"; }
    static Numbers drawn() {
        const auto& board = frmMain::the().lbl1;
        return numbersWhere([&](int n) { return board(n).ForeColor == toolkit::kRed; });
    }
    // Draws on the board, and gives all numbers that are marked on it.
    static Numbers draw(int count, cLotto::Action action = cLotto::Draw) {
        cLotto lotto;
        lotto.prpControl.Set(open<frmMain>().lbl1.ref());
        lotto.prpDrawNumber = count;
        lotto.prpActionToDo = action;
        return drawn();
    }
    // Random values that draw the numbers.
    void fix(const Numbers& numbers) {
        for (const int n : numbers)
            os.random.script.push_back((static_cast<float>(n) - 0.5F) / kNumbers);
    }
    // The selected options and the checked entries, by index.
    static std::string chosen(const frmMain& page) {
        std::string text;
        for (int i = 0; i < 10; ++i)
            text += (page.opt1(i).Value ? "o" + std::to_string(i) : "") +
                    (page.mnuSystemPlay(i).Checked ? "m" + std::to_string(i) : "");
        return text;
    }
};

TEST_F(NumbersTest, ADrawGoesFrom1To49TakesNoNumberTwiceAndAddsToOlderMarks) {
    os.random.script = {0.0F, std::nextafter(1.0F, 0.0F), 0.0F, 6.5F / 49};
    ASSERT_EQ(draw(3), (Numbers{1, 7, 49}));
    os.random.script = {7.5F / 49};
    EXPECT_EQ(draw(1), (Numbers{1, 7, 8, 49}));
    desk.answers = {toolkit::Ignore, toolkit::Abort};
    EXPECT_EQ(draw(50).size(), 49U);
    EXPECT_EQ(desk.takeReports(), Texts(2, "9 cLotto.Lotto49"));
}

TEST_F(NumbersTest, AnActionWithoutARoutineIsKeptAndDoesNothing) {
    cLotto lotto;
    auto& board = open<frmMain>().lbl1;
    lotto.prpControl.Set(board.ref());
    lotto.prpDrawNumber = 6;
    lotto.mintFrmButtons = 6;
    lotto.prpMinNumber = 6;
    lotto.prpHighNumber = 8;
    const Numbers all{6, 7, 8}, two{7, 8};
    for (const auto& [action, bold] : {std::pair<int, Numbers>(cLotto::PickAll, all),
                                       {-1, all},
                                       {0, all},
                                       {3, all},
                                       {8, all},
                                       {cLotto::ToggleKey, two},
                                       {0, two},
                                       {cLotto::PickNone, {}},
                                       {8, {}}}) {
        lotto.prpActionToDo = action;
        EXPECT_EQ(lotto.prpActionToDo(), action);
        EXPECT_EQ(numbersWhere([&](int n) { return board(n).FontBold.get(); }), bold);
        EXPECT_EQ(drawn(), Numbers{});
    }
    lotto.prpGrid = open<frmFavorites>().grd1.ref(); // is not stored
    EXPECT_THROW(lotto.prpGrid(), platform::RuntimeError);
}

// So every set of numbers is equally likely.
TEST_F(NumbersTest, EachNumberHasAnEqualShareOfTheRandomValuesAndWhatIsNotFreeIsDrawnAnew) {
    auto& board = open<frmMain>().lbl1;
    for (int n = 1; n <= kNumbers; ++n)
        for (const double place : {0.001, 0.999}) {
            os.random.script = {static_cast<float>((n - 1 + place) / kNumbers)};
            EXPECT_EQ(draw(1), Numbers{n});
            board(n).ForeColor = toolkit::kBlack;
        }
    for (int n = 21; n <= kNumbers; ++n)
        board(n).Enabled = false;
    fix({3, 21, 3, 49, 20, 1, 7, 8, 20, 9});
    EXPECT_EQ(draw(0, cLotto::DrawFromEnabled), (Numbers{1, 3, 7, 8, 9, 20}));
}

TEST_F(NumbersTest, EverySystemMarksItsCountAndComesBackAtTheNextOpen) {
    int i = 0;
    setting = "9";
    for (const std::size_t count : {6, 7, 8, 9, 10, 11, 12, 13, 22, 26}) {
        frmMain& page = open<frmMain>();
        i % 2 == 0 ? userClick(page.opt1(i)) : userClick(page.mnuSystemPlay(i));
        EXPECT_EQ(setting, std::to_string(i));
        EXPECT_EQ(chosen(page), "o" + setting + "m" + setting);
        userClick(page.cmdJackpot);
        userClick(page.mnuJackpot);
        EXPECT_EQ(drawn().size(), count);
        userClick(page.cmdCancel);
        ASSERT_EQ(frmMain::ifLoaded(), nullptr);
        EXPECT_EQ(chosen(open<frmMain>()), "o" + setting + "m" + setting);
        EXPECT_EQ(drawn(), Numbers());
        ++i;
    }
}

TEST_F(NumbersTest, ADrawIsSaidOnceAndInRisingOrder) {
    frmMain& page = open<frmMain>();
    fix({33, 1, 47, 29, 49, 32});
    userKey(page, toolkit::key::F1 + 4);
    EXPECT_EQ(desk.announced, Texts{"Drawn: 1, 29, 32, 33, 47, 49"});
    EXPECT_EQ(page.lbl1(33).spoken() + page.lbl1(34).spoken(), "33, drawn34");
    fix({2, 4, 6, 8, 10, 12});
    userClick(page.cmdJackpot);
    EXPECT_EQ(drawn(), (Numbers{2, 4, 6, 8, 10, 12})) << "the marks of the play before";
}

TEST_F(NumbersTest, ABadStoredSystemIsReportedAndLeavesNoneChosen) {
    for (const auto& [stored, answer, reports] : {std::tuple("17", toolkit::Abort, 1U),
                                                  {"-1", toolkit::Ignore, 2},
                                                  {"abc", toolkit::Abort, 1},
                                                  {"", toolkit::Ignore, 3}}) {
        setting = "9";
        userClick(open<frmMain>().opt1(3)); // what a play goes on by
        frmMain::the().Unload();
        setting = stored;
        desk.last = answer;
        frmMain& page = open<frmMain>();
        EXPECT_TRUE(desk.boxes.at(0).text.ends_with("frmMain.SetFormProperties"));
        EXPECT_EQ(desk.takeReports().size(), reports) << stored;
        EXPECT_EQ(chosen(page) + setting, stored);
        userClick(page.cmdJackpot);
        EXPECT_EQ(drawn().size(), 9U);
        page.Unload();
    }
}

TEST_F(NumbersTest, TheNumbersStandInSevenLinesOfSeven) {
    // The places of the first number, the next, the one below it and the last.
    using Corners = std::vector<std::pair<double, double>>;
    const std::pair<const toolkit::ControlArrayBase&, Corners> boards[] = {
        {open<frmMain>().lbl1, {{75, 150}, {690, 150}, {690, 780}, {3840, 3930}}},
        {open<frmCustomize6>().Label1, {{60, 165}, {570, 165}, {570, 615}, {3120, 2865}}},
        {open<frmFavorites>().cmdKey, {{90, 255}, {630, 255}, {630, 600}, {3360, 2325}}}};
    for (const auto& [board, corners] : boards) {
        Corners found;
        for (const int n : {1, 2, 9, 49})
            found.emplace_back(board(n).Left, board(n).Top);
        EXPECT_EQ(found, corners);
        for (int n = 1; n <= kNumbers; ++n)
            EXPECT_EQ(board(n).Caption.get(), std::to_string(n));
    }
}

} // namespace
