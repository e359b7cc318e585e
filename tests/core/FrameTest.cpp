#include "frame/MDIForm1.h"
#include "frame/frmSplash.h"
#include "numbers/frmMain.h"
#include "tests/support/ProgramTest.h"

namespace {

using namespace quorvanta;
using namespace tests;

struct FrameTest : ProgramTest {
    std::string& data = os.files.content["/app/Quorvanta.txt"];

    static MDIForm1& frame() { return open<MDIForm1>(); }
    static void press(const std::string& key) {
        for (const auto& button : MDIForm1::the().tlbar1.Buttons)
            if (button.Key == key)
                MDIForm1::the().tlbar1.clickButton(button);
    }
    static Texts loaded() {
        Texts names;
        for (int i = 0; i < toolkit::Forms.Count(); ++i)
            names.push_back(toolkit::Forms(i).name());
        return names;
    }
    // The end of the process takes everything away.
    void endProcess() {
        toolkit::install(&desk);
        dropForms();
        desk.onBox = desk.onDoEvents = nullptr;
        desk.boxes.clear();
    }
};

TEST_F(FrameTest, ARunBeginsWithTheSplashAndTheDataReadAndGoesOnWithTheEmptyFrame) {
    data = "[Win/Loss]\r\nWin:270.5\r\n";
    for (const bool key : {false, true}) {
        Main();
        EXPECT_EQ(loaded(), Texts{"frmSplash"});
        frmSplash& splash = frmSplash::the();
        EXPECT_EQ(splash.Top, (768 * 15 - splash.Height) / 2 - 1500);
        EXPECT_EQ(splash.Timer1.Interval, 3500);
        int character = ' ';
        key ? splash.previewKeyPress(character) : splash.Timer1.fire();
        EXPECT_EQ(loaded(), Texts{"MDIForm1"});
        dropForms();
    }
    EXPECT_EQ(std::tuple(os.random.seeds, gintLanguage, gdblWin), std::tuple(2, 1, 270.5));
    EXPECT_EQ(toolkit::App.HelpFile, "/app/quorvantalite.hlp");
    EXPECT_TRUE(os.files.exists("/app/DebugLog.TXT"));
    toolkit::App.PrevInstance = true;
    os.files.content.clear();
    EXPECT_THROW(Main(), ProcessEnded);
    EXPECT_TRUE(os.files.content.empty() && loaded().empty() && desk.boxes.empty());
}

TEST_F(FrameTest, ToolbarAndMenusShowPagesOnTopOfOneAnother) {
    frame();
    for (const char* key : {"lotto", "customizesix", "favorites", "bankroll", "lotto"})
        press(key);
    userClick(frmFavorites::the().mnuMainForm);
    EXPECT_EQ(loaded(),
              (Texts{"MDIForm1", "frmMain", "frmCustomize6", "frmFavorites", "frmBankroll"}));
    EXPECT_EQ(toolkit::Screen.ActiveForm(), &frmMain::the());
    EXPECT_EQ(frmMain::the().Left, (frame().Width - frmMain::the().Width) / 2);
    EXPECT_EQ(frmMain::the().Top, 0);
    toolkit::App.HelpFile = "/app/quorvantalite.hlp";
    press("help");
    EXPECT_EQ(os.help.files, Texts{"/app/quorvantalite.hlp"});
    EXPECT_TRUE(desk.modal.empty());
    userClick(frmFavorites::the().mnuAbout);
    EXPECT_EQ(desk.modal, Texts{"frmAbout"});
}

// Asked of the user alone; without a display nothing is unloaded, either.
TEST_F(FrameTest, EachEndSavesWhatIsStoredAndNoIsNone) {
    using Step = std::function<void()>;
    const Step exitButton = [] { press("exit"); };
    const Step exitEntry = [] { userClick(frame().mnuExit); };
    const Step closeBox = [] { frame().Unload(toolkit::FormControlMenu); };
    const Step endInADraw = [&] {
        desk.onDoEvents = EndRunForSystem;
        userClick(frmCustomize6::the().mnuAllNumbers);
        userClick(frmCustomize6::the().mnuFileToGrid);
        userClick(frmCustomize6::the().cmdJackpot);
    };
    struct {
        Step end, whileTheBoxIsOpen;
        bool full; // the disk, until a box is answered
        std::size_t boxes;
        int saves;
        std::size_t forms;
    } const ends[]{{exitButton, {}, false, 1, 1, 0},
                   {exitEntry, {}, false, 1, 1, 0},
                   {closeBox, {}, false, 1, 1, 0},
                   {EndRunForSystem, {}, false, 0, 1, 0},
                   {endInADraw, {}, false, 0, 1, 0},
                   {closeBox, EndRunForSystem, false, 1, 1, 0},
                   // The question about the save that fails is not cut off.
                   {EndRunForSystem, EndRunForSystem, true, 1, 2, 0},
                   {EndRunWithoutDisplay, {}, false, 0, 1, 3},
                   {EndRunWithoutDisplay, {}, true, 0, 1, 3},
                   {exitButton, EndRunWithoutDisplay, false, 1, 1, 3},
                   {EndRunForSystem, EndRunWithoutDisplay, true, 1, 2, 3}};
    for (const auto& it : ends) {
        SCOPED_TRACE("end " + std::to_string(&it - ends));
        int saves = 0;
        bool full = it.full;
        os.files.fault = [&](const std::string& operation, const std::string& path) {
            if (operation != "close" || path != "/app/Quorvanta.txt")
                return;
            ++saves;
            if (full)
                throw platform::RuntimeError(platform::DiskFull);
        };
        frame();
        press("customizesix");
        press("favorites");
        if (it.boxes > 0 && !it.full) {
            desk.answers = {toolkit::No};
            it.end();
            EXPECT_EQ(desk.takeBoxes(), Texts{"Exiting Quor Vanta "});
            EXPECT_EQ(std::tuple(loaded().size(), saves), std::tuple(3U, 0));
        }
        gstrFavorites[1] = "7;"; // what is stored counts, not what the page shows
        data = "old";
        desk.last = it.full ? toolkit::Retry : toolkit::Yes;
        desk.onBox = [&] {
            full = false;
            if (it.whileTheBoxIsOpen)
                it.whileTheBoxIsOpen();
            EXPECT_EQ(data, "old");
        };
        EXPECT_THROW(it.end(), ProcessEnded);
        EXPECT_EQ(data.find("\r\n1.7;\r\n") == std::string::npos, full);
        EXPECT_EQ(data == "old", full);
        EXPECT_EQ(std::tuple(desk.boxes.size(), saves, loaded().size()),
                  std::tuple(it.boxes, it.saves, it.forms));
        endProcess();
    }
    EXPECT_TRUE(gstrStammNumbers[1].starts_with("1;2;3;4;") &&
                gstrStammNumbers[1].ends_with("49;"));
}

TEST_F(FrameTest, ARunThatEndsWhileTheSplashStandsIsSavedOnceItsDataIsRead) {
    for (const auto& end : {EndRunForSystem, EndRunWithoutDisplay}) {
        const std::string whole = data = "[Win/Loss]\r\nWin:\r\nLoss:5\r\n";
        desk.onBox = [&] { // about the first line, while the splash makes way for the frame
            frmSplash::the().Timer1.fire();
            end();
        };
        EXPECT_THROW(Main(), ProcessEnded);
        EXPECT_EQ(data, whole);
        endProcess();
        desk.answers = {toolkit::Ignore};
        Main();
        EXPECT_THROW(end(), ProcessEnded);
        EXPECT_NE(data.find("Loss:5\r\n"), std::string::npos);
        EXPECT_NE(data, whole);
        endProcess();
    }
}

} // namespace
