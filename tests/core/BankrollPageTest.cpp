#include "bankroll/frmBankroll.h"
#include "common/NumberText.h"
#include "frame/MDIForm1.h"
#include "frame/MainCode_ZW.h"
#include "numbers/frmMain.h"
#include "platform/LocaleItems.h"
#include "tests/support/ProgramTest.h"

namespace {

using namespace quorvanta;
using namespace tests;

const std::string kNumeric = "Please enter only a Numeric value",
                  kEnterDate = "Please enter a date";

struct BankrollPageTest : ProgramTest {
    BankrollPageTest() {
        gdblWin = 1250.5;
        gdblLoss = 980;
        gdblLargest = 500;
        gstrBankrollDate = "3/2/2005";
        gstrShortDateFormat = "M/d/yyyy";
    }
    static frmBankroll& open() { return tests::open<frmBankroll>(); }
    // What the boxes and the balance show, and of each box what is stored where that differs.
    static std::string shown() {
        const auto& page = frmBankroll::the();
        std::string texts;
        const std::string stored[] = {gstrBankrollDate, FormatMoney(gdblWin), FormatMoney(gdblLoss),
                                      FormatMoney(gdblLargest)};
        for (int i = 0; i <= 3; ++i) {
            const std::string& text = page.txtWin(i).Text;
            texts += text == stored[i] ? text + " " : text + "(" + stored[i] + ") ";
        }
        const bool red = page.lblBalance.ForeColor == toolkit::kRed;
        return texts + page.lblBalance.Caption.get() + (red ? " red" : "");
    }
};

TEST_F(BankrollPageTest, EachBoxGoesThroughTheChainWhenItIsLeft) {
    struct Row {
        int box;
        const char *typed, *after;
        Texts boxes = {};
    };
    const Row rows[] = {
        {2, "2000", "3/2/2005 1,250.50 2,000.00 500.00 -749.50 red"},
        {1, "0.125", "3/2/2005 0.13 2,000.00 500.00 -1,999.87 red"},
        {1, "2e3", "3/2/2005 2,000.00 2,000.00 500.00 0.00"},
        {3, "-7", "3/2/2005 2,000.00 2,000.00 -7.00 0.00"},
        {1, "abc", "3/2/2005 (2,000.00) 2,000.00 -7.00 0.00", {kNumeric}},
        {1, "", "3/2/2005 (2,000.00) 2,000.00 -7.00 0.00"},
        {2, "1e400", "3/2/2005 (2,000.00) (2,000.00) -7.00 0.00", {kNumeric}},
        {0, "July 4, 05", "July 4, 05(7/4/2005) (2,000.00) (2,000.00) -7.00 0.00"},
        {0, "3/2/2005", "3/2/2005 (2,000.00) (2,000.00) -7.00 0.00"},
        {0, "13/13/2005", "7/25/2005 (2,000.00) (2,000.00) -7.00 0.00", {kEnterDate}},
        {0, "", "(7/25/2005) (2,000.00) (2,000.00) -7.00 0.00"},
    };
    os.locale.items[platform::LOCALE_SMONTHNAME1 + 6] = "July";
    frmBankroll& page = open();
    EXPECT_EQ(shown(), "3/2/2005 1,250.50 980.00 500.00 270.50");
    for (const Row& row : rows) {
        page.txtWin(row.box).SetFocus();
        page.txtWin(row.box).Text = row.typed;
        page.txtWin((row.box + 1) % 4).SetFocus();
        EXPECT_EQ(shown(), row.after) << row.typed;
        EXPECT_EQ(desk.takeBoxes(), row.boxes) << row.typed;
        EXPECT_EQ(page.ActiveControl == &page.txtWin(row.box), row.boxes == Texts{kNumeric});
    }
}

TEST_F(BankrollPageTest, OpeningRoundsTheAmountsButNeverChangesTheStoredDate) {
    gdblWin = 1.005;
    gdblBalance = 77;
    gstrBankrollDate = "25.3.2005"; // of a file from another locale
    frmBankroll* page = &open();
    EXPECT_EQ(desk.takeBoxes(), Texts{kEnterDate});
    EXPECT_EQ(shown(), "7/25/2005(25.3.2005) 1.01 980.00 500.00 -978.99 red");
    EXPECT_EQ(gdblWin, 1.01);
    page->txtWin(1).SetFocus(); // the user has seen today's date, which the page has put in
    EXPECT_EQ(gstrBankrollDate, "25.3.2005");

    userClick(page->cmdCancel);
    gdblWin = gdblLoss = gdblLargest = 0;
    gstrBankrollDate.clear();
    page = &frmBankroll::the();
    page->Load();
    EXPECT_EQ(shown(), " 0.00 0.00 0.00 0.00");
    page->Show(); // the focus comes to the date box
    EXPECT_EQ(page->txtWin(0).Text.get(), "7/25/2005");
    EXPECT_EQ(gstrBankrollDate, "");
    page->txtWin(2).SetFocus();
    EXPECT_EQ(page->txtWin(2).SelLength, 4);
    EXPECT_EQ(gstrBankrollDate, "");
    page->txtWin(0).Text = "7/24/2005"; // the user's own
    page->txtWin(0).SetFocus();
    page->txtWin(2).SetFocus();
    EXPECT_EQ(gstrBankrollDate, "7/24/2005");
    EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(BankrollPageTest, AnOverflowingBalanceIsReportedAndKeepsItsValue) {
    frmBankroll& page = open();
    page.txtWin(1).SetFocus();
    page.txtWin(1).Text = "1.7e308";
    gdblLoss = -1.7e308;
    gdblBalance = -1;
    desk.answers = {toolkit::Ignore};
    page.txtWin(3).SetFocus();
    EXPECT_EQ(desk.takeReports(), Texts{"6 frmBankroll.txtWin_LostFocus"});
    EXPECT_TRUE(shown().ends_with(" -1.00 red")) << shown();
    EXPECT_EQ(gdblBalance, -1);
}

TEST_F(BankrollPageTest, AWrongTextHoldsUpWhatTakesTheFocusButNotTheEnd) {
    open().txtWin(1).SetFocus();
    open().txtWin(1).Text = "abc";
    frmMain::the().Show(); // the box takes the focus back
    EXPECT_EQ(desk.takeBoxes(), Texts{kNumeric});
    EXPECT_EQ(toolkit::Screen.ActiveForm(), &frmBankroll::the());
    open().txtWin(1).Text = "abc";
    EXPECT_THROW(EndApp(MDIForm1::the()), ProcessEnded);
    EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(BankrollPageTest, TheCalculatorIsTheFirstOfTheFirstDirectoryAndTheButtonHiddenWithoutOne) {
    os.machine.windows = "/windows";
    os.machine.system = "/system";
    Main();
    EXPECT_FALSE(open().cmdCalc.Visible);
    for (const char* const file : {"/system/sums", "/windows/abacus", "/windows/sums"}) {
        frmBankroll::the().Unload();
        os.files.content[file] = "";
        userClick(open().cmdCalc);
        EXPECT_EQ(std::exchange(os.shell.started, {}), Texts{file});
        EXPECT_TRUE(frmBankroll::the().cmdCalc.Visible);
    }
}

} // namespace
