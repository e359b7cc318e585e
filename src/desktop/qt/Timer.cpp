#include "desktop/qt/ControlPeer.h"

#include <QTimer>

namespace desktop_qt {

namespace {

class TimerPeer final : public toolkit::Peer {
public:
    explicit TimerPeer(toolkit::Timer& timer) : timer_(timer) {
        // A coarse timer may fire early.
        clock_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&clock_, &QTimer::timeout, &clock_, [this] { timer_.fire(); });
        follow();
    }

    void changed(toolkit::Prop /*which*/) override { follow(); }

private:
    void follow() {
        clock_.stop();
        if (timer_.Enabled && timer_.Interval > 0)
            clock_.start(timer_.Interval);
    }

    toolkit::Timer& timer_;
    QTimer clock_;
};

} // namespace

std::unique_ptr<toolkit::Peer> makePeer(toolkit::Timer& timer, QWidget* /*parent*/) {
    return std::make_unique<TimerPeer>(timer);
}

} // namespace desktop_qt
