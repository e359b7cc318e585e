#include "common/Conversions.h"
#include "tests/support/FakePlatform.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

using namespace quorvanta;
using platform::DateTime;

namespace {

struct Conversions : testing::Test {
    tests::FakePlatform platform;

    void useGermanLocale() {
        for (const auto& [item, text] : std::map<int, std::string>{{14, ","},
                                                                   {15, "."},
                                                                   {29, "."},
                                                                   {31, "dd.MM.yyyy"},
                                                                   {32, "dddd, d. MMMM yyyy"},
                                                                   {4099, "HH:mm:ss"},
                                                                   {40, ""},
                                                                   {41, ""},
                                                                   {56, "Januar"},
                                                                   {58, "März"},
                                                                   {62, "Juli"},
                                                                   {74, "Jul."},
                                                                   {42, "Montag"}})
            platform.locale.items[item] = text;
    }
    void useSeparators(const std::string& decimal, const std::string& thousands) {
        platform.locale.items[14] = decimal;
        platform.locale.items[15] = thousands;
    }
    void useShortDate(const std::string& picture) { platform.locale.items[31] = picture; }
};

// The number of the failure that a conversion raises.
template <class Convert>
int failureOf(Convert convert, std::string_view text) {
    try {
        convert(text);
        return 0;
    } catch (const platform::RuntimeError& error) {
        return error.number;
    }
}

TEST_F(Conversions, NumbersHaveFifteenDigitsAndNoMoreThanTheyNeed) {
    const std::pair<double, const char*> rows[] = {
        {0, "0"},
        {-0.0, "0"},
        {980, "980"},
        {270.5, "270.5"},
        {-749.5, "-749.5"},
        {0.1 + 0.2, "0.3"},
        {100.0 / 3, "33.3333333333333"},
        {2.0 / 3, "0.666666666666667"},
        {1.0 / 30, "3.33333333333333E-02"},
        {123456789012345, "123456789012345"},
        {999999999999999.4, "999999999999999"},
        {999999999999999.6, "1E+15"},
        {1e15, "1E+15"},
        {-1234567890123456, "-1.23456789012346E+15"},
        {0.000000000000001, "0.000000000000001"},
        {1.5e-15, "1.5E-15"},
        {5e-324, "4.94065645841247E-324"},
        {1e100, "1E+100"},
    };
    for (const auto& [value, text] : rows)
        EXPECT_EQ(CStr(value), text);
    useGermanLocale();
    EXPECT_EQ(CStr(270.5), "270,5");
    EXPECT_EQ(CStr(1.5e20), "1,5E+20");
}

TEST_F(Conversions, WhatIsNoFiniteNumberIsAnOverflow) {
    for (const double value : {HUGE_VAL, -HUGE_VAL, std::nan("")}) {
        EXPECT_THROW(CStr(value), platform::RuntimeError);
        EXPECT_THROW(FormatMoney(value), platform::RuntimeError);
    }
}

TEST_F(Conversions, AmountsAreGroupedAndRoundedAwayFromZero) {
    const std::tuple<double, const char*, const char*> rows[] = {
        {0, "0.00", "0,00"},
        {1234.5, "1,234.50", "1.234,50"},
        {-749.5, "-749.50", "-749,50"},
        {0.125, "0.13", "0,13"},
        {-0.125, "-0.13", "-0,13"},
        {1.005, "1.01", "1,01"},
        {0.00499, "0.00", "0,00"},
        {-0.001, "0.00", "0,00"},
        {0.005, "0.01", "0,01"},
        {0.995, "1.00", "1,00"},
        {999999.995, "1,000,000.00", "1.000.000,00"},
        {123456.78, "123,456.78", "123.456,78"},
        {1e15, "1,000,000,000,000,000.00", "1.000.000.000.000.000,00"},
    };
    for (const auto& [value, american, german] : rows)
        EXPECT_EQ(FormatMoney(value), american);
    useGermanLocale();
    for (const auto& [value, american, german] : rows)
        EXPECT_EQ(FormatMoney(value), german);
}

TEST_F(Conversions, NumbersAreReadWithSignSeparatorsAndExponent) {
    const std::pair<const char*, double> rows[] = {
        {"0", 0},
        {" 1250.5 ", 1250.5},
        {"1,234.50", 1234.5},
        {"270,5", 2705},
        {"1,2,3,", 123},
        {"-7", -7},
        {"- 7", -7},
        {"+7", 7},
        {"\t.5", 0.5},
        {"5.", 5},
        {"1e3", 1000},
        {"1E+15", 1e15},
        {"1.5E-07", 15e-8},
        {"00012", 12},
        {"1e-400", 0},
        {"0e999999999999", 0},
        {"1.7976931348623157E308", std::numeric_limits<double>::max()},
    };
    for (const auto& [text, value] : rows)
        EXPECT_EQ(CDbl(text), value) << text;
    const std::string half = "9007199254740993." + std::string(900, '0');
    EXPECT_EQ(CDbl(half), 9007199254740992);
    EXPECT_EQ(CDbl(half + "1"), 9007199254740994);
    useGermanLocale();
    EXPECT_EQ(CDbl("270,5"), 270.5);
    EXPECT_EQ(CDbl("270.5"), 2705);
    EXPECT_EQ(CDbl("1.234,50"), 1234.5);
}

TEST_F(Conversions, ABlankOrAnApostropheBetweenDigitsIsReadInEachOfItsForms) {
    useSeparators(",", "\u00A0");
    for (const char* text : {"1\u00A0234,5", "1\u202F234,5", "1 234,5", "\u00A01234,5\u202F"})
        EXPECT_EQ(CDbl(text), 1234.5) << text;
    useSeparators(".", "’");
    EXPECT_EQ(CDbl("1’234.5"), 1234.5);
    EXPECT_EQ(CDbl("1'234.5"), 1234.5);
}

TEST_F(Conversions, WhatIsNoNumberIsATypeMismatch) {
    for (const char* text :
         {"",    " ",   "-",  ".",  ",5",  "e5",   "1e",  "1e+", "1.2.3", "1.5,0",
          "12a", "--1", "1-", "$5", "1 2", "0x10", "inf", "nan", "1e5.0", "١"})
        EXPECT_EQ(failureOf(CDbl, text), platform::TypeMismatch) << text;
    EXPECT_EQ(failureOf(CDbl, std::string_view("1\0", 2)), platform::TypeMismatch);
}

TEST_F(Conversions, ANumberTooLargeIsAnOverflow) {
    for (const char* text : {"1e400", "-1e400", "1.8e308", "1e99999999999999999999999"})
        EXPECT_EQ(failureOf(CDbl, text), platform::Overflow) << text;
}

TEST_F(Conversions, AHundredMegabytesAreReadInBoundedTime) {
    const auto begin = std::chrono::steady_clock::now();
    std::string text(100'000'000, '9');
    EXPECT_EQ(failureOf(CDbl, text), platform::Overflow);
    EXPECT_EQ(CDbl(text + "e-99999999"), 10);
    EXPECT_EQ(CDbl(std::string(100'000'000, '0') + "7"), 7);
    EXPECT_EQ(failureOf(CDbl, std::string(100'000'000, ' ')), platform::TypeMismatch);
    EXPECT_EQ(ReadDate(text), std::nullopt);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(60));
}

