#include "tests/support/DataFile.h"
#include "storage/cQuorvantaLite.h"
#include "tests/support/ProgramTest.h"

#include <set>

namespace {

using namespace quorvanta;
using tests::Texts, tests::stored, tests::StoredValues, toolkit::Retry, toolkit::Ignore,
    toolkit::Abort;

struct DataFile : tests::ProgramTest {
    std::string& content() { return os.files.content["/app/Quorvanta.txt"]; }
    void read() { cQuorvantaLite().ReadLottoFile(); }
    void read(const std::string& text) {
        content() = text;
        read();
    }
    void write() { cQuorvantaLite().WriteLottoFile(); }
};

TEST_F(DataFile, IsDatedAndComesBackAsItWasWritten) {
    read(); // of a first run
    EXPECT_EQ(stored(), StoredValues());
    write();
    EXPECT_TRUE(
        content().ends_with("\r\nWin:0\r\nLoss:0\r\nBal:0\r\nLarge:0\r\nDate:7/25/2005\r\n"));
    EXPECT_EQ(os.files.directory, "/app");
    read(tests::wholeFile());
    EXPECT_EQ(gstrStammNumbers[2], "2;11;19;23;29;34;40;46;" + std::string(41, ';'));
    EXPECT_EQ(std::tuple(gdblWin, gdblLoss, gdblBalance, gdblLargest, gstrBankrollDate),
              std::tuple(1250.5, 980, 270.5, 500, "3/2/2005"));
    write();
    EXPECT_EQ(content(), tests::wholeFile());
    EXPECT_EQ(desk.takeReports(), Texts());
}

TEST_F(DataFile, LineGoesToTheRowThatItsSectionTellsOrNowhere) {
    const std::string stamm = "[StammNumbers]\r", favorites = "[Favorites]\r";
    const std::tuple<std::string, RowTexts&, int, std::string> cases[] = {
        {stamm + "27;1", gstrStammNumbers, 2, ";1"},
        {stamm + "10.5;\r\n", gstrStammNumbers, 10, "5;"},
        {stamm + "100.", gstrStammNumbers, 10, "."},
        {stamm + "1.a\r1.b\r\n", gstrStammNumbers, 1, "b"},
        {stamm + "5\u00E99", gstrStammNumbers, 5, "9"},
        {stamm + "6\u0E019", gstrStammNumbers, 6, "9"},
        {stamm + "[Other]\r3.x", gstrStammNumbers, 3, "x"},
        {stamm + "[favorites]\r3.x", gstrStammNumbers, 3, "x"},
        {favorites + "10x5", gstrFavorites, 10, "5"},
        {favorites + stamm + "6.x", gstrStammNumbers, 6, "x"},
        // Nowhere, and so in the row that is never used.
        {"\r\r\n\n1.x\r2.x\rWin:5\rDate:x", gstrFavorites, 0, "before"},
        {stamm + "1x\rWin:7\rDate:x\r.1\r", gstrStammNumbers, 0, "before"},
        {favorites + "27;1\r2x\r1\r2\rWin:7", gstrFavorites, 0, "before"},
        {"[Win/Loss]\r1.x\r2.x\rwin:3\r Win:3\rTotal:3", gstrFavorites, 0, "before"},
    };
    for (const auto& [text, rows, row, value] : cases) {
        rows[row] = "before";
        read(text);
        EXPECT_EQ(rows[row], value) << text;
        rows[row].clear();
        EXPECT_EQ(stored(), StoredValues()) << text;
        stored() = StoredValues();
    }
    EXPECT_EQ(desk.takeReports(), Texts());
}

TEST_F(DataFile, LineThatFailsIsReportedAndPassedOverOnIgnore) {
    gdblWin = gdblLargest = 7;
    gstrStammNumbers.fill("kept");
    gstrFavorites.fill("kept");
    const StoredValues before = stored();
    for (const auto& [text, number] : {std::pair("[StammNumbers]\r2", "5"),
                                       {"[Favorites]\r10", "5"},
                                       {"[Win/Loss]\rWin:", "13"},
                                       {"[Win/Loss]\rLarge:many", "13"}}) {
        desk.answers = {Retry, Ignore};
        read(std::string(text) + "\r\n[Win/Loss]\r\nDate:next\r\n");
        EXPECT_EQ(std::exchange(gstrBankrollDate, ""), "next") << text;
        EXPECT_EQ(stored(), before) << text;
        EXPECT_EQ(desk.takeReports(), Texts(2, number + std::string(" ReadLottoFile"))) << text;
    }
    read("[Win/Loss]\rWin:\rDate:x"); // to which the answer is Abort
    EXPECT_EQ(gstrBankrollDate, "");
}

TEST_F(DataFile, ReadThatFailsAgainRightBehindAnIgnoredOneEndsTheFile) {
    const std::tuple<std::set<int>, std::deque<int>, std::string, std::size_t> cases[] = {
        // the reads that fail, the answers, the rows read and the reports
        {{2, 4}, {Ignore, Ignore}, "abc", 2},
        {{2, 3, 4}, {Retry, Retry, Ignore}, "abc", 3},
        {{3, 4}, {Ignore}, "a", 1},
    };
    for (const auto& [failing, answers, rows, reports] : cases) {
        os.files.fault = [&, count = 0](const std::string& operation, const auto&) mutable {
            if (operation == "readLine" && failing.contains(++count))
                throw platform::RuntimeError(platform::DeviceError);
        };
        desk.answers = answers;
        gstrFavorites.fill("");
        read("[Favorites]\r1.a\r2.b\r3.c");
        EXPECT_EQ(gstrFavorites[1] + gstrFavorites[2] + gstrFavorites[3], rows);
        EXPECT_EQ(desk.takeReports(), Texts(reports, "57 ReadLottoFile"));
    }
    os.files.fault = [](const auto&...) { throw platform::RuntimeError(platform::PathAccess); };
    desk.answers = {Ignore}; // then nothing is open to be read
    read();
    EXPECT_EQ(desk.takeReports(), Texts{"75 ReadLottoFile"});
}

} // namespace
