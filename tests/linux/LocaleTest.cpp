#include "common/DateText.h"
#include "common/NumberText.h"
#include "platform/LocaleItems.h"
#include "platform/linux/LinuxLocale.h"
#include "tests/support/RealFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

using namespace platform;

namespace {

using tests::valueOf;

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

TEST(LinuxLocale, AmountsAndDatesComeBackFromTheFileAndAreReadAsAPersonTypesThem) {
    using namespace quorvanta;
    const std::string nbsp = "\u00A0", spaced = "1" + nbsp + "234" + nbsp + "567,50 -749,13",
                      points = "1.234.567,50 -749,13", commas = "1,234,567.50 -749.13";
    const std::tuple<const char*, std::string, std::string, std::string> rows[] = {
        // the locale, its amounts, what it reads, what it refuses
        {"en_US", commas, "1,234.5|1234.5|July 25, 2005|25-jul-05|7.25.2005",
         "1.234,5|1 234.5|25/7/2005"},
        {"de_DE", points, "1.234,5|1234,5|25. JULI 2005|25.7.05|25/7/2005",
         "1,234.5|7/25/2005|2/30/2005"},
        {"fr_FR", spaced, "1 234,5|1\u202F234,5|25 juillet 2005|25 Juil. 05|lundi 25/07/2005",
         "1.234,5"},
        {"de_CH", "1’234’567.50 -749.13", "1'234.5|1’234.5|Montag, 25. Juli 2005|25.07.2005",
         "1,234.5|13/13/2005"},
        {"ru_RU", spaced, "1 234,5|25 ИЮЛЯ 2005|25.07.2005 г.|пн, 25 июл. 2005 г.", "1,234.5"},
        {"tr_TR", points, "1.234,5|25 TEMMUZ 2005 PAZARTESİ", "25 TEMMUZ 2005 PAZARTESI"},
        {"el_GR", points, "1.234,5|25 ΙΟΥΛΊΟΥ 2005|25 ΙΟΥΛΙΟΥ 2005|25 Ιουλίου 2005", "1,234.5"},
        {"sv_SE", spaced, "1 234,5|2005-07-25|25/7 2005|25 juli 2005", "13/13/2005|abc"},
        {"en_GB", commas, "1,234.5|25/7/2005|25 July 2005|2005-07-25T00:00", "7/25/2005|July"},
        {"ja_JP", commas, "1,234.5", ""},
        {"cs_CZ", spaced, "1 234,5", ""},
        {"es_ES", points, "1.234,5", ""},
        {"hi_IN", commas, "1,234.5", ""},
        {"C", commas, "1,234.5", ""}};
    for (const auto& [name, amounts, read, refused] : rows) {
        SCOPED_TRACE(name);
        const tests::RealFilesPlatform system(name);
        const auto throughFile = [&](const std::string& text) {
            return system.locale.fromBytes(system.locale.toBytes(text));
        };
        const std::string longDate =
            system.locale.GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SLONGDATE).value();
        EXPECT_EQ(FormatMoney(1234567.5) + " " + FormatMoney(-749.125), amounts);
        EXPECT_EQ(CDbl(throughFile(FormatMoney(-1234567.5))), -1234567.5);
        for (int month = 1; month <= 12; ++month) {
            const DateTime when{2005, month, 25, month * 2 - 1, 42, 7};
            EXPECT_EQ(ReadDate(throughFile(ShortDateTime(when))), when) << ShortDateTime(when);
            const std::string text = FormatDate(when, longDate);
            if (name != std::string("hi_IN")) { // its letters are in no 8-bit code page
                EXPECT_EQ(ReadDate(throughFile(text)), (DateTime{2005, month, 25})) << text;
            }
        }
        std::istringstream texts(read), others(refused);
        for (std::string text; std::getline(texts, text, '|');)
            EXPECT_TRUE(ReadNumber(text) == 1234.5 || ReadDate(text) == DateTime({2005, 7, 25}))
                << text;
        for (std::string text; std::getline(others, text, '|');)
            EXPECT_FALSE(ReadNumber(text) || ReadDate(text)) << text;
    }
}

} // namespace
