// The names and numbers of languages and countries.
#pragma once

#include <string>

namespace platform {

// The text of a LOCALE_ item of the language.
std::string languageText(int item, const std::string& locale);

// The text of a LOCALE_ item of the country of a locale, whose name for the user is in `language`.
std::string countryText(int item, const std::string& locale, const std::string& language);

} // namespace platform
