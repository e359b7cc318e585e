#include "toolkit/MessageBox.h"

#include "toolkit/Desktop.h"

#include <array>

namespace toolkit {

std::vector<Button> MessageBox::answers() const {
    switch (buttons) {
    case Buttons::YesNo:
        return {Yes, No};
    case Buttons::YesNoCancel:
        return {Yes, No, Cancel};
    case Buttons::AbortRetryIgnore:
        return {Abort, Retry, Ignore};
    default:
        return {OK};
    }
}

int MessageBox::escapeAnswer() const {
    // After a failure none of the answers is harmless, so the user has to choose one.
    return buttons == Buttons::AbortRetryIgnore ? 0 : static_cast<int>(answers().back());
}

const char* labelOf(Button button) {
    static constexpr std::array<const char*, 8> kLabels{"",       "OK",      "Cancel", "&Abort",
                                                        "&Retry", "&Ignore", "&Yes",   "&No"};
    return kLabels.at(static_cast<std::size_t>(button));
}

int MsgBox(const MessageBox& box) {
    return desktop().messageBox(box);
}

} // namespace toolkit
