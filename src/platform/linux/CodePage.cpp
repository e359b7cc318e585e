#include "platform/linux/CodePage.h"

#include <unicode/ulocdata.h>
#include <unicode/uset.h>
#include <unicode/utf8.h>

#include <cstdint>
#include <cstring>
#include <new>

namespace platform {

namespace {

// Sentinels in the place of a character: no code page holds lone surrogates.
constexpr char16_t kNoCharacter = 0xD800;
constexpr char16_t kLeadByte = 0xD801;
constexpr unsigned kNoCode = 0xFFFF;
constexpr unsigned kCodes = 0x10000;

// In an order in which the first of several that would do is the one in use.
constexpr int kCandidates[] = {1252, 1250, 1251, 1253, 1254, 1255, 1256,
                               1257, 1258, 874,  932,  949,  950,  936};

UConverter* openConverter(int number) {
    UErrorCode status = U_ZERO_ERROR;
    const std::string name = "windows-" + std::to_string(number);
    return ucnv_open(name.c_str(), &status);
}

struct CloseSet {
    void operator()(USet* it) const { uset_close(it); }
};
using Set = std::unique_ptr<USet, CloseSet>;

Set lettersOf(const std::string& locale) {
    UErrorCode status = U_ZERO_ERROR;
    ULocaleData* data = ulocdata_open(locale.c_str(), &status);
    Set letters(ulocdata_getExemplarSet(data, nullptr, 0, ULOCDATA_ES_STANDARD, &status));
    ulocdata_close(data);
    if (U_FAILURE(status))
        letters.reset(uset_openEmpty());
    uset_removeAllStrings(letters.get());
    return letters;
}

int lettersMissing(const Set& letters, int number) {
    UErrorCode status = U_ZERO_ERROR;
    UConverter* converter = openConverter(number);
    const Set covered(uset_openEmpty());
    ucnv_getUnicodeSet(converter, covered.get(), UCNV_ROUNDTRIP_SET, &status);
    ucnv_close(converter);
    const Set missing(uset_clone(letters.get()));
    uset_removeAll(missing.get(), covered.get());
    return uset_size(missing.get());
}

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

} // namespace

int ansiCodePage(const std::string& locale) {
    // Where the letters fit into another code page too, or into none.
    constexpr struct {
        const char* locale;
        int number;
    } kExceptions[] = {{"et_", 1257},  {"sq_", 1250},  {"vi_", 1258},
                       {"zh_TW", 950}, {"zh_HK", 950}, {"zh_MO", 950}};
    for (const auto& exception : kExceptions)
        if (locale.starts_with(exception.locale))
            return exception.number;

    const Set letters = lettersOf(locale);
    int best = 0, fewest = 0;
    for (const int number : kCandidates) {
        const int missing = lettersMissing(letters, number);
        if (missing == 0)
            return number;
        if (best == 0 || missing < fewest) {
            best = number;
            fewest = missing;
        }
    }
    return best;
}

CodePage::CodePage(int number)
    : converter_(openConverter(number)),
      unicode_(static_cast<char16_t*>(std::calloc(kCodes, sizeof(char16_t)))),
      code_(static_cast<char16_t*>(std::calloc(kCodes, sizeof(char16_t)))) {
    if (!unicode_ || !code_)
        throw std::bad_alloc();
    UErrorCode status = U_ZERO_ERROR;
    ucnv_setFallback(converter_.get(), true);
    ucnv_setToUCallBack(converter_.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                        &status);
    ucnv_setFromUCallBack(converter_.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                          &status);
}

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
        UChar32 c = 0;
        U8_NEXT(text.data(), at, text.size(), c);
        const unsigned code = c < 0 || c > 0xFFFF ? kNoCode : codeOf(static_cast<char16_t>(c));
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
    const char bytes[] = {static_cast<char>(two ? code >> 8 : code), static_cast<char>(code)};
    UChar answer[4] = {};
    UErrorCode status = U_ZERO_ERROR;
    const int length = ucnv_toUChars(converter_.get(), answer, 4, bytes, two ? 2 : 1, &status);
    if (status == U_TRUNCATED_CHAR_FOUND && !two)
        return kLeadByte;
    if (U_FAILURE(status) || length != 1 || answer[0] < 0x80 || U16_IS_SURROGATE(answer[0]) ||
        codeOf(answer[0]) != code)
        return kNoCharacter;
    return answer[0];
}

unsigned CodePage::askCodeOf(char16_t character) const {
    char answer[8] = {};
    UErrorCode status = U_ZERO_ERROR;
    const int length = ucnv_fromUChars(converter_.get(), answer, 8, &character, 1, &status);
    if (U_FAILURE(status) || length < 1 || length > 2)
        return kNoCode;
    const auto first = static_cast<unsigned char>(answer[0]);
    return length == 1 ? first : first << 8U | static_cast<unsigned char>(answer[1]);
}

} // namespace platform
