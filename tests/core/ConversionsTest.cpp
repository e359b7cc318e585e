#include "common/DateText.h"
#include "common/NumberText.h"
#include "platform/LocaleItems.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakePlatform.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>

using namespace quorvanta;
using platform::DateTime;

namespace {

constexpr double kLargest = std::numeric_limits<double>::max();

struct Conversions : testing::Test {
    tests::FakePlatform platform;
    std::map<int, std::string>& items = platform.locale.items;
};

tests::Texts betweenBars(const std::string& texts) {
    tests::Texts result;
    std::istringstream rest(texts);
    for (std::string text; std::getline(rest, text, '|');)
        result.push_back(text);
    return result;
}

std::string textsOf(std::string (*convert)(double), std::initializer_list<double> numbers) {
    std::string texts;
    for (const double number : numbers)
        texts += convert(number) + " ";
    return texts;
}

TEST_F(Conversions, NumbersHaveFifteenDigitsAndNoMoreThanTheyNeed) {
    EXPECT_EQ(textsOf(CStr, {-0.0, 980, -749.5, 0.1 + 0.2, 2.0 / 3, 1.0 / 30, 1e-15, 1.5e-15}),
              "0 980 -749.5 0.3 0.666666666666667 3.33333333333333E-02 0.000000000000001 1.5E-15 ");
    EXPECT_EQ(textsOf(CStr, {999999999999999.4, 999999999999999.6, 5e-324, kLargest}),
              "999999999999999 1E+15 4.94065645841247E-324 1.79769313486231E+308 ");
    EXPECT_THROW(CStr(HUGE_VAL), platform::RuntimeError);
    EXPECT_THROW(FormatMoney(std::nan("")), platform::RuntimeError);
}

TEST_F(Conversions, AmountsAreGroupedAndRoundedAwayFromZero) {
    EXPECT_EQ(
        textsOf(FormatMoney, {0, -749.5, -0.125, 1.005, 0.196, -0.001, 0.005, 0.0049999999999999}),
        "0.00 -749.50 -0.13 1.01 0.20 0.00 0.01 0.00 ");
    EXPECT_EQ(textsOf(FormatMoney, {123456.78, 999999.995, 12345678901234.56, 1e15}),
              "123,456.78 1,000,000.00 12,345,678,901,234.56 1,000,000,000,000,000.00 ");
    items[platform::LOCALE_STHOUSAND] = ".";
    EXPECT_EQ(FormatMoney(1234.5), "1.234.50");
}

TEST_F(Conversions, NumbersAreReadWithSignSeparatorsAndExponent) {
    const auto read = [](const std::string& texts) {
        std::vector<double> numbers;
        for (const auto& text : betweenBars(texts))
            numbers.push_back(CDbl(text));
        return numbers;
    };
    EXPECT_EQ(read(" 1250.5 |1,234.50|270,5|1,2,3,|- 7|+7|\t.5|5.|00012"),
              std::vector<double>({1250.5, 1234.5, 2705, 123, -7, 7, 0.5, 5, 12}));
    EXPECT_EQ(read("1E+3|1.5e-07|1e-400|0e999999999999|" + FormatMoney(kLargest)),
              std::vector<double>({1000, 15e-8, 0, 0, kLargest}));
    const std::string half = "9007199254740993." + std::string(900, '0');
    EXPECT_EQ(read(half + "|" + half + "1"), std::vector({9007199254740992.0, 9007199254740994.0}));
    std::swap(items[platform::LOCALE_SDECIMAL], items[platform::LOCALE_STHOUSAND]);
    EXPECT_EQ(read("1.234,50|" + CStr(1.5e20)), std::vector({1234.5, 1.5e20}));
}

TEST_F(Conversions, WhatIsNoNumberIsATypeMismatchAndATooLargeOneAnOverflow) {
    for (const auto& text :
         betweenBars("|-|.|,5|e5|1e|1e+|1.2.3|1.5,0|12a|--1|1-|1 2|0x10|inf|1e5.0|١"))
        EXPECT_EQ(tests::numberOf([&] { CDbl(text); }), platform::TypeMismatch) << text;
    EXPECT_EQ(tests::numberOf([&] { CDbl(std::string_view("1\0", 2)); }), platform::TypeMismatch);
    for (const char* text : {"-1e400", "1.8e308", "1e99999999999999999999999"})
        EXPECT_EQ(tests::numberOf([&] { CDbl(text); }), platform::Overflow) << text;
    for (const auto& [text, whole] : {std::pair("2.5", 2), {"-3.5", -4}, {"-32768.5", -32768}})
        EXPECT_EQ(CInt(text), whole) << text;
    EXPECT_EQ(tests::numberOf([&] { CInt("32767.5"); }), platform::Overflow);
}

// A time that grows with the square of the size would not end.
TEST_F(Conversions, TextOfTenMegabytesIsRead) {
    const std::string text(10'000'000, '9');
    EXPECT_EQ(tests::numberOf([&] { CDbl(text); }), platform::Overflow);
    EXPECT_EQ(CDbl(text + "e-9999999"), 10);
    EXPECT_EQ(ReadDate(text), std::nullopt);
}

const DateTime kDay{2005, 7, 5}, kEvening{2005, 7, 5, 18, 2, 7};

TEST_F(Conversions, DatesFollowTheirPictures) {
    EXPECT_EQ(ShortDateTime(kEvening), "7/5/2005 6:02:07 PM");
    EXPECT_EQ(ShortDateTime({2024, 12, 31}), "12/31/2024 12:00:00 AM");
    EXPECT_EQ(ShortDateTime({2009, 9, 9, 12}), "9/9/2009 12:00:00 PM");
    EXPECT_EQ(ReadDate("9/9/2009 12:00:00 PM"), DateTime({2009, 9, 9, 12}));
    items[platform::LOCALE_SDAYNAME1] = "Montag";
    items[platform::LOCALE_SMONTHNAME1 + 6] = "Juli";
    EXPECT_EQ(FormatDate({2005, 7, 4, 18, 2, 7}, "dddd, dd. MMMM yy, H:m:s"),
              "Montag, 04. Juli 05, 18:2:7");
    EXPECT_EQ(FormatDate(kEvening, "yyyy'年'M'月' 'o''clock"), "2005年7月 o'clock");
}

TEST_F(Conversions, ADateIsReadInTheOrderOfItsLocale) {
    for (const auto& text :
         betweenBars("07/05/05| 7-5-2005 |7.5.2005|2005-07-05|7/5/2005 0:00|7 5 2005|7/5"))
        EXPECT_EQ(ReadDate(text), kDay) << text;
    for (const char* text : {"7/5/2005 6:02:07 PM", "2005-07-05T18:02:07"})
        EXPECT_EQ(ReadDate(text), kEvening) << text;
    EXPECT_EQ(std::pair(ReadDate("1/1/49")->year, ReadDate("1/1/50")->year), std::pair(2049, 1950));
    items[platform::LOCALE_SSHORTDATE] = "d.MM.yyyy 'г.'";
    EXPECT_EQ(ReadDate(ShortDateTime(kEvening)), kEvening);
    items[platform::LOCALE_SMONTHNAME1 + 6] = "Juli";
    items[platform::LOCALE_SABBREVMONTHNAME1 + 6] = "Jul.";
    for (const auto& text : betweenBars("05/07/05|5. Juli 2005|5 jul. 2005|Juli 5, 2005|5. Juli"))
        EXPECT_EQ(ReadDate(text), kDay) << text;
    EXPECT_EQ(ReadDate("5. Jul 2005 Juli"), std::nullopt);
    items[platform::LOCALE_SMONTHNAME1 + 11] = "Dezember";
    EXPECT_EQ(ReadDate("31. Dezember 2005"), DateTime({2005, 12, 31}));
    items[platform::LOCALE_SABBREVMONTHNAME1] = "Jan";
    EXPECT_EQ(ReadDate("31 Jan 2005"), DateTime({2005, 1, 31}));
    items[platform::LOCALE_SSHORTDATE] = "dd.MM.yyyy"; // its day is no name of a day
    items[platform::LOCALE_SLONGDATE] = "d 'l’'MMMM";
    items[platform::LOCALE_SDAYNAME1 + 1] = "Dienstag";
    for (const auto& text : betweenBars("05/07/2005|5 l’juli 2005|Dienstag, 5.7.2005"))
        EXPECT_EQ(ReadDate(text), kDay) << text;
}

TEST_F(Conversions, WhatIsNoDateIsRefused) {
    for (const auto& text :
         betweenBars("|7|yesterday|25/7/2005|2/29/2005|0/5/2005|7/5/20050|7//5/2005|7/5-2005|6:42|"
                     "7.5|7,5|7 5|7/5/2005 24:00|7/5/2005 6|7/5/2005,6:02 "
                     "PM|7/5/2005T18:02|7/5/2005 6:60|7/5/2005 6:02:60|7/5/2005 PM|"
                     "7/5/2005 13:00 PM|7/5/2005/1|7/5/99/1|7x5x2005|-7/5/2005|1e3|1/2/3/4/5/6/7"))
        EXPECT_EQ(ReadDate(text), std::nullopt) << text;
}

} // namespace
