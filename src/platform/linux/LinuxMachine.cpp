#include "platform/linux/LinuxMachine.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <cstring>
#include <string>
#include <string_view>

namespace platform {

namespace {

// The length of the text, or 0 if it is empty or doesn't fit.
int copy(std::string_view text, char* buffer, int size) {
    const int length = static_cast<int>(text.size());
    if (length == 0 || length >= size)
        return 0;
    std::memcpy(buffer, text.data(), text.size());
    buffer[length] = '\0';
    return length;
}

} // namespace

bool LinuxMachine::GetUserNameA(char* buffer, int size) const {
    std::array<char, 16384> memory;
    passwd entry;
    passwd* found = nullptr;
    getpwuid_r(getuid(), &entry, memory.data(), memory.size(), &found);
    return found != nullptr && copy(locale_.toBytes(found->pw_name), buffer, size) > 0;
}

bool LinuxMachine::GetComputerNameA(char* buffer, int size) const {
    char name[HOST_NAME_MAX + 1] = {};
    if (gethostname(name, sizeof name - 1) != 0)
        return false;
    const std::string full = locale_.toBytes(name);
    return copy(std::string_view(full).substr(0, full.find('.')), buffer, size) > 0;
}

int LinuxMachine::GetWindowsDirectoryA(char* buffer, int size) const {
    return copy("/usr/bin", buffer, size);
}

int LinuxMachine::GetSystemDirectoryA(char* buffer, int size) const {
    return copy("/usr/sbin", buffer, size);
}

} // namespace platform
