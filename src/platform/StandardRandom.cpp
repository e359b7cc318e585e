#include "platform/StandardRandom.h"

#include <chrono>
#include <exception>
#include <vector>

namespace platform {

void StandardRandom::seed() {
    const auto ticks = static_cast<unsigned long long>(
        std::chrono::system_clock::now().time_since_epoch().count());
    std::vector<unsigned> sources{static_cast<unsigned>(ticks),
                                  static_cast<unsigned>(ticks >> 32U)};
    try {
        std::random_device entropy;
        for (int i = 0; i < 4; ++i)
            sources.push_back(entropy());
    } catch (const std::exception&) {
        // A system without entropy at hand leaves the clock.
    }
    std::seed_seq mixed(sources.begin(), sources.end());
    engine_.seed(mixed);
}

} // namespace platform
