#include "common/Conversions.h"
#include "platform/LocaleItems.h"
#include "platform/linux/LinuxLocale.h"
#include "platform/linux/LinuxMachine.h"
#include "tests/support/FakePlatform.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <random>

using namespace platform;

namespace {

LinuxLocale localeNamed(const std::string& name) {
    return LinuxLocale(LocaleCategories::of(name));
}

std::string bytesOf(const Locale& locale, int item) {
    char buffer[99];
    const int count = locale.GetLocaleInfoA(LOCALE_USER_DEFAULT, item, buffer, sizeof buffer);
    return count == 0 ? "" : std::string(buffer, static_cast<std::size_t>(count) - 1);
}

std::string textOf(const Locale& locale, int item) {
    return locale.fromBytes(bytesOf(locale, item));
}

constexpr const char* kTestedLocales[] = {
    "en_US.UTF-8", "de_DE.UTF-8", "de_CH.UTF-8", "fr_FR.UTF-8",
    "sv_SE.UTF-8", "ru_RU.UTF-8", "ja_JP.UTF-8", "C"};

TEST(LinuxLocale, AnAmericanAndAGermanHaveThePublishedValues) {
    const std::tuple<int, const char*, const char*> rows[] = {
        {LOCALE_ILANGUAGE, "0409", "0407"},
        {LOCALE_SLANGUAGE, "English (United States)", "Deutsch (Deutschland)"},
        {LOCALE_SABBREVLANGNAME, "ENU", "DEU"},
        {LOCALE_SNATIVELANGNAME, "English", "Deutsch"},
        {LOCALE_SENGLANGUAGE, "English", "German"},
        {LOCALE_ICOUNTRY, "1", "49"},
        {LOCALE_SCOUNTRY, "United States", "Deutschland"},
        {LOCALE_SABBREVCTRYNAME, "USA", "DEU"},
        {LOCALE_SNATIVECTRYNAME, "United States", "Deutschland"},
        {LOCALE_SENGCOUNTRY, "United States", "Germany"},
        {LOCALE_IDEFAULTLANGUAGE, "0409", "0407"},
        {LOCALE_IDEFAULTCOUNTRY, "1", "49"},
        {LOCALE_IDEFAULTCODEPAGE, "437", "850"},
        {LOCALE_IDEFAULTANSICODEPAGE, "1252", "1252"},
        {LOCALE_SLIST, ",", ";"},
        {LOCALE_IMEASURE, "1", "0"},
        {LOCALE_SDECIMAL, ".", ","},
        {LOCALE_STHOUSAND, ",", "."},
        {LOCALE_SGROUPING, "3;0", "3;0"},
        {LOCALE_IDIGITS, "2", "2"},
        {LOCALE_ILZERO, "1", "1"},
        {LOCALE_SNATIVEDIGITS, "0123456789", "0123456789"},
        {LOCALE_SCURRENCY, "$", "€"},
        {LOCALE_SINTLSYMBOL, "USD", "EUR"},
        {LOCALE_SMONDECIMALSEP, ".", ","},
        {LOCALE_SMONTHOUSANDSEP, ",", "."},
        {LOCALE_SMONGROUPING, "3;0", "3;0"},
        {LOCALE_ICURRDIGITS, "2", "2"},
        {LOCALE_IINTLCURRDIGITS, "2", "2"},
        {LOCALE_ICURRENCY, "0", "3"},
        {LOCALE_INEGCURR, "0", "8"},
        {LOCALE_SDATE, "/", "."},
        {LOCALE_STIME, ":", ":"},
        {LOCALE_SSHORTDATE, "M/d/yyyy", "dd.MM.yyyy"},
        {LOCALE_SLONGDATE, "dddd, MMMM d, yyyy", "dddd, d. MMMM yyyy"},
        {LOCALE_STIMEFORMAT, "h:mm:ss tt", "HH:mm:ss"},
        {LOCALE_IDATE, "0", "1"},
        {LOCALE_ILDATE, "0", "1"},
        {LOCALE_ITIME, "0", "1"},
        {LOCALE_ICENTURY, "1", "1"},
        {LOCALE_SDAYNAME1, "Monday", "Montag"},
        {LOCALE_SDAYNAME1 + 6, "Sunday", "Sonntag"},
        {LOCALE_SMONTHNAME1 + 2, "March", "März"},
        {0, "", ""},
        {5000, "", ""},
    };
    const LinuxLocale american = localeNamed("en_US.UTF-8"), german = localeNamed("de_DE@euro");
    const LinuxLocale neutral = localeNamed("POSIX");
    for (const auto& [item, ours, theirs] : rows) {
        EXPECT_EQ(textOf(american, item), ours) << item;
        EXPECT_EQ(textOf(german, item), theirs) << item;
        EXPECT_EQ(textOf(neutral, item), ours) << item;
    }
    EXPECT_EQ(bytesOf(german, LOCALE_SCURRENCY), "\x80");
}

TEST(LinuxLocale, OtherLocalesDifferWhereTheyShould) {
    const std::tuple<const char*, int, const char*> rows[] = {
        // values are bytes
        {"de_CH", LOCALE_STHOUSAND, "\x92"},
        {"de_CH", LOCALE_SLIST, ";"},
        {"de_CH", LOCALE_INEGCURR, "2"},
        {"de_CH", LOCALE_SABBREVLANGNAME, "DES"},
        {"fr_FR", LOCALE_STHOUSAND, "\xA0"},
        {"fr_FR", LOCALE_SSHORTDATE, "dd/MM/yyyy"},
        {"fr_FR", LOCALE_SLONGDATE, "dddd d MMMM yyyy"},
        {"fr_FR", LOCALE_SLANGUAGE,
         "fran\xE7"
         "ais (France)"},
        {"sv_SE", LOCALE_SSHORTDATE, "yyyy-MM-dd"},
        {"sv_SE", LOCALE_IDATE, "2"},
        {"sv_SE", LOCALE_SMONTHOUSANDSEP, "\xA0"},
        {"ru_RU", LOCALE_IDEFAULTCODEPAGE, "866"},
        {"ru_RU", LOCALE_SLONGDATE, "d MMMM yyyy '\xE3.'"},
        {"ru_RU", LOCALE_SNATIVECTRYNAME, "\xD0\xEE\xF1\xF1\xE8\xFF"},
        {"ja_JP", LOCALE_SCURRENCY, "\\"}, // the yen sign's place in code page 932
        {"ja_JP", LOCALE_ICURRDIGITS, "0"},
        {"ja_JP", LOCALE_SLONGDATE, "yyyy'\x94\x4E'M'\x8C\x8E'd'\x93\xFA'"},
        {"ja_JP", LOCALE_STIMEFORMAT, "H:mm:ss"},
        {"ko_KR", LOCALE_STIME, ":"},
        {"en_GB", LOCALE_IMEASURE, "0"},
        {"en_IN", LOCALE_SGROUPING, "3;2;0"},
        {"fi_FI", LOCALE_STIME, "."},
        {"ar_EG", LOCALE_SNATIVEDIGITS, "0123456789"},
        {"sr_RS@latin", LOCALE_ILANGUAGE, "241A"},
        {"sr_RS", LOCALE_ILANGUAGE, "281A"},
        {"de", LOCALE_SABBREVCTRYNAME, "DEU"},
        {"en_XX", LOCALE_SABBREVCTRYNAME, "USA"},
        {"/usr/share/locale/x", LOCALE_ILANGUAGE, "0409"},
    };
    for (const auto& [name, item, bytes] : rows)
        EXPECT_EQ(bytesOf(localeNamed(name), item), bytes) << name << " " << item;
}

TEST(LinuxLocale, EachCategoryIsItsOwnBetweenLcAllAndLang) {
    const char* kVariables[] = {"LC_ALL",      "LANG",        "LC_NUMERIC",
                                "LC_TIME",     "LC_MONETARY", "LC_MEASUREMENT",
                                "LC_MESSAGES", "LC_ADDRESS",  "LC_CTYPE"};
    for (const char* name : kVariables)
        unsetenv(name);
    EXPECT_EQ(textOf(LinuxLocale(), LOCALE_SSHORTDATE), "M/d/yyyy");
    setenv("LANG", "de_DE.UTF-8", 1);
    setenv("LC_TIME", "sv_SE.UTF-8", 1);
    setenv("LC_MONETARY", "ja_JP.UTF-8", 1);
    setenv("LC_MEASUREMENT", "en_US.UTF-8", 1);
    setenv("LC_NUMERIC", "", 1);
    const LinuxLocale mixed;
    const std::pair<int, const char*> rows[] = {{LOCALE_SSHORTDATE, "yyyy-MM-dd"},
                                                {LOCALE_SINTLSYMBOL, "JPY"},
                                                {LOCALE_IMEASURE, "1"},
                                                {LOCALE_SDECIMAL, ","},
                                                {LOCALE_ICOUNTRY, "49"},
                                                {LOCALE_ILANGUAGE, "0407"}};
    for (const auto& [item, text] : rows)
        EXPECT_EQ(textOf(mixed, item), text);
    setenv("LC_ALL", "fr_FR.UTF-8", 1);
    EXPECT_EQ(textOf(LinuxLocale(), LOCALE_SINTLSYMBOL), "EUR");
    EXPECT_EQ(textOf(mixed, LOCALE_SMONDECIMALSEP), ".");
    for (const char* name : kVariables)
        unsetenv(name);
}

TEST(LinuxLocale, AnItemThatDoesNotFitLeavesTheBufferAlone) {
    const LinuxLocale locale = localeNamed("de_DE");
    char buffer[12] = "untouched";
    EXPECT_EQ(locale.GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, buffer, 10), 0);
    EXPECT_EQ(locale.GetLocaleInfoA(LOCALE_USER_DEFAULT, 9999, buffer, 12), 0);
    EXPECT_EQ(locale.GetLocaleInfoA(1033, LOCALE_SSHORTDATE, buffer, 12), 0);
    EXPECT_STREQ(buffer, "untouched");
    EXPECT_EQ(locale.GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, buffer, 11), 11);
    EXPECT_STREQ(buffer, "dd.MM.yyyy");
}

