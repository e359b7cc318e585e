#include "storage/cQuorvantaLite.h"
#include "tests/support/DataFile.h"
#include "tests/support/RealFiles.h"

#include <gtest/gtest.h>

namespace {

const std::string kWords = "\r\n[StammNumbers]\r\n10.1E-320Win:1e308\r\n7\r\n[Favorites]\r\n270,5"
                           "Bal:-,5\r\n[Win/Loss]\r\nDate:99999999999999999999\r\n[Other]\r\n\r";

// A save costs much more under Wine.
constexpr int kRuns = std::filesystem::path::preferred_separator == '/' ? 700 : 100;

TEST(DataFileFuzz, WhatWasReadComesBackAsItWasWrittenWhateverTheFileHeld) {
    for (const char* locale : {"en_US", "fr_FR", "ja_JP"}) {
        const tests::RealFilesPlatform system(locale);
        tests::ErrorBoxes boxes;
        boxes.last = toolkit::Ignore;
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
            boxes.boxes.clear();
            ASSERT_TRUE(readAndSave() == first && boxes.boxes.empty()) << locale << ": " << text;
        }
    }
}

} // namespace
