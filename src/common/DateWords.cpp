#include "common/DateWords.h"

#include "common/LocaleText.h"
#include "platform/Picture.h"

#include <algorithm>

namespace quorvanta {

namespace {

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
    std::string plain = platform::current().locale.upperCase(text);
    for (const std::string_view blank : {"\u00A0", "\u202F"})
        for (std::size_t at = 0; (at = plain.find(blank, at)) != std::string::npos; ++at)
            plain.replace(at, blank.size(), 1, ' ');
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
