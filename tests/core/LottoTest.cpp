#include "numbers/cLotto.h"
#include "tests/support/ProgramTest.h"

#include <cmath>

namespace {

using namespace quorvanta;
using namespace tests;

// A form that is nothing but a board of 49 labels and a grid.
struct BoardForm : toolkit::FormOf<BoardForm> {
    BoardForm() : FormOf(Kind::TopLevel, "BoardForm", 0, 0) {
        for (int n = 1; n <= kNumbers; ++n)
            board.load(n, *this);
        grid.Rows = 3;
        grid.Cols = 50;
    }
    toolkit::ControlArray<toolkit::Label> board{*this, "board"};
    toolkit::MSFlexGrid grid{*this, "grid"};

    std::vector<int> red() const {
        std::vector<int> numbers;
        for (int n = 1; n <= kNumbers; ++n)
            if (board(n).ForeColor == toolkit::kRed)
                numbers.push_back(n);
        return numbers;
    }
    std::vector<int> enabled() const {
        std::vector<int> numbers;
        for (int n = 1; n <= kNumbers; ++n)
            if (board(n).Enabled)
                numbers.push_back(n);
        return numbers;
    }
    void enableOnly(const std::vector<int>& numbers) {
        for (int n = 1; n <= kNumbers; ++n)
            board(n).Enabled = std::find(numbers.begin(), numbers.end(), n) != numbers.end();
    }
};

class LottoTest : public ProgramTest {
protected:
    BoardForm& form = BoardForm::the();

    LottoTest() { form.Load(); }
    void prepare(cLotto& lotto) {
        lotto.prpControl = form.board.ref();
        lotto.prpGrid = form.grid.ref();
        lotto.prpMinNumber = 1;
        lotto.prpHighNumber = kNumbers;
    }
    void act(int action, int drawNumber = 0, int row = 0) {
        cLotto lotto;
        prepare(lotto);
        lotto.prpDrawNumber = drawNumber;
        lotto.prpRowNumber = row;
        lotto.prpActionToDo = action;
    }
    void draw(int count) { act(cLotto::Draw, count); }
    void showRow(std::vector<std::string> cells) {
        for (int c = 1; c <= kNumbers; ++c)
            form.grid.TextMatrix(1, c) =
                c <= static_cast<int>(cells.size()) ? cells[static_cast<std::size_t>(c - 1)] : "";
        act(cLotto::ShowRow, 0, 1);
    }
    void play() { act(cLotto::DrawFromEnabled); }
};

TEST_F(LottoTest, TheEndsOfTheGeneratorGiveTheFirstAndTheLastNumber) {
    os.random.script = {0.0F, std::nextafter(1.0F, 0.0F)};
    draw(2);
    EXPECT_EQ(form.red(), (std::vector{1, 49}));
}

TEST_F(LottoTest, ADrawMarksAsManyDifferentNumbersAsAskedAndAddsToOlderMarks) {
    for (const int count : {0, 1, 6, 26, 49}) {
        for (int n = 1; n <= kNumbers; ++n)
            form.board(n).ForeColor = toolkit::kBlack;
        draw(count);
        EXPECT_EQ(form.red().size(), static_cast<std::size_t>(count));
    }
    form.board(7).ForeColor = toolkit::kBlack;
    os.random.script = {6.5F / 49, 0.0F, 0.0F, 1.5F / 49}; // a number that came is thrown away
    draw(3);
    EXPECT_EQ(form.board(7).ForeColor, toolkit::kRed);
    EXPECT_TRUE(os.random.script.empty());
    EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(LottoTest, MoreThanAllNumbersIsReportedAndEnds) {
    desk.answers = {toolkit::Ignore, toolkit::Abort};
    draw(50);
    EXPECT_EQ(desk.takeBoxes(),
              (std::vector<std::string>(2, "An error has occured: 9\r\nSubscript out of range\r\n"
                                           "cLotto.Lotto49")));
    EXPECT_EQ(form.red().size(), 49U);
}

TEST_F(LottoTest, ARowLeavesItsNumbersInPlayAndCleansTheBoard) {
    draw(10);
    showRow({"3", " 7", "007", "12 ", " ", "48"}); // the first blank cell ends the row
    EXPECT_EQ(form.enabled(), (std::vector{3, 7, 12}));
    EXPECT_TRUE(form.red().empty());
    showRow(std::vector<std::string>(49, "5"));
    EXPECT_EQ(form.enabled(), std::vector{5});
    act(cLotto::ShowRow);
    EXPECT_EQ(form.enabled().size(), 49U);
    EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(LottoTest, ACellThatNamesNoNumberIsReportedAndCanBePassedOver) {
    desk.answers = {toolkit::Ignore, toolkit::Ignore, toolkit::Retry, toolkit::Abort};
    showRow({"50", "abc", "4", "-1", "9"});
    EXPECT_EQ(desk.takeBoxes().size(), 4U);
    EXPECT_EQ(form.enabled(), std::vector{4});
}

TEST_F(LottoTest, ACustomDrawTakesSixOfTheEnabledNumbersOrAllThereAre) {
    const std::vector<std::vector<int>> pools{
        {3, 7, 12, 25, 33, 41, 48}, {1, 2, 3, 4, 5, 6}, {10, 20, 30}, {}};
    for (const auto& pool : pools) {
        for (int n = 1; n <= kNumbers; ++n)
            form.board(n).ForeColor = toolkit::kBlack;
        form.enableOnly(pool);
        play();
        const auto red = form.red();
        EXPECT_EQ(red.size(), std::min<std::size_t>(6, pool.size()));
        EXPECT_TRUE(std::includes(pool.begin(), pool.end(), red.begin(), red.end()));
    }
}

TEST_F(LottoTest, ADrawOutlivesItsBoardAndABoardThatChangesUnderIt) {
    int yields = 0;
    desk.onDoEvents = [&] {
        if (++yields == 3)
            form.enableOnly({1, 2});
        if (yields == 40)
            toolkit::Form::dropAll(); // every page goes, and with it the test's form
    };
    const auto board = form.board.ref();
    play();
    EXPECT_GE(yields, 3);
    for (const int n : {1, 2})
        EXPECT_EQ((*board)(n).ForeColor, toolkit::kRed);
}

TEST_F(LottoTest, DrawsStartedInsideOneAnotherAllEnd) {
    form.enableOnly({3, 7, 12, 25, 33, 41, 48});
    int started = 1;
    desk.onDoEvents = [&] {
        if (started < 10) {
            ++started;
            play();
        }
    };
    play();
    EXPECT_EQ(started, 10);
    EXPECT_GE(form.red().size(), 6U);
}

TEST_F(LottoTest, KeysToggleAndUnknownActionsDoNothing) {
    cLotto keys;
    prepare(keys);
    keys.mintFrmButtons = 17;
    for (const bool bold : {true, false}) {
        keys.prpActionToDo = cLotto::ToggleKey;
        EXPECT_EQ(form.board(17).FontBold, bold);
    }
    for (const int action : {0, 3, 8, -1}) {
        keys.prpActionToDo = action;
        EXPECT_EQ(keys.prpActionToDo, action);
    }
    keys.prpActionToDo = cLotto::PickAll;
    EXPECT_TRUE(form.board(1).FontBold && form.board(49).FontBold);
    keys.prpActionToDo = cLotto::PickNone;
    EXPECT_FALSE(form.board(1).FontBold || form.board(49).FontBold);
    EXPECT_TRUE(form.red().empty());
}

} // namespace
