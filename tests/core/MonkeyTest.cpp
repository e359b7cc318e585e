// Random events on all of the program's forms, with what must always hold checked after each.
#include "frame/MDIForm1.h"
#include "storage/cQuorvantaLite.h"
#include "tests/support/ProgramTest.h"

namespace {

using namespace quorvanta;
using namespace tests;

struct MonkeyTest : ProgramTest {
    static constexpr int kEvents = 10'000;
    static constexpr int kMostYields = 200'000; // in one event; a draw needs some hundreds
    std::mt19937 dice{1};
    int depth = 0, yields = 0, nested = 0, ended = 0, filed = 0;

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
            if (depth < 10 && roll(5) == 0) {
                ++nested;
                event();
            }
        };
    }

    void event() {
        using namespace toolkit::key;
        ++depth;
        toolkit::Form& form = toolkit::Forms(roll(toolkit::Forms.Count()));
        const auto keep = form.shared_from_this();
        const int what = roll(60);
        if (what == 0)
            form.Unload(toolkit::FormControlMenu);
        else if (what < 8)
            userKey(form,
                    any<int>({Ctrl, Tab, Enter, Enter, Escape, Space, Left, Up, Right, Down, 'A',
                              'F', 'R', F1 + 4}),
                    any<int>({0, 0, toolkit::ShiftDown, toolkit::CtrlDown, toolkit::AltDown}));
        else
            onControl(form);
        --depth;
    }

    // A control or an entry of a menu; as often one of an array, such as a key, as another one.
    void onControl(const toolkit::Form& form) {
        auto controls = toolkit::allControls(form);
        for (const toolkit::Menu* const menu : form.menuBar())
            std::ranges::copy(menu->entries(), std::back_inserter(controls));
        const bool alone = roll(2) == 0;
        std::erase_if(controls, [&](auto* it) { return alone == (it->array() != nullptr); });
        if (controls.empty())
            return;
        toolkit::Control& control = *any(controls);
        if (auto* const grid = dynamic_cast<toolkit::MSFlexGrid*>(&control)) {
            (roll(4) == 0 ? userDoubleClickRow : userClickRow)(*grid, roll(11));
        } else if (auto* const bar = dynamic_cast<toolkit::Toolbar*>(&control)) {
            bar->clickButton(any(bar->Buttons));
        } else {
            userClick(control);
            if (auto* const box = dynamic_cast<toolkit::TextBox*>(&control))
                box->Text = any<std::string>({"", "12", "-1,234.56", "1e300", "abc", "7/5/2005"});
        }
    }

    // The run ends, and the next begins with a row that somebody edited.
    void startAgain() {
        dropForms();
        forgetStored();
        cQuorvantaLite().ReadLottoFile();
        gstrStammNumbers[1] = any<std::string>({"1;2;3;", "abc;7;8;", "50;9;9;", " ;;;", "8;"});
        MDIForm1::the().Show();
        ++ended;
    }

    // The stored rows are those of the grid, and the filled ones stand at the top.
    void checkRows(const ListPage* page, const RowTexts& rows, int columns) {
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
            filed += free ? 0 : 1;
        }
    }
};

TEST_F(MonkeyTest, TheGridsShowWhatIsStoredAndDrawsEndWhateverIsDone) {
    MDIForm1::the().Show();
    for (int i = 0; i < kEvents && !HasFatalFailure(); ++i) {
        SCOPED_TRACE("event " + std::to_string(i));
        yields = depth = 0;
        try {
            event();
        } catch (const ProcessEnded&) {
            startAgain();
        }
        desk.boxes.clear();
        checkRows(frmCustomize6::ifLoaded(), gstrStammNumbers, 49);
        checkRows(frmFavorites::ifLoaded(), gstrFavorites, 6);
    }
    EXPECT_TRUE(filed > kEvents && nested > 20 && ended > 3)
        << filed << " filed rows seen, " << nested << " events nested, " << ended << " runs ended";
}

} // namespace
