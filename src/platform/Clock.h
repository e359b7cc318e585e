// The time of day, in the user's time zone.
#pragma once

namespace platform {

// A date and time of the civil calendar. The value with every field 0 means "none".
struct DateTime {
    int year = 0;
    int month = 0; // 1 to 12
    int day = 0;   // 1 to 31
    int hour = 0;  // 0 to 23
    int minute = 0;
    int second = 0;

    bool operator==(const DateTime&) const = default;
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual DateTime now() const = 0;
};

} // namespace platform
