// What the program's forms say to their user, and the guide that tells of it.
#include "bankroll/frmBankroll.h"
#include "common/frmURL.h"
#include "common/modZWMsg.h"
#include "frame/MDIForm1.h"
#include "frame/frmAbout.h"
#include "frame/frmSplash.h"
#include "numbers/frmMain.h"
#include "tests/support/ProgramTest.h"

#include <fstream>
#include <iterator>
#include <regex>

namespace {

using namespace quorvanta;
using toolkit::allControls;

struct TextsTest : tests::ProgramTest {
    // What the guide's reader sees, with single blanks.
    const std::string guide = [] {
        std::ifstream file(QUORVANTA_GUIDE);
        std::string text{std::istreambuf_iterator<char>(file), {}};
        for (const auto& [sought, shown] :
             {std::pair("<[^>]*>", ""), {"&amp;", "&"}, {"&lt;", "<"}, {"\\s+", " "}})
            text = std::regex_replace(text, std::regex(sought), shown);
        return text;
    }();

    TextsTest() {
        Main();
        for (toolkit::Form* const form : std::initializer_list<toolkit::Form*>{
                 &MDIForm1::the(), &frmMain::the(), &frmCustomize6::the(), &frmFavorites::the(),
                 &frmBankroll::the(), &frmURL::the(), &frmAbout::the()})
            form->Show();
    }

    // The marks that hold, behind what they are of.
    static std::string marks(std::initializer_list<std::pair<const char*, bool>> all) {
        std::string held;
        for (const auto& [mark, holds] : all)
            held += holds ? std::string(" (") + mark + ")" : "";
        return held;
    }
    static std::string told(const toolkit::Menu& menu) {
        std::string all = menu.Caption.get() + (menu.Shortcut.empty() ? "" : " " + menu.Shortcut) +
                          marks({{"grey", !menu.Enabled}});
        const char* before = " [";
        for (const toolkit::Menu* const entry : menu.entries())
            all += std::exchange(before, ", ") + told(*entry);
        return menu.entries().empty() ? all : all + "]";
    }
    // Its caption, what is spoken instead, and its tool tip; nothing of a number of a board.
    static std::string told(const toolkit::Control& it) {
        std::string all = it.Caption;
        if (!all.empty() && all.find_first_not_of("0123456789") == all.npos)
            return "";
        all += it.spokenAs.empty() ? "" : "{" + it.spokenAs + "}";
        all += it.ToolTipText.empty() ? "" : " <" + it.ToolTipText + ">";
        if (const auto* const bar = dynamic_cast<const toolkit::Toolbar*>(&it))
            for (const auto& button : bar->Buttons)
                all += "<" + button.ToolTipText + ">";
        if (const auto* const button = dynamic_cast<const toolkit::CommandButton*>(&it))
            all += marks({{"Esc", button->Cancel}, {"Enter", button->Default}});
        return all.empty() ? "" : all + marks({{"hidden", !it.Visible}});
    }
    // Its caption, its menus, and its controls in the order of Tab.
    static std::string told(const toolkit::Form& form) {
        auto controls = allControls(form);
        std::ranges::stable_sort(controls, {}, &toolkit::Control::TabIndex);
        std::string all = form.Caption.get() + marks({{"keys", form.KeyPreview},
                                                      {"borderless", form.Borderless},
                                                      {"icon", form.MinButton}});
        for (const toolkit::Menu* const menu : form.menuBar())
            all += " " + told(*menu);
        for (const toolkit::Control* const it : controls)
            all += (told(*it).empty() ? "" : "|") + told(*it);
        return all;
    }

