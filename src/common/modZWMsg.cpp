#include "common/modZWMsg.h"

#include "common/Trap.h"
#include "frame/MainCode_ZW.h"
#include "frame/modConstants.h"
#include "toolkit/Desktop.h"

#include <string>

namespace quorvanta {

using toolkit::MessageBox;

namespace {

// Shows a box with the OK button under the trap of the routine that `label` names.
void showOK(const char* label, const std::string& text, MessageBox::Icon icon) {
    trapped(label, [&](auto step) {
        step([&] { toolkit::MsgBox({.text = text, .title = kProductTitle, .icon = icon}); });
    });
}

std::string inLanguage(const char* english, const char* german) {
    if (gintLanguage == 1)
        return english;
    return gintLanguage == 2 ? german : "";
}

} // namespace

int msgExit() {
    int answer = 0;
    failuresOff([&](auto step) {
        step([&] {
            answer = toolkit::MsgBox({.text = std::string("Exiting ") + kProductTitle,
                                      .title = kProductTitle,
                                      .buttons = MessageBox::Buttons::YesNo,
                                      .icon = MessageBox::Icon::Question});
        });
    });
    return answer;
}

bool msgDeleteGridRow() {
    int answer = toolkit::No;
    trapped("modZWMsg.msgDeleteGridRow", [&](auto step) {
        step([&] {
            answer = toolkit::MsgBox({.text = "Do you want to delete this row from the grid?",
                                      .title = kProductTitle,
                                      .buttons = MessageBox::Buttons::YesNoCancel,
                                      .icon = MessageBox::Icon::Question,
                                      .defaultButton = 2});
        });
    });
    return answer == toolkit::Yes;
}

void msgOnlySixNumbers() {
    showOK("modZWMsg.msgOnlySixNumbers",
           std::string("You allready have 6 favorite numbers.\r\n") + kProductTitle +
               " limits you to 6 numbers.\r\nTo continue, either deselect a number or start a new "
               "favorite numbers listing.",
           MessageBox::Icon::Exclamation);
}

void msgMoreNumbersRequired() {
    showOK("XXX.msgMoreNumbersRequired",
           "You must have at least 2 Favorite numbers before filing to grid",
           MessageBox::Icon::Exclamation);
}

void msgMaxFavoriteNumbers() {
    showOK("modZWMsg.msgMaxFavoriteNumbers",
           "You have reached the limit for your Favorite numbers.\r\n"
           "To add a new row you must first delete one of your other listings",
           MessageBox::Icon::Exclamation);
}

void msgNotEnoughStammNumbers() {
    showOK("modZWMsg.msgNotEnoughStammNumbers",
           "You have not selected enough numbers to file-to-grid.\r\n"
           "Please pick at least seven numbers and try again",
           MessageBox::Icon::Exclamation);
}

void msgMaxStammNumbers() {
    showOK("modZWMsg.msgMaxStammNumbers",
           "You have reached the limit for your Customized numbers.\r\n"
           "To add a new row you must first delete one of your old Customized numbers",
           MessageBox::Icon::Exclamation);
}

void msgNoEmptyRow() {
    showOK("XXX.msgNoEmptyRow",
           "The row you have selected is invalid. Please choose one with data in it.",
           MessageBox::Icon::Information);
}

void msgNoDeleteRow() {
    showOK("XXX.msgNoDeleteRow",
           "You have either not selected a row to delete or there is no data in the row you have "
           "selected.\r\nPlease select a data filled row to delete before continuing",
           MessageBox::Icon::Exclamation);
}

void msgNumericOnly() {
    showOK("", inLanguage("Please enter only a Numeric value", "Bitte ein Numeric wert eingaben"),
           MessageBox::Icon::Information);
}

void msgEnterDate() {
    showOK("", inLanguage("Please enter a date", "Bitte geben Sie eine Datum ein"),
           MessageBox::Icon::Information);
}

} // namespace quorvanta
