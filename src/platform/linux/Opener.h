// A program that is handed something to open.
#pragma once

#include <string>

namespace platform {

// Runs `program` with the one argument, in `directory` or, if that is empty, where the process is.
// It has a session of its own, no terminal, and nothing of what the process has open. Comes back as
// soon as the program has ended, with its exit code, or after half a second with 0: it then goes on
// by itself, and leaves no zombie. As shells have it, 126 is a program that may not be run, 127 one
// that can't, and more an end by a signal.
int open(const std::string& program, const std::string& argument, const std::string& directory);

} // namespace platform