    // Of several lines the first will do.
    void expectInGuide(std::string text) {
        text = std::regex_replace(text.substr(0, text.find('\r')), std::regex("&| +$| (?= )"), "");
        const bool number = !text.empty() && std::isdigit(text[0]); // a key or a system
        EXPECT_TRUE(number || guide.find(text) != std::string::npos) << text;
    }
    void expectInGuide(const std::vector<toolkit::Menu*>& menus) {
        for (const toolkit::Menu* menu : menus) {
            if (!menu->isSeparator())
                expectInGuide(menu->Caption);
            expectInGuide(menu->Shortcut);
            expectInGuide(menu->entries());
        }
    }
};

TEST_F(TextsTest, FormsHaveTheirMenusCaptionsToolTipsAndOrder) {
    const std::string help = " Help [Contents, -, About]",
                      andHelp = " &Quor Vanta  [Quor Vanta Website] &Help [&Contents, -, &About]",
                      copy = "&File to Grid <Copies numbers to Custom Numbers>";
    const std::string forms[] = {
        "Quor Vanta  (keys) (borderless)|Version 3.5|Quor Vanta |Quor Vanta |Zephyrwick|Zephyrwick"
        "|The number lottery 6 from 49: plays, rows and bankroll"
        "|Copyright \u00A9 2005 - 2026 Zephyrwick|www.zephyrwick.example",

        "Zephyrwick - Quor Vanta  &File [6 from 49, Bankroll, Customize 6, Favorites, -, &Exit]" +
            andHelp + "|<6 from 49><Customize Six><Favorites><Bankroll><><Help><Exit>",

        "Quor Vanta  - 6 From 49 (icon) &File [6 From 49 (grey), Bankroll, Customize 6, Favorites, "
        "-, &Close] &Generator [Generate Jackpot F5, System 49 [6 From 49, 7 From 49, 8 From 49, "
        "9 From 49, 10 From 49, 11 From 49, 12 From 49, 13 From 49, 22 From 49, 26 From 49]]" +
            andHelp +
            "|System -- 49|26 From 49|22 From 49|13 From 49|12 From 49|11 From 49|{Board}"
            "|10 From 49|9 From 49|8 From 49|7 From 49|6 From 49|Close (Esc)|Generate Jackpot",

        "Quor Vanta  - Customize 6 (keys) &File [6 From 49, Bankroll, Customize 6 (grey), "
        "Favorites, -, &Close] Customize [All Numbers, -, Delete Grid Row, -, File to Grid, -, "
        "Reset, -, Jackpot Generator F5] Quor Vanta [Quorvanta Lite Website]" +
            help + "|{Board}|Keypad|&Reset <Resets the Keypad>|&All Numbers|" + copy +
            "|{Customized}|Close (Esc)|&Jackpot Generator",

        "Quor Vanta  - Favorites (keys) File [6 From 49, Bankroll, Customize 6, Favorites (grey), "
        "-, &Close] Favorites [Delete Grid Row, -, Reset, -, File to Grid, -, Print Favorite "
        "Numbers] Quor Vanta [Quor Vanta Website]" +
            help + "|{Favorites} <Double click to delete a row>|Keypad|" + copy +
            "|&Reset <Resets the Keypad>|Close (Esc)",

        "Quor Vanta  - Bankroll &File [6 From 49, Bankroll (grey), Customize 6, Favorites, -, "
        "&Close] Quor Vanta [Quorvanta Website]" +
            help +
            "|{Date Started} <Date Started>|{Total Amount of Bets} <Total Amount Played>"
            "|{Winnings} <Total amount won>|{Largest Win} <Largest win to date>|Close (Esc)"
            "|Calculator (hidden)|Bankroll|Balance|Total Amount of Bets|Largest Win|Winnings  "
            "|Date Started|0.00",

        "Quor Vanta  - Website|&OK (Enter)|Quor Vanta  has been unable to establish an Internet "
        "connection.\r\nCopy and paste one of the links below into your internet browser and then "
        "try to establish a connection.|{Quor Vanta  Website}|{Zephyrwick website}"
        "|Quor Vanta  Website:|Zephyrwick website:|Cancel (Esc)",

        "About Zephyrwick's Quor Vanta | <www.zephyrwick.example>|Quor Vanta |Quor Vanta "
        "|{Zephyrwick}|Zephyrwick|Zephyrwick|www.zephyrwick.example|Exampleton, United Kingdom"
        "|&Ok|Copyright \u00A9 2005 - 2026 Zephyrwick|leipreir|Version 3.5"
        "|Tel. 01632 960 049, Fax 01632 960 050"};
    ASSERT_EQ(toolkit::Forms.Count(), std::ssize(forms));
    for (int i = 0; i < toolkit::Forms.Count(); ++i)
        EXPECT_EQ(told(toolkit::Forms(i)), forms[i]);
}

TEST_F(TextsTest, EachMessageShowsItsOwnBoxReportsUnderItsOwnLabelAndIsInTheGuide) {
    using Buttons = toolkit::MessageBox::Buttons;
    using enum toolkit::MessageBox::Icon;
    struct Message {
        void (*show)();
        std::string label;
        toolkit::MessageBox::Icon icon;
        std::string text;
        Buttons buttons = Buttons::OK;
        int defaultButton = 1;
    };
    const Message messages[] = {
        {[] { msgDeleteGridRow(); }, "modZWMsg.msgDeleteGridRow", Question,
         "Do you want to delete this row from the grid?", Buttons::YesNoCancel, 2},
        {msgOnlySixNumbers, "modZWMsg.msgOnlySixNumbers", Exclamation,
         "You allready have 6 favorite numbers.\r\nQuor Vanta  limits you to 6 numbers.\r\n"
         "To continue, either deselect a number or start a new favorite numbers listing."},
        {msgMoreNumbersRequired, "XXX.msgMoreNumbersRequired", Exclamation,
         "You must have at least 2 Favorite numbers before filing to grid"},
        {msgMaxFavoriteNumbers, "modZWMsg.msgMaxFavoriteNumbers", Exclamation,
         "You have reached the limit for your Favorite numbers.\r\n"
         "To add a new row you must first delete one of your other listings"},
        {msgNotEnoughStammNumbers, "modZWMsg.msgNotEnoughStammNumbers", Exclamation,
         "You have not selected enough numbers to file-to-grid.\r\n"
         "Please pick at least seven numbers and try again"},
        {msgMaxStammNumbers, "modZWMsg.msgMaxStammNumbers", Exclamation,
         "You have reached the limit for your Customized numbers.\r\n"
         "To add a new row you must first delete one of your old Customized numbers"},
        {msgNoEmptyRow, "XXX.msgNoEmptyRow", Information,
         "The row you have selected is invalid. Please choose one with data in it."},
        {msgNoDeleteRow, "XXX.msgNoDeleteRow", Exclamation,
         "You have either not selected a row to delete or there is no data in the row you have "
         "selected.\r\nPlease select a data filled row to delete before continuing"},
        {msgNumericOnly, "", Information, "Please enter only a Numeric value"},
        {msgEnterDate, "", Information, "Please enter a date"}};
    desk.onBox = [&] {
        if (desk.boxes.size() == 1)
            throw platform::RuntimeError(platform::OutOfMemory);
    };
    for (const Message& message : messages) {
        desk.answers = {toolkit::Retry};
        message.show();
        const toolkit::MessageBox box = desk.boxes.at(2); // behind the failed one and its report
        EXPECT_EQ(box.text, message.text);
        expectInGuide(message.text);
        EXPECT_EQ(std::tuple(box.title, box.icon, box.buttons, box.defaultButton),
                  std::tuple("Quor Vanta ", message.icon, message.buttons, message.defaultButton));
        EXPECT_EQ(desk.takeReports().at(1), "7 " + message.label);
    }
}

TEST_F(TextsTest, TwoMessagesFollowTheLanguage) {
    for (const int language : {2, 0}) {
        gintLanguage = language;
        msgNumericOnly();
        msgEnterDate();
    }
    EXPECT_EQ(desk.takeBoxes(), (tests::Texts{"Bitte ein Numeric wert eingaben",
                                              "Bitte geben Sie eine Datum ein", "", ""}));
}

TEST_F(TextsTest, ExitAsksYesOrNoAndPassesAFailureOver) {
    EXPECT_EQ(msgExit(), toolkit::Yes);
    EXPECT_EQ(desk.boxes[0].buttons, toolkit::MessageBox::Buttons::YesNo);
    EXPECT_EQ(desk.takeBoxes(), tests::Texts{"Exiting Quor Vanta "});
    expectInGuide("Exiting Quor Vanta ");
    desk.onBox = [] { throw platform::RuntimeError(platform::OutOfMemory); };
    const int answer = msgExit();
    EXPECT_TRUE(answer != toolkit::Yes && answer != toolkit::No);
    EXPECT_EQ(desk.boxes.size(), 1U);
}

TEST_F(TextsTest, TheGuideNamesEveryButtonMenuEntryShortcutAndFile) {
    expectInGuide(frmURL::the().lbl1.Caption);
    expectInGuide("An error has occured: ");
    for (const auto& button : MDIForm1::the().tlbar1.Buttons)
        expectInGuide(button.ToolTipText);
    for (int i = 0; i < toolkit::Forms.Count(); ++i) {
        for (const toolkit::Control* const control : allControls(toolkit::Forms(i)))
            if (dynamic_cast<const toolkit::CommandButton*>(control))
                expectInGuide(control->Caption);
        expectInGuide(toolkit::Forms(i).menuBar());
    }
    EXPECT_THROW(EndRunForSystem(), tests::ProcessEnded);
    EXPECT_EQ(os.files.content.size(), 2U);
    os.files.content[toolkit::App.HelpFile];
    for (const auto& [path, text] : os.files.content)
        expectInGuide(path.substr(path.rfind('/') + 1));
}

} // namespace
