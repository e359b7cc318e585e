// How the event loop runs and ends, and what ends it from outside.
#include "desktop/qt/QtDesktop.h"
#include "toolkit/Form.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdlib>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/eventfd.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr unsigned kLastMoments = 10; // seconds

pid_t displayUser = 0; // the process that has the windows; 0 without any

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
        toolkit::desktop().displayEnds();
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

// Where the display goes, Qt's part for X11 calls exit, that for Wayland _exit, and neither tells
// the program before. The libraries find these two first.
extern "C" {
void exit(int status) noexcept {
    tellDisplayEnds();
    reinterpret_cast<void (*)(int)>(::dlsym(RTLD_NEXT, "exit"))(status);
    std::abort();
}
void _exit(int status) {
    tellDisplayEnds();
    ::syscall(SYS_exit_group, status); // also in a child, which can't look anything up
    std::abort();
}
}

namespace desktop_qt {

int QtDesktop::run() {
    if (toolkit::Forms.Count() == 0)
        return 0;
    return QApplication::exec();
}

void QtDesktop::endLoop() {
    // Queued, since the event that runs may show another form.
    QTimer::singleShot(0, this, [] {
        if (toolkit::Forms.Count() == 0)
            QCoreApplication::exit();
    });
}

std::function<void()> QtDesktop::waker(std::function<void()> event) {
    application();
    const int calls = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    auto* const notifier = new QSocketNotifier(calls, QSocketNotifier::Read, this);
    // Once is enough, also while what `event` does runs an event loop of its own.
    connect(notifier, &QSocketNotifier::activated, this, [notifier, event = std::move(event)] {
        notifier->setEnabled(false);
        event();
    });
    return [calls] { ::eventfd_write(calls, 1); };
}

QtDesktop::~QtDesktop() {
    displayUser = 0;
}

void QtDesktop::watchDisplay() {
    displayUser = ::getpid();
    outliveSessionManager();
}

} // namespace desktop_qt

std::unique_ptr<desktop::SystemDesktop> desktop::makeDesktop() {
    return std::make_unique<desktop_qt::QtDesktop>();
}
