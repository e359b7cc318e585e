// Random events on the Customize 6 page, with what must always hold checked after each. The count
// of events and the seed come from QUORVANTA_MONKEY_EVENTS and QUORVANTA_MONKEY_SEED.
#include "frame/MDIForm1.h"
#include "numbers/frmMain.h"
#include "tests/support/ListPages.h"

#include <cstdlib>

namespace {

using namespace quorvanta;
using namespace tests;

int fromEnvironment(const char* name, int fallback) {
    const char* const text = std::getenv(name);
    return text ? std::atoi(text) : fallback;
}

class MonkeyTest : public ProgramTest {
protected:
    static constexpr int kMostYields = 200'000; // in one event; a draw needs some hundreds
    std::mt19937 dice{static_cast<unsigned>(fromEnvironment("QUORVANTA_MONKEY_SEED", 1))};
    int depth = 0, yields = 0, nested = 0, ended = 0, draws = 0;

    int roll(int below) { return static_cast<int>(dice() % static_cast<unsigned>(below)); }
    template <class T>
    T any(const std::vector<T>& of) {
        return of[dice() % of.size()];
    }

    MonkeyTest() {
        desk.onBox = [this] { desk.answers = {3 + roll(5)}; };
        desk.onDoEvents = [this] {
            if (++yields > kMostYields)
                throw std::runtime_error("a draw doesn't end");
            if (depth < 10 && roll(60) == 0) {
                ++nested;
                event();
            }
        };
    }

    void event() {
        ++depth;
        if (auto* const page = frmCustomize6::ifLoaded()) {
            onPage(*page);
        } else {
            editFile();
            mnuCustomize_Click();
        }
        --depth;
    }

    // Now and then the first free row becomes one that only a file edited by hand can bring.
    void editFile() {
        const auto free = std::find_if(
            gstrStammNumbers.begin() + 1, gstrStammNumbers.end(),
            [](const std::string& text) { return text.empty() || text.front() == ';'; });
        if (free != gstrStammNumbers.end() && roll(4) == 0)
            *free = any<std::string>(
                {"1;2;3;", "4;4;4;5;", "abc;7;8;", "50;-1;9;9", "007; ;3;", " ;;;", "8;"});
    }

    void onPage(frmCustomize6& page) {
        using Event = std::function<void()>;
        const Event key = [&] { userClick(page.cmdKey(1 + roll(49))); };
        const Event row = [&] { userClickRow(page.grd1, roll(11)); };
        const Event twice = [&] { userDoubleClickRow(page.grd1, roll(11)); };
        const Event ctrl = [&] { userKey(page, kCtrlKey, roll(3) == 0 ? roll(8) : 2); };
        const Event keypad = [&] { userClick(roll(4) == 0 ? page.cmdAll : page.cmdReset); };
        const Event remove = [&] { page.mnuDeleteGridRow.click(); };
        const Event reset = [&] { page.mnuReset.click(); };
        const Event copy = [&] { userClick(page.cmdCopy); };
        const Event file = [&] {
            for (int n = 0; n < 7; ++n)
                key();
            copy();
        };
        const Event jackpot = [&] { draw(page); };
        const Event close = [&] { page.mnuClose.click(); };
        const Event end = [] { MDIForm1::the().Unload(toolkit::FormControlMenu); };
        const Event rare =
            any<Event>({close, end, mnuMainForm_Click, mnuFavorites_Click, mnuCustomize_Click});
        any<Event>({key, key, key, row, row, row, ctrl, ctrl, copy, file, jackpot, jackpot, twice,
                    keypad, remove, reset, rare})();
    }

    void draw(frmCustomize6& page) {
        const auto keep = page.shared_from_this();
        const int before = nested;
        page.mnuJackpotGenerator.click();
        ++draws;
        // Nested draws may have left their marks together.
        EXPECT_TRUE(nested != before ||
                    drawn(page).size() == std::min<std::size_t>(6, pool(page).size()));
    }

    // The stored rows are those of the grid, and the filled ones stand at the top.
    void check() {
        const auto* const page = frmCustomize6::ifLoaded();
        bool free = false;
        for (int r = 1; page && r <= 10; ++r) {
            std::string cells, stored = gstrStammNumbers.at(static_cast<std::size_t>(r));
            for (int c = 1; c <= 49; ++c)
                cells += page->grd1.text(r, c) + ";";
            stored.erase(stored.find_last_of(';') + 1); // a cell without its end is no cell
            while (std::ranges::count(stored, ';') < 49)
                stored += ';';
            ASSERT_EQ(cells, stored) << r;
            ASSERT_TRUE(!free || cells.front() == ';') << r;
            free = cells.front() == ';';
        }
    }
};

TEST_F(MonkeyTest, WhatMustAlwaysHoldDoesWhateverIsDone) {
    const int events = fromEnvironment("QUORVANTA_MONKEY_EVENTS", 5000);
    MDIForm1::the().Show();
    for (int i = 0; i < events && !HasFatalFailure(); ++i) {
        yields = depth = 0;
        try {
            event();
        } catch (const ProcessEnded&) { // the next run begins
            toolkit::Form::dropAll();
            MDIForm1::the().Show();
            ++ended;
        }
        desk.boxes.clear();
        check();
    }
    EXPECT_TRUE(draws > events / 20 && nested > events / 200 && ended > 0);
}

} // namespace
