// The running process.
#pragma once

#include <functional>
#include <string>

namespace platform {

class Process {
public:
    virtual ~Process() = default;

    // Whether an instance of the program runs that has `directory` already. If not, this one has it
    // from now on, until the process ends, however it does.
    virtual bool prevInstance(const std::string& directory) = 0;

    // Has `wanted` called when the system asks the process to end. The call comes in the midst of
    // whatever runs, so that it may do no more than wake the event loop.
    virtual void whenAskedToEnd(std::function<void()> wanted) = 0;

    // Has `ended` called when the display goes that this process has opened by now. The call comes
    // on the present thread, in the midst of whatever runs, and the process ends behind it.
    virtual void whenDisplayEnds(std::function<void()> ended) = 0;

    // Ends the process at once. Nothing after this call runs.
    [[noreturn]] virtual void end() = 0;
};

} // namespace platform
