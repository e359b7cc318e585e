// An 8-bit code page, in both directions and without loss.
#pragma once

#include <unicode/ucnv.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace platform {

// The code page that files of a locale are written in, by its number: 1250 to 1258, 874, 932, 936,
// 949 or 950. `locale` is ICU's name.
int ansiCodePage(const std::string& locale);

// Bytes below 0x80 always stand for themselves. A byte that begins no character, or begins one that
// wouldn't come back as the same bytes, is carried through UTF-8 text as the lone surrogate U+DC00
// + byte, in the three bytes that UTF-8 would give it: such text passes through any routine that
// only copies and cuts it at ASCII characters, and encode() makes the byte of it again.
class CodePage {
public:
    explicit CodePage(int number);

    std::string decode(std::string_view bytes) const;

    // A character that the code page lacks becomes the nearest one that it names for it (the yen
    // sign of code page 932 is its backslash), else "?".
    std::string encode(std::string_view text) const;

    // Whether encode() finds bytes for every character of the text, which has no "?" itself.
    bool has(std::string_view text) const { return encode(text).find('?') == std::string::npos; }

private:
    char16_t unicodeOf(unsigned code) const;
    unsigned codeOf(char16_t character) const;
    char16_t askUnicodeOf(unsigned code) const;
    unsigned askCodeOf(char16_t character) const;

    struct Close {
        void operator()(UConverter* it) const { ucnv_close(it); }
    };
    std::unique_ptr<UConverter, Close> converter_;

    // ICU's answers, each asked for once. 0 stands for one not asked for yet.
    // Only the pages of the tables that are used cost memory: calloc's are untouched till then.
    struct Free {
        void operator()(void* table) const { std::free(table); }
    };
    using Table = std::unique_ptr<char16_t[], Free>;
    Table unicode_; // by the code of one or two bytes
    Table code_;    // by the character
};

} // namespace platform
