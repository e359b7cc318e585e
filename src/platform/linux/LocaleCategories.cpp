#include "platform/linux/LocaleCategories.h"

#include <unicode/uloc.h>

#include <cstdlib>

namespace platform {

namespace {

std::string chosen(const char* category) {
    for (const char* variable : {"LC_ALL", category, "LANG"}) {
        const char* value = std::getenv(variable);
        if (value != nullptr && *value != '\0')
            return icuLocaleName(value);
    }
    return icuLocaleName({});
}

std::string scriptOf(const std::string& modifier) {
    if (modifier == "latin")
        return "_Latn";
    if (modifier == "cyrillic")
        return "_Cyrl";
    return {};
}

std::string likelyCountry(const std::string& locale) {
    char full[ULOC_FULLNAME_CAPACITY] = {};
    char country[ULOC_COUNTRY_CAPACITY] = {};
    UErrorCode status = U_ZERO_ERROR;
    uloc_addLikelySubtags(locale.c_str(), full, sizeof full, &status);
    uloc_getCountry(full, country, sizeof country, &status);
    return U_SUCCESS(status) ? country : "";
}

} // namespace

std::string icuLocaleName(const std::string& name) {
    const std::size_t modifierAt = name.find('@');
    const std::string modifier =
        modifierAt == std::string::npos ? std::string() : name.substr(modifierAt + 1);
    const std::string base = name.substr(0, name.find_first_of(".@"));

    const std::size_t countryAt = base.find('_');
    const std::string language = base.substr(0, countryAt);
    std::string country = countryAt == std::string::npos ? "" : base.substr(countryAt + 1);
    if (*uloc_getISO3Language(language.c_str()) == '\0')
        return "en_US";

    const std::string written = language + scriptOf(modifier);
    if (country.empty() || *uloc_getISO3Country(("und_" + country).c_str()) == '\0')
        country = likelyCountry(written);
    return country.empty() ? "en_US" : written + "_" + country;
}

LocaleCategories LocaleCategories::fromEnvironment() {
    return {chosen("LC_CTYPE"),    chosen("LC_NUMERIC"),     chosen("LC_TIME"),
            chosen("LC_MONETARY"), chosen("LC_MEASUREMENT"), chosen("LC_MESSAGES"),
            chosen("LC_ADDRESS")};
}

LocaleCategories LocaleCategories::of(const std::string& name) {
    const std::string it = icuLocaleName(name);
    return {it, it, it, it, it, it, it};
}

} // namespace platform
