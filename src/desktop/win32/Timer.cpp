#include "desktop/win32/ControlWindow.h"

#include <map>

namespace desktop_win32 {

namespace {

class TimerPeer final : public toolkit::Peer {
public:
    explicit TimerPeer(toolkit::Timer& timer) : timer_(timer) { follow(); }
    ~TimerPeer() override { stop(); }

    void changed(toolkit::Prop /*which*/) override { follow(); }

private:
    void follow() {
        stop();
        if (!timer_.Enabled || timer_.Interval <= 0)
            return;
        due_ = GetTickCount64() + static_cast<unsigned>(timer_.Interval);
        start(static_cast<unsigned>(timer_.Interval));
    }
    void start(unsigned milliseconds) {
        id_ = SetTimer(nullptr, 0, milliseconds, elapsed);
        running()[id_] = this;
    }
    void stop() {
        if (id_ == 0)
            return;
        KillTimer(nullptr, id_);
        running().erase(id_);
        id_ = 0;
    }
    void fire() {
        const ULONGLONG now = GetTickCount64();
        const bool early = now < due_;
        const ULONGLONG left = early ? due_ - now : static_cast<unsigned>(timer_.Interval);
        if (early || late_) { // the system's clock is coarse
            stop();
            start(static_cast<unsigned>(left));
        }
        late_ = early;
        if (early)
            return;
        due_ = now + static_cast<unsigned>(timer_.Interval);
        timer_.fire(); // which may take the timer away
    }

    static std::map<UINT_PTR, TimerPeer*>& running() {
        static std::map<UINT_PTR, TimerPeer*> all;
        return all;
    }
    static void CALLBACK elapsed(HWND, UINT, UINT_PTR id, DWORD) {
        if (const auto found = running().find(id); found != running().end())
            found->second->fire();
    }

    toolkit::Timer& timer_;
    UINT_PTR id_ = 0;
    ULONGLONG due_ = 0;
    bool late_ = false; // runs for the rest of an interval
};

} // namespace

std::unique_ptr<toolkit::Peer> makeTimer(toolkit::Timer& timer) {
    return std::make_unique<TimerPeer>(timer);
}

} // namespace desktop_win32
