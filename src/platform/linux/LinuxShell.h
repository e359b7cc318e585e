#pragma once

#include "platform/Shell.h"

namespace platform {

class LinuxShell final : public Shell {
public:
    // Through the desktop's opener. The address is one argument of it: no command interpreter of
    // ours reads it. An opener that ends with a failure within half a second has opened nothing.
    int ShellExecuteA(std::uintptr_t window, const char* operation, const char* file,
                      const char* parameters, const char* directory, int show) override;

    std::vector<std::string> calculators(const std::string& directory) const override;
    void start(const std::string& path) override;
};

} // namespace platform
