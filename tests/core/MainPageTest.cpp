#include "numbers/frmMain.h"
#include "tests/support/ListPages.h"

namespace {

using namespace quorvanta;
using namespace tests;

class MainPageTest : public ProgramTest {
protected:
    std::string& setting = os.settings.values["Zephyrwick/Quor Vanta /system"];

    static std::size_t red(const frmMain& page) {
        return numbersWhere([&](int n) { return page.lbl1(n).ForeColor == toolkit::kRed; }).size();
    }
    // The selected options and the checked entries, by index.
    static std::string chosen(const frmMain& page) {
        std::string text;
        for (int i = 0; i < 10; ++i)
            text += (page.opt1(i).Value ? "o" + std::to_string(i) : "") +
                    (page.mnuSystemPlay(i).Checked ? "m" + std::to_string(i) : "");
        return text;
    }
};

TEST_F(MainPageTest, EverySystemMarksItsCountAndComesBackAtTheNextOpen) {
    int i = 0;
    setting = "9";
    for (const std::size_t count : {6, 7, 8, 9, 10, 11, 12, 13, 22, 26}) {
        frmMain& page = open<frmMain>();
        i % 2 == 0 ? userClick(page.opt1(i)) : userClick(page.mnuSystemPlay(i));
        EXPECT_EQ(setting, std::to_string(i));
        EXPECT_EQ(chosen(page), "o" + setting + "m" + setting);
        userClick(page.cmdJackpot);
        userClick(page.mnuJackpot);
        EXPECT_EQ(red(page), count);
        userClick(page.cmdCancel);
        ASSERT_EQ(frmMain::ifLoaded(), nullptr);
        EXPECT_EQ(chosen(open<frmMain>()), "o" + setting + "m" + setting);
        EXPECT_EQ(red(frmMain::the()), 0U);
        ++i;
    }
}

TEST_F(MainPageTest, ADrawIsSaidOnceAndInRisingOrder) {
    setting = "0";
    frmMain& page = open<frmMain>();
    for (const int n : {33, 6, 47, 29, 45, 32})
        os.random.script.push_back((static_cast<float>(n) - 0.5F) / 49);
    userKey(page, toolkit::key::F1 + 4);
    EXPECT_EQ(desk.announced, std::vector<std::string>{"Drawn: 6, 29, 32, 33, 45, 47"});
    EXPECT_EQ(page.lbl1(33).spoken() + page.lbl1(34).spoken(), "33, drawn34");
}

TEST_F(MainPageTest, ABadStoredSystemIsReportedAndLeavesNoneChosen) {
    for (const char* stored : {"17", "-1", "abc", ""})
        for (const auto answer : {toolkit::Ignore, toolkit::Abort}) {
            setting = "9";
            userClick(open<frmMain>().opt1(3)); // what a play goes on by
            frmMain::the().Unload();
            setting = stored;
            desk.last = answer;
            frmMain& page = open<frmMain>();
            const auto reports = desk.takeReports();
            EXPECT_TRUE(reports.at(0).ends_with(" frmMain.SetFormProperties"));
            EXPECT_EQ(reports.size() == 1, answer == toolkit::Abort);
            EXPECT_EQ(chosen(page), "");
            EXPECT_EQ(setting, stored);
            userClick(page.cmdJackpot);
            EXPECT_EQ(red(page), 9U);
            page.Unload();
        }
}

// Of each board and of the keypad: the first number, the next, the one below it and the last.
TEST_F(MainPageTest, TheNumbersStandInSevenLinesOfSeven) {
    using Corner = std::pair<double, double>;
    using Corners = std::vector<Corner>;
    const auto corners = [](const toolkit::ControlArrayBase& numbers) {
        Corners of;
        for (const int n : {1, 2, 9, 49})
            of.emplace_back(numbers(n).Left, numbers(n).Top);
        return of;
    };
    EXPECT_EQ(corners(open<frmMain>().lbl1),
              (Corners{{75, 150}, {690, 150}, {690, 780}, {3840, 3930}}));
    EXPECT_EQ(corners(open<frmCustomize6>().Label1),
              (Corners{{60, 165}, {570, 165}, {570, 615}, {3120, 2865}}));
    EXPECT_EQ(corners(open<frmFavorites>().cmdKey),
              (Corners{{90, 255}, {630, 255}, {630, 600}, {3360, 2325}}));
}

} // namespace
