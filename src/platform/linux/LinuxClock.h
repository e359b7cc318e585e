#pragma once

#include "platform/Clock.h"

namespace platform {

class LinuxClock final : public Clock {
public:
    DateTime now() const override;
};

} // namespace platform
