#include "platform/linux/LinuxMachine.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <climits>

namespace platform {

std::optional<std::string> LinuxMachine::GetUserNameA() const {
    std::array<char, 16384> memory;
    passwd entry;
    passwd* found = nullptr;
    getpwuid_r(getuid(), &entry, memory.data(), memory.size(), &found);
    return found ? std::optional<std::string>(found->pw_name) : std::nullopt;
}

std::optional<std::string> LinuxMachine::GetComputerNameA() const {
    char name[HOST_NAME_MAX + 1] = {};
    if (gethostname(name, sizeof name - 1) != 0)
        return std::nullopt;
    const std::string full = name;
    return full.substr(0, full.find('.'));
}

} // namespace platform
