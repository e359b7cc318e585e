#include "tests/support/Fairness.h"
#include "numbers/cLotto.h"
#include "numbers/frmMain.h"
#include "tests/support/ProgramTest.h"

namespace {

using quorvanta::cLotto;

struct Draw {
    const char* name;
    cLotto::Action action;
    int pool; // the numbers 1 to `pool` are enabled
};

class FairnessTest : public tests::ProgramTest, public ::testing::WithParamInterface<Draw> {
protected:
    std::vector<int> play() {
        auto& board = quorvanta::frmMain::the().lbl1;
        cLotto lotto;
        lotto.prpControl = board.ref();
        lotto.prpDrawNumber = quorvanta::kDrawn;
        lotto.prpActionToDo = GetParam().action;
        std::vector<int> numbers;
        for (int n = 1; n <= quorvanta::kNumbers; ++n)
            if (board(n).ForeColor == toolkit::kRed) {
                numbers.push_back(n);
                board(n).ForeColor = toolkit::kBlack;
            }
        return numbers;
    }
};

TEST_P(FairnessTest, EverySetOfNumbersIsEquallyLikely) {
    constexpr double kBound = 6; // standard deviations: a false alarm in less than 1 of a million
    for (int n = GetParam().pool + 1; n <= quorvanta::kNumbers; ++n)
        quorvanta::frmMain::the().lbl1(n).Enabled = false;
    tests::PlayTally tally(GetParam().pool);
    for (int i = 0; i < 50'000; ++i)
        tally.add(play());
    for (int n = 1; n <= GetParam().pool; ++n)
        EXPECT_LT(std::abs(tally.deviation(n)), kBound) << n;
    EXPECT_LT(std::abs(tally.pairDeviation()), kBound);
    quorvanta::frmMain::dropInstance();
}

INSTANTIATE_TEST_SUITE_P(Draws, FairnessTest,
                         ::testing::Values(Draw{"Plain", cLotto::Draw, 49},
                                           Draw{"CustomOfAll", cLotto::DrawFromEnabled, 49},
                                           Draw{"CustomOfTwenty", cLotto::DrawFromEnabled, 20}),
                         [](const auto& draw) { return draw.param.name; });

} // namespace
