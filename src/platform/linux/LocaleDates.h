// The dates and times of a locale: pictures, separators, names.
#pragma once

#include "platform/linux/LocaleData.h"

#include <string>

namespace platform {

class LocaleDates {
public:
    explicit LocaleDates(const std::string& locale) : data_(locale) {}

    // The text of a LOCALE_ item of dates and times, empty for any other.
    std::string text(int item) const;

private:
    std::string shortDate() const;
    std::string longDate() const;
    std::string time() const;
    std::string picture(int place) const;
    std::string name(const char* kind, std::initializer_list<int> place = {}) const;

    LocaleData data_;
};

} // namespace platform
