// The running process.
#pragma once

namespace platform {

class Process {
public:
    virtual ~Process() = default;

    // Whether another instance of the program runs for this user. The answer is taken once, when
    // the process starts; the lock behind it is the process's own and dies with it.
    virtual bool prevInstance() const = 0;

    // Ends the process at once. Nothing after this call runs.
    [[noreturn]] virtual void end() = 0;
};

} // namespace platform
