#include "tests/support/DataFile.h"
#include "common/Conversions.h"
#include "storage/cQuorvantaLite.h"
#include "tests/support/FakePlatform.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace quorvanta;
using platform::RuntimeError;

const std::string kPath = "/app/Quorvanta.txt";

struct DataFile : testing::Test {
    tests::FakePlatform fake;
    tests::ErrorBoxes boxes;

    DataFile() { ResetSharedState(); }

    std::string& content() { return fake.files.content[kPath]; }
    void read(const std::string& text) {
        content() = text;
        cQuorvantaLite().ReadLottoFile();
    }
    void failAt(const std::string& operation, int number, int times = 1) {
        fake.files.fault = [=](const std::string& it, const std::string& path) mutable {
            if (it == operation && path == kPath && times-- > 0)
                throw RuntimeError(number, "failed");
        };
    }
};

TEST_F(DataFile, ComesBackAsItWasWritten) {
    read(tests::wholeFile());
    EXPECT_EQ(gstrStammNumbers[2], "8;11;19;23;29;34;40;46;" + std::string(41, ';'));
    EXPECT_EQ(gstrStammNumbers[10], std::string(49, ';'));
    EXPECT_EQ(gstrFavorites[1], "5;9;14;22;36;44;");
    EXPECT_EQ(std::tuple(gdblWin, gdblLoss, gdblBalance, gdblLargest),
              std::tuple(1250.5, 980, 270.5, 500));
    EXPECT_EQ(gstrBankrollDate, "3/2/2005");
    content().clear();
    cQuorvantaLite().WriteLottoFile();
    EXPECT_EQ(content(), tests::wholeFile());
    EXPECT_TRUE(boxes.prompts.empty());
}

TEST_F(DataFile, OfAFirstRunIsWholeAndDated) {
    cQuorvantaLite().ReadLottoFile();
    EXPECT_EQ(tests::storedValues(), tests::StoredValues());
    cQuorvantaLite().WriteLottoFile();
    EXPECT_EQ(std::ranges::count(content(), '\n'), 33);
    EXPECT_NE(content().find("\r\n10.\r\n\r\n[Favorites]\r\n1.\r\n"), std::string::npos);
    EXPECT_TRUE(
        content().ends_with("\r\nWin:0\r\nLoss:0\r\nBal:0\r\nLarge:0\r\nDate:7/25/2005\r\n"));
    EXPECT_EQ(fake.files.directory, "/app");
    EXPECT_TRUE(boxes.prompts.empty());
}

TEST_F(DataFile, NumbersFollowTheLocaleOfTheRun) {
    fake.locale.items[14] = ",";
    fake.locale.items[15] = ".";
    gdblWin = 270.5;
    cQuorvantaLite().WriteLottoFile();
    EXPECT_NE(content().find("\r\nWin:270,5\r\n"), std::string::npos);
    cQuorvantaLite().ReadLottoFile();
    EXPECT_EQ(gdblWin, 270.5);
    std::swap(fake.locale.items[14], fake.locale.items[15]);
    cQuorvantaLite().ReadLottoFile();
    EXPECT_EQ(gdblWin, 2705);
}

TEST_F(DataFile, LineGoesToTheRowThatItsSectionTells) {
    const std::string stamm = "[StammNumbers]\r", favorites = "[Favorites]\r";
    struct Case {
        std::string text;
        RowTexts& rows;
        int row;
        std::string value;
    };
    const Case cases[] = {
        {stamm + "27;1", gstrStammNumbers, 2, ";1"},
        {stamm + "3.", gstrStammNumbers, 3, ""},
        {stamm + "10.5;\r\n", gstrStammNumbers, 10, "5;"},
        {stamm + "100.", gstrStammNumbers, 10, "."},
        {stamm + "1.a\r1.b\r\n", gstrStammNumbers, 1, "b"},
        {stamm + "4.a\nb\r", gstrStammNumbers, 4, "a\nb"},
        {stamm + "5\xC3\xA9"
                 "9",
         gstrStammNumbers, 5, "9"},
        {stamm + "[Other]\r3.x", gstrStammNumbers, 3, "x"},
        {stamm + "[Favorites] \r3.x", gstrStammNumbers, 3, "x"},
        {stamm + "[favorites]\r3.x", gstrStammNumbers, 3, "x"},
        {favorites + "10x5", gstrFavorites, 10, "5"},
        {favorites + "9.\x81\xFF\x01", gstrFavorites, 9, "\x81\xFF\x01"},
        {favorites + stamm + "6.x", gstrStammNumbers, 6, "x"},
    };
    for (const Case& it : cases) {
        ResetSharedState();
        it.rows[it.row] = "before";
        read(it.text);
        EXPECT_EQ(it.rows[it.row], it.value) << it.text;
        it.rows[it.row].clear();
        EXPECT_EQ(tests::storedValues(), tests::StoredValues()) << it.text;
    }
    EXPECT_TRUE(boxes.prompts.empty());
}

