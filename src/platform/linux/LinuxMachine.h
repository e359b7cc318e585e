#pragma once

#include "platform/Locale.h"
#include "platform/Machine.h"

namespace platform {

// The system's programs are in two directories here too: /usr/bin for those of the user, in the
// place of the Windows directory, and /usr/sbin for those of the system.
class LinuxMachine final : public Machine {
public:
    // `locale` knows the user's code page and outlives this object.
    explicit LinuxMachine(const Locale& locale) : locale_(locale) {}

    // The name that the user logs on with, and the computer's name without its domain.
    bool GetUserNameA(char* buffer, int size) const override;
    bool GetComputerNameA(char* buffer, int size) const override;

    int GetWindowsDirectoryA(char* buffer, int size) const override;
    int GetSystemDirectoryA(char* buffer, int size) const override;

private:
    const Locale& locale_;
};

} // namespace platform
