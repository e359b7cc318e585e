// The run's one uniform random generator.
#pragma once

namespace platform {

class Random {
public:
    virtual ~Random() = default;

    // Seeds the generator from the clock at its finest tick and from the system's entropy.
    virtual void seed() = 0;

    // The next value r, single precision, 0 <= r < 1, with 24 bits of resolution.
    virtual float next() = 0;
};

} // namespace platform
