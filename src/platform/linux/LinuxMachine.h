#pragma once

#include "platform/Machine.h"

namespace platform {

// The system's programs are in two directories here too: /usr/bin for those of the user, in the
// place of the Windows directory, and /usr/sbin for those of the system.
class LinuxMachine final : public Machine {
public:
    // The name that the user logs on with, and the computer's name without its domain.
    std::optional<std::string> GetUserNameA() const override;
    std::optional<std::string> GetComputerNameA() const override;

    std::optional<std::string> GetWindowsDirectoryA() const override { return "/usr/bin"; }
    std::optional<std::string> GetSystemDirectoryA() const override { return "/usr/sbin"; }
};

} // namespace platform
