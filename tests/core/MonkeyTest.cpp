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

    MonkeyTest() {
        desk.onBox = [this] { desk.answers = {3 + roll(5)}; };
        desk.onDoEvents = [this] {
            if (++yields > kMostYields)
                throw std::runtime_error("a draw doesn't end");
            if (depth < 10 && roll(200) == 0) {
                ++nested;
                event();
            }
        };
    }

    // What a file edited by hand may bring, in the first free row.
    void oddRow() {
        static const std::vector<std::string> kOdd{"1;2;3;",   "4;4;4;5;", "abc;7;8;", "50;-1;9;9",
                                                   "007; ;3;", " ;;;",     "8;"};
        for (std::size_t r = 1; r <= 10; ++r)
            if (gstrStammNumbers.at(r).empty() || gstrStammNumbers.at(r)[0] == ';') {
                gstrStammNumbers.at(r) = kOdd.at(static_cast<std::size_t>(roll(7)));
                return;
            }
    }

    void event() {
        ++depth;
        auto* const page = frmCustomize6::ifLoaded();
        if (!page) {
            if (roll(4) == 0)
                oddRow();
            mnuCustomize_Click();
        } else {
            onPage(*page);
        }
        --depth;
    }

    void onPage(frmCustomize6& page) {
        static const std::vector<std::function<void(frmCustomize6&)>> kRare{
            [](auto& p) { userClick(p.cmdCancel); },
            [](auto& p) { p.mnuClose.click(); },
            [](auto&) { mnuMainForm_Click(); },
            [](auto&) { mnuFavorites_Click(); },
            [](auto& p) { p.Show(); },
            [](auto&) { MDIForm1::the().Unload(toolkit::FormControlMenu); }};
        const int number = 1 + roll(49), row = roll(11);
        switch (roll(16)) {
        case 0:
        case 1:
        case 2:
            return userClick(page.cmdKey(number));
        case 3:
            for (int n = 0; n < 7; ++n)
                userClick(page.cmdKey(1 + roll(49)));
            return userClick(page.cmdCopy);
        case 4:
        case 5:
            return draw(page);
        case 6:
        case 7:
        case 8:
            return userClickRow(page.grd1, row);
        case 9:
            return userDoubleClickRow(page.grd1, row);
        case 10:
        case 11:
            return userKey(page, kCtrlKey, roll(3) == 0 ? roll(8) : 2);
        case 12:
            return roll(4) == 0 ? userClick(page.cmdAll) : userClick(page.cmdReset);
        case 13:
            return roll(2) == 0 ? page.mnuDeleteGridRow.click() : page.mnuReset.click();
        case 14:
            return userClick(page.cmdCopy);
        default:
            return kRare.at(static_cast<std::size_t>(roll(6)))(page);
        }
    }

    void draw(frmCustomize6& page) {
        const auto keep = page.shared_from_this();
        const int before = nested;
        page.mnuJackpotGenerator.click();
        ++draws;
        if (nested != before)
            return; // two draws may have left their marks together
        int pool = 0, red = 0;
        for (int n = 1; n <= 49; ++n) {
            pool += page.Label1(n).Enabled ? 1 : 0;
            red += page.Label1(n).ForeColor == toolkit::kRed ? 1 : 0;
        }
        EXPECT_EQ(red, std::min(6, pool));
    }

    // The stored rows are those of the grid, and the filled ones stand at the top.
    void check() {
        auto* const page = frmCustomize6::ifLoaded();
        if (!page)
            return;
        for (int r = 1; r <= 10; ++r) {
            std::string cells, stored = gstrStammNumbers.at(static_cast<std::size_t>(r));
            for (int c = 1; c <= 49; ++c)
                cells += page->grd1.text(r, c) + ";";
            stored.erase(stored.find_last_of(';') + 1); // a cell without its end is no cell
            stored.append(
                49U - static_cast<std::size_t>(std::count(stored.begin(), stored.end(), ';')), ';');
            ASSERT_EQ(cells, stored) << r;
        }
        const std::string first = firstCells(*page);
        ASSERT_EQ(first.find_first_of("0123456789", std::min(first.find('-'), first.size())),
                  std::string::npos)
            << first;
        ASSERT_EQ(page->grd1.text(0, 1) + page->grd1.text(10, 0), "# 110.");
    }
};

TEST_F(MonkeyTest, WhatMustAlwaysHoldDoesWhateverIsDone) {
    const int events = fromEnvironment("QUORVANTA_MONKEY_EVENTS", 5000);
    MDIForm1::the().Show();
    for (int i = 0; i < events && !HasFatalFailure(); ++i) {
        yields = 0;
        try {
            event();
        } catch (const ProcessEnded&) { // the next run begins
            toolkit::Form::dropAll();
            MDIForm1::the().Show();
            depth = 0;
            ++ended;
        }
        desk.boxes.clear();
        check();
    }
    EXPECT_TRUE(draws > events / 20 && nested > events / 100 && ended > 0);
    RecordProperty("draws", draws);
    RecordProperty("nested", nested);
    RecordProperty("ended", ended);
}

} // namespace
