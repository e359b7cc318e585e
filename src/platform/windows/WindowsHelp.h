#pragma once

#include "platform/Help.h"

namespace platform {

// Windows has had no viewer of help files for long, so the user's browser shows a copy of the file
// that has its contents in it. What fails is told in a message box over `window`.
class WindowsHelp final : public Help {
public:
    bool WinHelpA(std::uintptr_t window, const char* file, unsigned command,
                  std::uintptr_t data) override;
};

} // namespace platform
