// The end of the display, of which nothing tells a program.
#pragma once

#include <functional>

namespace platform {

// As Process::whenDisplayEnds has it.
void watchDisplay(std::function<void()> ended);

} // namespace platform
