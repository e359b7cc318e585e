#include "platform/linux/LinuxLocale.h"

#include "platform/LocaleItems.h"
#include "platform/linux/IcuCodePage.h"
#include "platform/linux/LocaleTables.h"
#include "platform/linux/Pictures.h"

#include <unicode/locid.h>
#include <unicode/ucurr.h>
#include <unicode/udat.h>
#include <unicode/uloc.h>
#include <unicode/ulocdata.h>
#include <unicode/unistr.h>
#include <unicode/unum.h>
#include <unicode/unumsys.h>

#include <cstdio>
#include <utility>

namespace platform {

namespace {

template <auto close>
struct Closer {
    template <class T>
    void operator()(T* it) const {
        close(it);
    }
};
using NumberFormat = std::unique_ptr<UNumberFormat, Closer<unum_close>>;
using DateFormat = std::unique_ptr<UDateFormat, Closer<udat_close>>;

// The text that `call` puts into a buffer, empty if it fails.
template <class Call>
std::string textOf(Call&& call) {
    UChar buffer[256] = {};
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length = call(buffer, 256, &status);
    std::string text;
    if (U_SUCCESS(status) && length > 0)
        icu::UnicodeString(false, buffer, length).toUTF8String(text);
    return text;
}

// Pictures have plain blanks, and no marks for the direction of the text.
std::string plain(const std::string& text) {
    icu::UnicodeString it = icu::UnicodeString::fromUTF8(text);
    for (const char16_t* blank : {u"\u00A0", u"\u202F", u"\u2009"})
        it.findAndReplace(blank, u" ");
    for (const char16_t* mark : {u"\u200E", u"\u200F", u"\u061C"})
        it.findAndReplace(mark, u"");
    std::string result;
    it.toUTF8String(result);
    return result;
}

NumberFormat openNumbers(UNumberFormatStyle style, const std::string& locale) {
    // The digits of numbers are always 0 to 9, and the separators those that go with them.
    UErrorCode status = U_ZERO_ERROR;
    return NumberFormat(
        unum_open(style, nullptr, 0, (locale + "@numbers=latn").c_str(), nullptr, &status));
}

DateFormat openDates(UDateFormatStyle time, UDateFormatStyle date, const std::string& locale) {
    // The time zone is none of a picture's business, and finding the user's is slow.
    UErrorCode status = U_ZERO_ERROR;
    return DateFormat(udat_open(time, date, (locale + "@calendar=gregorian").c_str(), u"UTC", 3,
                                nullptr, 0, &status));
}

std::string symbol(const NumberFormat& format, UNumberFormatSymbol which) {
    return textOf([&](UChar* buffer, int32_t size, UErrorCode* status) {
        return unum_getSymbol(format.get(), which, buffer, size, status);
    });
}

std::string patternOf(const NumberFormat& format) {
    return textOf([&](UChar* buffer, int32_t size, UErrorCode* status) {
        return unum_toPattern(format.get(), false, buffer, size, status);
    });
}

std::string datePicture(const DateFormat& format) {
    return pictureOf(plain(textOf([&](UChar* buffer, int32_t size, UErrorCode* status) {
        return udat_toPattern(format.get(), false, buffer, size, status);
    })));
}

// "3;0": groups of three all the way; "3;2;0": one of three, then twos.
std::string groupingOf(const NumberFormat& format) {
    const int first = unum_getAttribute(format.get(), UNUM_GROUPING_SIZE);
    const int next = unum_getAttribute(format.get(), UNUM_SECONDARY_GROUPING_SIZE);
    const std::string size = std::to_string(first > 0 ? first : 3);
    return next > 0 && next != first ? size + ";" + std::to_string(next) + ";0" : size + ";0";
}

std::string countryOf(const std::string& locale) {
    return locale.substr(locale.rfind('_') + 1);
}

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

} // namespace

// What ICU knows of numbers, amounts and dates, each opened at its first use.
struct LinuxLocale::Formats {
    explicit Formats(const LocaleCategories& c) : categories(c) {}

