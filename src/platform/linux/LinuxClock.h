// The system's clock and the random generator that is seeded from it.
#pragma once

#include "platform/Clock.h"
#include "platform/Random.h"

#include <random>

namespace platform {

class LinuxClock : public Clock {
public:
    DateTime now() const override;
};

class LinuxRandom : public Random {
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
