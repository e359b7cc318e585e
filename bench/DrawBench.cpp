// How many plays a second the draw engine makes on the number board, with no desktop attached and
// the system's random generator. Fails below the promised million.
#include "frame/modConstants.h"
#include "numbers/cLotto.h"
#include "numbers/frmMain.h"
#include "platform/StandardRandom.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakePlatform.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <limits>

namespace {

constexpr double kPromised = 1e6;

auto& board() {
    return quorvanta::frmMain::the().lbl1;
}

void clear() {
    for (int n = 1; n <= quorvanta::kNumbers; ++n)
        board()(n).ForeColor = toolkit::kBlack;
}

// A fresh engine for each play, as the page does it.
void play(int count) {
    quorvanta::cLotto lotto;
    lotto.prpControl.Set(board().ref());
    lotto.prpDrawNumber = count;
    lotto.prpActionToDo = quorvanta::cLotto::Draw;
}

// The marks pile up, so that nothing but the play is in the figure.
void playAlone(benchmark::State& state) {
    for (auto _ : state)
        play(static_cast<int>(state.range(0)));
    state.SetItemsProcessed(state.iterations());
}

void clearAndPlay(benchmark::State& state) {
    for (auto _ : state) {
        clear();
        play(static_cast<int>(state.range(0)));
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(playAlone)->Arg(6)->Repetitions(5)->DisplayAggregatesOnly();
BENCHMARK(clearAndPlay)->Arg(6)->Arg(26)->Repetitions(5)->DisplayAggregatesOnly();

// Keeps the slowest plain play of six, with and without the clearing.
class Reporter : public benchmark::ConsoleReporter {
public:
    Reporter() : ConsoleReporter(OO_None) {}
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.aggregate_name == "median" && run.run_name.args == "6")
                slowest = std::min(slowest, run.counters.at("items_per_second").value);
        ConsoleReporter::ReportRuns(runs);
    }
    double slowest = std::numeric_limits<double>::infinity();
};

} // namespace

int main(int count, char** arguments) {
    tests::FakePlatform system;
    platform::StandardRandom random;
    random.seed();
    const platform::Platform all{system.process,  system.clock,  random,         system.settings,
                                 system.files,    system.locale, system.machine, system.shell,
                                 system.printing, system.help};
    platform::install(&all);

    quorvanta::frmMain::the().Load();
    benchmark::Initialize(&count, arguments);
    Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    tests::dropForms();
    return reporter.slowest >= kPromised ? 0 : 1;
}
