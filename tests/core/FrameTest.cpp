#include "frame/MDIForm1.h"
#include "frame/MainCode_ZW.h"
#include "frame/frmSplash.h"
#include "numbers/frmMain.h"
#include "tests/support/ListPages.h"

namespace {

using namespace quorvanta;
using namespace tests;
using Names = std::vector<std::string>;

class FrameTest : public ProgramTest {
protected:
    std::string& data = os.files.content["/app/Quorvanta.txt"];
    int saves = 0;

    static MDIForm1& frame() { return open<MDIForm1>(); }
    static void press(const std::string& key) {
        for (const auto& button : MDIForm1::the().tlbar1.Buttons)
            if (button.Key == key)
                MDIForm1::the().tlbar1.clickButton(button);
    }
    static Names loaded() {
        Names captions;
        for (int i = 0; i < toolkit::Forms.Count(); ++i)
            captions.push_back(toolkit::Forms(i).Caption);
        return captions;
    }
};

TEST_F(FrameTest, ARunBeginsWithTheSplashAndTheDataReadAndGoesOnWithTheEmptyFrame) {
    data = "[Win/Loss]\r\nWin:270.5\r\n";
    for (const bool key : {false, true}) {
        Main();
        ASSERT_EQ(toolkit::Forms.Count(), 1);
        frmSplash& splash = frmSplash::the();
        EXPECT_EQ(splash.Top, (768 * 15 - splash.Height) / 2 - 1500);
        EXPECT_EQ(splash.Timer1.Interval, 3500);
        int character = ' ';
        key ? splash.previewKeyPress(character) : splash.Timer1.fire();
        EXPECT_EQ(loaded(), Names{"Zephyrwick - Quor Vanta "});
        dropForms();
    }
    EXPECT_EQ(os.random.seeds, 2);
    EXPECT_EQ(gintLanguage, 1);
    EXPECT_EQ(gdblWin, 270.5);
    EXPECT_EQ(toolkit::App.HelpFile, "/app/quorvantalite.hlp");
    EXPECT_TRUE(os.files.exists("/app/DebugLog.TXT"));
    EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(FrameTest, ToolbarAndMenusShowPagesOnTopOfOneAnother) {
    frame();
    for (const char* key : {"lotto", "customizesix", "favorites", "bankroll", "lotto"})
        press(key);
    const Names pages{"Zephyrwick - Quor Vanta ", "Quor Vanta  - 6 From 49",
                      "Quor Vanta  - Customize 6", "Quor Vanta  - Favorites",
                      "Quor Vanta  - Bankroll"};
    EXPECT_EQ(loaded(), pages);
    userClick(frmFavorites::the().mnuMainForm);
    EXPECT_EQ(loaded(), pages);
    EXPECT_EQ(toolkit::Screen.ActiveForm(), &frmMain::the());
    EXPECT_EQ(frmMain::the().Left, (frame().Width - frmMain::the().Width) / 2);
    EXPECT_EQ(frmMain::the().Top, 0);
    toolkit::App.HelpFile = "/app/quorvantalite.hlp";
    press("help");
    EXPECT_EQ(os.help.files, Names{"/app/quorvantalite.hlp"});
    EXPECT_TRUE(desk.modal.empty());
    userClick(frmFavorites::the().mnuAbout);
    EXPECT_EQ(desk.modal, Names{"frmAbout"});
}

TEST_F(FrameTest, EveryWayOutAsksOnceSavesOnceAndEndsUnlessTheAnswerIsNo) {
    const std::vector<std::pair<std::size_t, std::function<void()>>> ways{
        {1, [] { press("exit"); }},
        {1, [] { userClick(frame().mnuExit); }},
        {1, [] { frame().Unload(toolkit::FormControlMenu); }},
        {0, EndRunForSystem}};
    os.files.fault = [&](const std::string& operation, const std::string& /*path*/) {
        saves += operation == "close" ? 1 : 0;
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
        EXPECT_NE(data.find("\r\n1.7;\r\n"), std::string::npos);
        EXPECT_EQ(desk.takeBoxes().size(), questions);
        EXPECT_EQ(std::exchange(saves, 0), 1);
        EXPECT_EQ(toolkit::Forms.Count(), 0);
        dropForms();
    }
}

TEST_F(FrameTest, TheSystemEndsTheRunAlsoUnderAnOpenQuestionAndWhileADrawYields) {
    frame();
    desk.onBox = [&] {
        desk.onBox = nullptr;
        EndRunForSystem();
    };
    EXPECT_THROW(frame().Unload(toolkit::FormControlMenu), ProcessEnded);
    EXPECT_FALSE(std::exchange(data, "").empty());

    dropForms();
    frame();
    press("customizesix");
    desk.onDoEvents = EndRunForSystem;
    userClick(frmCustomize6::the().mnuAllNumbers);
    userClick(frmCustomize6::the().mnuFileToGrid);
    EXPECT_THROW(userClick(frmCustomize6::the().cmdJackpot), ProcessEnded);
    EXPECT_NE(data.find("1.1;2;3;4;5;6;7;8;"), std::string::npos);
    EXPECT_TRUE(gstrStammNumbers[1].ends_with(";48;49;"));
}

TEST_F(FrameTest, TheSystemDoesNotCutOffTheQuestionAboutASaveThatFails) {
    frame();
    bool full = true;
    os.files.fault = [&](const std::string& operation, const std::string& /*path*/) {
        if (full && operation == "close")
            throw platform::RuntimeError(platform::DiskFull);
    };
    desk.onBox = [&] {
        EndRunForSystem();
        EXPECT_TRUE(data.empty());
        full = false;
    };
    desk.answers = {toolkit::Retry};
    EXPECT_THROW(EndRunForSystem(), ProcessEnded);
    EXPECT_EQ(desk.boxes.size(), 1U);
    EXPECT_FALSE(data.empty());
}

TEST_F(FrameTest, ARunThatEndsWhileTheSplashStandsIsSavedOnceItsDataIsRead) {
    for (const auto& end : {EndRunForSystem, EndRunWithoutDisplay}) {
        data = "[Win/Loss]\r\nWin:\r\nLoss:5\r\n";
        const std::string whole = data;
        desk.onBox = [&] { // about the first line, while the splash makes way for the frame
            frmSplash::the().Timer1.fire();
            end();
        };
        EXPECT_THROW(Main(), ProcessEnded);
        EXPECT_EQ(data, whole);
        toolkit::install(&desk);
        dropForms();
        desk.onBox = nullptr;
        desk.answers = {toolkit::Ignore};
        Main();
        EXPECT_THROW(end(), ProcessEnded);
        EXPECT_NE(data.find("Loss:5\r\n"), std::string::npos);
        EXPECT_NE(data, whole);
        toolkit::install(&desk);
        dropForms();
    }
    desk.boxes.clear();
}

TEST_F(FrameTest, WithoutADisplayTheRunIsSavedOnceAndNothingIsAskedOrUnloaded) {
    bool full = false;
    os.files.fault = [&](const std::string& operation, const std::string& path) {
        const bool save = operation == "close" && path == "/app/Quorvanta.txt";
        saves += save ? 1 : 0;
        if (full && save)
            throw platform::RuntimeError(platform::DiskFull);
    };
    const auto during = [&](const std::function<void()>& ask) {
        desk.onBox = [&] {
            full = false;
            EndRunWithoutDisplay();
        };
        ask();
    };
    struct {
        std::function<void()> end;
        bool full;
        std::size_t boxes;
        int saves;
    } const moments[]{{EndRunWithoutDisplay, false, 0, 1},
                      {EndRunWithoutDisplay, true, 0, 1},
                      {[&] { during([] { press("exit"); }); }, false, 1, 1},
                      {[&] { during(EndRunForSystem); }, true, 1, 2}};
    for (const auto& moment : moments) {
        data = "old";
        full = moment.full;
        frame();
        press("favorites");
        gstrFavorites[1] = "7;";
        EXPECT_THROW(moment.end(), ProcessEnded);
        EXPECT_EQ(data.find("\r\n1.7;\r\n") == std::string::npos, full);
        EXPECT_EQ(data == "old", full);
        EXPECT_EQ(desk.takeBoxes().size(), moment.boxes);
        EXPECT_EQ(std::exchange(saves, 0), moment.saves);
        EXPECT_EQ(toolkit::Forms.Count(), 2);
        desk.onBox = nullptr;
        toolkit::install(&desk);
        dropForms();
    }
}

} // namespace
