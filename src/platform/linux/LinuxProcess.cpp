#include "platform/linux/LinuxProcess.h"

#include "platform/linux/DisplayEnd.h"

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <string>
#include <utility>

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace platform {

namespace {

std::function<void()> endWanted; // called by the signals' handler

// Where the directory can't be locked, since it isn't ours to read or its file system has no locks,
// a name of the kernel's own stands for it.
bool isNameTaken(const std::string& directory) {
    struct stat status;
    if (::stat(directory.c_str(), &status) != 0)
        return false;
    const std::string name =
        "quorvanta " + std::to_string(status.st_dev) + " " + std::to_string(status.st_ino);
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = ""};
    name.copy(address.sun_path + 1, sizeof address.sun_path - 1); // behind a 0: it is no file
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
    const int holder = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    return ::bind(holder, reinterpret_cast<const sockaddr*>(&address), size) != 0 &&
           errno == EADDRINUSE;
}

} // namespace

bool LinuxProcess::prevInstance(const std::string& directory) {
    // The descriptor stays open for the life of the process: it holds the lock.
    const int holder = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (holder < 0)
        return isNameTaken(directory);
    if (::flock(holder, LOCK_EX | LOCK_NB) == 0)
        return false;
    const bool taken = errno == EWOULDBLOCK;
    ::close(holder);
    return taken || isNameTaken(directory);
}

void LinuxProcess::end() {
    std::fflush(nullptr);
    _Exit(0);
}

void LinuxProcess::whenAskedToEnd(std::function<void()> wanted) {
    endWanted = std::move(wanted);
    struct sigaction action {};
    action.sa_handler = [](int) {
        const int error = errno;
        endWanted();
        errno = error;
    };
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction before {};
        // A signal that whoever started the program has it ignore stays ignored.
        if (sigaction(number, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            sigaction(number, &action, nullptr);
    }
}

void LinuxProcess::whenDisplayEnds(std::function<void()> ended) {
    watchDisplay(std::move(ended));
}

} // namespace platform
