#include "toolkit/Timer.h"

namespace toolkit {

void Timer::fire() {
    if (Enabled && Tick && TimersHeld::held_ == 0)
        raise(Tick);
}

} // namespace toolkit
