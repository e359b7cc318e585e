// The desktop of the system that the program is built for. A folder beside this file holds it.
#pragma once

#include "platform/Help.h"
#include "toolkit/Desktop.h"

#include <memory>

namespace desktop {

class SystemDesktop : public toolkit::Desktop {
public:
    // The viewer of help files where it is one of the desktop's windows; nullptr where it is none.
    virtual platform::Help* helpViewer() { return nullptr; }
};

// Opens nothing yet: the first form or message box does.
std::unique_ptr<SystemDesktop> makeDesktop();

} // namespace desktop
