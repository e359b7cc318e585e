#include "platform/LocaleItems.h"
#include "tests/support/RealFiles.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

using tests::localeNamed, tests::valueOf, tests::valuesOf;

constexpr bool kWine = std::filesystem::path::preferred_separator == '\\';

struct Row {
    const char* locale;
    int first;
    const char* values;
    const char* byWine = nullptr; // where it departs; names are in the language of its windows
};

// The items from the named one on, each behind a bar and in the locale's code page.
constexpr Row kRows[] = {
    {"en_US", LOCALE_ILANGUAGE,
     "|0409|English (United States)|ENU|English|1|United States|USA|United States|0409|1|437"},
    {"en_US", LOCALE_SLIST, "|,|1|.|,|3;0|2|1|0123456789|$|USD|.|,|3;0|2|2|0|0"},
    {"en_US", LOCALE_SDATE, "|/|:|M/d/yyyy|dddd, MMMM d, yyyy|0|0|0|1"},
    {"en_US", LOCALE_SENGLANGUAGE, "|English|United States|h:mm:ss tt|1252"},
    {"de_DE", LOCALE_ILANGUAGE,
     "|0407|Deutsch (Deutschland)|DEU|Deutsch|49|Deutschland|DEU|Deutschland|0407|49|850",
     "|0407|German (Germany)|DEU|Deutsch|49|Germany|DEU|Deutschland|0407|49|850"},
    {"de_DE", LOCALE_SLIST, "|;|0|,|.|3;0|2|1|0123456789|\x80|EUR|,|.|3;0|2|2|3|8"},
    {"de_DE", LOCALE_SDATE, "|.|:|dd.MM.yyyy|dddd, d. MMMM yyyy|1|1|1|1",
     "|.|:|d.M.yyyy|dddd, d. MMMM yyyy|1|1|1|1"},
    {"de_DE", LOCALE_SENGLANGUAGE, "|German|Germany|HH:mm:ss|1252"},
    {"de_DE", LOCALE_SDAYNAME1 + 5, "|Samstag|Sonntag"},
    {"de_DE", LOCALE_SMONTHNAME1, "|Januar|Februar|M\xE4rz"},
    {"ru_RU", LOCALE_SDATE, "|.|:|dd.MM.yyyy|d MMMM yyyy '\xE3.'|1|1|1|1",
     "|.|:|dd.MM.yyyy|dddd, d MMMM yyyy\xA0'\xE3'.|1|1|1|1"},
    {"ru_RU", LOCALE_SENGLANGUAGE, "|Russian|Russia|HH:mm:ss|1251"},
    {"de_CH", LOCALE_SABBREVLANGNAME, "|DES"},
    {"de_CH", LOCALE_SLIST, "|;"},
    {"ja_JP", LOCALE_SCURRENCY, "|\\", "|\x81\x8F"}, // the yen sign's place in code page 932
    {"ja_JP", LOCALE_ICURRDIGITS, "|0"},
    {"en_IN", LOCALE_SGROUPING, "|3;2;0"},
    {"en_US", 5000, "|"},
#ifndef _WIN32 // whose names of locales are others
    {"POSIX", LOCALE_SDATE, "|/|:|M/d/yyyy|dddd, MMMM d, yyyy|0|0|0|1"},
    {"de_DE@euro", LOCALE_ILANGUAGE, "|0407|Deutsch (Deutschland)|DEU|Deutsch|49"},
    {"de", LOCALE_SABBREVCTRYNAME, "|DEU"},
    {"hi_IN", LOCALE_IDEFAULTANSICODEPAGE, "|1252"},
    {"fi_FI", LOCALE_STIME, "|."},
    {"ar_EG", LOCALE_SNATIVEDIGITS, "|0123456789"},
    {"sr_RS@latin", LOCALE_ILANGUAGE, "|241a"},
    {"sr_RS", LOCALE_ILANGUAGE, "|281a"},
#endif
};

TEST(Locale, ItemsHaveThePublishedValues) {
    for (const Row& row : kRows) {
        const std::string found = valuesOf(localeNamed(row.locale), row.first, row.values);
        EXPECT_TRUE(found == row.values || (kWine && row.byWine && found == row.byWine))
            << row.locale << " " << row.first << " " << testing::PrintToString(found);
    }
}

TEST(CodePages, EachLocaleHasTheOneInUseForItWhereEveryByteSequenceComesBack) {
    const std::pair<const char*, const char*> rows[] = {
        {"pl_PL", "1250"}, {"sq_AL", "1250"}, {"bg_BG", "1251"}, {"el_GR", "1253"},
        {"tr_TR", "1254"}, {"he_IL", "1255"}, {"fa_IR", "1256"}, {"lt_LT", "1257"},
        {"et_EE", "1257"}, {"vi_VN", "1258"}, {"th_TH", "874"},  {"ja_JP", "932"},
        {"zh_CN", "936"},  {"ko_KR", "949"},  {"zh_TW", "950"}};
    std::mt19937 random(11);
    for (const auto& [name, number] : rows) {
        const auto locale = localeNamed(name);
        EXPECT_EQ(valueOf(locale, LOCALE_IDEFAULTANSICODEPAGE), number) << name;
        for (int i = 0; i < 1 << 16; ++i) {
            std::string bytes{static_cast<char>(i >> 8), static_cast<char>(i)};
            for (auto more = i % 8 ? 0 : random() % 40; more > 0; --more)
                bytes += static_cast<char>(i % 16 ? random() : random() | 0x80);
            ASSERT_EQ(locale.toBytes(locale.fromBytes(bytes)), bytes) << name;
        }
    }
}

TEST(CodePages, CharactersHaveTheirBytes) {
    EXPECT_EQ(localeNamed("de_DE").fromBytes("\x80\xE4\x92\xA0"), "€ä’\u00A0");
    EXPECT_EQ(localeNamed("ja_JP").fromBytes("\x93\xFA\x96\x7B;1\\"), "日本;1\\");
    EXPECT_EQ(localeNamed("ja_JP").toBytes("日本Ж😀"), "\x93\xFA\x96\x7B\x84\x47?");
}

} // namespace
