#include "platform/linux/DisplayEnd.h"

#include <cstdlib>
#include <utility>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/eventfd.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace platform {

namespace {

constexpr unsigned kLastMoments = 10; // seconds

pid_t displayUser = 0; // the process that has the windows; 0 without any

// Never given up, as it may be called behind the end of main.
auto& displayEnded = *new std::function<void()>;

// A child that could not start another program isn't meant.
void tellDisplayEnds() {
    static bool told = false;
    if (displayUser != ::getpid())
        return;
    // A thread of Qt's must not end the process while the program's own saves, which learns of the
    // display's end right now too.
    if (::gettid() != displayUser)
        for (unsigned left = kLastMoments; left > 0;)
            left = ::sleep(left);
    else if (!std::exchange(told, true))
        displayEnded();
}

// The library of session management would end the process with a manager that is killed, which is
// no end of the session. Qt has it loaded where it speaks to one.
void outliveSessionManager() {
    void* const library = ::dlopen("libICE.so.6", RTLD_LAZY | RTLD_NOLOAD);
    if (!library)
        return;
    using Handler = void (*)(void* connection);
    static const auto number =
        reinterpret_cast<int (*)(void*)>(::dlsym(library, "IceConnectionNumber"));
    const auto setHandler =
        reinterpret_cast<Handler (*)(Handler)>(::dlsym(library, "IceSetIOErrorHandler"));
    if (number && setHandler)
        setHandler([](void* connection) {
            // Qt goes on listening there: to one that never has anything to tell.
            ::dup3(::eventfd(0, EFD_CLOEXEC), number(connection), O_CLOEXEC);
        });
}

} // namespace

void watchDisplay(std::function<void()> ended) {
    displayEnded = std::move(ended);
    displayUser = ::getpid();
    outliveSessionManager();
}

} // namespace platform

// Where the display goes, Qt's part for X11 calls exit, that for Wayland _exit, and neither tells
// the program before. The libraries find these two first.
extern "C" {
void exit(int status) noexcept {
    platform::tellDisplayEnds();
    reinterpret_cast<void (*)(int)>(::dlsym(RTLD_NEXT, "exit"))(status);
    std::abort();
}
void _exit(int status) {
    platform::tellDisplayEnds();
    ::syscall(SYS_exit_group, status); // also in a child, which can't look anything up
    std::abort();
}
}
