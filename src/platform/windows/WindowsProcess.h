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

    [[noreturn]] void end() override;
};

} // namespace platform
