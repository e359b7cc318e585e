// The error box, the debug log with its record of the machine, and the trap that failures run into.
#include "common/Trap.h"
#include "common/cLocalSettings.h"
#include "platform/LocaleItems.h"
#include "tests/support/ProgramTest.h"

#include <regex>

namespace {

using namespace quorvanta;
using tests::Texts;

struct ReportsTest : tests::ProgramTest {
    cLocalSettings settings;

    ReportsTest() { mblnLogStarted = false; }
    std::string& log() { return os.files.content["/app/DebugLog.TXT"]; }
};

TEST_F(ReportsTest, TheFirstRecordOfARunBeginsANewLogAndCarriesTheVersion) {
    log() = "of the run before\r\n";
    WriteDebugLog(-1, "Computer Name: ", "OFFICE1", {});
    WriteDebugLog(-1, "", "", {});
    WriteDebugLog(62, "ReadLottoFile", "Input past end of file", {2005, 3, 7, 21, 4, 9});
    EXPECT_EQ(log(), "\"Computer Name: \"\r\n\"Version 3.5.7\"\r\n"
                     "\"Description: OFFICE1\"\r\n\r\n"
                     "\"\"\r\n\r\n"
                     "\"ReadLottoFile\"\r\n\"Number: 62\"\r\n"
                     "\"Description: Input past end of file\"\r\n"
                     "#2005-03-07 21:04:09#\r\n\r\n");
}

TEST_F(ReportsTest, TheErrorBoxComesAlsoWhenTheLogIsLost) {
    for (const char* failing : {"remove", "openForAppend", "writeLine", "close", ""}) {
        mblnLogStarted = false;
        os.files.fault = [failing](const std::string& operation, const std::string&) {
            if (operation == failing)
                throw platform::RuntimeError(platform::PermissionDenied);
        };
        desk.answers = {toolkit::Ignore};
        EXPECT_EQ(ShowErrorBox(-5, "Odd", "some.Routine"), Answer::Ignore);
        EXPECT_EQ(desk.boxes.at(0).title, "Quor Vanta ");
        EXPECT_EQ(desk.takeBoxes(), Texts{"An error has occured: -5\r\nOdd\r\nsome.Routine"});
    }
    ReportUntrapped(platform::RuntimeError(platform::Overflow), "frmMain");
    EXPECT_EQ(desk.boxes[0].icon, toolkit::MessageBox::Icon::Critical);
    EXPECT_EQ(desk.takeBoxes(), Texts{"An error has occured: 6\r\nOverflow\r\nfrmMain"});
    EXPECT_NE(log().find("\"frmMain\"\r\n\"Number: 6\"\r\n"), std::string::npos);
}

TEST_F(ReportsTest, EachFailureHasItsDescription) {
    std::string all;
    for (const int number : {5, 6, 7, 9, 13, 53, 57, 61, 62, 70, 75, 76, 340, 381, 482, 1})
        all += platform::describe(static_cast<platform::Failure>(number)) + std::string("|");
    EXPECT_EQ(all, "Invalid procedure call or argument|Overflow|Out of memory|Subscript out of "
                   "range|Type mismatch|File not found|Device I/O error|Disk full|Input past end "
                   "of file|Permission denied|Path/File access error|Path not found|Control array "
                   "element doesn't exist|Invalid property array index|Printer error|"
                   "Application-defined or object-defined error|");
}

// What a routine of three steps has done, its second one failing until it has been tried twice.
TEST_F(ReportsTest, TheAnswerRepeatsTheStepPassesOverItOrLeavesTheRoutine) {
    for (const auto& [answer, done] : {std::pair<int, std::string>(toolkit::Retry, "abbc"),
                                       {toolkit::Ignore, "abc"},
                                       {toolkit::Abort, "ab"},
                                       {0, "ab"}}) {
        desk.answers = {answer};
        std::string trace;
        trapped("some.Routine", [&](auto step) {
            step([&] { trace += 'a'; });
            step([&] {
                trace += 'b';
                if (trace.size() == 2)
                    throw platform::RuntimeError(platform::Overflow);
            });
            step([&] { trace += 'c'; });
        });
        EXPECT_EQ(trace, done);
    }
}

TEST_F(ReportsTest, TheRecordOfAStartNamesEachItemInOrder) {
    for (int item = 1; item < 4100; ++item)
        os.locale.items[item] = std::to_string(item);
    os.locale.items.erase(platform::LOCALE_SABBREVCTRYNAME);
    mblnLogStarted = true;
    WriteSystemData();
    const std::regex record("\"(.*: )\"\r\n(\"Description: (.*)\"\r\n)?\r\n");
    EXPECT_EQ(std::regex_replace(log(), record, "$1$3|"),
              "Computer Name: OFFICE1|Computer UserName: leipreir|Country Name: |CountryCode: "
              "5|Date Seperator: 29|Decimal Seperator: 14|CountryCode: 5|Default Code Page: "
              "11|Default Country Code: 10|Default Language Id: 9|English Name of Country: "
              "4098|Intl. Monetary Symbol: 21|Language Id: 1|Leading Zeros: 18|ListItem "
              "Seperator: 12|Local Country: 4098|Local Currency: 20|Local Currency Symbol: "
              "20|Localized Name of Country: 6|Local Language English Name: 4097|Local Language "
              "Name: 2|Local Monetary Digits: 25|Long Date Format: 32|Long Date Format Ordering: "
              "34|Metrics: 13|Monetary Decimal Seperator: 22|Native Ascii: 19|Native Name of "
              "Country: 8|Native Name of Language: 4|Native Currence Mode: 28|Positive Monetary "
              "Mode: 27|Short Date Format: 31|Short Date Format Ordering: 33|Thousand Seperator: "
              "15|Time Format: 4099|Time Format Specifier: 35|Time Seperator: 30|"
              "\"End of Debug Info Gathering \"\r\n\r\n\"\"\r\n\r\n");
    EXPECT_EQ(gstrShortDateFormat, "31");
}

TEST_F(ReportsTest, AFailedReadIsEmptyAndNeverTheValueOfTheOneBefore) {
    EXPECT_EQ(settings.prpShortDateFormat() + settings.prpCountryCode(), "M/d/yyyy");
    os.locale.items[platform::LOCALE_SNATIVECTRYNAME] = std::string(98, 'x');
    EXPECT_EQ(settings.prpNativeNameOfCountry(), std::string(98, 'x'));
    EXPECT_EQ(settings.prpDecimalSeperator(), ".");
    os.locale.items[platform::LOCALE_SNATIVECTRYNAME] += 'x'; // does not fit
    EXPECT_EQ(settings.prpNativeNameOfCountry(), "");
    for (const auto& [value, text] : {std::pair("0", "Metric"), {"1", "US"}, {"2", "2"}}) {
        os.locale.items[platform::LOCALE_IMEASURE] = value;
        EXPECT_EQ(settings.prpMetrics(), text);
    }
    os.locale.items.erase(platform::LOCALE_IMEASURE);
    EXPECT_THROW(settings.prpMetrics(), platform::RuntimeError);
}

TEST_F(ReportsTest, NamesAndDirectoriesThatDoNotFitAreEmpty) {
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
