#include "platform/linux/LinuxLocale.h"

#include "platform/LocaleItems.h"
#include "platform/linux/IcuCodePage.h"
#include "platform/linux/LocaleNames.h"
#include "platform/linux/LocaleTables.h"

#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <utility>

namespace platform {

LinuxLocale::LinuxLocale(LocaleCategories categories)
    : categories_(std::move(categories)),
      numbers_(categories_.numbers),
      money_(categories_.money),
      dates_(categories_.dates) {}

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
        const std::string country = countryOf(categories_.measurement);
        return commonText("supplementalData",
                          "measurementData/" + country + "/MeasurementSystem") == "1"
                   ? "1" // that of the United States
                   : "0";
    }
    case LOCALE_STHOUSAND:
        return separator(numbers_.text(item));
    case LOCALE_SMONTHOUSANDSEP:
        return separator(money_.text(item));
    case LOCALE_SCURRENCY: {
        const std::string sign = money_.text(item);
        return codePage().has(sign) ? sign : money_.text(LOCALE_SINTLSYMBOL);
    }
    case LOCALE_SLIST:
    case LOCALE_SDECIMAL:
    case LOCALE_SGROUPING:
    case LOCALE_IDIGITS:
    case LOCALE_ILZERO:
    case LOCALE_SNATIVEDIGITS:
        return numbers_.text(item);
    case LOCALE_ICOUNTRY:
    case LOCALE_IDEFAULTCOUNTRY:
    case LOCALE_SCOUNTRY:
    case LOCALE_SABBREVCTRYNAME:
    case LOCALE_SNATIVECTRYNAME:
    case LOCALE_SENGCOUNTRY:
        return countryText(item, categories_.country, categories_.language);
    case LOCALE_ILANGUAGE:
    case LOCALE_IDEFAULTLANGUAGE:
    case LOCALE_SLANGUAGE:
    case LOCALE_SABBREVLANGNAME:
    case LOCALE_SNATIVELANGNAME:
    case LOCALE_SENGLANGUAGE:
        return languageText(item, categories_.language);
    default:
        return item >= LOCALE_SCURRENCY && item <= LOCALE_INEGCURR ? money_.text(item)
                                                                   : dates_.text(item);
    }
}

std::string LinuxLocale::separator(std::string text) const {
    if (text == "\u202F")
        text = "\u00A0";
    if (codePage().has(text))
        return text;
    return text == "’" ? "'" : " ";
}

} // namespace platform
