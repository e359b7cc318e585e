// The words that dates and times of the user's locale may have.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvanta {

// A word, and what it stands for: it may be several things at once.
struct DateWord {
    std::string text;
    int month = 0; // 1 to 12
    int half = 0;  // of the day: 1 or 2
    bool day = false;
    bool filler = false; // stands in the pictures of the locale
};

class DateWords {
public:
    // None of them where `wanted` is false: asking for them all takes longer than reading a date.
    explicit DateWords(bool wanted);

    // The longest word that the text begins with, or nullptr.
    const DateWord* frontOf(std::string_view text) const;

private:
    DateWord& at(const std::string& name);
    void addTextsOf(const std::string& picture);

    std::vector<DateWord> all_;
    DateWord nameless_; // a name that the locale doesn't have
};

// The text as words are compared: in capitals, and with plain blanks.
std::string folded(std::string_view text);

// A letter of any alphabet, or a part of one.
bool isLetter(char c);
bool isDigit(char c);

} // namespace quorvanta
