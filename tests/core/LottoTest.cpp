#include "numbers/cLotto.h"
#include "numbers/frmMain.h"
#include "tests/support/ListPages.h"

namespace {

using namespace quorvanta;
using namespace tests;

class LottoTest : public ProgramTest {
protected:
    toolkit::ControlArray<toolkit::Label>& board = open<frmMain>().lbl1;

    // Draws on the board, and gives all numbers that are marked on it.
    Numbers draw(int count, cLotto::Action action = cLotto::Draw) {
        cLotto lotto;
        lotto.prpControl.Set(board.ref());
        lotto.prpDrawNumber = count;
        lotto.prpActionToDo = action;
        return numbersWhere([&](int n) { return board(n).ForeColor == toolkit::kRed; });
    }
};

TEST_F(LottoTest, ADrawGoesFrom1To49TakesNoNumberTwiceAndAddsToOlderMarks) {
    os.random.script = {0.0F, std::nextafter(1.0F, 0.0F), 0.0F, 6.5F / 49};
    ASSERT_EQ(draw(3), (Numbers{1, 7, 49}));
    os.random.script = {7.5F / 49};
    EXPECT_EQ(draw(1), (Numbers{1, 7, 8, 49}));
    desk.answers = {toolkit::Ignore, toolkit::Abort};
    EXPECT_EQ(draw(50).size(), 49U);
    EXPECT_EQ(desk.takeReports(), std::vector<std::string>(2, "9 cLotto.Lotto49"));
}

TEST_F(LottoTest, AnActionWithoutARoutineIsKeptAndDoesNothing) {
    cLotto lotto;
    lotto.prpControl.Set(board.ref());
    lotto.prpDrawNumber = 6;
    lotto.mintFrmButtons = 6;
    lotto.prpMinNumber = 6;
    lotto.prpHighNumber = 8;
    const auto bold = [&] { return numbersWhere([&](int n) { return board(n).FontBold.get(); }); };
    for (const auto& [action, expected] : {std::pair(cLotto::PickAll, Numbers{6, 7, 8}),
                                           {cLotto::ToggleKey, {7, 8}},
                                           {cLotto::PickNone, {}}}) {
        lotto.prpActionToDo = action;
        EXPECT_EQ(bold(), expected);
        for (const int none : {-1, 0, 3, 8}) {
            lotto.prpActionToDo = none;
            EXPECT_EQ(lotto.prpActionToDo(), none);
            EXPECT_EQ(std::pair(bold(), draw(0)), std::pair(expected, Numbers{}));
        }
    }
    lotto.prpGrid = open<frmFavorites>().grd1.ref(); // is not stored
    EXPECT_THROW(lotto.prpGrid(), platform::RuntimeError);
}

// So every set of numbers is equally likely.
TEST_F(LottoTest, EachNumberHasAnEqualShareOfTheRandomValuesAndWhatIsNotFreeIsDrawnAnew) {
    for (int n = 1; n <= kNumbers; ++n)
        for (const double place : {0.001, 0.999}) {
            os.random.script = {static_cast<float>((n - 1 + place) / kNumbers)};
            EXPECT_EQ(draw(1), Numbers{n});
            board(n).ForeColor = toolkit::kBlack;
        }
    for (int n = 21; n <= kNumbers; ++n)
        board(n).Enabled = false;
    for (const int n : {3, 21, 3, 49, 20, 1, 7, 8, 20, 9})
        os.random.script.push_back((static_cast<float>(n) - 0.5F) / kNumbers);
    EXPECT_EQ(draw(0, cLotto::DrawFromEnabled), (Numbers{1, 3, 7, 8, 9, 20}));
}

} // namespace
