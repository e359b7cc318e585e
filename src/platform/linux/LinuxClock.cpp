#include "platform/linux/LinuxClock.h"

#include <chrono>
#include <ctime>

namespace platform {

DateTime LinuxClock::now() const {
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    localtime_r(&seconds, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
            local.tm_hour,        local.tm_min,     local.tm_sec};
}

void LinuxRandom::seed() {
    const auto ticks = static_cast<unsigned long long>(
        std::chrono::system_clock::now().time_since_epoch().count());
    std::random_device entropy;
    std::seed_seq mixed{static_cast<unsigned>(ticks),
                        static_cast<unsigned>(ticks >> 32U),
                        entropy(),
                        entropy(),
                        entropy(),
                        entropy()};
    engine_.seed(mixed);
}

} // namespace platform
