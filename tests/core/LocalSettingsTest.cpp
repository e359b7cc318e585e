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
    const std::regex record("\".*: \"\r\n(\"Description: (.*)\"\r\n)?\r\n");
    EXPECT_EQ(std::regex_replace(log, record, "$2 "),
              "OFFICE1 leipreir  5 29 14 5 11 10 9 4098 21 1 18 12 4098 20 20 6 4097 2 25 32 34 13 "
              "22 19 8 4 28 27 31 33 15 4099 35 30 \"End of Debug Info Gathering \"\r\n\r\n"
              "\"\"\r\n\r\n");
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
