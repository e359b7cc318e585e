#pragma once

#include "platform/Shell.h"

namespace platform {

class WindowsShell final : public Shell {
public:
    int ShellExecuteA(std::uintptr_t window, const char* operation, const char* file,
                      const char* parameters, const char* directory, int show) override;

    std::vector<std::string> calculators(const std::string& directory) const override {
        return {directory + "\\Calc.exe"};
    }
    void start(const std::string& path) override;
};

} // namespace platform
