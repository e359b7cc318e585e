#include "common/cInternet.h"
#include "common/frmURL.h"
#include "frame/MDIForm1.h"
#include "frame/frmAbout.h"
#include "tests/support/ProgramTest.h"

#include <set>

namespace {

using namespace quorvanta;
using namespace tests;
using Texts = std::vector<std::string>;

constexpr const char* kHome = "open https://www.zephyrwick.example/";
constexpr const char* kProduct = "open https://www.zephyrwick.example/prod02.htm";

class WebsiteTest : public ProgramTest {
protected:
    Texts opened() { return std::exchange(os.shell.opened, {}); }
};

cInternet launcher() {
    cInternet internet;
    internet.let_prpURL("https://a.example/");
    internet.let_prpMailTo("me@a.example");
    return internet;
}

TEST_F(WebsiteTest, OnlyLettingAnActionWordLaunchesAndEachTimeAnew) {
    const std::string page = "open https://a.example/", mail = "open mailto:me@a.example";
    const std::vector<std::pair<std::string, std::string>> table{
        {"url", page}, {"URL", page}, {"Email", mail}, {"web", ""}, {"", ""}, {"url ", ""}};
    for (const auto& [word, launch] : table) {
        cInternet internet = launcher();
        internet.set_prpAction(word);
        EXPECT_EQ(opened(), Texts{}) << word;
        internet.let_prpAction(word);
        internet.let_prpAction(word);
        EXPECT_EQ(opened(), launch.empty() ? Texts{} : Texts(2, launch)) << word;
        EXPECT_EQ(internet.prpAction(), word);
    }
}

TEST_F(WebsiteTest, ALaunchThatCannotBeMadeIsReportedAndRetried) {
    for (const auto& [word, label] : {std::pair("url", "cHttp.GoOnline"), {"email", "SendEmail"}})
        for (const int answer : {toolkit::Retry, toolkit::Ignore, toolkit::Abort}) {
            os.shell.broken = true;
            desk.answers = {answer};
            desk.onBox = [this] { os.shell.broken = false; };
            launcher().let_prpAction(word);
            EXPECT_EQ(desk.takeReports(), Texts{std::string("53 ") + label});
            EXPECT_EQ(opened().size(), answer == toolkit::Retry ? 1U : 0U);
        }
    os.shell.answer = 31; // no program for it: the call was made
    launcher().let_prpAction("url");
    EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(WebsiteTest, TheLinksAreOfferedJustWhenTheProductPageCannotBeOpened) {
    MDIForm1::the().Show();
    for (const auto& [answer, offered] :
         {std::pair(42, false), {33, false}, {32, true}, {2, true}, {-1, true}}) {
        os.shell.answer = answer;
        os.shell.broken = answer < 0;
        userClick(MDIForm1::the().mnuWebsite);
        EXPECT_EQ(opened(), answer < 0 ? Texts{} : Texts{kProduct});
        ASSERT_EQ(frmURL::ifLoaded() != nullptr, offered) << answer;
        if (!offered)
            continue;
        frmURL& form = frmURL::the();
        EXPECT_EQ(form.Caption.get(), "Quor Vanta  - Website");
        EXPECT_EQ(form.lbl1.Caption.get(),
                  "Quor Vanta  has been unable to establish an Internet connection.\r\nCopy and "
                  "paste one of the links below into your internet browser and then try to "
                  "establish a connection.");
        EXPECT_EQ(form.lbl2.Caption.get(), "Quor Vanta  Website:");
        for (toolkit::TextBox* box : {&form.Txt1, &form.Txt2}) {
            box->SetFocus();
            EXPECT_EQ(box->SelLength, static_cast<int>(box->Text.get().size()));
            int code = 65, character = 'a';
            box->keyDown(code, 0);
            box->keyPress(character);
            EXPECT_EQ(code + character, 0);
        }
        EXPECT_EQ("open " + form.Txt1.Text.get(), kProduct);
        EXPECT_EQ("open " + form.Txt2.Text.get(), kHome);
        userClick(form.cmdCancel);
        EXPECT_TRUE(form.loaded());
        userClick(form.cmdOk);
        EXPECT_EQ(frmURL::ifLoaded(), nullptr);
    }
    EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(WebsiteTest, TheAboutBoxNamesTheProgramItsVersionAndTheUser) {
    const std::string longest(198, 'n');
    for (const auto& [user, shown] : {std::pair<std::string, std::string>("leipreir", "leipreir"),
                                      {longest, longest},
                                      {longest + "n", ""}, // more than the system is asked for
                                      {"", ""},
                                      {"J\u00FCrgen \u0141.", "J\u00FCrgen \u0141."}}) {
        os.machine.user = user;
        frmAbout& about = frmAbout::the();
        about.Show(true);
        EXPECT_EQ(about.lblUser.Caption.get(), shown);
        EXPECT_EQ(about.Caption.get(), "About Zephyrwick's Quor Vanta ");
        EXPECT_EQ(about.lbl1(1).Caption.get(), "Quor Vanta ");
        EXPECT_EQ(about.lblCopyright(1).Caption.get(), "Version 3.5");
        userClick(about.cmdOK);
        EXPECT_EQ(frmAbout::ifLoaded(), nullptr);
    }
}

TEST_F(WebsiteTest, TheAnimationRunsRoundFromItsFirstFrameUntilADoubleClick) {
    for (const bool broken : {false, true, false}) {
        os.shell.broken = broken;
        frmAbout::the().Show(true);
        frmAbout& about = frmAbout::the();
        EXPECT_EQ(about.Timer1.Interval, 75);
        std::set<std::vector<toolkit::Colour>> frames;
        std::set<toolkit::Colour> colours;
        for (int tick = 0; tick < 65; ++tick) {
            about.Timer1.fire();
            ASSERT_EQ(about.pic1.Picture.get(), about.imgLogo(tick % 30).Picture.get());
            const toolkit::Bitmap& bitmap = *about.pic1.Picture.get().bitmap();
            ASSERT_EQ(bitmap.width * 100 + bitmap.height, 3232);
            frames.insert(bitmap.pixels);
            colours.insert(bitmap.pixels.begin(), bitmap.pixels.end());
        }
        EXPECT_EQ(frames.size(), 30U);
        EXPECT_LE(colours.size(), 16U);
        for (int times = 1; times <= 2; ++times) {
            about.pic1.doubleClick();
            about.Timer1.fire();
            EXPECT_EQ(about.pic1.Picture.get(), about.imgLogo(4).Picture.get());
            EXPECT_EQ(opened(), broken ? Texts{} : Texts{kHome});
        }
        about.Unload(toolkit::FormControlMenu);
    }
    EXPECT_TRUE(desk.boxes.empty());
    EXPECT_EQ(frmURL::ifLoaded(), nullptr);
}

} // namespace
