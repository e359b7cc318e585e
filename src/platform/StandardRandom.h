// The generator of the C++ standard library, the same on every system.
#pragma once

#include "platform/Random.h"

#include <random>

namespace platform {

class StandardRandom final : public Random {
public:
    void seed() override;
    float next() override {
        // The generator's upper 24 bits: as many as a single-precision value below 1 can hold.
        return static_cast<float>(engine_() >> 8U) * 0x1p-24F;
    }

private:
    std::mt19937 engine_;
};

} // namespace platform
