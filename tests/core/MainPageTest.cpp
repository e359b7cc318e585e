#include "numbers/frmMain.h"
#include "tests/support/ProgramTest.h"

namespace {

using namespace quorvanta;
using namespace tests;

constexpr const char* kSetting = "Zephyrwick/Quor Vanta /system";

class MainPageTest : public ProgramTest {
protected:
    static frmMain& open() {
        frmMain::the().Show();
        return frmMain::the();
    }
    static std::size_t red(const frmMain& page) {
        std::size_t count = 0;
        for (int n = 1; n <= 49; ++n)
            count += page.lbl1(n).ForeColor == toolkit::kRed ? 1U : 0U;
        return count;
    }
    // The selected options and the checked entries, by index.
    static std::string chosen(const frmMain& page) {
        std::string text;
        for (int i = 0; i < 10; ++i) {
            if (page.opt1(i).Value)
                text += "o" + std::to_string(i);
            if (page.mnuSystemPlay(i).Checked)
                text += "m" + std::to_string(i);
        }
        return text;
    }
};

TEST_F(MainPageTest, EverySystemMarksItsCountAndComesBackAtTheNextOpen) {
    const std::vector<std::size_t> counts{6, 7, 8, 9, 10, 11, 12, 13, 22, 26};
    for (int i = 9; i >= 0; --i) {
        frmMain& page = open();
        userClick(i % 2 == 0 ? static_cast<toolkit::Control&>(page.opt1(i))
                             : page.mnuSystemPlay(i));
        const std::string both = "o" + std::to_string(i) + "m" + std::to_string(i);
        EXPECT_EQ(chosen(page), both);
        EXPECT_EQ(os.settings.values[kSetting], std::to_string(i));
        userClick(page.cmdJackpot);
        userClick(page.mnuJackpot);
        EXPECT_EQ(red(page), counts[static_cast<std::size_t>(i)]);
        userClick(i % 2 == 0 ? static_cast<toolkit::Control&>(page.cmdCancel) : page.mnuClose);
        ASSERT_EQ(frmMain::ifLoaded(), nullptr);
        EXPECT_EQ(chosen(open()), both);
        EXPECT_EQ(red(open()), 0U);
    }
}

TEST_F(MainPageTest, ABadStoredSystemIsReportedAndLeavesNoneChosen) {
    for (const char* stored : {"17", "-1", "abc", ""})
        for (const auto answer : {toolkit::Ignore, toolkit::Abort}) {
            const int last = answer == toolkit::Ignore ? 0 : 9; // what was chosen before
            os.settings.values[kSetting] = "1";
            userClick(open().opt1(last));
            open().Unload();
            os.settings.values[kSetting] = stored;
            desk.answers.assign(4, answer);
            frmMain& page = open();
            const auto boxes = desk.takeBoxes();
            ASSERT_FALSE(boxes.empty());
            EXPECT_NE(boxes[0].find("frmMain.SetFormProperties"), std::string::npos);
            EXPECT_EQ(boxes.size() == 1, answer == toolkit::Abort);
            EXPECT_EQ(chosen(page), "");
            EXPECT_EQ(os.settings.values[kSetting], stored);
            userClick(page.cmdJackpot);
            EXPECT_EQ(red(page), last == 0 ? 6U : 26U);
            page.Unload();
        }
}

TEST_F(MainPageTest, RetryReadsTheSettingAgain) {
    os.settings.values[kSetting] = "abc";
    desk.answers = {toolkit::Retry};
    desk.onBox = [&] { os.settings.values[kSetting] = "7"; };
    EXPECT_EQ(chosen(open()), "o7m7");
}

} // namespace
