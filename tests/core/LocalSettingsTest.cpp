#include "common/ErrorReport.h"
#include "common/cLocalSettings.h"
#include "frame/MainCode_ZW.h"
#include "tests/support/ProgramTest.h"

#include <regex>

using namespace quorvanta;

namespace {

struct LocalSettings : tests::ProgramTest {
    cLocalSettings settings;
};

TEST_F(LocalSettings, TheRecordOfAStartNamesEachItemInOrder) {
    for (int item = 1; item < 4100; ++item)
        os.locale.items[item] = std::to_string(item);
    os.locale.items.erase(7);
    WriteDebugLog(0, "", "", {});
    std::string& log = os.files.content["/app/DebugLog.TXT"];
    log.clear();
    WriteSystemData();
    const std::regex record("\"(.*: )\"\r\n(\"Description: (.*)\"\r\n)?\r\n");
    EXPECT_EQ(std::regex_replace(log, record, "$1$3 | "),
              "Computer Name: OFFICE1 | Computer UserName: leipreir | Country Name:  | "
              "CountryCode: 5 | Date Seperator: 29 | Decimal Seperator: 14 | "
              "CountryCode: 5 | Default Code Page: 11 | Default Country Code: 10 | "
              "Default Language Id: 9 | English Name of Country: 4098 | "
              "Intl. Monetary Symbol: 21 | Language Id: 1 | Leading Zeros: 18 | "
              "ListItem Seperator: 12 | Local Country: 4098 | Local Currency: 20 | "
              "Local Currency Symbol: 20 | Localized Name of Country: 6 | "
              "Local Language English Name: 4097 | Local Language Name: 2 | "
              "Local Monetary Digits: 25 | Long Date Format: 32 | "
              "Long Date Format Ordering: 34 | Metrics: 13 | "
              "Monetary Decimal Seperator: 22 | Native Ascii: 19 | "
              "Native Name of Country: 8 | Native Name of Language: 4 | "
              "Native Currence Mode: 28 | Positive Monetary Mode: 27 | "
              "Short Date Format: 31 | Short Date Format Ordering: 33 | "
              "Thousand Seperator: 15 | Time Format: 4099 | Time Format Specifier: 35 | "
              "Time Seperator: 30 | "
              "\"End of Debug Info Gathering \"\r\n\r\n\"\"\r\n\r\n");
    EXPECT_EQ(gstrShortDateFormat, "31");
}

TEST_F(LocalSettings, AFailedReadIsEmptyAndNeverTheValueOfTheOneBefore) {
    EXPECT_EQ(settings.prpShortDateFormat() + settings.prpCountryCode(), "M/d/yyyy");
    os.locale.items[8] = std::string(98, 'x');
    EXPECT_EQ(settings.prpNativeNameOfCountry(), std::string(98, 'x'));
    EXPECT_EQ(settings.prpDecimalSeperator(), ".");
    os.locale.items[8] += 'x'; // does not fit
    EXPECT_EQ(settings.prpNativeNameOfCountry(), "");
    for (const auto& [value, text] : {std::pair("0", "Metric"), {"1", "US"}, {"2", "2"}}) {
        os.locale.items[13] = value;
        EXPECT_EQ(settings.prpMetrics(), text);
    }
    os.locale.items.erase(13);
    EXPECT_THROW(settings.prpMetrics(), platform::RuntimeError);
}

TEST_F(LocalSettings, NamesAndDirectoriesThatDoNotFitAreEmpty) {
    EXPECT_EQ(settings.prpWinDirectory() + settings.prpWinSysDirectory(), "/usr/bin/usr/sbin");
    os.machine.user = std::string(256, 'x');
    os.machine.windows = os.machine.system = std::string(255, 'x');
    EXPECT_EQ(settings.prpComputerUserName() + settings.prpWinDirectory() +
                  settings.prpWinSysDirectory(),
              "");
    EXPECT_EQ(cLocalSettings::StringFromBuffer({"ab\0cd\0", 6}), "ab");
    EXPECT_EQ(cLocalSettings::StringFromBuffer("abcd"), ""); // without a NUL it was never filled
}

} // namespace
