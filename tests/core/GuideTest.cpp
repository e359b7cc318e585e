// The user's guide against the program that it tells of.
#include "common/ErrorReport.h"
#include "common/frmURL.h"
#include "common/modZWMsg.h"
#include "frame/MDIForm1.h"
#include "frame/frmAbout.h"
#include "numbers/frmMain.h"
#include "tests/support/ListPages.h"

#include <fstream>
#include <iterator>
#include <regex>

namespace {

using namespace quorvanta;

class GuideTest : public tests::ProgramTest {
protected:
    // What its reader sees, with single blanks.
    const std::string guide = [] {
        std::ifstream file(QUORVANTA_GUIDE);
        std::string text{std::istreambuf_iterator<char>(file), {}};
        for (const auto& [sought, shown] :
             {std::pair("<[^>]*>", ""), {"&amp;", "&"}, {"&lt;", "<"}, {"\\s+", " "}})
            text = std::regex_replace(text, std::regex(sought), shown);
        return text;
    }();

    // Of several lines the first will do.
    void expectNamed(std::string text) {
        text = std::regex_replace(text.substr(0, text.find('\r')), std::regex("&| +$| (?= )"), "");
        const bool number = !text.empty() && std::isdigit(text[0]); // a key or a system
        EXPECT_TRUE(number || guide.find(text) != std::string::npos) << text;
    }
    void expectNamed(const toolkit::Container& container) {
        for (toolkit::Control* control : container.controls()) {
            if (dynamic_cast<toolkit::CommandButton*>(control))
                expectNamed(control->Caption);
            if (const auto* const inner = dynamic_cast<toolkit::Container*>(control))
                expectNamed(*inner);
        }
    }
    void expectNamed(const std::vector<toolkit::Menu*>& menus) {
        for (const toolkit::Menu* menu : menus) {
            if (!menu->isSeparator())
                expectNamed(menu->Caption);
            expectNamed(menu->Shortcut);
            expectNamed(menu->entries());
        }
    }
};

TEST_F(GuideTest, NamesEveryMessage) {
    for (void (*show)() :
         {+[] { msgExit(); }, +[] { msgDeleteGridRow(); }, &msgOnlySixNumbers,
          &msgMoreNumbersRequired, &msgMaxFavoriteNumbers, &msgNotEnoughStammNumbers,
          &msgMaxStammNumbers, &msgNoEmptyRow, &msgNoDeleteRow, &msgNumericOnly, &msgEnterDate})
        show();
    ShowErrorBox(platform::PrinterError, "", "");
    EXPECT_EQ(desk.boxes.size(), 12U);
    for (const std::string& text : desk.takeBoxes())
        expectNamed(text);
    expectNamed(tests::open<frmURL>().lbl1.Caption);
}

TEST_F(GuideTest, NamesEveryButtonMenuEntryShortcutAndFile) {
    Main();
    MDIForm1& frame = tests::open<MDIForm1>();
    for (const auto& button : frame.tlbar1.Buttons) {
        frame.tlbar1.clickButton(button);
        expectNamed(button.ToolTipText);
        if (button.Key == "bankroll")
            break;
    }
    tests::open<frmAbout>();
    EXPECT_EQ(toolkit::Forms.Count(), 7);
    for (int i = 0; i < toolkit::Forms.Count(); ++i) {
        expectNamed(toolkit::Forms(i));
        expectNamed(toolkit::Forms(i).menuBar());
    }
    EXPECT_THROW(EndRunForSystem(), tests::ProcessEnded);
    EXPECT_EQ(os.files.content.size(), 2U);
    os.files.content[toolkit::App.HelpFile];
    for (const auto& [path, text] : os.files.content)
        expectNamed(path.substr(path.rfind('/') + 1));
}

} // namespace
