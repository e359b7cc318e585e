#include "common/Conversions.h"
#include "common/LocaleText.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <utility>
#include <vector>

namespace quorvanta {

namespace {

using platform::DateTime;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c & 0x80) != 0;
}

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

// The text with plain blanks and small letters.
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

// A word that a date or time of the locale may have, and what it tells.
struct Word {
    std::string text;
    int month = 0; // 1 to 12
    int half = 0;  // of the day: 1 or 2
    bool day = false;
    bool filler = false; // stands in the pictures of the locale
};

class Words {
public:
    Words() {
        using namespace platform;
        for (int i = 0; i < 12; ++i)
            for (const int item : {LOCALE_SMONTHNAME1 + i, LOCALE_SABBREVMONTHNAME1 + i})
                at(localeText(item)).month = i + 1;
        for (int i = 0; i < 7; ++i)
            for (const int item : {LOCALE_SDAYNAME1 + i, LOCALE_SABBREVDAYNAME1 + i})
                at(localeText(item)).day = true;
        at(localeText(LOCALE_S1159)).half = 1;
        at(localeText(LOCALE_S2359)).half = 2;
        for (const int item : {LOCALE_SSHORTDATE, LOCALE_SLONGDATE, LOCALE_STIMEFORMAT})
            addQuoted(localeText(item));
    }

    // The longest word that the text begins with, or nullptr.
    const Word* frontOf(std::string_view text) const {
        const Word* longest = nullptr;
        for (const Word& word : all_)
            if (text.starts_with(word.text) && endsThere(word, text.substr(word.text.size())) &&
                (!longest || word.text.size() > longest->text.size()))
                longest = &word;
        return longest;
    }

private:
    Word& at(const std::string& name) {
        std::string text = folded(name);
        text.erase(text.find_last_not_of('.') + 1);
        const auto known = std::find_if(all_.begin(), all_.end(),
                                        [&](const Word& word) { return word.text == text; });
        if (known != all_.end())
            return *known;
        return text.empty() ? nameless_ : all_.emplace_back(Word{text});
    }

    // The texts in quotes: "г." in "d MMMM yyyy 'г.'".
    void addQuoted(const std::string& picture) {
        for (std::size_t from = picture.find('\''); from != std::string::npos;) {
            const std::size_t end = std::min(picture.find('\'', from + 1), picture.size());
            at(picture.substr(from + 1, end - from - 1)).filler = true;
            from = picture.find('\'', std::min(end + 1, picture.size()));
        }
    }

    // A name ends where no letter of its alphabet follows. Chinese, Japanese and Korean are written
    // without blanks, and so are some fillers.
    static bool endsThere(const Word& word, std::string_view rest) {
        const auto unspaced = [](char first) { return static_cast<unsigned char>(first) >= 0xE3; };
        if (rest.empty() || word.filler || unspaced(word.text.front()) || unspaced(rest.front()))
            return true;
        return isDigit(word.text.back()) ? !isDigit(rest.front()) : !isLetter(rest.front());
    }

    std::vector<Word> all_;
    Word nameless_; // a name that the locale doesn't have
};

// The punctuation of a picture.
std::string marksOf(const std::string& picture) {
    std::string marks;
    std::copy_if(picture.begin(), picture.end(), std::back_inserter(marks),
                 [](char c) { return !isLetter(c) && c != '\'' && c != ' '; });
    return marks;
}

// Reads a date from a text, in the terms of the locale.
class DateReader {
public:
    std::optional<DateTime> read(const std::string& text) {
        if (!cut(text))
            return std::nullopt;
        const std::size_t wanted = month_ != 0 ? 2 : 3; // numbers of a whole date
        const std::size_t used = std::min(numbers_.size(), wanted);
        if (used == 0 || !marksFit(used) || !readDate(used, wanted) || !readTime(used))
            return std::nullopt;
        return when_;
    }

private:
    // A number, and what stands between it and the number or word ahead of it.
    struct Number {
        std::string marks;
        bool behindWord, blank;
        int value;
        std::size_t digits;
    };

    // Cuts the text into numbers and words, with marks between.
    bool cut(std::string_view text) {
        std::string marks;
        bool behindWord = true, blank = false;
        while (!text.empty()) {
            const char c = text.front();
            std::size_t length = 1;
            if (isDigit(c)) {
                length = std::min(text.find_first_not_of("0123456789"), text.size());
                if (!takeNumber(text.substr(0, length),
                                {std::exchange(marks, {}), behindWord, blank, 0, length}))
                    return false;
                behindWord = blank = false;
            } else if (const Word* const word = isLetter(c) ? words().frontOf(text) : nullptr) {
                if (!nextToWord(std::exchange(marks, {})) || !takeWord(*word))
                    return false;
                length = word->text.size();
                behindWord = true;
                blank = false;
            } else if (isIsoTime(text)) {
                blank = true;
            } else if (c == ' ') {
                blank = true;
            } else {
                marks += c;
            }
            text.remove_prefix(length);
        }
        return nextToWord(marks);
    }

    // What may stand beside a word, and at both ends of the text.
    static bool nextToWord(std::string_view marks) {
        constexpr std::string_view kMarks[] = {"", ".", ",", ".,", "-", "/", "’", "'"};
        return std::find(std::begin(kMarks), std::end(kMarks), marks) != std::end(kMarks);
    }

    // The letter in "2005-07-25T18:42".
    bool isIsoTime(std::string_view text) const {
        return text.front() == 't' && text.size() > 1 && isDigit(text[1]) && numbers_.size() == 3 &&
               numbers_[0].digits == 4;
    }

    const Words& words() {
        if (!words_)
            words_.emplace();
        return *words_;
    }

