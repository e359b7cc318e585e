#pragma once

#include "platform/Machine.h"

namespace platform {

class WindowsMachine final : public Machine {
public:
    std::optional<std::string> GetUserNameA() const override;
    std::optional<std::string> GetComputerNameA() const override;
    std::optional<std::string> GetWindowsDirectoryA() const override;
    std::optional<std::string> GetSystemDirectoryA() const override;
};

} // namespace platform
