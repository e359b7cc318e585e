#include "tests/support/RealFiles.h"

#include <gtest/gtest.h>

namespace {

using tests::Texts;

struct Files : testing::Test, tests::FilesTest {};

TEST_F(Files, FailureHasTheNumberThatItsCauseTells) {
    std::filesystem::create_directory(files.own("directory"));
    files.create("file", "");
    EXPECT_EQ(numbersOf("missing"), "53 76 53 0 0 ");
    EXPECT_EQ(numbersOf("no/where"), "76 76 76 76 76 ");
    EXPECT_EQ(numbersOf("file/where"), "76 76 76 76 76 ");
    EXPECT_EQ(numbersOf("directory"), "75 0 75 75 75 ");
}

TEST_F(Files, AppendedLinesStandBehindWhatWasThere) {
    for (const char* line : {"one", "two"}) {
        auto file = files.openForAppend(files.path("log"));
        file->writeLine(line);
        file->close();
    }
    files.openForAppend(files.path("log"))->writeLine("given up");
    EXPECT_EQ(files.content("log"), "one\r\ntwo\r\n");
}

TEST_F(Files, SavedFileKeepsTheContentBefore) {
    for (const char* row : {"first", "second", "third", "fourth"}) {
        const std::string before = dataFile();
        saveRow(row);
        EXPECT_NE(dataFile().find(row), std::string::npos);
        EXPECT_EQ(files.content("Quorvanta.bak"), before);
    }
    EXPECT_EQ(boxes.takeReports(), Texts());
}

// The file that either system writes, for the other to read: the same bytes on both.
TEST(DataFile, ComesBackByteForByteInEachLocale) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"en_US", "1250.5", "7/25/2005 \x80\xE4\x81"},
        {"de_DE", "1250,5", "25.07.2005 \x80\xE4\x81"},
        {"ru_RU", "1250,5", "25 \xE8\xFE\xEB\xFF 2005 \xE3.\x98"}};
    for (const auto& [locale, amount, date] : rows) {
        tests::RealFilesPlatform system(locale);
        std::string text = tests::wholeFile();
        text.replace(text.find("1250.5"), 6, amount).replace(text.find("270.5"), 5, "-7");
        text.replace(text.find("Date:") + 5, text.npos, std::string(date) + "\r\n");
        system.files.create("Quorvanta.txt", text);
        quorvanta::cQuorvantaLite().ReadLottoFile();
        EXPECT_EQ(std::tuple(quorvanta::gdblWin, quorvanta::gdblBalance), std::tuple(1250.5, -7));
        quorvanta::cQuorvantaLite().WriteLottoFile();
        const std::string written = system.files.content("Quorvanta.txt");
        EXPECT_EQ(written.substr(written.find('\n')), text.substr(text.find('\n'))) << locale;
        EXPECT_EQ(system.boxes.takeReports(), Texts());
    }
}

const std::string kWords = "\r\n[StammNumbers]\r\n10.1E-320Win:1e308\r\n7\r\n[Favorites]\r\n270,5"
                           "Bal:-,5\r\n[Win/Loss]\r\nDate:99999999999999999999\r\n[Other]\r\n\r";

// A save costs much more under Wine.
constexpr int kRuns = std::filesystem::path::preferred_separator == '/' ? 700 : 100;

TEST(DataFileFuzz, WhatWasReadComesBackAsItWasWrittenWhateverTheFileHeld) {
    for (const char* locale : {"en_US", "fr_FR", "ja_JP"}) {
        tests::RealFilesPlatform system(locale);
        system.boxes.last = toolkit::Ignore;
        const auto readAndSave = [&] {
            tests::forgetStored();
            quorvanta::cQuorvantaLite().ReadLottoFile();
            quorvanta::cQuorvantaLite().WriteLottoFile();
            return system.files.content("Quorvanta.txt");
        };
        std::mt19937_64 random(1);
        const auto below = [&](std::size_t limit) { return random() % limit; };
        for (int run = 0; run < kRuns; ++run) {
            std::string text = tests::wholeFile();
            for (auto spoils = 1 + below(8); spoils > 0; --spoils) {
                const std::string pieces[] = {"", std::string(1, static_cast<char>(below(256))),
                                              text.substr(below(text.size() + 1), below(40)),
                                              kWords.substr(below(kWords.size()), below(40))};
                const std::size_t length = below(20) == 0 ? text.npos : below(2) * below(40);
                text.replace(below(text.size() + 1), length, pieces[below(4)]);
            }
            system.files.create("Quorvanta.txt", text);
            const std::string first = readAndSave();
            system.boxes.takeBoxes();
            ASSERT_TRUE(readAndSave() == first && system.boxes.boxes.empty())
                << locale << ": " << text;
        }
    }
}

} // namespace
