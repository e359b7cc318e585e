// Twips, colours, fonts and characters.
#include "toolkit/Units.h"
#include "toolkit/Drawing.h"
#include "toolkit/Text.h"

#include <gtest/gtest.h>

namespace {

using namespace toolkit;

TEST(UnitsTest, TwipsBecomePixelsAtEveryScale) {
    EXPECT_EQ(pixels(1155), 77);
    EXPECT_EQ(pixels(22.5), 2); // halves away from zero
    EXPECT_EQ(pixels(-22.5), -2);
    EXPECT_EQ(pixels(1155, kTwipsPerInch / 144), 116);
    EXPECT_EQ(twips(77), 1155);
    EXPECT_EQ(fontPixels({.size = 8.25}), 11);
    EXPECT_EQ(fontPixels({.size = 24}), 32);
    const auto [red, green, blue] = parts(0x102030);
    EXPECT_EQ(red * 65536 + green * 256 + blue, 0x302010);
}

TEST(UnitsTest, WhatCannotBeToldFromItsGroundIsDrawnInAnotherColour) {
    struct Case {
        Colour one, other;
        double contrast;
    };
    for (const Case& it : {Case{kBlack, kWhite, 21},
                           {kWhite, kBlack, 21},
                           {kRed, kWhite, 4},
                           {kBlue, kWhite, 8.59},
                           {0x00FF00, kWhite, 1.37},
                           {kBlack, 0x0A0A0A, 1.06}})
        EXPECT_NEAR(contrast(it.one, it.other), it.contrast, 0.01) << it.one << " " << it.other;
    for (const auto& [wanted, seen] : {std::pair(kRed, kRed), {0xA0A0A0, kBlack}, {kWhite, kBlack}})
        EXPECT_EQ(seenBeside(kWhite, wanted, kBlack), seen);
    EXPECT_EQ(seenBeside(kWhite, 0xA0A0A0, kBlack, kNoticed), 0xA0A0A0);
}

TEST(UnitsTest, AFontShrinksByAQuarterAtMost) {
    for (const auto& [letters, height] : {std::pair(5, 20), {6, 16}, {7, 15}, {50, 15}})
        EXPECT_EQ(fittingHeight(20, 100, [&](int at) { return at * letters; }), height) << letters;
}

TEST(UnitsTest, CharactersAreCountedNotTheirBytes) {
    const std::tuple<std::string, std::u32string> texts[]{
        {"a\u00e9\u20ac\U0001F600", U"a\u00e9\u20ac\U0001F600"},
        {"\x80x\xC3", U"\uFFFDx\uFFFD"},
        {"\xE2\x82x", U"\uFFFD\uFFFDx"}};
    for (const auto& [text, expected] : texts) {
        EXPECT_TRUE(codePoints(text) == expected) << text;
        EXPECT_EQ(characters(text), static_cast<int>(expected.size()));
    }
    const auto& [text, all] = texts[0];
    for (const auto& [count, taken] : {std::pair(0, 0), {3, 3}, {4, 5}, {9, 5}}) {
        EXPECT_EQ(units(text, count), taken);
        EXPECT_EQ(charactersIn(text, taken), std::min(count, 4));
    }
    EXPECT_EQ(charactersIn(text, 4), 3) << "half of a character";
    std::string back;
    for (const char32_t it : std::u32string(U"a\u00e9\u20ac\U0001F600"))
        back += utf8(it);
    EXPECT_EQ(back, "a\u00e9\u20ac\U0001F600");
}

TEST(UnitsTest, APictureIsTheNextLargerOneThatIsDrawn) {
    const auto isThere = [](int width) { return width == 16 || width == 24 || width == 64; };
    for (const auto& [width, drawn] : {std::pair(16, 16), {17, 24}, {25, 64}, {65, 64}})
        EXPECT_EQ(drawnWidth(width, isThere), drawn);
    EXPECT_EQ(drawnWidth(32, [](int) { return false; }), 0);
}

} // namespace