TEST_F(Conversions, AWrittenNumberReadsBackToTheSameText) {
    std::mt19937_64 random(7);
    for (const auto& [decimal, thousands] : {std::pair{".", ","}, {",", "."}, {",", "\u00A0"}}) {
        useSeparators(decimal, thousands);
        for (int i = 0; i < 20000; ++i) {
            const std::uint64_t bits = random();
            double value;
            std::memcpy(&value, &bits, sizeof value);
            if (!std::isfinite(value))
                continue;
            const std::string text = CStr(value);
            ASSERT_EQ(CStr(CDbl(text)), text);
            const double cents = std::round(std::ldexp(double(bits >> 20), -4)) / 100;
            ASSERT_EQ(CDbl(CStr(cents)), cents);
            ASSERT_EQ(CDbl(FormatMoney(cents)), cents);
        }
        EXPECT_NO_THROW(CDbl(CStr(std::numeric_limits<double>::max())));
    }
}

TEST_F(Conversions, WholeNumbersAreRoundedHalfToEvenWithinSixteenBits) {
    const std::pair<const char*, int> rows[] = {{"2.5", 2},           {"3.5", 4},
                                                {"-2.5", -2},         {"32767.4", 32767},
                                                {"-32768.5", -32768}, {"1e2", 100}};
    for (const auto& [text, value] : rows)
        EXPECT_EQ(CInt(text), value) << text;
    EXPECT_EQ(failureOf(CInt, "32767.5"), platform::Overflow);
    EXPECT_EQ(failureOf(CInt, "-32769"), platform::Overflow);
    EXPECT_EQ(failureOf(CInt, "seven"), platform::TypeMismatch);
}

