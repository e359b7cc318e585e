#include "common/Trap.h"
#include "tests/support/ProgramTest.h"

namespace {

using namespace quorvanta;
using namespace tests;

constexpr const char* kLog = "/app/DebugLog.TXT";

class ErrorReportTest : public ProgramTest {
protected:
    ErrorReportTest() { StartNewDebugLog(); }
};

TEST_F(ErrorReportTest, TheFirstRecordOfARunBeginsANewLogAndCarriesTheVersion) {
    os.files.content[kLog] = "of the run before\r\n";
    WriteDebugLog(-1, "Computer Name: ", "OFFICE1", {});
    WriteDebugLog(-1, "", "", {});
    WriteDebugLog(62, "ReadLottoFile", "Input past end of file", {2005, 3, 7, 21, 4, 9});
    EXPECT_EQ(os.files.content[kLog], "\"Computer Name: \"\r\n\"Version 3.5.7\"\r\n"
                                      "\"Description: OFFICE1\"\r\n\r\n"
                                      "\"\"\r\n\r\n"
                                      "\"ReadLottoFile\"\r\n\"Number: 62\"\r\n"
                                      "\"Description: Input past end of file\"\r\n"
                                      "#2005-03-07 21:04:09#\r\n\r\n");
}

TEST_F(ErrorReportTest, TheBoxComesAlsoWhenTheLogIsLost) {
    for (const char* failing : {"remove", "openForAppend", "writeLine", "close"}) {
        os.files.fault = [&](const std::string& operation, const std::string&) {
            if (operation == failing)
                throw platform::RuntimeError(platform::PermissionDenied);
        };
        desk.answers = {toolkit::Ignore};
        EXPECT_EQ(ShowErrorBox(-5, "Odd", "some.Routine"), Answer::Ignore);
        EXPECT_EQ(desk.boxes.at(0).title, "Quor Vanta ");
        EXPECT_EQ(desk.takeBoxes(),
                  std::vector<std::string>{"An error has occured: -5\r\nOdd\r\nsome.Routine"});
    }
}

// What a routine of three steps has done, its second one failing until it has been tried twice.
TEST_F(ErrorReportTest, TheAnswerRepeatsTheStepPassesOverItOrLeavesTheRoutine) {
    using Case = std::pair<std::deque<int>, std::string>;
    for (const auto& [answers, done] :
         {Case{{toolkit::Retry}, "abbc"}, Case{{toolkit::Ignore}, "abc"},
          Case{{toolkit::Abort}, "ab"}, Case{{0}, "ab"}}) {
        desk.answers = answers;
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

} // namespace
