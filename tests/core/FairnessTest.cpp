#include "bench/Fairness.h"
#include "numbers/cLotto.h"
#include "numbers/frmMain.h"
#include "tests/support/ProgramTest.h"

namespace {

using namespace quorvanta;

// Draws from the numbers 1 to `pool`, and unmarks what was drawn.
std::vector<int> play(cLotto::Action action, int pool) {
    auto& board = frmMain::the().lbl1;
    for (int n = pool + 1; n <= kNumbers; ++n)
        board(n).Enabled = false;
    cLotto lotto;
    lotto.prpControl = board.ref();
    lotto.prpDrawNumber = kDrawn;
    lotto.prpActionToDo = action;
    std::vector<int> numbers;
    for (int n = 1; n <= kNumbers; ++n)
        if (board(n).ForeColor == toolkit::kRed) {
            numbers.push_back(n);
            board(n).ForeColor = toolkit::kBlack;
        }
    return numbers;
}

class Fairness : public tests::ProgramTest {};

TEST_F(Fairness, EverySetOfNumbersIsEquallyLikely) {
    frmMain::the().Load();       // draws mark its board
    constexpr double kBound = 6; // standard deviations: a false alarm in less than 1 of a million
    for (const auto& [action, pool] : {std::pair(cLotto::Draw, 49),
                                       {cLotto::DrawFromEnabled, 49},
                                       {cLotto::DrawFromEnabled, 20}}) {
        tests::PlayTally tally(pool);
        for (int i = 0; i < 50'000; ++i)
            tally.add(play(action, pool));
        for (int n = 1; n <= pool; ++n)
            EXPECT_LT(std::abs(tally.deviation(n)), kBound) << n << " of " << pool;
        EXPECT_LT(std::abs(tally.pairDeviation()), kBound) << pool;
    }
}

} // namespace
