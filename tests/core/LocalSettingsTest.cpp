#include "common/ErrorReport.h"
#include "common/MachineRecord.h"
#include "common/cLocalSettings.h"
#include "frame/Shared.h"
#include "tests/support/FakePlatform.h"
#include "toolkit/Form.h"

#include <gtest/gtest.h>

using namespace quorvanta;

namespace {

struct LocalSettings : testing::Test {
    tests::FakePlatform platform;
    cLocalSettings settings;
};

TEST_F(LocalSettings, EachPropertyAsksForItsOwnItem) {
    using Property = std::string (cLocalSettings::*)();
    using c = cLocalSettings;
    const std::pair<int, Property> rows[] = {
        {36, &c::prpCenturyFormatSpecificer},
        {35, &c::prpTimeFormatSpecifier},
        {34, &c::prpLongDateFormatOrdering},
        {33, &c::prpShortDateFormatOrdering},
        {4099, &c::prpTimeFormat},
        {32, &c::prpLongDateFormat},
        {31, &c::prpShortDateFormat},
        {30, &c::prpTimeSeperator},
        {29, &c::prpDateSeperator},
        {28, &c::prpNegativeCurrencyMode},
        {27, &c::prpPositiveMonetaryMode},
        {26, &c::prpIntlMonetaryDigits},
        {25, &c::prpLocalMonetaryDigits},
        {24, &c::prpMonetaryGrouping},
        {23, &c::prpMonetaryThousandSeperator},
        {22, &c::prpMonetaryDecimalSeperator},
        {21, &c::prpIntlMonetarySymbol},
        {20, &c::prpLocalCurrencySymbol},
        {19, &c::prpNativeAscii},
        {18, &c::prpLeadingZeros},
        {17, &c::prpFractionalDigits},
        {16, &c::prpDigitGrouping},
        {15, &c::prpThousandSeperator},
        {14, &c::prpDecimalSeperator},
        {13, &c::prpMetrics},
        {12, &c::prpListItemSeperator},
        {11, &c::prpDefaultCodePage},
        {10, &c::prpDefaultCountryCode},
        {9, &c::prpDefaultLanguageId},
        {8, &c::prpNativeNameOfCountry},
        {7, &c::prpAbbrevCountryName},
        {4098, &c::prpEnglishNameOfCountry},
        {6, &c::prpLocalizedNameOfCountry},
        {5, &c::prpCountryCode},
        {4, &c::prpNativeNameOfLanguage},
        {3, &c::prpAbbreviatedLanguageName},
        {1, &c::prpLanguageId},
        {2, &c::prpLocalLanguageName},
        {4097, &c::prpLocalLanguageEnglishName},
        {20, &c::prpLocalCurrency},
        {4098, &c::prpLocalCountry},
    };
    ASSERT_EQ(std::size(rows), 41U);
    for (const auto& [item, property] : rows) {
        platform.locale.items = {{item, std::to_string(1000 + item)}};
        EXPECT_EQ((settings.*property)(), std::to_string(1000 + item));
    }
}

TEST_F(LocalSettings, AFailedReadIsEmptyAndNeverTheValueOfTheOneBefore) {
    EXPECT_EQ(settings.prpCountryCode(), "");
    EXPECT_EQ(settings.prpShortDateFormat(), "M/d/yyyy");
    EXPECT_EQ(settings.prpCountryCode(), "");
    EXPECT_EQ(settings.prpShortDateFormat(), "M/d/yyyy");
    platform.locale.items[31] = "dd.MM.yyyy";
    EXPECT_EQ(settings.prpShortDateFormat(), "dd.MM.yyyy");
    platform.locale.items[8] = std::string(98, 'x');
    EXPECT_EQ(settings.prpNativeNameOfCountry(), std::string(98, 'x'));
    EXPECT_EQ(settings.prpDecimalSeperator(), ".");
    platform.locale.items[8] = std::string(99, 'x');
    EXPECT_EQ(settings.prpNativeNameOfCountry(), "");
}

TEST_F(LocalSettings, MetricsNamesTheTwoSystemsAndFailsWithoutAnAnswer) {
    for (const auto& [value, text] :
         std::map<std::string, std::string>{{"0", "Metric"}, {"1", "US"}, {"2", "2"}}) {
        platform.locale.items[13] = value;
        EXPECT_EQ(settings.prpMetrics(), text);
    }
    platform.locale.items.erase(13);
    try {
        settings.prpMetrics();
        FAIL();
    } catch (const platform::RuntimeError& error) {
        EXPECT_EQ(error.number, platform::TypeMismatch);
    }
}

TEST_F(LocalSettings, NamesAndDirectoriesThatDoNotFitAreEmpty) {
    settings.prpComputerName("set by hand");
    EXPECT_EQ(settings.prpComputerName(), "OFFICE1");
    EXPECT_EQ(settings.prpComputerUserName(), "leipreir");
    EXPECT_EQ(settings.prpWinDirectory(), "/usr/bin");
    EXPECT_EQ(settings.prpWinSysDirectory(), "/usr/sbin");
    platform.machine = {};
    platform.machine.user = platform.machine.computer = std::string(256, 'x');
    platform.machine.windows = platform.machine.system = std::string(255, 'x');
    EXPECT_EQ(settings.prpComputerName() + settings.prpComputerUserName(), "");
    EXPECT_EQ(settings.prpWinDirectory() + settings.prpWinSysDirectory(), "");
}

TEST_F(LocalSettings, ABufferWithoutANulWasNeverFilled) {
    EXPECT_EQ(cLocalSettings::StringFromBuffer({"ab\0cd\0", 6}), "ab");
    EXPECT_EQ(cLocalSettings::StringFromBuffer("abcd"), "");
    EXPECT_EQ(cLocalSettings::StringFromBuffer(""), "");
    EXPECT_EQ(cLocalSettings::StringFromBuffer({"\0ab", 3}), "");
}

std::vector<std::string> linesOf(const std::string& log) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < log.size(); at = log.find('\n', at) + 1)
        lines.push_back(log.substr(at, log.find('\r', at) - at));
    return lines;
}

TEST_F(LocalSettings, TheRecordOfAStartHasItsThirtyNineEntriesInOrder) {
    StartNewDebugLog();
    toolkit::App.Path = platform.files.programDirectory();
    gstrShortDateFormat.clear();
    platform.locale.items[5] = "1";
    WriteSystemData();
    const auto lines = linesOf(platform.files.content["/app/DebugLog.TXT"]);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), ""), 39);
    const std::vector<std::string> begin(lines.begin(), lines.begin() + 8);
    EXPECT_EQ(begin,
              (std::vector<std::string>{"\"Computer Name: \"", "\"Version 3.5.7\"",
                                        "\"Description: OFFICE1\"", "", "\"Computer UserName: \"",
                                        "\"Description: leipreir\"", "", "\"Country Name: \""}));
    EXPECT_EQ(lines[8], ""); // no item 7 here, and so no description
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "\"CountryCode: \""), 2);
    const std::vector<std::string> end(lines.end() - 7, lines.end());
    EXPECT_EQ(end, (std::vector<std::string>{"\"Time Seperator: \"", "\"Description: :\"", "",
                                             "\"End of Debug Info Gathering \"", "", "\"\"", ""}));
    EXPECT_EQ(gstrShortDateFormat, "M/d/yyyy");
}

} // namespace
