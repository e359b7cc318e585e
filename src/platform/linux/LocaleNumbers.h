// The numbers and amounts of a locale: separators, groups, digits, currency. The separators and the
// currency's sign are ICU's, whether the user's code page has them or not.
#pragma once

#include "platform/linux/LocaleData.h"

#include <string>

namespace platform {

class LocaleNumbers {
public:
    explicit LocaleNumbers(const std::string& locale) : data_(locale) {}

    // The text of a LOCALE_ item of numbers.
    std::string text(int item) const;

private:
    LocaleData data_;
};

class LocaleMoney {
public:
    explicit LocaleMoney(const std::string& locale) : data_(locale), currencies_(locale, "curr") {}

    // The text of a LOCALE_ item of amounts.
    std::string text(int item) const;

private:
    std::string pattern() const;
    std::string separator(int place, const char* name, const char* inNumbers) const;

    // A text of the locale's currency.
    std::string ofCurrency(std::initializer_list<int> places) const;

    LocaleData data_, currencies_;
};

} // namespace platform
