#include "common/DateText.h"
#include "common/NumberText.h"
#include "platform/LocaleItems.h"
#include "platform/linux/LinuxLocale.h"
#include "platform/linux/LinuxMachine.h"
#include "tests/support/RealFiles.h"

#include <gtest/gtest.h>

#include <unicode/datefmt.h>
#include <unicode/dcfmtsym.h>
#include <unicode/decimfmt.h>

#include <algorithm>
#include <cstdlib>

using namespace platform;

namespace {

using tests::localeNamed, tests::valueOf, tests::valuesOf;

TEST(LinuxLocale, ItemsHaveThePublishedValues) {
    const std::tuple<const char*, int, const char*> rows[] = {
        {"POSIX", LOCALE_SDATE, "|/|:|M/d/yyyy|dddd, MMMM d, yyyy|0|0|0|1"},
        {"de_DE@euro", LOCALE_ILANGUAGE, "|0407|Deutsch (Deutschland)|DEU|Deutsch|49"},
        {"de", LOCALE_SABBREVCTRYNAME, "|DEU"},
        {"hi_IN", LOCALE_IDEFAULTANSICODEPAGE, "|1252"},
        {"ru_RU", LOCALE_SLONGDATE, "|d MMMM yyyy '\xE3.'"},
        {"fi_FI", LOCALE_STIME, "|."},
        {"ar_EG", LOCALE_SNATIVEDIGITS, "|0123456789"},
        {"sr_RS@latin", LOCALE_ILANGUAGE, "|241a"},
        {"sr_RS", LOCALE_ILANGUAGE, "|281a"}};
    for (const auto& [name, first, values] : rows)
        EXPECT_EQ(valuesOf(localeNamed(name), first, values), values) << name << " " << first;
}

TEST(LinuxLocale, EachCategoryIsItsOwnBetweenLcAllAndLang) {
    const auto values = [] {
        std::string result;
        const LinuxLocale locale;
        for (const int item : {LOCALE_SSHORTDATE, LOCALE_SINTLSYMBOL, LOCALE_IMEASURE,
                               LOCALE_SDECIMAL, LOCALE_ICOUNTRY, LOCALE_ILANGUAGE})
            result.append("|").append(valueOf(locale, item));
        return result;
    };
    ::clearenv();
    EXPECT_EQ(values(), "|M/d/yyyy|USD|1|.|1|0409");
    ::setenv("LANG", "de_DE.UTF-8", 1);
    ::setenv("LC_TIME", "sv_SE.UTF-8", 1);
    ::setenv("LC_MONETARY", "ja_JP.UTF-8", 1);
    ::setenv("LC_MEASUREMENT", "en_US.UTF-8", 1);
    ::setenv("LC_NUMERIC", "", 1);
    EXPECT_EQ(values(), "|yyyy-MM-dd|JPY|1|,|49|0407");
    ::setenv("LC_ALL", "fr_FR.UTF-8", 1);
    EXPECT_EQ(values(), "|dd/MM/yyyy|EUR|0|,|33|040c");
}

// Where the picture "##,##0.00" departs from ICU's amounts: groups of three and not of two, a
// no-break space of full width, "-" for another minus.
enum Departure { None = 0, ByThree = 1, Blank = 2, Minus = 4 };

std::string amountOfIcu(const std::string& locale, double value, int departures) {
    using Symbols = icu::DecimalFormatSymbols;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::NumberFormat> made(
        icu::NumberFormat::createInstance(icu::Locale((locale + "@numbers=latn").c_str()), status));
    auto& format = dynamic_cast<icu::DecimalFormat&>(*made);
    format.setMinimumFractionDigits(2);
    format.setMaximumFractionDigits(2);
    format.setRoundingMode(icu::DecimalFormat::kRoundHalfUp);
    if (departures & ByThree)
        format.setSecondaryGroupingSize(3);
    Symbols symbols(*format.getDecimalFormatSymbols());
    if (departures & Blank)
        symbols.setSymbol(Symbols::kGroupingSeparatorSymbol, u"\u00A0");
    if (departures & Minus)
        symbols.setSymbol(Symbols::kMinusSignSymbol, u"-");
    format.setDecimalFormatSymbols(symbols);
    icu::UnicodeString text;
    std::string result;
    return format.format(value, text).toUTF8String(result);
}

std::string dateOfIcu(const std::string& locale, icu::DateFormat::EStyle style, int month) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale gregorian((locale + "@calendar=gregorian;numbers=latn").c_str());
    const std::unique_ptr<icu::Calendar> day(icu::Calendar::createInstance(gregorian, status));
    day->set(2005, month - 1, 25, 12, 0);
    icu::UnicodeString text;
    std::string result;
    return std::unique_ptr<icu::DateFormat>(icu::DateFormat::createDateInstance(style, gregorian))
        ->format(day->getTime(status), text)
        .toUTF8String(result);
}

