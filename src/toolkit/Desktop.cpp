#include "toolkit/Desktop.h"

#include "toolkit/Focus.h"
#include "toolkit/Form.h"
#include "toolkit/Printer.h"

namespace toolkit {

namespace {
Desktop withoutWindows;
Desktop* installed = &withoutWindows;
} // namespace

void Desktop::bringForward(Form& form) {
    Screen.activated(form);
    if (Control* const target = focusTarget(form))
        Screen.focusMoved(*target);
}

void Desktop::focus(Control& control) {
    Screen.focusMoved(control);
}

std::unique_ptr<PrinterDevice> Desktop::newPrinterDevice() {
    throw platform::RuntimeError(platform::PrinterError);
}

// A desktop keeps the event. NOLINTNEXTLINE(performance-unnecessary-value-param)
std::function<void()> Desktop::waker(std::function<void()> /*event*/) {
    return [] {};
}

Desktop& desktop() {
    return *installed;
}

void install(Desktop* it) {
    installed = it ? it : &withoutWindows;
}

void DoEvents() {
    desktop().doEvents();
}

} // namespace toolkit
