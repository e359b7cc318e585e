// The desktop of the system that the program is built for. A folder beside this file holds it.
#pragma once

#include "platform/Help.h"
#include "toolkit/Desktop.h"

#include <memory>

namespace desktop {

// The viewer of help files is a window too.
class SystemDesktop : public toolkit::Desktop, public platform::Help {};

// Opens nothing yet: the first form or message box does.
std::unique_ptr<SystemDesktop> makeDesktop();

} // namespace desktop
