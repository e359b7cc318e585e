#include "common/cInternet.h"
#include "common/frmURL.h"
#include "frame/MDIForm1.h"
#include "frame/frmAbout.h"
#include "platform/Addresses.h"
#include "tests/support/ProgramTest.h"

#include <map>
#include <set>

namespace {

using namespace quorvanta;
using namespace tests;

constexpr const char* kHome = "open https://www.zephyrwick.example/";
constexpr const char* kProduct = "open https://www.zephyrwick.example/prod02.htm";

struct WebsiteTest : ProgramTest {
    cInternet internet;

    WebsiteTest() {
        internet.prpURL = "https://a.example/";
        internet.prpMailTo = "me@a.example";
    }
    Texts opened() { return std::exchange(os.shell.opened, {}); }
};

TEST_F(WebsiteTest, OnlyLettingAnActionWordLaunchesAndEachTimeAnew) {
    const std::string page = "open https://a.example/", mail = "open mailto:me@a.example";
    for (const auto& [word, launched] : std::vector<std::pair<std::string, Texts>>{
             {"URL", {page, page}}, {"eMAIL", {mail, mail}}, {"web", {}}, {"url ", {}}}) {
        internet.prpAction.Set(word);
        EXPECT_EQ(opened(), Texts{}) << word;
        internet.prpAction = word;
        internet.prpAction = word;
        EXPECT_EQ(opened(), launched) << word;
    }
}

TEST(Addresses, OnlyThoseOfTheWebAndOfMailAreOpened) {
    const std::pair<std::string, std::string> rows[] = {
        {"https://a.example/?q=$(x)&`id`;'\"|*>#%20", "https://a.example/?q=$(x)&`id`;'\"|*>#%20"},
        {"HTTP://a.example", "HTTP://a.example"},
        {"mailto:a@a.example", "mailto:a@a.example"},
        {"www.a.example/b", "http://www.a.example/b"},
        {"WWW.a.example", "http://WWW.a.example"},
        {"www.", ""},
        {"wwwa.example", ""},
        {"file:///etc/passwd", ""},
        {"/bin/sh", ""},
        {"--help", ""},
        {"javascript:x()", ""},
        {"https://a.example/\n--help", ""},
        {"www.a.example x", ""}};
    for (const auto& [text, address] : rows)
        EXPECT_EQ(platform::addressToOpen(text), address) << text;
}

TEST_F(WebsiteTest, ALaunchThatCannotBeMadeIsReportedAndRetried) {
    os.shell.answer = 31; // no program for it: the call was made
    internet.prpAction = "url";
    EXPECT_TRUE(desk.boxes.empty());
    os.shell.broken = true;
    internet.prpAction = "email"; // to which the answer is Abort
    desk.answers = {toolkit::Retry};
    desk.onBox = [this] { os.shell.broken = false; };
    internet.prpAction = "url";
    EXPECT_EQ(desk.takeReports(), (Texts{"53 SendEmail", "53 cHttp.GoOnline"}));
    EXPECT_EQ(opened().size(), 2U);
}

TEST_F(WebsiteTest, TheLinksAreOfferedJustWhenTheProductPageCannotBeOpened) {
    MDIForm1::the().Show();
    for (const auto& [answer, offered] : {std::pair(33, false), {32, true}, {-1, true}}) {
        os.shell.answer = answer;
        os.shell.broken = answer < 0;
        userClick(MDIForm1::the().mnuWebsite);
        EXPECT_EQ(opened(), answer < 0 ? Texts{} : Texts{kProduct});
        ASSERT_EQ(frmURL::ifLoaded() != nullptr, offered) << answer;
        EXPECT_EQ(std::exchange(desk.modal, {}), offered ? Texts{"frmURL"} : Texts{});
        if (!offered)
            continue;
        frmURL& form = frmURL::the();
        for (const auto& [box, link] : {std::pair(&form.Txt1, kProduct), {&form.Txt2, kHome}}) {
            EXPECT_EQ("open " + box->Text.get(), link);
            box->SetFocus();
            EXPECT_EQ(box->SelLength, static_cast<int>(box->Text.get().size()));
            int code = 65, character = 'a';
            box->keyDown(code, 0);
            box->keyPress(character);
            EXPECT_EQ(code + character, 0);
            EXPECT_TRUE(box->Locked); // nor does a mouse paste
        }
        userClick(form.cmdCancel);
        EXPECT_TRUE(form.loaded());
        userClick(form.cmdOk);
        EXPECT_EQ(frmURL::ifLoaded(), nullptr);
    }
    EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(WebsiteTest, AFrameIsALetterWithinAnOutlineOnWhichASegmentRuns) {
    std::map<toolkit::Colour, int> counts;
    for (const auto colour : frmAbout::the().imgLogo(0).Picture.get().bitmap()->pixels)
        ++counts[colour];
    const decltype(counts) wanted{{toolkit::kWhite, 788}, {toolkit::kBlack, 68}, {0x800000, 140},
                                  {0x00FFFF, 6},          {toolkit::kRed, 11},   {0x000080, 11}};
    EXPECT_EQ(counts, wanted);
}

TEST_F(WebsiteTest, TheAnimationRunsRoundFromItsFirstFrameUntilADoubleClick) {
    for (const bool broken : {false, true, false}) {
        os.shell.broken = broken;
        frmAbout& about = frmAbout::the();
        about.Show(true);
        EXPECT_TRUE(about.Timer1.Enabled && about.Timer1.Interval == 75);
        std::set<std::vector<toolkit::Colour>> frames;
        for (int tick = 0; tick < 65; ++tick) {
            about.Timer1.fire();
            ASSERT_EQ(about.pic1.Picture.get(), about.imgLogo(tick % 30).Picture.get());
            frames.insert(about.pic1.Picture.get().bitmap()->pixels);
        }
        EXPECT_EQ(frames.size(), 30U);
        for (int times = 1; times <= 2; ++times) {
            about.pic1.doubleClick();
            about.Timer1.fire();
            EXPECT_EQ(about.pic1.Picture.get(), about.imgLogo(4).Picture.get());
            EXPECT_EQ(opened(), broken ? Texts{} : Texts{kHome});
        }
        about.Unload(toolkit::FormControlMenu);
    }
    EXPECT_TRUE(desk.boxes.empty() && !frmURL::ifLoaded());
}

} // namespace