TEST_F(Conversions, DatesFollowTheLocalesPictures) {
    const DateTime evening{2005, 7, 5, 18, 2, 7}, midnight{2024, 12, 31, 0, 0, 0};
    EXPECT_EQ(ShortDate(evening), "7/5/2005");
    EXPECT_EQ(ShortDateTime(evening), "7/5/2005 6:02:07 PM");
    EXPECT_EQ(ShortDateTime(midnight), "12/31/2024 12:00:00 AM");
    useGermanLocale();
    EXPECT_EQ(ShortDateTime(evening), "05.07.2005 18:02:07");
    EXPECT_EQ(FormatDate(evening, "d.M.yy, H:m:s"), "5.7.05, 18:2:7");
    EXPECT_EQ(FormatDate({2005, 7, 4, 0, 0, 0}, "dddd, d. MMMM yyyy"), "Montag, 4. Juli 2005");
    EXPECT_EQ(FormatDate(evening, "yyyy'年'M'月' 'o''clock"), "2005年7月 o'clock");
}

TEST_F(Conversions, ADateIsReadInTheOrderOfItsLocale) {
    const DateTime day{2005, 7, 5, 0, 0, 0}, thisYear{2005, 7, 25, 0, 0, 0};
    const DateTime evening{2005, 7, 5, 18, 2, 7};
    for (const char* text : {"7/5/2005", "07/05/05", " 7-5-2005 ", "2005-07-05", "7/5/2005 0:00"})
        EXPECT_EQ(ReadDate(text), day) << text;
    EXPECT_EQ(ReadDate("7/5/2005 6:02:07 PM"), evening);
    EXPECT_EQ(ReadDate("7/25"), thisYear);
    EXPECT_EQ(ReadDate("1/1/49")->year, 2049);
    EXPECT_EQ(ReadDate("1/1/50")->year, 1950);
    useGermanLocale();
    for (const char* text : {"5.7.2005", "05/07/05", "5. Juli 2005", "5 jul. 2005", "Juli 5, 2005"})
        EXPECT_EQ(ReadDate(text), day) << text;
    EXPECT_EQ(ReadDate("05.07.2005 18:02:07"), evening);
    EXPECT_EQ(ReadDate("25.7."), thisYear);
    EXPECT_EQ(ReadDate("25. Juli"), thisYear);
    useShortDate("yyyy-MM-dd");
    EXPECT_EQ(ReadDate("2005-7-5"), day);
    useShortDate("d.MM.yyyy 'г.'");
    EXPECT_EQ(ReadDate(ShortDateTime(evening)), evening);
}

TEST_F(Conversions, WhatIsNoDateIsRefused) {
    for (const char* text : {"",
                             "yesterday",
                             "7",
                             "25/7/2005",
                             "2/29/2005",
                             "0/5/2005",
                             "7/5/20050",
                             "7.5.2005",
                             "6:42",
                             "7/5/2005 24:00",
                             "7/5/2005 6",
                             "7/5/2005 13:00 PM",
                             "7/5/2005 6:60",
                             "7/5/2005/1",
                             "7/5/99/1",
                             "-7/5/2005",
                             "1.5",
                             "270,5",
                             "1e3",
                             "7/5/2005 PM",
                             "1/2/3/4/5/6/7"})
        EXPECT_EQ(ReadDate(text), std::nullopt) << text;
    useGermanLocale();
    EXPECT_EQ(ReadDate("7/25/2005"), std::nullopt);
    EXPECT_EQ(ReadDate("5. Jul 2005 Juli"), std::nullopt);
}

} // namespace
