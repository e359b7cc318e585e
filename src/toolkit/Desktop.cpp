#include "toolkit/Desktop.h"

#include "toolkit/Form.h"
#include "toolkit/Printer.h"

namespace toolkit {

namespace {
Desktop withoutWindows;
Desktop* installed = &withoutWindows;
} // namespace

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

void Desktop::focus(Control& control) {
    Screen.focusMoved(control);
}

std::unique_ptr<PrinterDevice> Desktop::newPrinterDevice() {
    throw platform::RuntimeError(platform::PrinterError);
}

std::function<void()> Desktop::waker(std::function<void()> /*event*/) {
    return [] {};
}

Desktop& desktop() {
    return *installed;
}

void install(Desktop* it) {
    installed = it ? it : &withoutWindows;
}

int MsgBox(const MessageBox& box) {
    return desktop().messageBox(box);
}

void DoEvents() {
    desktop().doEvents();
}

} // namespace toolkit
