// The desktop of Windows itself: shows the toolkit's forms as real windows, and turns what the user
// does into the toolkit's events.
#pragma once

#include "desktop/SystemDesktop.h"
#include "desktop/win32/FormWindow.h"

namespace desktop_win32 {

class Win32Desktop : public desktop::SystemDesktop {
public:
    void open(toolkit::Form& form) override;
    void show(toolkit::Form& form, bool modal) override;
    void bringForward(toolkit::Form& form) override;
    void focus(toolkit::Control& control) override;
    void announce(toolkit::Control& control, const std::string& said) override;
    int messageBox(const toolkit::MessageBox& box) override;
    void doEvents() override;
    toolkit::Place screen() override;
    std::unique_ptr<toolkit::PrinterDevice> newPrinterDevice() override;
    int run() override;
    std::function<void()> waker(std::function<void()> event) override;
    void endLoop() override;
};

} // namespace desktop_win32
