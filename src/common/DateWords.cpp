#include "common/DateWords.h"

#include "common/LocaleText.h"
#include "platform/Picture.h"

#include <algorithm>

namespace quorvanta {

namespace {

// The small letter of a capital one, in the alphabets of two bytes that have both.
unsigned smallLetter(unsigned c) {
    const auto within = [c](unsigned first, unsigned last) { return c >= first && c <= last; };
    if ((within(0xC0, 0xDE) && c != 0xD7) || within(0x391, 0x3A9) || within(0x410, 0x42F))
        return c + 0x20;
    if (within(0x400, 0x40F))
        return c + 0x50;
    if (within(0x100, 0x137) || within(0x14A, 0x177))
        return c | 1U;
    return within(0x139, 0x148) || within(0x179, 0x17E) ? c + c % 2 : c;
}

// A name ends where no letter of its alphabet follows. Chinese, Japanese and Korean are written
// without blanks, and so are some fillers.
bool endsThere(const DateWord& word, std::string_view rest) {
    const auto unspaced = [](char first) { return static_cast<unsigned char>(first) >= 0xE3; };
    if (rest.empty() || word.filler || unspaced(word.text.front()) || unspaced(rest.front()))
        return true;
    return isDigit(word.text.back()) ? !isDigit(rest.front()) : !isLetter(rest.front());
}

} // namespace

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c & 0x80) != 0;
}

std::string folded(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
        const std::string_view rest = text.substr(at);
        if (rest.starts_with("\u00A0") || rest.starts_with("\u202F")) {
            plain += ' ';
            at += byte(at) == 0xC2 ? 1 : 2;
        } else if ((byte(at) & 0xE0U) == 0xC0 && rest.size() > 1) {
            const unsigned c = smallLetter((byte(at) & 0x1FU) << 6U | (byte(at + 1) & 0x3FU));
            plain += static_cast<char>(0xC0 | c >> 6U);
            plain += static_cast<char>(0x80 | (c & 0x3FU));
            ++at;
        } else {
            plain +=
                static_cast<char>(byte(at) >= 'A' && byte(at) <= 'Z' ? byte(at) + 32 : byte(at));
        }
    }
    return plain;
}

DateWords::DateWords(bool wanted) {
    using namespace platform;
    if (!wanted)
        return;
    for (int i = 0; i < 12; ++i)
        for (const int item : {LOCALE_SMONTHNAME1 + i, LOCALE_SABBREVMONTHNAME1 + i})
            at(localeText(item)).month = i + 1;
    for (int i = 0; i < 7; ++i)
        for (const int item : {LOCALE_SDAYNAME1 + i, LOCALE_SABBREVDAYNAME1 + i})
            at(localeText(item)).day = true;
    at(localeText(LOCALE_S1159)).half = 1;
    at(localeText(LOCALE_S2359)).half = 2;
    for (const int item : {LOCALE_SSHORTDATE, LOCALE_SLONGDATE, LOCALE_STIMEFORMAT})
        addTextsOf(localeText(item));
}

const DateWord* DateWords::frontOf(std::string_view text) const {
    const DateWord* longest = nullptr;
    for (const DateWord& word : all_)
        if (text.starts_with(word.text) && endsThere(word, text.substr(word.text.size())) &&
            (!longest || word.text.size() > longest->text.size()))
            longest = &word;
    return longest;
}

DateWord& DateWords::at(const std::string& name) {
    std::string text = folded(name);
    text.erase(text.find_last_not_of('.') + 1);
    const auto known = std::ranges::find(all_, text, &DateWord::text);
    if (known != all_.end())
        return *known;
    return text.empty() ? nameless_ : all_.emplace_back(DateWord{text});
}

void DateWords::addTextsOf(const std::string& picture) {
    for (const platform::PictureToken& token : platform::tokensOf(picture))
        if (token.quoted)
            at(token.text).filler = true;
}

} // namespace quorvanta
