// A modal question or message. A desktop shows its buttons left to right, and rules nothing.
#pragma once

#include <string>
#include <vector>

namespace toolkit {

// The number of the chosen button.
enum Button : int { OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

struct MessageBox {
    enum class Buttons { OK, YesNo, YesNoCancel, AbortRetryIgnore };
    enum class Icon { Critical, Question, Exclamation, Information };

    std::string text; // line breaks are CR LF
    std::string title;
    Buttons buttons = Buttons::OK;
    Icon icon = Icon::Information;
    int defaultButton = 1; // counted from 1, left to right

    // The buttons, left to right, and the one at `defaultButton`.
    std::vector<Button> answers() const;
    Button defaultAnswer() const {
        return answers().at(static_cast<std::size_t>(defaultButton - 1));
    }
    // What Esc and the close box answer; 0 where they answer nothing.
    int escapeAnswer() const;
};

// What stands on a button, with its letter: "&Abort".
const char* labelOf(Button button);

// Shows a modal message box and gives the number of the chosen button.
int MsgBox(const MessageBox& box);

} // namespace toolkit
