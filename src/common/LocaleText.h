// One item of the user's locale, as UTF-8.
#pragma once

#include "platform/LocaleItems.h"
#include "platform/Platform.h"

#include <string>

namespace quorvanta {

// Empty where the platform has no answer.
inline std::string localeText(int item) {
    const platform::Locale& locale = platform::current().locale;
    return locale.GetLocaleInfoA(platform::LOCALE_USER_DEFAULT, item).value_or("");
}

} // namespace quorvanta
