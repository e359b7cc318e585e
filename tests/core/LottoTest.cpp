#include "numbers/cLotto.h"
#include "numbers/frmMain.h"
#include "tests/support/ListPages.h"

#include <cmath>

namespace {

using namespace quorvanta;
using namespace tests;

class LottoTest : public ProgramTest {
protected:
    // Draws on the board of a page, and gives all numbers that are marked on it.
    static Numbers draw(int count) {
        const auto& board = frmMain::the().lbl1;
        frmMain::the().Load();
        cLotto lotto;
        lotto.prpControl = frmMain::the().lbl1.ref();
        lotto.prpDrawNumber = count;
        lotto.prpActionToDo = cLotto::Draw;
        return numbersWhere([&](int n) { return board(n).ForeColor == toolkit::kRed; });
    }
};

TEST_F(LottoTest, ADrawGoesFrom1To49TakesNoNumberTwiceAndAddsToOlderMarks) {
    EXPECT_EQ(draw(0), Numbers{});
    os.random.script = {0.0F, std::nextafter(1.0F, 0.0F), 0.0F, 6.5F / 49};
    ASSERT_EQ(draw(3), (Numbers{1, 7, 49}));
    os.random.script = {7.5F / 49};
    EXPECT_EQ(draw(1), (Numbers{1, 7, 8, 49}));
    desk.answers = {toolkit::Ignore, toolkit::Abort};
    EXPECT_EQ(draw(50).size(), 49U);
    EXPECT_EQ(desk.takeReports(), std::vector<std::string>(2, "9 cLotto.Lotto49"));
}

} // namespace
