// Random events on all of the program's forms, with what must always hold checked after each. The
// count of events and the seed come from QUORVANTA_MONKEY_EVENTS and QUORVANTA_MONKEY_SEED.
#include "frame/MDIForm1.h"
#include "numbers/frmMain.h"
#include "storage/cQuorvantaLite.h"
#include "tests/support/DataFile.h"
#include "tests/support/ListPages.h"

#include <cstdlib>

namespace {

using namespace quorvanta;
using namespace tests;
using toolkit::Control;

int fromEnvironment(const char* name, int fallback) {
    const char* const text = std::getenv(name);
    return text ? std::atoi(text) : fallback;
}

// What the user can work on: controls, also those in frames, and the entries of menus.
void collect(const auto& from, std::vector<Control*>& controls) {
    for (auto* const it : from) {
        if (const auto* const frame = dynamic_cast<const toolkit::Container*>(it))
            collect(frame->controls(), controls);
        else if (const auto* const menu = dynamic_cast<const toolkit::Menu*>(it);
                 menu && !menu->entries().empty())
            collect(menu->entries(), controls);
        else if (menu || it->Click || !dynamic_cast<toolkit::Label*>(it))
            controls.push_back(it);
    }
}

class MonkeyTest : public ProgramTest {
protected:
    static constexpr int kMostYields = 200'000; // in one event; a draw needs some hundreds
    std::mt19937 dice{static_cast<unsigned>(fromEnvironment("QUORVANTA_MONKEY_SEED", 1))};
    int depth = 0, yields = 0, nested = 0, ended = 0, draws = 0, filed = 0;

    int roll(int below) { return static_cast<int>(dice() % static_cast<unsigned>(below)); }
    template <class T>
    T any(const std::vector<T>& of) {
        return of[dice() % of.size()];
    }

    MonkeyTest() {
        desk.onBox = [this] {
            const bool exit = desk.boxes.back().text.starts_with("Exiting");
            desk.answers = {exit && roll(10) != 0 ? toolkit::No : 1 + roll(7)};
        };
        desk.onDoEvents = [this] {
            if (++yields > kMostYields)
                throw std::runtime_error("a draw doesn't end");
            if (depth < 10 && roll(20) == 0) {
                ++nested;
                event();
            }
        };
    }

    void event() {
        ++depth;
        toolkit::Form& form = toolkit::Forms(roll(toolkit::Forms.Count()));
        const auto keep = form.shared_from_this();
        auto* const list = dynamic_cast<ListPage*>(&form);
        const int what = roll(60);
        if (what == 0)
            form.Unload(toolkit::FormControlMenu);
        else if (what < 8)
            userKey(form, any<int>({kCtrlKey, 13, 27, 65, 116}), roll(3) == 0 ? roll(8) : 2);
        else if (what < 20)
            onMenu(form);
        else if (what < 26 && list)
            file(*list);
        else if (auto* const page = dynamic_cast<frmCustomize6*>(list); page && what < 32)
            draw(*page);
        else
            onControl(form);
        --depth;
    }

    void onMenu(const toolkit::Form& form) {
        std::vector<Control*> entries;
        collect(form.menuBar(), entries);
        if (!entries.empty())
            any(entries)->click();
    }

    // As often one of an array, such as a key, as another one.
    void onControl(const toolkit::Form& form) {
        std::vector<Control*> controls;
        collect(form.controls(), controls);
        const bool alone = roll(2) == 0;
        std::erase_if(controls, [&](auto* it) { return alone == (it->array() != nullptr); });
        if (controls.empty())
            return;
        Control& control = *any(controls);
        if (auto* const grid = dynamic_cast<toolkit::MSFlexGrid*>(&control)) {
            (roll(4) == 0 ? userDoubleClickRow : userClickRow)(*grid, roll(11));
        } else if (auto* const bar = dynamic_cast<toolkit::Toolbar*>(&control)) {
            bar->clickButton(any(bar->Buttons));
        } else if (auto* const timer = dynamic_cast<toolkit::Timer*>(&control)) {
            if (timer->Enabled)
                timer->fire();
        } else {
            userClick(control);
            if (auto* const box = dynamic_cast<toolkit::TextBox*>(&control))
                box->Text = any<std::string>({"", "12", "-1,234.56", "1e300", "abc", "7/5/2005"});
        }
    }

