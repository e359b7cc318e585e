// The machine and the user's locale, asked afresh at every read.
#pragma once

#include "common/WorkerProperty.h"
#include "platform/LocaleItems.h"
#include "platform/Machine.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace quorvanta {

// Every property is text, also where the locale's item is a number, and the empty text where the
// platform has no answer. An instance serves one caller at a time.
class cLocalSettings {
public:
    // The logged-on user and the computer. What is let or set is kept until the next Get, which
    // takes the platform's answer in its place.
    class Name : public VariantProperty<std::string> {
    public:
        using Question = std::optional<std::string> (platform::Machine::*)() const;
        explicit Name(Question ask) : ask_(ask) {}

        using VariantProperty::operator=;
        const std::string& operator()();

    private:
        Question ask_;
    };
    Name prpComputerUserName{&platform::Machine::GetUserNameA};
    Name prpComputerName{&platform::Machine::GetComputerNameA};

    std::string prpCenturyFormatSpecificer() { return read(platform::LOCALE_ICENTURY); }
    std::string prpTimeFormatSpecifier() { return read(platform::LOCALE_ITIME); }
    std::string prpLongDateFormatOrdering() { return read(platform::LOCALE_ILDATE); }
    std::string prpShortDateFormatOrdering() { return read(platform::LOCALE_IDATE); }
    std::string prpTimeFormat() { return read(platform::LOCALE_STIMEFORMAT); }
    std::string prpLongDateFormat() { return read(platform::LOCALE_SLONGDATE); }
    std::string prpShortDateFormat() { return read(platform::LOCALE_SSHORTDATE); }
    std::string prpTimeSeperator() { return read(platform::LOCALE_STIME); }
    std::string prpDateSeperator() { return read(platform::LOCALE_SDATE); }
    std::string prpNegativeCurrencyMode() { return read(platform::LOCALE_INEGCURR); }
    std::string prpPositiveMonetaryMode() { return read(platform::LOCALE_ICURRENCY); }
    std::string prpIntlMonetaryDigits() { return read(platform::LOCALE_IINTLCURRDIGITS); }
    std::string prpLocalMonetaryDigits() { return read(platform::LOCALE_ICURRDIGITS); }
    std::string prpMonetaryGrouping() { return read(platform::LOCALE_SMONGROUPING); }
    std::string prpMonetaryThousandSeperator() { return read(platform::LOCALE_SMONTHOUSANDSEP); }
    std::string prpMonetaryDecimalSeperator() { return read(platform::LOCALE_SMONDECIMALSEP); }
    std::string prpIntlMonetarySymbol() { return read(platform::LOCALE_SINTLSYMBOL); }
    std::string prpLocalCurrencySymbol() { return read(platform::LOCALE_SCURRENCY); }
    std::string prpNativeAscii() { return read(platform::LOCALE_SNATIVEDIGITS); }
    std::string prpLeadingZeros() { return read(platform::LOCALE_ILZERO); }
    std::string prpFractionalDigits() { return read(platform::LOCALE_IDIGITS); }
    std::string prpDigitGrouping() { return read(platform::LOCALE_SGROUPING); }
    std::string prpThousandSeperator() { return read(platform::LOCALE_STHOUSAND); }
    std::string prpDecimalSeperator() { return read(platform::LOCALE_SDECIMAL); }

    // "Metric" or "US". Raises TypeMismatch where the platform has no answer.
    std::string prpMetrics();

    std::string prpListItemSeperator() { return read(platform::LOCALE_SLIST); }
    std::string prpDefaultCodePage() { return read(platform::LOCALE_IDEFAULTCODEPAGE); }
    std::string prpDefaultCountryCode() { return read(platform::LOCALE_IDEFAULTCOUNTRY); }
    std::string prpDefaultLanguageId() { return read(platform::LOCALE_IDEFAULTLANGUAGE); }
    std::string prpNativeNameOfCountry() { return read(platform::LOCALE_SNATIVECTRYNAME); }
    std::string prpAbbrevCountryName() { return read(platform::LOCALE_SABBREVCTRYNAME); }
    std::string prpEnglishNameOfCountry() { return read(platform::LOCALE_SENGCOUNTRY); }
    std::string prpLocalizedNameOfCountry() { return read(platform::LOCALE_SCOUNTRY); }
    std::string prpCountryCode() { return read(platform::LOCALE_ICOUNTRY); }
    std::string prpNativeNameOfLanguage() { return read(platform::LOCALE_SNATIVELANGNAME); }
    std::string prpAbbreviatedLanguageName() { return read(platform::LOCALE_SABBREVLANGNAME); }
    std::string prpLanguageId() { return read(platform::LOCALE_ILANGUAGE); }
    std::string prpLocalLanguageName() { return read(platform::LOCALE_SLANGUAGE); }
    std::string prpLocalLanguageEnglishName() { return read(platform::LOCALE_SENGLANGUAGE); }
    std::string prpLocalCurrency() { return read(platform::LOCALE_SCURRENCY); }
    std::string prpLocalCountry() { return read(platform::LOCALE_SENGCOUNTRY); }

    // Where programs are looked for.
    std::string prpWinDirectory() { return GetWindowsDir(); }
    std::string prpWinSysDirectory() { return GetWindowsSysDir(); }

    // The part of `buffer` ahead of its first NUL; empty if there is none, since a buffer without
    // one was never filled.
    static std::string StringFromBuffer(std::string_view buffer);

private:
    std::string read(platform::LocaleItem item);
    std::string GetWindowsDir();
    std::string GetWindowsSysDir();

    // Padded with blanks after each read and never with NULs: what a failing call leaves untouched
    // then holds no text of the read before.
    std::array<char, 100> mstrBuffer{};
    std::string mstrLocaleLength;
    std::string mstrLocaleValue;
};

} // namespace quorvanta
