#include "common/ErrorReport.h"
#include "common/MachineRecord.h"
#include "common/cLocalSettings.h"
#include "tests/support/ProgramTest.h"

#include <regex>

using namespace quorvanta;

namespace {

struct LocalSettings : tests::ProgramTest {
    cLocalSettings settings;
};

TEST_F(LocalSettings, TheRecordOfAStartNamesEachItemInOrder) {
    for (int item = 1; item < 40; ++item)
        os.locale.items[item] = std::to_string(item);
    for (const int item : {4097, 4098, 4099})
        os.locale.items[item] = std::to_string(item);
    os.locale.items.erase(7);
    WriteDebugLog(0, "", "", {});
    std::string& log = os.files.content["/app/DebugLog.TXT"];
    log.clear();
    WriteSystemData();
    log = std::regex_replace(log, std::regex("\"\r\n\"Description: |\""), "");
    EXPECT_EQ(std::regex_replace(log, std::regex("\r\n\r\n"), "|"),
              "Computer Name: OFFICE1|Computer UserName: leipreir|Country Name: |CountryCode: 5|"
              "Date Seperator: 29|Decimal Seperator: 14|CountryCode: 5|Default Code Page: 11|"
              "Default Country Code: 10|Default Language Id: 9|English Name of Country: 4098|"
              "Intl. Monetary Symbol: 21|Language Id: 1|Leading Zeros: 18|ListItem Seperator: 12|"
              "Local Country: 4098|Local Currency: 20|Local Currency Symbol: 20|"
              "Localized Name of Country: 6|Local Language English Name: 4097|"
              "Local Language Name: 2|Local Monetary Digits: 25|Long Date Format: 32|"
              "Long Date Format Ordering: 34|Metrics: 13|Monetary Decimal Seperator: 22|"
              "Native Ascii: 19|Native Name of Country: 8|Native Name of Language: 4|"
              "Native Currence Mode: 28|Positive Monetary Mode: 27|Short Date Format: 31|"
              "Short Date Format Ordering: 33|Thousand Seperator: 15|Time Format: 4099|"
              "Time Format Specifier: 35|Time Seperator: 30|End of Debug Info Gathering ||");
    EXPECT_EQ(gstrShortDateFormat, "31");
}

TEST_F(LocalSettings, AFailedReadIsEmptyAndNeverTheValueOfTheOneBefore) {
    EXPECT_EQ(settings.prpShortDateFormat(), "M/d/yyyy");
    EXPECT_EQ(settings.prpCountryCode(), "");
    os.locale.items[8] = std::string(98, 'x');
    EXPECT_EQ(settings.prpNativeNameOfCountry(), std::string(98, 'x'));
    EXPECT_EQ(settings.prpDecimalSeperator(), ".");
    os.locale.items[8] += 'x'; // does not fit
    EXPECT_EQ(settings.prpNativeNameOfCountry(), "");
}

TEST_F(LocalSettings, MetricsNamesTheTwoSystemsAndFailsWithoutAnAnswer) {
    for (const auto& [value, text] : {std::pair("0", "Metric"), {"1", "US"}, {"2", "2"}}) {
        os.locale.items[13] = value;
        EXPECT_EQ(settings.prpMetrics(), text);
    }
    os.locale.items.erase(13);
    EXPECT_THROW(settings.prpMetrics(), platform::RuntimeError);
}

TEST_F(LocalSettings, NamesAndDirectoriesThatDoNotFitAreEmpty) {
    settings.prpComputerName("set by hand");
    EXPECT_EQ(settings.prpComputerName(), "OFFICE1");
    EXPECT_EQ(settings.prpWinDirectory() + settings.prpWinSysDirectory(), "/usr/bin/usr/sbin");
    os.machine.user = os.machine.computer = std::string(256, 'x');
    os.machine.windows = os.machine.system = std::string(255, 'x');
    EXPECT_EQ(settings.prpComputerName() + settings.prpComputerUserName() +
                  settings.prpWinDirectory() + settings.prpWinSysDirectory(),
              "");
}

TEST_F(LocalSettings, ABufferWithoutANulWasNeverFilled) {
    EXPECT_EQ(cLocalSettings::StringFromBuffer({"ab\0cd\0", 6}), "ab");
    EXPECT_EQ(cLocalSettings::StringFromBuffer("abcd"), "");
    EXPECT_EQ(cLocalSettings::StringFromBuffer(""), "");
}

} // namespace
