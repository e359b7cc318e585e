#include "platform/linux/LocaleNumbers.h"

#include "platform/LocaleItems.h"
#include "platform/linux/Pictures.h"

#include <unicode/ucurr.h>

namespace platform {

namespace {

// The digits of numbers are always 0 to 9, and the separators those that go with them.
const std::string kSymbols = "NumberElements/latn/symbols/";
const std::string kPatterns = "NumberElements/latn/patterns/";

// The currency's three letters.
std::string currencyOf(const std::string& locale) {
    return textOf([&](UChar* buffer, int32_t size, UErrorCode* status) {
        return ucurr_forLocale(locale.c_str(), buffer, size, status);
    });
}

} // namespace

std::string LocaleNumbers::text(int item) const {
    const auto pattern = [&] { return data_.text(kPatterns + "decimalFormat"); };
    switch (item) {
    case LOCALE_SDECIMAL:
        return data_.text(kSymbols + "decimal");
    case LOCALE_STHOUSAND:
        return data_.text(kSymbols + "group");
    case LOCALE_SGROUPING:
        return groupingOf(pattern());
    case LOCALE_SLIST: {
        // A comma, unless it is taken. The Swiss have a point in numbers and keep the semicolon.
        const std::string country = countryOf(data_.locale());
        const bool taken = text(LOCALE_SDECIMAL) == ",";
        return taken || country == "CH" || country == "LI" ? ";" : ",";
    }
    case LOCALE_ILZERO:
        return pattern().find("0.") != std::string::npos ? "1" : "0";
    case LOCALE_SNATIVEDIGITS:
        return commonText("numberingSystems",
                          "numberingSystems/" + data_.text("NumberElements/default") + "/desc");
    default:
        return "2"; // LOCALE_IDIGITS; ICU's own default, three, is the most and not the usual
    }
}

std::string LocaleMoney::ofCurrency(std::initializer_list<int> places) const {
    const std::string currency = currencyOf(data_.locale());
    return currency.empty() ? currency : currencies_.text("Currencies/" + currency, places);
}

// Some currencies have a pattern and separators of their own in a locale.
std::string LocaleMoney::pattern() const {
    std::string own = ofCurrency({2, 0});
    if (!own.empty())
        return own;
    // Only Americans write negative amounts in parentheses.
    const bool accounting = countryOf(data_.locale()) == "US";
    return data_.text(kPatterns + (accounting ? "accountingFormat" : "currencyFormat"));
}

std::string LocaleMoney::separator(int place, const char* name, const char* inNumbers) const {
    std::string it = ofCurrency({2, place});
    if (it.empty())
        it = data_.text(kSymbols + name);
    return it.empty() ? data_.text(kSymbols + inNumbers) : it;
}

std::string LocaleMoney::text(int item) const {
    switch (item) {
    case LOCALE_SCURRENCY: {
        const std::string sign = ofCurrency({0});
        if (sign.empty())
            return currencyOf(data_.locale());
        return sign == "￥" ? "¥" : sign; // of the usual width
    }
    case LOCALE_SINTLSYMBOL:
        return currencyOf(data_.locale());
    case LOCALE_SMONDECIMALSEP:
        return separator(1, "currencyDecimal", "decimal");
    case LOCALE_SMONTHOUSANDSEP:
        return separator(2, "currencyGroup", "group");
    case LOCALE_SMONGROUPING:
        return groupingOf(pattern());
    case LOCALE_ICURRENCY:
        return std::to_string(positiveCurrencyMode(pattern()));
    case LOCALE_INEGCURR:
        return std::to_string(negativeCurrencyMode(pattern()));
    default: { // LOCALE_ICURRDIGITS and LOCALE_IINTLCURRDIGITS
        UChar currency[4] = {};
        UErrorCode status = U_ZERO_ERROR;
        ucurr_forLocale(data_.locale().c_str(), currency, 4, &status);
        return std::to_string(ucurr_getDefaultFractionDigits(currency, &status));
    }
    }
}

} // namespace platform
