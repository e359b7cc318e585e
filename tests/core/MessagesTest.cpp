#include "common/modZWMsg.h"
#include "tests/support/ProgramTest.h"

namespace {

using namespace quorvanta;
using Buttons = toolkit::MessageBox::Buttons;
using Icon = toolkit::MessageBox::Icon;
using Texts = std::vector<std::string>;

struct Message {
    void (*show)();
    std::string label, text;
    Icon icon = Icon::Exclamation;
    Buttons buttons = Buttons::OK;
    int defaultButton = 1;
};

const std::vector<Message> kMessages{
    {[] { msgDeleteGridRow(); }, "modZWMsg.msgDeleteGridRow",
     "Do you want to delete this row from the grid?", Icon::Question, Buttons::YesNoCancel, 2},
    {msgOnlySixNumbers, "modZWMsg.msgOnlySixNumbers",
     "You allready have 6 favorite numbers.\r\nQuor Vanta  limits you to 6 numbers.\r\nTo "
     "continue, either deselect a number or start a new favorite numbers listing."},
    {msgMoreNumbersRequired, "XXX.msgMoreNumbersRequired",
     "You must have at least 2 Favorite numbers before filing to grid"},
    {msgMaxFavoriteNumbers, "modZWMsg.msgMaxFavoriteNumbers",
     "You have reached the limit for your Favorite numbers.\r\nTo add a new row you must first "
     "delete one of your other listings"},
    {msgNotEnoughStammNumbers, "modZWMsg.msgNotEnoughStammNumbers",
     "You have not selected enough numbers to file-to-grid.\r\nPlease pick at least seven numbers "
     "and try again"},
    {msgMaxStammNumbers, "modZWMsg.msgMaxStammNumbers",
     "You have reached the limit for your Customized numbers.\r\nTo add a new row you must first "
     "delete one of your old Customized numbers"},
    {msgNoEmptyRow, "XXX.msgNoEmptyRow",
     "The row you have selected is invalid. Please choose one with data in it.", Icon::Information},
    {msgNoDeleteRow, "XXX.msgNoDeleteRow",
     "You have either not selected a row to delete or there is no data in the row you have "
     "selected.\r\nPlease select a data filled row to delete before continuing"},
    {msgNumericOnly, "", "Please enter only a Numeric value", Icon::Information},
    {msgEnterDate, "", "Please enter a date", Icon::Information},
};

class MessagesTest : public tests::ProgramTest {};

TEST_F(MessagesTest, EachShowsItsOwnBoxAndReportsUnderItsOwnLabel) {
    desk.onBox = [&] {
        if (desk.boxes.size() == 1)
            throw platform::RuntimeError(platform::OutOfMemory);
    };
    for (const Message& message : kMessages) {
        desk.answers = {toolkit::Retry};
        message.show();
        const toolkit::MessageBox box = desk.boxes.at(2); // behind the failed one and its report
        EXPECT_EQ(std::tuple(box.title, box.icon, box.buttons, box.defaultButton),
                  std::tuple("Quor Vanta ", message.icon, message.buttons, message.defaultButton));
        EXPECT_EQ(desk.takeReports(), (Texts{message.text, "7 " + message.label, message.text}));
    }
}

TEST_F(MessagesTest, OnlyTwoMessagesFollowTheLanguage) {
    for (const int language : {2, 0}) {
        gintLanguage = language;
        msgNumericOnly();
        msgEnterDate();
    }
    EXPECT_EQ(desk.takeBoxes(),
              (Texts{"Bitte ein Numeric wert eingaben", "Bitte geben Sie eine Datum ein", "", ""}));
    msgNoDeleteRow();
    EXPECT_TRUE(desk.boxes.at(0).text.starts_with("You have either"));
}

TEST_F(MessagesTest, ExitAsksYesOrNoAndPassesAFailureOver) {
    EXPECT_EQ(msgExit(), toolkit::Yes);
    EXPECT_TRUE(desk.boxes[0].buttons == Buttons::YesNo && desk.boxes[0].icon == Icon::Question);
    EXPECT_EQ(desk.takeBoxes(), Texts{"Exiting Quor Vanta "});
    desk.onBox = [] { throw platform::RuntimeError(platform::OutOfMemory); };
    const int answer = msgExit();
    EXPECT_TRUE(answer != toolkit::Yes && answer != toolkit::No);
    EXPECT_EQ(desk.boxes.size(), 1U);
}

} // namespace
