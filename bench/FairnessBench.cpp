// Whether the plays that the system's random generator gives are fair. Over 10 million plays of six
// the count of every number lies within five standard deviations of its expected value, and so does
// the chi-squared statistic of the pairs. Usage: fairness_bench [plays]
#include "bench/Fairness.h"
#include "frame/modConstants.h"
#include "numbers/cLotto.h"
#include "numbers/frmMain.h"
#include "platform/StandardRandom.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakePlatform.h"

#include <cstdlib>
#include <iostream>

int main(int count, char** arguments) {
    constexpr double kBound = 5; // standard deviations
    const long plays = count > 1 ? std::atol(arguments[1]) : 10'000'000;
    tests::FakePlatform system;
    platform::StandardRandom random;
    random.seed();
    const platform::Platform all{system.process,  system.clock,  random,         system.settings,
                                 system.files,    system.locale, system.machine, system.shell,
                                 system.printing, system.help};
    platform::install(&all);

    quorvanta::frmMain::the().Load();
    auto& board = quorvanta::frmMain::the().lbl1;
    bench::PlayTally tally(quorvanta::kNumbers);
    std::vector<int> numbers;
    for (long i = 0; i < plays; ++i) {
        quorvanta::cLotto lotto;
        lotto.prpControl.Set(board.ref());
        lotto.prpDrawNumber = quorvanta::kDrawn;
        lotto.prpActionToDo = quorvanta::cLotto::Draw;
        numbers.clear();
        for (int n = 1; n <= quorvanta::kNumbers; ++n)
            if (board(n).ForeColor == toolkit::kRed) {
                numbers.push_back(n);
                board(n).ForeColor = toolkit::kBlack;
            }
        tally.add(numbers);
    }
    tests::dropForms();

    double worst = 0;
    for (int n = 1; n <= quorvanta::kNumbers; ++n)
        if (std::abs(tally.deviation(n)) > std::abs(worst))
            worst = tally.deviation(n);
    const double pairs = tally.pairDeviation();
    std::cout << plays << " plays: the number farthest from its expected count is " << worst
              << " standard deviations off, the pairs " << pairs << "; at most " << kBound << "\n";
    return std::abs(worst) <= kBound && std::abs(pairs) <= kBound ? 0 : 1;
}
