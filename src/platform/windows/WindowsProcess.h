#pragma once

#include "platform/Process.h"

namespace platform {

class WindowsProcess final : public Process {
public:
    // By a mutex that is named after the directory, for all users of the machine.
    bool prevInstance(const std::string& directory) override;

    // The system asks windows, by WM_ENDSESSION, so that the desktop hears it: nothing is left to
    // be heard here.
    void whenAskedToEnd(std::function<void()> /*wanted*/) override {}

    // Here a display doesn't go without its user's session.
    void whenDisplayEnds(std::function<void()> /*ended*/) override {}

    [[noreturn]] void end() override;
};

} // namespace platform
