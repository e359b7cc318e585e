// One item of the user's locale, as UTF-8.
#pragma once

#include "platform/LocaleItems.h"
#include "platform/Platform.h"

#include <string>

namespace quorvanta {

// Empty where the platform has no answer.
inline std::string localeText(int item) {
    char buffer[100];
    const platform::Locale& locale = platform::current().locale;
    const int count = locale.GetLocaleInfoA(platform::LOCALE_USER_DEFAULT, item, buffer,
                                            static_cast<int>(sizeof buffer));
    return count == 0 ? std::string()
                      : locale.fromBytes({buffer, static_cast<std::size_t>(count) - 1});
}

} // namespace quorvanta
