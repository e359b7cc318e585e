// Which locale the user chose for what.
#pragma once

#include <string>

namespace platform {

// The user's locales as ICU names them: language, script if it isn't the usual one, and country
// ("de_CH", "sr_Latn_RS"). A country is always there.
struct LocaleCategories {
    std::string characters;  // LC_CTYPE: the code pages
    std::string numbers;     // LC_NUMERIC
    std::string dates;       // LC_TIME
    std::string money;       // LC_MONETARY
    std::string measurement; // LC_MEASUREMENT
    std::string language;    // LC_MESSAGES
    std::string country;     // LC_ADDRESS

    // From the environment: for each category LC_ALL, the category's own variable, LANG, the first
    // one that isn't empty. The C library isn't asked, since it only knows the locales that were
    // generated on the machine.
    static LocaleCategories fromEnvironment();

    // The same locale for everything.
    static LocaleCategories of(const std::string& name);
};

// ICU's name of a locale that is named the way of the environment ("sr_RS.UTF-8@latin"). "C",
// "POSIX", no name and a name of no known language are taken for en_US: the program speaks English,
// and a locale without a country or a currency would leave half of the machine's record empty.
std::string icuLocaleName(const std::string& name);

} // namespace platform
