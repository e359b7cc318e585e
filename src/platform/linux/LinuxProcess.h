// The running process: the lock that tells of another instance, the requests of the system that it
// end, and its end.
#pragma once

#include "platform/Process.h"

namespace platform {

class LinuxProcess : public Process {
public:
    // Takes the lock of the user's one instance, which lies in the runtime directory. The kernel
    // gives it up with the process, however that ends.
    LinuxProcess();

    bool prevInstance() const override { return another_; }
    [[noreturn]] void end() override;

    // A descriptor that becomes readable when the system asks the process to end: SIGTERM, SIGINT
    // or SIGHUP. Calling it once takes these signals over. -1 if that can't be done.
    static int endRequests();

private:
    bool another_ = false;
};

} // namespace platform