TEST(CodePages, EachLocaleHasTheOneThatIsInUseForIt) {
    const std::pair<const char*, const char*> rows[] = {
        {"pt_BR", "1252"}, {"ca_ES", "1252"}, {"pl_PL", "1250"}, {"ro_RO", "1250"},
        {"sq_AL", "1250"}, {"ru_RU", "1251"}, {"bg_BG", "1251"}, {"kk_KZ", "1251"},
        {"el_GR", "1253"}, {"tr_TR", "1254"}, {"he_IL", "1255"}, {"ar_EG", "1256"},
        {"fa_IR", "1256"}, {"lt_LT", "1257"}, {"et_EE", "1257"}, {"vi_VN", "1258"},
        {"th_TH", "874"},  {"ja_JP", "932"},  {"zh_CN", "936"},  {"ko_KR", "949"},
        {"zh_TW", "950"},  {"sr_RS", "1251"}, {"hr_HR", "1250"}, {"hi_IN", "1252"},
        {"uk_UA", "1251"}};
    for (const auto& [name, number] : rows)
        EXPECT_EQ(bytesOf(localeNamed(name), LOCALE_IDEFAULTANSICODEPAGE), number) << name;
}

TEST(CodePages, EveryByteSequenceComesBackAsItWas) {
    std::mt19937 random(11);
    for (const char* name : {"en_US", "pl_PL", "ru_RU", "el_GR", "tr_TR", "he_IL", "ar_EG", "lt_LT",
                             "vi_VN", "th_TH", "ja_JP", "zh_CN", "ko_KR", "zh_TW"}) {
        const LinuxLocale locale = localeNamed(name);
        const auto check = [&](const std::string& bytes) {
            ASSERT_EQ(locale.toBytes(locale.fromBytes(bytes)), bytes) << name;
        };
        for (int first = 0; first < 256; ++first) {
            check(std::string(1, static_cast<char>(first)));
            for (int second = 0; second < 256; ++second)
                check({static_cast<char>(first), static_cast<char>(second)});
        }
        for (int i = 0; i < 3000; ++i) {
            std::string bytes(random() % 40, '\0');
            for (char& c : bytes)
                c = static_cast<char>(i % 2 ? random() : random() | 0x80);
            check(bytes);
        }
        std::string ascii;
        for (char c = 0; c < 127; ++c)
            ascii += c;
        EXPECT_EQ(locale.fromBytes(ascii), ascii);
    }
}

