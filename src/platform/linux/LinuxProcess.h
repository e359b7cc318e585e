// The running process: the lock that shows another instance, the requests of the system that it
// end, and its end.
#pragma once

#include "platform/Process.h"

namespace platform {

class LinuxProcess : public Process {
public:
    // The lock is on the directory itself: that takes no file and no right to write, whatever the
    // environment of a start is, and a newer version unpacked there changes nothing of it.
    bool prevInstance(const std::string& directory) override;

    // SIGTERM, SIGINT and SIGHUP are such requests.
    void whenAskedToEnd(std::function<void()> wanted) override;
    void whenDisplayEnds(std::function<void()> ended) override;
    [[noreturn]] void end() override;
};

} // namespace platform
