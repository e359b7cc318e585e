// How the event loop runs, is woken and ends.
#include "desktop/qt/QtDesktop.h"
#include "toolkit/Form.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <sys/eventfd.h>

namespace desktop_qt {

int QtDesktop::run() {
    return toolkit::Forms.Count() == 0 ? 0 : QApplication::exec();
}

void QtDesktop::endLoop() {
    QCoreApplication::exit();
}

void QtDesktop::later(std::function<void()> event) {
    QTimer::singleShot(0, this, std::move(event));
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

} // namespace desktop_qt

std::unique_ptr<desktop::SystemDesktop> desktop::makeDesktop() {
    return std::make_unique<desktop_qt::QtDesktop>();
}
