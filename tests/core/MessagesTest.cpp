// Message boxes, the error box and the debug log.
#include "common/Trap.h"
#include "common/modZWMsg.h"
#include "tests/support/ProgramTest.h"

namespace {

using namespace quorvanta;
using Buttons = toolkit::MessageBox::Buttons;
using Icon = toolkit::MessageBox::Icon;
using Texts = std::vector<std::string>;
constexpr const char* kLog = "/app/DebugLog.TXT";

class MessagesTest : public tests::ProgramTest {};

TEST_F(MessagesTest, EachShowsItsOwnBoxAndReportsUnderItsOwnLabel) {
    using enum Icon;
    struct Message {
        void (*show)();
        std::string label;
        Icon icon;
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
        EXPECT_EQ(std::tuple(box.title, box.icon, box.buttons, box.defaultButton),
                  std::tuple("Quor Vanta ", message.icon, message.buttons, message.defaultButton));
        EXPECT_EQ(desk.takeReports().at(1), "7 " + message.label);
    }
}

TEST_F(MessagesTest, TwoMessagesFollowTheLanguage) {
    for (const int language : {2, 0}) {
        gintLanguage = language;
        msgNumericOnly();
        msgEnterDate();
    }
    EXPECT_EQ(desk.takeBoxes(),
              (Texts{"Bitte ein Numeric wert eingaben", "Bitte geben Sie eine Datum ein", "", ""}));
}

TEST_F(MessagesTest, ExitAsksYesOrNoAndPassesAFailureOver) {
    EXPECT_EQ(msgExit(), toolkit::Yes);
    EXPECT_EQ(desk.boxes[0].buttons, Buttons::YesNo);
    EXPECT_EQ(desk.takeBoxes(), Texts{"Exiting Quor Vanta "});
    desk.onBox = [] { throw platform::RuntimeError(platform::OutOfMemory); };
    const int answer = msgExit();
    EXPECT_TRUE(answer != toolkit::Yes && answer != toolkit::No);
    EXPECT_EQ(desk.boxes.size(), 1U);
}

TEST_F(MessagesTest, TheFirstRecordOfARunBeginsANewLogAndCarriesTheVersion) {
    mblnLogStarted = false;
    os.files.content[kLog] = "of the run before\r\n";
    WriteDebugLog(-1, "Computer Name: ", "OFFICE1", {});
    WriteDebugLog(-1, "", "", {});
    WriteDebugLog(62, "ReadLottoFile", "Input past end of file", {2005, 3, 7, 21, 4, 9});
    EXPECT_EQ(os.files.content[kLog], "\"Computer Name: \"\r\n\"Version 3.5.7\"\r\n"
                                      "\"Description: OFFICE1\"\r\n\r\n"
                                      "\"\"\r\n\r\n"
                                      "\"ReadLottoFile\"\r\n\"Number: 62\"\r\n"
                                      "\"Description: Input past end of file\"\r\n"
                                      "#2005-03-07 21:04:09#\r\n\r\n");
}

TEST_F(MessagesTest, TheErrorBoxComesAlsoWhenTheLogIsLost) {
    for (const char* failing : {"remove", "openForAppend", "writeLine", "close", ""}) {
        mblnLogStarted = false;
        os.files.fault = [failing](const std::string& operation, const std::string&) {
            if (operation == failing)
                throw platform::RuntimeError(platform::PermissionDenied);
        };
        desk.answers = {toolkit::Ignore};
        EXPECT_EQ(ShowErrorBox(-5, "Odd", "some.Routine"), Answer::Ignore);
        EXPECT_EQ(desk.boxes.at(0).title, "Quor Vanta ");
        EXPECT_EQ(desk.takeBoxes(), Texts{"An error has occured: -5\r\nOdd\r\nsome.Routine"});
    }
    ReportUntrapped(platform::RuntimeError(platform::Overflow), "frmMain");
    EXPECT_EQ(desk.boxes[0].icon, Icon::Critical);
    EXPECT_EQ(desk.takeBoxes(), Texts{"An error has occured: 6\r\nOverflow\r\nfrmMain"});
    EXPECT_NE(os.files.content[kLog].find("\"frmMain\"\r\n\"Number: 6\"\r\n"), std::string::npos);
}

TEST_F(MessagesTest, EachFailureHasItsDescription) {
    std::string all;
    for (const int number : {5, 6, 7, 9, 13, 53, 57, 61, 62, 70, 75, 76, 340, 381, 482, 1})
        all += platform::describe(static_cast<platform::Failure>(number)) + std::string("|");
    EXPECT_EQ(all, "Invalid procedure call or argument|Overflow|Out of memory|Subscript out of "
                   "range|Type mismatch|File not found|Device I/O error|Disk full|Input past end "
                   "of file|Permission denied|Path/File access error|Path not found|Control array "
                   "element doesn't exist|Invalid property array index|Printer error|"
                   "Application-defined or object-defined error|");
}

// What a routine of three steps has done, its second one failing until it has been tried twice.
TEST_F(MessagesTest, TheAnswerRepeatsTheStepPassesOverItOrLeavesTheRoutine) {
    for (const auto& [answer, done] : {std::pair<int, std::string>(toolkit::Retry, "abbc"),
                                       {toolkit::Ignore, "abc"},
                                       {toolkit::Abort, "ab"},
                                       {0, "ab"}}) {
        desk.answers = {answer};
        std::string trace;
        trapped("some.Routine", [&](auto step) {
            step([&] { trace += 'a'; });
            step([&] {
                trace += 'b';
                if (trace.size() == 2)
                    throw platform::RuntimeError(platform::Overflow);
            });
            step([&] { trace += 'c'; });
        });
        EXPECT_EQ(trace, done);
    }
}

} // namespace