    bool takeNumber(std::string_view digits, Number number) {
        constexpr std::size_t kMost = 6; // numbers: a date and a time
        if (digits.size() > 4 || numbers_.size() == kMost)
            return false;
        std::from_chars(digits.data(), digits.data() + digits.size(), number.value);
        numbers_.push_back(std::move(number));
        return true;
    }

    bool takeWord(const Word& word) {
        // "mar" is the name of a day and of a month in Spanish: the other month counts.
        if (word.month != 0 && (month_ == 0 || monthMayBeDay_)) {
            month_ = word.month;
            monthMayBeDay_ = word.day;
            return true;
        }
        if (word.half != 0)
            half_ = word.half;
        return word.half != 0 || word.day || word.filler;
    }

    bool marksFit(std::size_t dateNumbers) const {
        if (!numbers_[0].marks.empty() && !(words_ && nextToWord(numbers_[0].marks)))
            return false;
        for (std::size_t i = 1; i < numbers_.size(); ++i) {
            const Number& number = numbers_[i];
            const bool fits = number.behindWord ? nextToWord(number.marks)
                              : i < dateNumbers ? dateMarkFits(i)
                              : i == dateNumbers
                                  ? number.blank && number.marks != "-" && number.marks != "/" &&
                                        nextToWord(number.marks)
                                  : timeMarks_.find(number.marks) != std::string::npos &&
                                        number.marks.size() == 1;
            if (!fits)
                return false;
        }
        return true;
    }

    bool dateMarkFits(std::size_t i) const {
        const std::string& mark = numbers_[i].marks;
        if (month_ != 0)
            return nextToWord(mark);
        if (i > 1 && !mark.empty() && mark != numbers_[1].marks && !numbers_[1].behindWord)
            return false;
        const bool whole = numbers_.size() > 2;
        return mark.empty() ? whole
                            : mark.size() == 1 &&
                                  (dateMarks_ + (whole ? "." : "")).find(mark) != std::string::npos;
    }

    // The order of a date's numbers: letters of its picture, without a month that is named.
    std::string orderOf(std::size_t used, std::size_t wanted) const {
        std::string order = lettersOf(shortDate_);
        if (month_ != 0)
            order = "dMy";
        if (used == wanted && numbers_[0].digits > 2) {
            order = "yMd";
        } else if (order[0] == 'y' && used == wanted && numbers_[used - 1].digits > 2) {
            order = lettersOf(localeText(platform::LOCALE_SLONGDATE));
            std::erase(order, 'y');
            order += 'y';
        }
        if (month_ != 0)
            std::erase(order, 'M');
        if (used < wanted)
            std::erase(order, 'y');
        return order;
    }

    bool readDate(std::size_t used, std::size_t wanted) {
        if (used + 1 < wanted || (used < wanted && numbers_.size() > used))
            return false;
        const std::string order = orderOf(used, wanted);
        when_.year = platform::current().clock.now().year;
        when_.month = month_;
        for (std::size_t i = 0; i < used; ++i) {
            const Number& number = numbers_[i];
            if (order[i] != 'y' && number.digits > 2)
                return false;
            (order[i] == 'y'   ? when_.year
             : order[i] == 'M' ? when_.month
                               : when_.day) = number.value;
            if (order[i] == 'y' && number.digits <= 2)
                when_.year += number.value < 50 ? 2000 : 1900;
        }
        const std::chrono::year_month_day date{
            std::chrono::year(when_.year), std::chrono::month(static_cast<unsigned>(when_.month)),
            std::chrono::day(static_cast<unsigned>(when_.day))};
        return when_.year >= 100 && date.ok();
    }

    bool readTime(std::size_t from) {
        const std::size_t count = numbers_.size() - from;
        if (count == 0)
            return half_ == 0;
        if (count > 3 || (count == 1 && half_ == 0))
            return false;
        int* const fields[] = {&when_.hour, &when_.minute, &when_.second};
        for (std::size_t i = 0; i < count; ++i)
            *fields[i] = numbers_[from + i].value;
        if (half_ != 0) {
            if (when_.hour < 1 || when_.hour > 12)
                return false;
            when_.hour = when_.hour % 12 + (half_ == 2 ? 12 : 0);
        }
        return when_.hour < 24 && when_.minute < 60 && when_.second < 60;
    }

    // The fields of a picture in their order. The name of the day is none.
    static std::string lettersOf(std::string picture) {
        if (const std::size_t at = picture.find("ddd"); at != std::string::npos)
            picture.erase(at, picture.find_first_not_of('d', at) - at);
        std::string order;
        bool quoted = false;
        for (const char c : picture) {
            quoted ^= c == '\'';
            if (!quoted && std::string_view("dMy").find(c) != std::string_view::npos &&
                order.find(c) == std::string::npos)
                order += c;
        }
        return order.size() == 3 ? order : "Mdy";
    }

    const std::string shortDate_ = localeText(platform::LOCALE_SSHORTDATE);
    const std::string dateMarks_ = marksOf(shortDate_) + "/-";
    const std::string timeMarks_ = localeText(platform::LOCALE_STIME) + ":";
    std::optional<Words> words_; // made where the text has any

    std::vector<Number> numbers_;
    int month_ = 0; // of a named month
    bool monthMayBeDay_ = false;
    int half_ = 0; // of the day, where it is told: 1 or 2
    DateTime when_;
};

} // namespace

std::optional<DateTime> ReadDate(std::string_view text) {
    constexpr std::size_t kLongest = 200; // bytes: more than any locale's long date and time take
    if (text.size() > kLongest)
        return std::nullopt;
    return DateReader().read(folded(text));
}

} // namespace quorvanta