    void file(ListPage& page) {
        for (int n = 0; n < 7; ++n)
            userClick(page.cmdKey(1 + roll(49)));
        userClick(page.cmdCopy);
        ++filed;
    }

    void draw(frmCustomize6& page) {
        const int before = nested;
        page.mnuJackpotGenerator.click();
        ++draws;
        // Nested draws may have left their marks together.
        EXPECT_TRUE(nested != before ||
                    drawn(page).size() == std::min<std::size_t>(6, pool(page).size()));
    }

    // All that is stored, but for the free cells at a row's end: the end of a run saves first and
    // then unloads the pages, which store rows of all their cells.
    static StoredValues storedNumbers() {
        StoredValues values = stored();
        for (RowTexts* const rows : {&std::get<0>(values), &std::get<1>(values)})
            for (std::string& row : *rows)
                row.erase(row.find_last_not_of(';') + 1);
        return values;
    }

    // The run ends, somebody edits the file, and the next run begins. What was saved comes back.
    void startAgain() {
        toolkit::Form::dropAll();
        const StoredValues saved = storedNumbers();
        ResetSharedState();
        gintLanguage = 1;
        cQuorvantaLite().ReadLottoFile();
        ASSERT_EQ(storedNumbers(), saved);
        for (RowTexts* const rows : {&gstrStammNumbers, &gstrFavorites}) {
            const auto free = std::find_if(rows->begin() + 1, rows->end(), [](const auto& text) {
                return text.empty() || text.front() == ';';
            });
            if (free != rows->end())
                *free = any<std::string>(
                    {"1;2;3;", "4;4;4;5;", "abc;7;8;", "50;-1;9;9;", "007; ;3;", " ;;;", "8;", ""});
        }
        MDIForm1::the().Show();
        ++ended;
    }

    // The stored rows are those of the grid, and the filled ones stand at the top.
    static void checkRows(const ListPage* page, const RowTexts& rows, int columns) {
        bool free = false;
        for (int r = 1; page && r <= kRows; ++r) {
            std::string cells, stored = rows.at(static_cast<std::size_t>(r));
            for (int c = 1; c <= columns; ++c)
                cells += page->grd1.text(r, c) + ";";
            while (std::ranges::count(stored, ';') < columns)
                stored += ';';
            ASSERT_EQ(cells, stored) << r;
            ASSERT_TRUE(!free || cells.front() == ';') << r;
            free = cells.front() == ';';
        }
    }

    static void check() {
        checkRows(frmCustomize6::ifLoaded(), gstrStammNumbers, 49);
        checkRows(frmFavorites::ifLoaded(), gstrFavorites, 6);
        if (const auto* const page = frmFavorites::ifLoaded()) {
            ASSERT_LE(picked(*page).size(), 6U);
        }
        if (const auto* const page = frmMain::ifLoaded()) {
            const auto red =
                numbersWhere([&](int n) { return page->lbl1(n).ForeColor == toolkit::kRed; });
            ASSERT_LE(red.size(), 26U);
            ASSERT_EQ(
                numbersWhere([&](int n) { return n <= 10 && page->opt1(n - 1).Value; }).size(), 1U);
        }
    }
};

TEST_F(MonkeyTest, WhatMustAlwaysHoldDoesWhateverIsDone) {
    const int events = fromEnvironment("QUORVANTA_MONKEY_EVENTS", 10'000);
    MDIForm1::the().Show();
    for (int i = 0; i < events && !HasFatalFailure(); ++i) {
        SCOPED_TRACE("event " + std::to_string(i));
        yields = depth = 0;
        try {
            event();
        } catch (const ProcessEnded&) {
            startAgain();
        }
        desk.boxes.clear();
        check();
    }
    EXPECT_TRUE(draws > events / 100 && filed > events / 100 && nested > events / 300 && ended > 0)
        << draws << " draws, " << filed << " filed, " << nested << " nested, " << ended << " ended";
}

} // namespace
