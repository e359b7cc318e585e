// An 8-bit code page, in both directions and without loss.
#pragma once

#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace platform {

// What the system knows of a code page.
class CodePageTable {
public:
    virtual ~CodePageTable() = default;

    // Whether the byte begins a character of two.
    virtual bool isLeadByte(unsigned char byte) const = 0;

    // The character that one byte, or two, stand for; 0 if there is none.
    virtual char16_t character(std::string_view bytes) const = 0;

    // The bytes for a character, or empty. For one that the page lacks it may name the nearest (the
    // yen sign of code page 932 is its backslash).
    virtual std::string bytes(char16_t character) const = 0;
};

// Bytes below 0x80 always stand for themselves. A byte that begins no character, or begins one that
// wouldn't come back as the same bytes, is carried through UTF-8 text as the lone surrogate U+DC00
// + byte, in the three bytes that UTF-8 would give it: such text passes through any routine that
// only copies and cuts it at ASCII characters, and encode() makes the byte of it again.
class CodePage {
public:
    explicit CodePage(std::unique_ptr<CodePageTable> table);
    ~CodePage();

    std::string decode(std::string_view bytes) const;

    // A character that the table has no bytes for becomes "?".
    std::string encode(std::string_view text) const;

    // Whether encode() finds bytes for every character of the text, which has no "?" itself.
    bool has(std::string_view text) const { return encode(text).find('?') == std::string::npos; }

private:
    char16_t unicodeOf(unsigned code) const;
    unsigned codeOf(char16_t character) const;
    char16_t askUnicodeOf(unsigned code) const;
    unsigned askCodeOf(char16_t character) const;

    std::unique_ptr<CodePageTable> table_;

    // The table's answers, each asked for once. 0 stands for one not asked for yet.
    // Only the memory of the codes that are used is touched: calloc's costs nothing till then.
    struct Free {
        void operator()(void* memory) const { std::free(memory); }
    };
    using Answers = std::unique_ptr<char16_t[], Free>;
    Answers unicode_; // by the code of one or two bytes
    Answers code_;    // by the character
};

} // namespace platform
