// The record of the machine in the debug log, of MainCode_ZW.
#include "common/ErrorReport.h"
#include "common/Trap.h"
#include "common/cLocalSettings.h"
#include "frame/MainCode_ZW.h"

namespace quorvanta {

namespace {

constexpr int kNoNumber = -1;
constexpr platform::DateTime kNoTime;

struct Row {
    const char* label;
    std::string (cLocalSettings::*property)();
};

constexpr Row kRecord[] = {
    {"Country Name: ", &cLocalSettings::prpAbbrevCountryName},
    {"CountryCode: ", &cLocalSettings::prpCountryCode},
    {"Date Seperator: ", &cLocalSettings::prpDateSeperator},
    {"Decimal Seperator: ", &cLocalSettings::prpDecimalSeperator},
    {"CountryCode: ", &cLocalSettings::prpCountryCode},
    {"Default Code Page: ", &cLocalSettings::prpDefaultCodePage},
    {"Default Country Code: ", &cLocalSettings::prpDefaultCountryCode},
    {"Default Language Id: ", &cLocalSettings::prpDefaultLanguageId},
    {"English Name of Country: ", &cLocalSettings::prpEnglishNameOfCountry},
    {"Intl. Monetary Symbol: ", &cLocalSettings::prpIntlMonetarySymbol},
    {"Language Id: ", &cLocalSettings::prpLanguageId},
    {"Leading Zeros: ", &cLocalSettings::prpLeadingZeros},
    {"ListItem Seperator: ", &cLocalSettings::prpListItemSeperator},
    {"Local Country: ", &cLocalSettings::prpLocalCountry},
    {"Local Currency: ", &cLocalSettings::prpLocalCurrency},
    {"Local Currency Symbol: ", &cLocalSettings::prpLocalCurrencySymbol},
    {"Localized Name of Country: ", &cLocalSettings::prpLocalizedNameOfCountry},
    {"Local Language English Name: ", &cLocalSettings::prpLocalLanguageEnglishName},
    {"Local Language Name: ", &cLocalSettings::prpLocalLanguageName},
    {"Local Monetary Digits: ", &cLocalSettings::prpLocalMonetaryDigits},
    {"Long Date Format: ", &cLocalSettings::prpLongDateFormat},
    {"Long Date Format Ordering: ", &cLocalSettings::prpLongDateFormatOrdering},
    {"Metrics: ", &cLocalSettings::prpMetrics},
    {"Monetary Decimal Seperator: ", &cLocalSettings::prpMonetaryDecimalSeperator},
    {"Native Ascii: ", &cLocalSettings::prpNativeAscii},
    {"Native Name of Country: ", &cLocalSettings::prpNativeNameOfCountry},
    {"Native Name of Language: ", &cLocalSettings::prpNativeNameOfLanguage},
    {"Native Currence Mode: ", &cLocalSettings::prpNegativeCurrencyMode},
    {"Positive Monetary Mode: ", &cLocalSettings::prpPositiveMonetaryMode},
    {"Short Date Format: ", &cLocalSettings::prpShortDateFormat},
    {"Short Date Format Ordering: ", &cLocalSettings::prpShortDateFormatOrdering},
    {"Thousand Seperator: ", &cLocalSettings::prpThousandSeperator},
    {"Time Format: ", &cLocalSettings::prpTimeFormat},
    {"Time Format Specifier: ", &cLocalSettings::prpTimeFormatSpecifier},
    {"Time Seperator: ", &cLocalSettings::prpTimeSeperator},
};

} // namespace

void WriteSystemData() {
    trapped("MainCodeYQ.WriteSystemData", [](auto step) {
        cLocalSettings settings;
        const auto record = [](const char* label, const std::string& value) {
            WriteDebugLog(kNoNumber, label, value, kNoTime);
        };
        step([&] { record("Computer Name: ", settings.prpComputerName()); });
        step([&] { record("Computer UserName: ", settings.prpComputerUserName()); });
        for (const Row& row : kRecord)
            step([&] { record(row.label, (settings.*row.property)()); });
        step([&] { record("End of Debug Info Gathering ", ""); });
        step([&] { record("", ""); });
        step([&] { gstrShortDateFormat = settings.prpShortDateFormat(); });
    });
}

} // namespace quorvanta