    const NumberFormat& numbers() {
        if (!numbers_)
            numbers_ = openNumbers(UNUM_DECIMAL, categories.numbers);
        return numbers_;
    }
    const NumberFormat& money() {
        if (!money_) {
            // Only Americans write negative amounts in parentheses.
            const bool accounting = countryOf(categories.money) == "US";
            money_ = openNumbers(accounting ? UNUM_CURRENCY_ACCOUNTING : UNUM_CURRENCY,
                                 categories.money);
        }
        return money_;
    }
    const DateFormat& dates() {
        if (!dates_)
            dates_ = openDates(UDAT_NONE, UDAT_SHORT, categories.dates);
        return dates_;
    }
    const std::string& shortDate() {
        if (shortDate_.empty())
            shortDate_ = datePicture(dates());
        return shortDate_;
    }
    const std::string& longDate() {
        if (longDate_.empty()) {
            longDate_ = datePicture(openDates(UDAT_NONE, UDAT_FULL, categories.dates));
            if (longDateWithoutDayName(categories.dates))
                longDate_ = withoutDayName(longDate_);
        }
        return longDate_;
    }
    const std::string& time() {
        if (time_.empty())
            time_ = datePicture(openDates(UDAT_MEDIUM, UDAT_NONE, categories.dates));
        return time_;
    }
    std::string dateSymbol(UDateFormatSymbolType type, int index) {
        return textOf([&](UChar* buffer, int32_t size, UErrorCode* status) {
            return udat_getSymbols(dates().get(), type, index, buffer, size, status);
        });
    }

private:
    const LocaleCategories& categories;
    NumberFormat numbers_, money_;
    DateFormat dates_;
    std::string shortDate_, longDate_, time_;
};

LinuxLocale::LinuxLocale(LocaleCategories categories)
    : categories_(std::move(categories)), formats_(std::make_unique<Formats>(categories_)) {}

LinuxLocale::~LinuxLocale() = default;

std::optional<std::string> LinuxLocale::GetLocaleInfoA(int locale, int item) const {
    if (locale != LOCALE_USER_DEFAULT)
        return std::nullopt;
    const std::string& text = itemText(item);
    return text.empty() ? std::nullopt : std::optional(text);
}

std::string LinuxLocale::upperCase(std::string_view text) const {
    std::string result;
    return icu::UnicodeString::fromUTF8(text)
        .toUpper(icu::Locale(categories_.dates.c_str()))
        .toUTF8String(result);
}

std::string LinuxLocale::fromBytes(std::string_view bytes) const {
    return codePage().decode(bytes);
}

std::string LinuxLocale::toBytes(std::string_view text) const {
    return codePage().encode(text);
}

const CodePage& LinuxLocale::codePage() const {
    if (!codePage_) {
        codePageNumber_ = ansiCodePage(categories_.characters);
        codePage_ = std::make_unique<CodePage>(icuCodePage(codePageNumber_));
    }
    return *codePage_;
}

const std::string& LinuxLocale::itemText(int item) const {
    const auto known = items_.find(item);
    if (known != items_.end())
        return known->second;
    return items_.emplace(item, fromBytes(toBytes(makeText(item)))).first->second;
}

std::string LinuxLocale::makeText(int item) const {
    switch (item) {
    case LOCALE_IDEFAULTCODEPAGE:
        codePage();
        return std::to_string(oemCodePage(codePageNumber_, countryOf(categories_.characters)));
    case LOCALE_IDEFAULTANSICODEPAGE:
        codePage();
        return std::to_string(codePageNumber_);
    case LOCALE_IMEASURE: {
        UErrorCode status = U_ZERO_ERROR;
        return ulocdata_getMeasurementSystem(categories_.measurement.c_str(), &status) == UMS_US
                   ? "1"
                   : "0";
    }
    case LOCALE_SLIST:
    case LOCALE_SDECIMAL:
    case LOCALE_STHOUSAND:
    case LOCALE_SGROUPING:
    case LOCALE_IDIGITS:
    case LOCALE_ILZERO:
    case LOCALE_SNATIVEDIGITS:
        return numberText(item);
    case LOCALE_ICOUNTRY:
    case LOCALE_IDEFAULTCOUNTRY:
    case LOCALE_SCOUNTRY:
    case LOCALE_SABBREVCTRYNAME:
    case LOCALE_SNATIVECTRYNAME:
    case LOCALE_SENGCOUNTRY:
        return countryText(item);
    case LOCALE_ILANGUAGE:
    case LOCALE_IDEFAULTLANGUAGE:
    case LOCALE_SLANGUAGE:
    case LOCALE_SABBREVLANGNAME:
    case LOCALE_SNATIVELANGNAME:
    case LOCALE_SENGLANGUAGE:
        return languageText(item);
    default:
        return item >= LOCALE_SCURRENCY && item <= LOCALE_INEGCURR ? moneyText(item)
                                                                   : dateText(item);
    }
}

std::string LinuxLocale::languageText(int item) const {
    const std::string& locale = categories_.language;
    const auto name = [&](auto ask, const std::string& in) {
        return textOf([&](UChar* buffer, int32_t size, UErrorCode* status) {
            return ask(locale.c_str(), in.c_str(), buffer, size, status);
        });
    };
    switch (item) {
    case LOCALE_SLANGUAGE:
        return name(uloc_getDisplayName, locale);
    case LOCALE_SABBREVLANGNAME:
        return languageAbbreviation(locale, uloc_getISO3Language(locale.c_str()));
    case LOCALE_SNATIVELANGNAME:
        return name(uloc_getDisplayLanguage, locale);
    case LOCALE_SENGLANGUAGE:
        return name(uloc_getDisplayLanguage, "en");
    default:
        return fourHexDigits(languageNumber(locale));
    }
}

std::string LinuxLocale::countryText(int item) const {
    const std::string& locale = categories_.country;
    const auto name = [&](const std::string& in) {
        return textOf([&](UChar* buffer, int32_t size, UErrorCode* status) {
            return uloc_getDisplayCountry(locale.c_str(), in.c_str(), buffer, size, status);
        });
    };
    switch (item) {
    case LOCALE_SCOUNTRY:
        return name(categories_.language);
    case LOCALE_SNATIVECTRYNAME:
        return name(locale);
    case LOCALE_SENGCOUNTRY:
        return name("en");
    case LOCALE_SABBREVCTRYNAME:
        return uloc_getISO3Country(locale.c_str());
    default:
        return telephoneCode(countryOf(locale));
    }
}

std::string LinuxLocale::numberText(int item) const {
    const NumberFormat& format = formats_->numbers();
    switch (item) {
    case LOCALE_SDECIMAL:
        return symbol(format, UNUM_DECIMAL_SEPARATOR_SYMBOL);
    case LOCALE_STHOUSAND:
        return separator(symbol(format, UNUM_GROUPING_SEPARATOR_SYMBOL));
    case LOCALE_SGROUPING:
        return groupingOf(format);
    case LOCALE_SLIST: {
        // A comma, unless it is taken. The Swiss have a point in numbers and keep the semicolon.
        const std::string country = countryOf(categories_.numbers);
        const bool taken = symbol(format, UNUM_DECIMAL_SEPARATOR_SYMBOL) == ",";
        return taken || country == "CH" || country == "LI" ? ";" : ",";
    }
    case LOCALE_ILZERO:
        return unum_getAttribute(format.get(), UNUM_MIN_INTEGER_DIGITS) > 0 ? "1" : "0";
    case LOCALE_SNATIVEDIGITS:
        return textOf([&](UChar* buffer, int32_t size, UErrorCode* status) {
            UNumberingSystem* system = unumsys_open(categories_.numbers.c_str(), status);
            const int32_t length = unumsys_getDescription(system, buffer, size, status);
            unumsys_close(system);
            return length;
        });
    default:
        return "2"; // LOCALE_IDIGITS; ICU's own default, three, is the most and not the usual
    }
}

std::string LinuxLocale::moneyText(int item) const {
    const NumberFormat& format = formats_->money();
    UErrorCode status = U_ZERO_ERROR;
    switch (item) {
    case LOCALE_SCURRENCY: {
        std::string sign = symbol(format, UNUM_CURRENCY_SYMBOL);
        if (sign == "￥")
            sign = "¥"; // of the usual width
        return codePage().has(sign) ? sign : moneyText(LOCALE_SINTLSYMBOL);
    }
    case LOCALE_SINTLSYMBOL:
        return symbol(format, UNUM_INTL_CURRENCY_SYMBOL);
    case LOCALE_SMONDECIMALSEP:
        return symbol(format, UNUM_MONETARY_SEPARATOR_SYMBOL);
    case LOCALE_SMONTHOUSANDSEP:
        return separator(symbol(format, UNUM_MONETARY_GROUPING_SEPARATOR_SYMBOL));
    case LOCALE_SMONGROUPING:
        return groupingOf(format);
    case LOCALE_ICURRENCY:
        return std::to_string(positiveCurrencyMode(patternOf(format)));
    case LOCALE_INEGCURR:
        return std::to_string(negativeCurrencyMode(patternOf(format)));
    default: { // LOCALE_ICURRDIGITS and LOCALE_IINTLCURRDIGITS
        UChar currency[4] = {};
        ucurr_forLocale(categories_.money.c_str(), currency, 4, &status);
        return std::to_string(ucurr_getDefaultFractionDigits(currency, &status));
    }
    }
}

std::string LinuxLocale::dateText(int item) const {
    const auto within = [item](int first, int count) {
        return item >= first && item < first + count;
    };
    switch (item) {
    case LOCALE_SSHORTDATE:
        return formats_->shortDate();
    case LOCALE_SLONGDATE:
        return formats_->longDate();
    case LOCALE_STIMEFORMAT:
        return formats_->time();
    case LOCALE_SDATE:
        return separatorOf(formats_->shortDate());
    case LOCALE_STIME:
        return separatorOf(formats_->time());
    case LOCALE_IDATE:
        return std::to_string(dateOrder(formats_->shortDate()));
    case LOCALE_ILDATE:
        return std::to_string(dateOrder(formats_->longDate()));
    case LOCALE_ITIME:
        return formats_->time().find('H') == std::string::npos ? "0" : "1";
    case LOCALE_ICENTURY:
        return "1"; // every short date has a year of four digits
    case LOCALE_S1159:
    case LOCALE_S2359:
        return formats_->dateSymbol(UDAT_AM_PMS, item - LOCALE_S1159);
    default:
        break;
    }
    // The week begins on Monday here, and with Sunday as number 1 in ICU.
    if (within(LOCALE_SDAYNAME1, 7))
        return formats_->dateSymbol(UDAT_WEEKDAYS, (item - LOCALE_SDAYNAME1 + 1) % 7 + 1);
    if (within(LOCALE_SABBREVDAYNAME1, 7))
        return formats_->dateSymbol(UDAT_SHORT_WEEKDAYS,
                                    (item - LOCALE_SABBREVDAYNAME1 + 1) % 7 + 1);
    if (within(LOCALE_SMONTHNAME1, 12))
        return formats_->dateSymbol(UDAT_MONTHS, item - LOCALE_SMONTHNAME1);
    if (within(LOCALE_SABBREVMONTHNAME1, 12))
        return formats_->dateSymbol(UDAT_SHORT_MONTHS, item - LOCALE_SABBREVMONTHNAME1);
    return {};
}

std::string LinuxLocale::separator(std::string text) const {
    if (text == "\u202F")
        text = "\u00A0";
    if (codePage().has(text))
        return text;
    return text == "’" ? "'" : " ";
}

} // namespace platform
