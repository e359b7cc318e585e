#include "platform/linux/LocaleNames.h"

#include "platform/LocaleItems.h"
#include "platform/linux/LocaleData.h"
#include "platform/linux/LocaleTables.h"

#include <unicode/uloc.h>

#include <cstdio>

namespace platform {

namespace {

std::string fourHexDigits(unsigned number) {
    char text[16];
    std::snprintf(text, sizeof text, "%04x", number & 0xFFFF);
    return text;
}

unsigned languageNumber(const std::string& locale) {
    // The bits above the language's ten number the country. ICU leaves them 0 where it knows none,
    // and all set where the script decides and isn't given.
    unsigned number = uloc_getLCID(locale.c_str()) & 0xFFFF;
    if (number >> 10 == 0x1F) {
        char full[ULOC_FULLNAME_CAPACITY] = {};
        UErrorCode status = U_ZERO_ERROR;
        uloc_addLikelySubtags(locale.c_str(), full, sizeof full, &status);
        number = uloc_getLCID(full) & 0xFFFF;
    }
    return number >> 10 == 0 ? number | 0x400 : number;
}

// What one of ICU's functions calls a locale, or a part of it, in a language.
template <class Ask>
std::string nameOf(Ask ask, const std::string& locale, const std::string& language) {
    return textOf([&](UChar* buffer, int32_t size, UErrorCode* status) {
        return ask(locale.c_str(), language.c_str(), buffer, size, status);
    });
}

} // namespace

std::string languageText(int item, const std::string& locale) {
    switch (item) {
    case LOCALE_SLANGUAGE:
        return nameOf(uloc_getDisplayName, locale, locale);
    case LOCALE_SABBREVLANGNAME:
        return languageAbbreviation(locale, uloc_getISO3Language(locale.c_str()));
    case LOCALE_SNATIVELANGNAME:
        return nameOf(uloc_getDisplayLanguage, locale, locale);
    case LOCALE_SENGLANGUAGE:
        return nameOf(uloc_getDisplayLanguage, locale, "en");
    default:
        return fourHexDigits(languageNumber(locale));
    }
}

std::string countryText(int item, const std::string& locale, const std::string& language) {
    switch (item) {
    case LOCALE_SCOUNTRY:
        return nameOf(uloc_getDisplayCountry, locale, language);
    case LOCALE_SNATIVECTRYNAME:
        return nameOf(uloc_getDisplayCountry, locale, locale);
    case LOCALE_SENGCOUNTRY:
        return nameOf(uloc_getDisplayCountry, locale, "en");
    case LOCALE_SABBREVCTRYNAME:
        return uloc_getISO3Country(locale.c_str());
    default:
        return telephoneCode(countryOf(locale));
    }
}

} // namespace platform
