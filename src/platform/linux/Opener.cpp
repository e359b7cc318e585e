#include "platform/linux/Opener.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <ctime>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace platform {

namespace {

constexpr timespec kPatience{.tv_sec = 0, .tv_nsec = 500'000'000};

int codeOf(int status) {
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

// Between a fork and its end only calls to the system are allowed.
[[noreturn]] void runProgram(char* const* command, const char* directory) {
    ::setsid();
    for (int standard = 0; standard < 3; ++standard)
        ::dup2(::open("/dev/null", O_RDWR), standard);
    if (*directory && ::chdir(directory) != 0)
        ::_Exit(127);
    ::close_range(3, ~0U, 0);
    ::execv(command[0], command);
    ::_Exit(errno == EACCES ? 126 : 127);
}

// Waits for the program in the place of the process, so that none is left to be waited for.
[[noreturn]] void watchProgram(char* const* command, const char* directory) {
    ::close_range(3, ~0U, 0); // among them the lock, which is the process's alone
    sigset_t ends, before;
    ::sigemptyset(&ends);
    ::sigaddset(&ends, SIGCHLD);
    ::sigprocmask(SIG_BLOCK, &ends, &before);
    ::signal(SIGCHLD, SIG_DFL);
    const pid_t program = ::fork();
    if (program == 0) {
        ::sigprocmask(SIG_SETMASK, &before, nullptr);
        runProgram(command, directory);
    }
    int status = 0;
    if (program < 0)
        ::_Exit(127);
    while (::sigtimedwait(&ends, nullptr, &kPatience) < 0 && errno == EINTR)
        ;
    ::_Exit(::waitpid(program, &status, WNOHANG) == program ? codeOf(status) : 0);
}

} // namespace

int open(const std::string& program, const std::string& argument, const std::string& directory) {
    std::string texts[] = {program, argument};
    char* const command[] = {texts[0].data(), texts[1].data(), nullptr};
    const pid_t watcher = ::fork();
    if (watcher == 0)
        watchProgram(command, directory.c_str());
    int status = 0;
    while (watcher > 0 && ::waitpid(watcher, &status, 0) < 0)
        if (errno != EINTR)
            return 0; // whoever started the process has the system wait for its children
    return watcher < 0 ? 127 : codeOf(status);
}

} // namespace platform