TEST_F(DataFile, LineThatMeansNothingChangesNothing) {
    for (const char* text :
         {"", "1.x\r2.x\rWin:5\rDate:x", "[StammNumbers]\r1x\rWin:7\rDate:x\r.1\r", "\r\r\n\n",
          "[Favorites]\r27;1\r2x\r1\r2\rWin:7", "[Win/Loss]\r1.x\r2.x\rwin:3\r Win:3\rTotal:3"}) {
        read(text);
        EXPECT_EQ(tests::storedValues(), tests::StoredValues()) << text;
    }
    EXPECT_TRUE(boxes.prompts.empty());
}

TEST_F(DataFile, LineThatFailsIsReportedAndPassedOverOnIgnore) {
    struct Case {
        std::string header, line;
        int number;
    };
    for (const Case& it : {Case{"[StammNumbers]", "2", 5}, Case{"[StammNumbers]", "10", 5},
                           Case{"[Favorites]", "10", 5}, Case{"[Win/Loss]", "Win:", 13},
                           Case{"[Win/Loss]", "Large:many", 13}}) {
        ResetSharedState();
        gdblWin = gdblLargest = 7;
        gstrStammNumbers.fill("kept");
        gstrFavorites.fill("kept");
        const auto before = tests::storedValues();
        boxes.prompts.clear();
        boxes.answers = {toolkit::Retry, toolkit::Ignore};
        read(it.header + "\r\n" + it.line + "\r\n[Win/Loss]\r\nDate:next\r\n");
        EXPECT_EQ(gstrBankrollDate, "next") << it.line;
        gstrBankrollDate.clear();
        EXPECT_EQ(tests::storedValues(), before) << it.line;
        ASSERT_EQ(boxes.prompts.size(), 2u) << it.line;
        EXPECT_TRUE(
            boxes.prompts[1].starts_with("An error has occured: " + std::to_string(it.number)));
        EXPECT_TRUE(boxes.prompts[1].ends_with("\r\nReadLottoFile"));
    }
    boxes.answers = {toolkit::Abort};
    read("[Win/Loss]\rWin:\rDate:x");
    EXPECT_EQ(gstrBankrollDate, "") << "nothing behind the line is read after Abort";
}

TEST_F(DataFile, ReadFailureMeetsTheAnswers) {
    failAt("readLine", platform::DeviceError, 2);
    boxes.answers = {toolkit::Retry, toolkit::Ignore};
    read(tests::wholeFile());
    EXPECT_EQ(gstrBankrollDate, "3/2/2005");
    ResetSharedState();
    failAt("openForInput", platform::PathAccess);
    boxes.answers = {toolkit::Ignore};
    read(tests::wholeFile());
    EXPECT_EQ(tests::storedValues(), tests::StoredValues());
    EXPECT_EQ(boxes.prompts.size(), 3u);
}

TEST_F(DataFile, OldContentStandsUntilTheNewIsWhole) {
    const std::string old = content() = tests::wholeFile();
    gstrFavorites[3] = "new";
    for (const char* operation : {"remove", "openForAppend", "writeLine", "close"}) {
        boxes.answers = {toolkit::Abort};
        failAt(operation, platform::DiskFull);
        cQuorvantaLite().WriteLottoFile();
        EXPECT_EQ(content(), old) << operation;
        EXPECT_TRUE(boxes.prompts.back().ends_with("\r\nWriteLottoFile")) << operation;
    }
    boxes.answers = {toolkit::Retry, toolkit::Retry};
    failAt("close", platform::DiskFull, 2);
    cQuorvantaLite().WriteLottoFile();
    EXPECT_NE(content().find("\r\n3.new\r\n"), std::string::npos);
    EXPECT_EQ(std::ranges::count(content(), '\n'), 33);
    EXPECT_EQ(fake.files.content["/app/Quorvanta.bak"], old);
    EXPECT_EQ(boxes.prompts.size(), 6u);
}

TEST_F(DataFile, NewestValuesStandBehindAnOldFileThatCouldNotBeDeleted) {
    content() = tests::wholeFile();
    gstrFavorites[3] = "new";
    gdblWin = 3;
    const auto values = tests::storedValues();
    failAt("remove", platform::PermissionDenied);
    boxes.answers = {toolkit::Ignore};
    cQuorvantaLite().WriteLottoFile();
    EXPECT_EQ(std::ranges::count(content(), '\n'), 66);
    ResetSharedState();
    cQuorvantaLite().ReadLottoFile();
    gstrBankrollDate.clear();
    EXPECT_EQ(tests::storedValues(), values);
}

} // namespace
