// What every platform does alike with the bytes of a file: lines, and code pages.
#include "platform/CodePage.h"
#include "platform/Lines.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace {

using namespace platform;
using Texts = std::vector<std::string>;

struct Memory final : Bytes {
    std::string text;

    explicit Memory(std::string of) : text(std::move(of)) {}
    std::size_t read(char* to, std::size_t size) override {
        const std::size_t count = text.copy(to, size);
        text.erase(0, count);
        return count;
    }
    void write(std::string& /*text*/) override {}
    void close() override {}
};

TEST(Lines, EndAtCarriageReturnAlone) {
    const std::string zero("a\0b", 3), buffer(65535, 'x'), longLine(1 << 20, 'y');
    const auto lines = [](const std::string& text) {
        Texts result;
        std::string line;
        for (const auto file = readLines(std::make_unique<Memory>(text)); file->readLine(line);)
            result.push_back(line);
        return result;
    };
    EXPECT_EQ(lines(""), Texts());
    EXPECT_EQ(lines("a\r\nb\rc"), Texts({"a", "b", "c"}));
    EXPECT_EQ(lines("\n\r\n\n\r\r\n"), Texts({"\n", "\n", ""}));
    EXPECT_EQ(lines(buffer + "\r\nb"), Texts({buffer, "b"})) << "split between two reads";
    EXPECT_EQ(lines(longLine + "\r\n" + zero + "\r"), Texts({longLine, zero}));
}

// A page with characters of one byte and of two, whose 0x82 0x40 is the 0xE4 once more.
struct Table final : CodePageTable {
    const std::map<std::string_view, char16_t> characters{{"\xA5", u'@'},     {"\xE4", u'ä'},
                                                          {"\xFF", u'ÿ'},     {"\x81\x40", u'粒'},
                                                          {"\x82\x40", u'ä'}, {"\x81\x81", u'й'}};

    bool isLeadByte(unsigned char byte) const override { return byte == 0x81 || byte == 0x82; }
    char16_t character(std::string_view bytes) const override {
        const auto it = characters.find(bytes);
        return it == characters.end() ? 0 : it->second;
    }
    std::string bytes(char16_t character) const override {
        for (const auto& [bytes, known] : characters)
            if (known == character && bytes != "\x82\x40")
                return std::string(bytes);
        return "";
    }
};

TEST(CodePages, WhatHasNoCharacterIsCarriedAndWhatHasNoBytesIsAQuestionMark) {
    const CodePage page(std::make_unique<Table>());
    const std::pair<std::string, std::string> rows[] = {
        {"12345678\xE4\xFF.", "12345678äÿ."},
        {"\x81\x40\x81\x81;", "粒й;"},
        {"\x81\x92\x81", "\xED\xB2\x81\xED\xB2\x92\xED\xB2\x81"},
        {"\x82\x40\xA5", "\xED\xB2\x82@\xED\xB2\xA5"}};
    for (const auto& [bytes, text] : rows)
        EXPECT_EQ(std::pair(page.decode(bytes), page.encode(text)), std::pair(text, bytes));
    for (int i = 0; i < 1 << 16; ++i) {
        const std::string bytes{static_cast<char>(i >> 8), static_cast<char>(i), 'x'};
        ASSERT_EQ(page.encode(page.decode(bytes)), bytes) << i;
    }
    EXPECT_EQ(page.encode("ж😀\xF0\x9F\x98\xFF\xE4x\xED\xA0\x80\xED\xB2\xC1\x81\xED\xB2"),
              std::string(5, '?') + "x" + std::string(9, '?'));
    EXPECT_TRUE(page.has("ä粒\xED\xB2\x92") && !page.has("äж"));
}

} // namespace
