#pragma once

#include "platform/Clock.h"

namespace platform {

class WindowsClock final : public Clock {
public:
    DateTime now() const override;
};

} // namespace platform
