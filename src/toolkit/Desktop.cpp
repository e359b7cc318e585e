#include "toolkit/Desktop.h"

#include "toolkit/Form.h"
#include "toolkit/Printer.h"

#include <array>

namespace toolkit {

namespace {
Desktop withoutWindows;
Desktop* installed = &withoutWindows;
} // namespace

Button MessageBox::defaultAnswer() const {
    static constexpr std::array<std::array<Button, 3>, 4> kSets{
        {{OK, OK, OK}, {Yes, No, No}, {Yes, No, Cancel}, {Abort, Retry, Ignore}}};
    return kSets.at(static_cast<std::size_t>(buttons))
        .at(static_cast<std::size_t>(defaultButton - 1));
}

void Desktop::focus(Control& control) {
    Screen.focusMoved(control);
}

std::unique_ptr<PrinterDevice> Desktop::newPrinterDevice() {
    throw platform::RuntimeError(platform::PrinterError);
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