TEST(LinuxLocale, AmountsAndDatesAreThoseOfIcuButForTheNamedDepartures) {
    using namespace quorvanta;
    const std::pair<const char*, int> rows[] = {
        {"en_US", None}, {"de_DE", None},  {"de_CH", None},  {"ja_JP", None}, {"ru_RU", None},
        {"pt_BR", None}, {"cs_CZ", None},  {"hu_HU", None},  {"ko_KR", None}, {"hi_IN", ByThree},
        {"es_ES", None}, {"fr_FR", Blank}, {"sv_SE", Minus}, {"C", None}};
    for (const auto& [name, departures] : rows) {
        SCOPED_TRACE(name);
        const tests::RealFilesPlatform system(name);
        const auto throughFile = [&](const std::string& text) {
            return system.locale.fromBytes(system.locale.toBytes(text));
        };
        const std::string icuName = name == std::string("C") ? "en_US" : name;
        for (const double value : {0.0, 1234.5, -749.5, 0.125, 1.005, -2.675, 999999999999.99}) {
            const std::string shown = FormatMoney(value), own = amountOfIcu(icuName, value, None);
            EXPECT_EQ(shown, amountOfIcu(icuName, value, departures));
            EXPECT_EQ(CDbl(own), CDbl(throughFile(shown))) << own;
        }
        EXPECT_EQ(FormatMoney(-1234.5) == amountOfIcu(icuName, -1234.5, None) &&
                      FormatMoney(1e6) == amountOfIcu(icuName, 1e6, None),
                  departures == None);
        for (int month = 1; month <= 12; ++month) {
            const DateTime when{2005, month, 25, month * 2 - 1, 42, 7}, day{2005, month, 25};
            EXPECT_EQ(ReadDate(throughFile(ShortDateTime(when))), when) << ShortDateTime(when);
            if (icuName == "hi_IN")
                continue; // its letters are in no 8-bit code page
            for (const auto style : {icu::DateFormat::kShort, icu::DateFormat::kMedium,
                                     icu::DateFormat::kLong, icu::DateFormat::kFull})
                EXPECT_EQ(ReadDate(dateOfIcu(icuName, style, month)), day)
                    << dateOfIcu(icuName, style, month);
        }
    }
}

TEST(LinuxLocale, WhatAPersonTypesIsReadAsAmountOrDate) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        // the locale, what it reads, what it refuses
        {"en_US", "1,234.5|1234.5|July 25, 2005|25-jul-05|7.25.2005", "1.234,5|1 234.5|25/7/2005"},
        {"de_DE", "1.234,5|1234,5|25. JULI 2005|25.7.05|25/7/2005", "1,234.5|7/25/2005|2/30/2005"},
        {"fr_FR", "1 234,5|1\u202F234,5|25 juillet 2005|25 Juil. 05|lundi 25/07/2005", "1.234,5"},
        {"de_CH", "1'234.5|1’234.5|Montag, 25. Juli 2005|25.07.2005", "1,234.5|13/13/2005"},
        {"ru_RU", "1 234,5|25 ИЮЛЯ 2005|25.07.2005 г.|пн, 25 июл. 2005 г.", "1,234.5"},
        {"tr_TR", "1.234,5|25 TEMMUZ 2005 PAZARTESİ", "25 TEMMUZ 2005 PAZARTESI"},
        {"el_GR", "1.234,5|25 ΙΟΥΛΊΟΥ 2005|25 ΙΟΥΛΙΟΥ 2005|25 Ιουλίου 2005", "1,234.5"},
        {"sv_SE", "1 234,5|2005-07-25|25/7 2005|25 juli 2005", "13/13/2005|abc"},
        {"en_GB", "1,234.5|25/7/2005|25 July 2005|2005-07-25T00:00", "7/25/2005|July"}};
    using namespace quorvanta;
    const DateTime day{2005, 7, 25};
    for (const auto& [name, read, refused] : rows) {
        SCOPED_TRACE(name);
        const tests::RealFilesPlatform system(name);
        std::istringstream texts(read), others(refused);
        for (std::string text; std::getline(texts, text, '|');)
            EXPECT_TRUE(ReadNumber(text) == 1234.5 || ReadDate(text) == day) << text;
        for (std::string text; std::getline(others, text, '|');)
            EXPECT_FALSE(ReadNumber(text) || ReadDate(text)) << text;
    }
}

TEST(LinuxMachine, KnowsItsUserItsNameAndTwoDirectories) {
    const LinuxMachine machine;
    EXPECT_NE(machine.GetUserNameA().value_or(""), "");
    EXPECT_EQ(machine.GetComputerNameA().value_or(".").find('.'), std::string::npos);
    EXPECT_EQ(machine.GetWindowsDirectoryA(), "/usr/bin");
    EXPECT_EQ(machine.GetSystemDirectoryA(), "/usr/sbin");
}

} // namespace