TEST(CodePages, CharactersHaveTheirBytesAndUnknownOnesAQuestionMark) {
    const LinuxLocale western = localeNamed("de_DE"), japanese = localeNamed("ja_JP");
    EXPECT_EQ(western.fromBytes("\x80\xE4\x92\xA0"), "€ä’\u00A0");
    EXPECT_EQ(western.toBytes("Ж😀\xFF\xE4x\xED\xA0\x80"), "????x???");
    EXPECT_EQ(japanese.fromBytes("\x93\xFA\x96\x7B;1"), "日本;1");
    EXPECT_EQ(japanese.fromBytes("\x93\r"), "\xED\xB2\x93\r"); // a lead byte at the end of a line
    EXPECT_EQ(japanese.toBytes("日本"), "\x93\xFA\x96\x7B");
}

TEST(CodePages, AHundredMegabytesAreConvertedInSeconds) {
    const LinuxLocale locale = localeNamed("de_DE");
    std::string bytes(100'000'000, '7');
    for (std::size_t i = 0; i < bytes.size(); i += 50)
        bytes[i] = '\xE4';
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_TRUE(locale.toBytes(locale.fromBytes(bytes)) == bytes);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
}

TEST(LinuxLocale, NumbersAndDatesReadBackUnderTheLocaleThatWroteThem) {
    std::mt19937 random(3);
    for (const char* name : kTestedLocales) {
        tests::FakePlatform fakes;
        const LinuxLocale locale = localeNamed(name);
        Platform all{fakes.process,  fakes.clock, fakes.random,
                     fakes.settings, fakes.files, const_cast<LinuxLocale&>(locale),
                     fakes.machine};
        install(&all);
        const auto throughFile = [&](const std::string& text) {
            return locale.fromBytes(locale.toBytes(text));
        };
        for (int i = 0; i < 2000; ++i) {
            const double cents = (static_cast<double>(random()) - 2e9) / 100;
            ASSERT_EQ(quorvanta::CDbl(throughFile(quorvanta::CStr(cents))), cents) << name;
            ASSERT_EQ(quorvanta::CDbl(throughFile(quorvanta::FormatMoney(cents))), cents) << name;
            const DateTime when{1950 + i % 100, 1 + i % 12, 1 + i % 28,
                                i % 24,         i * 7 % 60, i * 11 % 60};
            const DateTime day{when.year, when.month, when.day};
            ASSERT_EQ(quorvanta::ReadDate(throughFile(quorvanta::ShortDate(when))), day) << name;
            ASSERT_EQ(quorvanta::ReadDate(throughFile(quorvanta::ShortDateTime(when))), when)
                << name;
            ASSERT_EQ(
                quorvanta::ReadDate(quorvanta::FormatDate(when, textOf(locale, LOCALE_SLONGDATE))),
                day)
                << name;
        }
        install(nullptr);
    }
}

TEST(LinuxMachine, KnowsItsUserItsNameAndTwoDirectories) {
    const LinuxLocale locale = localeNamed("C");
    const LinuxMachine machine(locale);
    char name[256] = {}, small[2] = {'#', '#'};
    EXPECT_TRUE(machine.GetUserNameA(name, sizeof name));
    EXPECT_GT(std::strlen(name), 0U);
    EXPECT_TRUE(machine.GetComputerNameA(name, sizeof name));
    EXPECT_EQ(std::strchr(name, '.'), nullptr);
    EXPECT_FALSE(machine.GetUserNameA(small, 1));
    EXPECT_EQ(machine.GetWindowsDirectoryA(small, 2), 0);
    EXPECT_EQ(small[0], '#');
    EXPECT_EQ(machine.GetWindowsDirectoryA(name, sizeof name), 8);
    EXPECT_STREQ(name, "/usr/bin");
    EXPECT_EQ(machine.GetSystemDirectoryA(name, sizeof name), 9);
    EXPECT_STREQ(name, "/usr/sbin");
}

} // namespace
