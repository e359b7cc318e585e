// Other programs, started and left alone: nothing here waits for them or hears from them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace platform {

// ShellExecuteA gives this or less for a failure, and more for success.
inline constexpr int kShellFailure = 32;

class Shell {
public:
    virtual ~Shell() = default;

    // Hands `file`, a web or mail address as UTF-8 that addressToOpen() lets pass, to the program
    // that the system has for it. `window` is the owner's handle; `operation` is "open";
    // `parameters` and `directory` may be null; `show` is 1 for a normal window. Gives a number
    // above 32, or the failure: 2 nothing to open or a program that can't be run, 3 no such
    // directory, 5 access denied, 31 no program for such an address.
    virtual int ShellExecuteA(std::uintptr_t window, const char* operation, const char* file,
                              const char* parameters, const char* directory, int show) = 0;

    // The paths at which a calculator may be that goes with one of the system's directories, the
    // desktop's own first.
    virtual std::vector<std::string> calculators(const std::string& directory) const = 0;

    // Starts the program at `path` in a normal window with the focus. Raises FileNotFound or
    // PermissionDenied.
    virtual void start(const std::string& path) = 0;
};

} // namespace platform
