#include "platform/CodePage.h"

#include <cstdint>
#include <cstring>
#include <new>

namespace platform {

namespace {

// Marks in the place of a character: no code page holds lone surrogates.
constexpr char16_t kNoCharacter = 0xD800;
constexpr char16_t kLeadByte = 0xD801;
constexpr unsigned kNoCode = 0xFFFF;
constexpr unsigned kCodes = 0x10000;

// Eight bytes at a time while they are ASCII.
std::size_t asciiRun(std::string_view text, std::size_t from) {
    std::size_t at = from;
    for (; at + sizeof(std::uint64_t) <= text.size(); at += sizeof(std::uint64_t)) {
        std::uint64_t block;
        std::memcpy(&block, text.data() + at, sizeof block);
        if ((block & 0x8080808080808080U) != 0)
            break;
    }
    while (at < text.size() && static_cast<unsigned char>(text[at]) < 0x80)
        ++at;
    return at - from;
}

void appendUtf8(std::string& text, char16_t c) {
    const char last = static_cast<char>(0x80 | (c & 0x3F));
    if (c < 0x800) {
        const char bytes[] = {static_cast<char>(0xC0 | c >> 6), last};
        text.append(bytes, sizeof bytes);
    } else {
        const char bytes[] = {static_cast<char>(0xE0 | c >> 12),
                              static_cast<char>(0x80 | (c >> 6 & 0x3F)), last};
        text.append(bytes, sizeof bytes);
    }
}

// The byte that the text carries at this place, or 0.
unsigned carriedByte(std::string_view text, std::size_t at) {
    if (text.size() - at < 3 || text[at] != '\xED' || (text[at + 1] & 0xFE) != 0xB2 ||
        (text[at + 2] & 0xC0) != 0x80)
        return 0;
    return (text[at + 1] & 0x03U) << 6 | (text[at + 2] & 0x3FU);
}

constexpr char32_t kIllFormed = 0xFFFFFFFF;

// The character at `at`, which moves behind it. Bytes that are none are passed over as far as they
// might have begun one.
char32_t nextCharacter(std::string_view text, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(text[at++]);
    if (lead < 0xC2 || lead > 0xF4)
        return lead < 0x80 ? lead : kIllFormed;
    const int more = lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    unsigned lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    unsigned highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    char32_t c = lead & (0x3FU >> more);
    for (int i = 0; i < more; ++i) {
        const unsigned byte = at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
        if (byte < lowest || byte > highest)
            return kIllFormed;
        c = c << 6 | (byte & 0x3F);
        ++at;
        lowest = 0x80;
        highest = 0xBF;
    }
    return c;
}

} // namespace

CodePage::CodePage(std::unique_ptr<CodePageTable> table)
    : table_(std::move(table)),
      unicode_(static_cast<char16_t*>(std::calloc(kCodes, sizeof(char16_t)))),
      code_(static_cast<char16_t*>(std::calloc(kCodes, sizeof(char16_t)))) {
    if (!unicode_ || !code_)
        throw std::bad_alloc();
}

CodePage::~CodePage() = default;

std::string CodePage::decode(std::string_view bytes) const {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (std::size_t at = 0; at < bytes.size();) {
        if (const std::size_t run = asciiRun(bytes, at); run != 0) {
            text.append(bytes, at, run);
            at += run;
            continue;
        }
        const auto first = static_cast<unsigned char>(bytes[at]);
        char16_t c = unicodeOf(first);
        std::size_t length = 1;
        if (c == kLeadByte && at + 1 < bytes.size()) {
            c = unicodeOf(first << 8U | static_cast<unsigned char>(bytes[at + 1]));
            length = 2;
        }
        if (c == kNoCharacter || c == kLeadByte) {
            c = static_cast<char16_t>(0xDC00 | first);
            length = 1;
        }
        appendUtf8(text, c);
        at += length;
    }
    return text;
}

std::string CodePage::encode(std::string_view text) const {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        if (const std::size_t run = asciiRun(text, at); run != 0) {
            bytes.append(text, at, run);
            at += run;
            continue;
        }
        if (const unsigned carried = carriedByte(text, at); carried != 0) {
            bytes += static_cast<char>(carried);
            at += 3;
            continue;
        }
        const char32_t c = nextCharacter(text, at);
        const unsigned code = c > 0xFFFF ? kNoCode : codeOf(static_cast<char16_t>(c));
        if (code == kNoCode) {
            bytes += '?';
            continue;
        }
        if (code > 0xFF)
            bytes += static_cast<char>(code >> 8);
        bytes += static_cast<char>(code);
    }
    return bytes;
}

char16_t CodePage::unicodeOf(unsigned code) const {
    char16_t& known = unicode_[code];
    if (known == 0)
        known = askUnicodeOf(code);
    return known;
}

unsigned CodePage::codeOf(char16_t character) const {
    char16_t& known = code_[character];
    if (known == 0)
        known = static_cast<char16_t>(askCodeOf(character));
    return known;
}

char16_t CodePage::askUnicodeOf(unsigned code) const {
    const bool two = code > 0xFF;
    if (!two && table_->isLeadByte(static_cast<unsigned char>(code)))
        return kLeadByte;
    const char bytes[] = {static_cast<char>(two ? code >> 8 : code), static_cast<char>(code)};
    const char16_t c = table_->character({bytes, two ? 2U : 1U});
    return c < 0x80 || (c & 0xF800) == 0xD800 || codeOf(c) != code ? kNoCharacter : c;
}

unsigned CodePage::askCodeOf(char16_t character) const {
    const std::string bytes = table_->bytes(character);
    if (bytes.empty() || bytes.size() > 2)
        return kNoCode;
    const auto first = static_cast<unsigned char>(bytes[0]);
    return bytes.size() == 1 ? first : first << 8U | static_cast<unsigned char>(bytes[1]);
}

} // namespace platform
