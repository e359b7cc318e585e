#include "platform/linux/LinuxProcess.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <unistd.h>

namespace platform {

namespace {

int requestPipe[2] = {-1, -1}; // a signal handler writes to it, the event loop reads from it

int openLock(const std::string& path) {
    return open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
}

int openLock() {
    const char* const runtime = std::getenv("XDG_RUNTIME_DIR");
    const int file = runtime && *runtime ? openLock(std::string(runtime) + "/quorvanta.lock") : -1;
    // The directory may be gone, or another user's after su.
    return file >= 0 ? file : openLock("/tmp/quorvanta-" + std::to_string(getuid()) + ".lock");
}

} // namespace

LinuxProcess::LinuxProcess() {
    // The descriptor stays open for the life of the process: it holds the lock.
    const int file = openLock();
    another_ = file >= 0 && flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

void LinuxProcess::end() {
    std::fflush(nullptr);
    _exit(0);
}

int LinuxProcess::endRequests() {
    if (pipe2(requestPipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return -1;
    struct sigaction action {};
    action.sa_handler = [](int) {
        const char byte = 0;
        [[maybe_unused]] const auto written = write(requestPipe[1], &byte, 1);
    };
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction before {};
        // A signal that whoever started the program has it ignore stays ignored.
        if (sigaction(number, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            sigaction(number, &action, nullptr);
    }
    return requestPipe[0];
}

} // namespace platform
