// The system's viewer of help files.
#pragma once

#include <cstdint>

namespace platform {

inline constexpr unsigned HELP_TAB = 15; // opens the file with its contents beside it

class Help {
public:
    virtual ~Help() = default;

    // Shows `file`, a path in UTF-8, in the viewer, which closes with the window that `window` is
    // the handle of. `command` is HELP_TAB and `data` 0. False for another command; a file that
    // can't be read is the viewer's to report.
    virtual bool WinHelpA(std::uintptr_t window, const char* file, unsigned command,
                          std::uintptr_t data) = 0;
};

} // namespace platform
