// What a locale's record needs and ICU doesn't know.
#pragma once

#include <string>

namespace platform {

// The telephone code of a country by its two letters, or empty.
std::string telephoneCode(const std::string& country);

// The code page of the character-mode programs of old, which stands beside each ANSI code page.
int oemCodePage(int ansiCodePage, const std::string& country);

// The three letters for a language in a country; `iso` is its three-letter ISO 639 code.
std::string languageAbbreviation(const std::string& locale, const std::string& iso);

// Whether the long date of a locale goes without the name of the day.
bool longDateWithoutDayName(const std::string& locale);

} // namespace platform
