// The event loop.
#pragma once

#include "desktop/win32/System.h"

#include <functional>

namespace desktop_win32 {

// Runs events until `done`, or until the process is asked to end, which the loop around is then
// told again. Gives the exit code if it was asked, else 0.
int runLoop(const std::function<bool()>& done);

// Runs the events that wait.
void runWaiting();

} // namespace desktop_win32
