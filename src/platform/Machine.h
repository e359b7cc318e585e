// Who and where: the logged-on user, the computer, and the system's directories.
#pragma once

#include <optional>
#include <string>

namespace platform {

// Each answer is UTF-8, or nothing where the system has none.
class Machine {
public:
    virtual ~Machine() = default;

    virtual std::optional<std::string> GetUserNameA() const = 0;
    virtual std::optional<std::string> GetComputerNameA() const = 0;

    // Without a separator at the end.
    virtual std::optional<std::string> GetWindowsDirectoryA() const = 0;
    virtual std::optional<std::string> GetSystemDirectoryA() const = 0;
};

} // namespace platform
