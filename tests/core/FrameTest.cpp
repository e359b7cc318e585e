#include "frame/MDIForm1.h"
#include "frame/MainCode_ZW.h"
#include "frame/frmSplash.h"
#include "lists/frmCustomize6.h"
#include "lists/frmFavorites.h"
#include "numbers/frmMain.h"
#include "tests/support/ProgramTest.h"

namespace {

using namespace quorvanta;
using namespace tests;

constexpr const char* kData = "/app/Quorvanta.txt";

class FrameTest : public ProgramTest {
protected:
    MDIForm1& frame() {
        MDIForm1::the().Show();
        return MDIForm1::the();
    }
    static void press(const std::string& key) {
        for (const auto& button : MDIForm1::the().tlbar1.Buttons)
            if (button.Key == key)
                MDIForm1::the().tlbar1.clickButton(button);
    }
    static std::vector<std::string> loaded() {
        std::vector<std::string> names;
        for (int i = 0; i < toolkit::Forms.Count(); ++i)
            names.push_back(toolkit::Forms(i).name());
        return names;
    }
};

using Names = std::vector<std::string>;

TEST_F(FrameTest, ARunBeginsWithTheSplashAndTheDataReadAndGoesOnWithTheEmptyFrame) {
    os.files.content[kData] = "[Win/Loss]\r\nWin:270.5\r\n";
    Main();
    EXPECT_EQ(os.random.seeds, 1);
    EXPECT_EQ(gintLanguage, 1);
    EXPECT_EQ(gdblWin, 270.5);
    EXPECT_EQ(toolkit::App.HelpFile, "/app/quorvantalite.hlp");
    EXPECT_TRUE(os.files.exists("/app/DebugLog.TXT"));
    ASSERT_EQ(loaded(), Names{"frmSplash"});
    frmSplash& splash = frmSplash::the();
    EXPECT_EQ(splash.lblVersion.Caption.get(), "Version 3.5");
    EXPECT_EQ(splash.Top, (768 * 15 - splash.Height) / 2 - 1500);
    EXPECT_EQ(splash.Timer1.Interval, 3500);
    splash.Timer1.fire();
    EXPECT_EQ(loaded(), Names{"MDIForm1"});
    EXPECT_EQ(frame().Caption.get(), "Zephyrwick - Quor Vanta ");
    EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(FrameTest, ToolbarAndMenusShowPagesOnTopOfOneAnother) {
    frame();
    for (const char* key : {"lotto", "customizesix", "favorites", "bankroll", "lotto"})
        press(key);
    EXPECT_EQ(loaded(),
              (Names{"MDIForm1", "frmMain", "frmCustomize6", "frmFavorites", "frmBankroll"}));
    userClick(frmMain::the().cmdJackpot);
    const auto colours = [] {
        std::vector<int> all;
        for (int n = 1; n <= 49; ++n)
            all.push_back(frmMain::the().lbl1(n).ForeColor);
        return all;
    };
    const auto before = colours();
    userClick(frmFavorites::the().mnuMainForm);
    EXPECT_EQ(before, colours());
    EXPECT_EQ(toolkit::Screen.ActiveForm(), &frmMain::the());
    EXPECT_EQ(frmMain::the().Left, (frame().Width - frmMain::the().Width) / 2);
    EXPECT_EQ(frmMain::the().Top, 0);
    EXPECT_FALSE(frmMain::the().mnuMainForm.Enabled);
    toolkit::App.HelpFile = "/app/quorvantalite.hlp";
    press("help");
    EXPECT_EQ(os.help.files, Names{"/app/quorvantalite.hlp"});
}

TEST_F(FrameTest, EveryWayOutAsksOnceSavesOnceAndEndsUnlessTheAnswerIsNo) {
    const std::vector<std::pair<std::size_t, std::function<void()>>> ways{
        {1, [] { press("exit"); }},
        {1, [&] { userClick(frame().mnuExit); }},
        {1, [&] { frame().Unload(toolkit::FormControlMenu); }},
        {0, [&] { frame().Unload(toolkit::AppWindows); }},
        {0, EndRunForSystem}};
    int saves = 0;
    os.files.fault = [&](const std::string& operation, const std::string& path) {
        saves += operation == "close" && path == kData ? 1 : 0;
    };
    for (const auto& [questions, way] : ways) {
        frame();
        for (const char* key : {"lotto", "customizesix", "favorites"})
            press(key);
        if (questions > 0) {
            desk.answers = {toolkit::No};
            way();
            EXPECT_EQ(desk.takeBoxes(), Names{"Exiting Quor Vanta "});
            EXPECT_EQ(loaded().size(), 4U);
            EXPECT_EQ(saves, 0);
        }
        gstrFavorites[1] = "7;"; // what is stored counts, not what the page shows
        desk.answers = {toolkit::Yes};
        EXPECT_THROW(way(), ProcessEnded);
        EXPECT_NE(os.files.content[kData].find("\r\n1.7;\r\n"), std::string::npos);
        EXPECT_EQ(desk.takeBoxes().size(), questions);
        EXPECT_EQ(std::exchange(saves, 0), 1);
        EXPECT_EQ(toolkit::Forms.Count(), 0);
        toolkit::Form::dropAll();
    }
}

TEST_F(FrameTest, TheSystemEndsTheRunAlsoUnderAnOpenQuestionAndWhileADrawYields) {
    frame();
    desk.onBox = [&] {
        desk.onBox = nullptr;
        EndRunForSystem();
    };
    EXPECT_THROW(frame().Unload(toolkit::FormControlMenu), ProcessEnded);
    EXPECT_TRUE(os.files.exists(kData));

    toolkit::Form::dropAll();
    os.files.content.clear();
    frame();
    press("customizesix");
    desk.onDoEvents = EndRunForSystem;
    userClick(frmCustomize6::the().mnuAllNumbers);
    userClick(frmCustomize6::the().mnuFileToGrid);
    EXPECT_THROW(userClick(frmCustomize6::the().cmdJackpot), ProcessEnded);
    EXPECT_NE(os.files.content[kData].find("1.1;2;3;4;5;6;7;8;"), std::string::npos);
    EXPECT_TRUE(gstrStammNumbers[1].ends_with(";48;49;"));
}

TEST_F(FrameTest, TheSystemDoesNotCutOffTheQuestionAboutASaveThatFails) {
    frame();
    os.files.content[kData] = "old";
    bool full = true;
    os.files.fault = [&](const std::string& operation, const std::string& path) {
        if (full && operation == "close" && path == kData)
            throw platform::RuntimeError(platform::DiskFull);
    };
    desk.onBox = [&] {
        EndRunForSystem();
        full = false;
    };
    desk.answers = {toolkit::Retry};
    EXPECT_THROW(EndRunForSystem(), ProcessEnded);
    EXPECT_EQ(desk.boxes.size(), 1U);
    EXPECT_NE(os.files.content[kData], "old");
}

TEST_F(FrameTest, TheRunEndsWhateverFailsInIt) {
    frame();
    os.files.fault = [](const std::string&, const std::string&) {
        throw platform::RuntimeError(platform::DiskFull);
    };
    desk.answers.assign(100, toolkit::Abort);
    EXPECT_THROW(EndApp(frame()), ProcessEnded);
}

} // namespace
