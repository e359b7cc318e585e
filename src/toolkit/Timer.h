// Fires in the event loop, so it never interrupts running code.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

class Timer : public Control {
public:
    using Control::Control;

    Property<int> Interval{*this, Prop::Interval}; // milliseconds; 0 never fires
    std::function<void()> Tick;

    // A desktop calls it each time that the interval has passed while the timer is enabled.
    void fire();
};

// No timer fires while one of these lives: a desktop runs events of its own while it brings a
// window up. A turn that falls due meanwhile is left out.
class TimersHeld {
public:
    TimersHeld() { ++held_; }
    ~TimersHeld() { --held_; }
    TimersHeld(const TimersHeld&) = delete;
    TimersHeld& operator=(const TimersHeld&) = delete;

private:
    friend class Timer;
    static inline int held_ = 0;
};

} // namespace toolkit
