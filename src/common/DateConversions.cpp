#include "common/Conversions.h"
#include "common/LocaleText.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <vector>

namespace quorvanta {

namespace {

using platform::DateTime;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isAsciiLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool isLetter(char c) {
    return isAsciiLetter(c) || (c & 0x80) != 0;
}
char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 'a' - 'A') : c;
}

bool sameWord(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lower(x) == lower(y); });
}

std::string padded(int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width > digits.size() ? width - digits.size() : 0, '0') + digits;
}

std::chrono::year_month_day dayOf(const DateTime& when) {
    return {std::chrono::year(when.year), std::chrono::month(static_cast<unsigned>(when.month)),
            std::chrono::day(static_cast<unsigned>(when.day))};
}

// The number of a day from 0, Monday, to 6.
int weekday(const DateTime& when) {
    const std::chrono::weekday day{std::chrono::sys_days(dayOf(when))};
    return static_cast<int>(day.iso_encoding()) - 1;
}

std::string nameOr(int item, const std::string& number) {
    const std::string name = localeText(item);
    return name.empty() ? number : name;
}

// One field of a picture: `count` times the letter.
std::string field(const DateTime& when, char letter, std::size_t count) {
    using namespace platform;
    const std::size_t width = std::min<std::size_t>(count, 2);
    switch (letter) {
    case 'd':
        if (count < 3)
            return padded(when.day, count);
        return localeText((count == 3 ? LOCALE_SABBREVDAYNAME1 : LOCALE_SDAYNAME1) + weekday(when));
    case 'M':
        if (count < 3)
            return padded(when.month, count);
        return nameOr((count == 3 ? LOCALE_SABBREVMONTHNAME1 : LOCALE_SMONTHNAME1) + when.month - 1,
                      padded(when.month, 2));
    case 'y':
        return count < 3 ? padded(when.year % 100, count) : padded(when.year, 4);
    case 'h':
        return padded((when.hour + 11) % 12 + 1, width);
    case 'H':
        return padded(when.hour, width);
    case 'm':
        return padded(when.minute, width);
    case 's':
        return padded(when.second, width);
    case 't':
        return localeText(when.hour < 12 ? LOCALE_S1159 : LOCALE_S2359);
    case 'g':
        return {}; // the era
    default:
        return std::string(count, letter);
    }
}

// A text cut into numbers and words, each with the punctuation ahead of it.
struct Token {
    std::string_view marks, text;
    bool isNumber() const { return isDigit(text.front()); }
};

struct Tokens {
    std::vector<Token> all;
    std::string_view marksAtEnd;
};

Tokens tokensOf(std::string_view text) {
    Tokens tokens;
    while (!text.empty()) {
        const auto from = std::find_if(text.begin(), text.end(),
                                       [](char c) { return isDigit(c) || isLetter(c); });
        const auto to = from == text.end() || isDigit(*from)
                            ? std::find_if_not(from, text.end(), isDigit)
                            : std::find_if_not(from, text.end(), isLetter);
        const std::string_view marks(text.begin(), from);
        if (from == text.end())
            tokens.marksAtEnd = marks;
        else
            tokens.all.push_back({marks, {from, to}});
        text = {to, text.end()};
    }
    return tokens;
}

// Reads a date from a text's tokens, in the terms of the locale.
class DateReader {
public:
    std::optional<DateTime> read(std::string_view text) {
        const std::string plain = withPlainBlanks(text);
        const Tokens tokens = tokensOf(cutDesignator(plain));
        for (const Token& token : tokens.all)
            if (token.isNumber() ? !takeNumber(token) : !takeWord(token.text))
                return std::nullopt;
        const std::size_t dateNumbers = month_ != 0 ? 2 : 3;
        const std::size_t used = std::min(numbers_.size(), dateNumbers);
        if (!marksFit(used) || !onlyOf(tokens.marksAtEnd, kBetween + dateMarks_) ||
            !readDate(used, dateNumbers) || !readTime(used))
            return std::nullopt;
        return when_;
    }

private:
    struct Number {
        std::string marks;
        int value;
        std::size_t digits;
    };

    static bool onlyOf(std::string_view marks, const std::string& allowed) {
        return marks.find_first_not_of(allowed) == std::string_view::npos;
    }

    static std::string withPlainBlanks(std::string_view text) {
        std::string plain;
        while (!text.empty()) {
            const bool blank = text.starts_with("\u00A0") || text.starts_with("\u202F");
            plain += blank ? ' ' : text.front();
            text.remove_prefix(!blank ? 1 : text.front() == '\xC2' ? 2 : 3);
        }
        return plain;
    }

    // The designator of the half of the day has dots of its own in some locales ("p.m.").
    std::string_view cutDesignator(std::string_view text) {
        for (const bool afternoon : {false, true}) {
            const std::string& designator = afternoon ? afternoonText_ : forenoonText_;
            if (designator.empty() || text.size() < designator.size())
                continue;
            const std::size_t rest = text.size() - designator.size();
            if (!sameWord(text.substr(rest), designator))
                continue;
            half_ = afternoon ? 2 : 1;
            text = text.substr(0, rest);
            return text.substr(0, text.find_last_not_of(' ') + 1);
        }
        return text;
    }

    bool takeNumber(const Token& token) {
        constexpr std::size_t kMost = 6; // numbers: a date and a time
        int value = 0;
        if (token.text.size() > 4 || numbers_.size() == kMost)
            return false;
        std::from_chars(token.text.data(), token.text.data() + token.text.size(), value);
        numbers_.push_back({std::string(token.marks), value, token.text.size()});
        return true;
    }

    bool takeWord(std::string_view word) {
        using namespace platform;
        for (int i = 0; i < 12 && month_ == 0; ++i)
            if (isName(word, LOCALE_SMONTHNAME1 + i) ||
                isName(word, LOCALE_SABBREVMONTHNAME1 + i)) {
                month_ = i + 1;
                dateMarks_ += '.';
                return true;
            }
        if (sameWord(word, forenoonText_) || sameWord(word, afternoonText_)) {
            half_ = sameWord(word, forenoonText_) ? 1 : 2;
            return true;
        }
        for (int i = 0; i < 7; ++i)
            if (isName(word, LOCALE_SDAYNAME1 + i) || isName(word, LOCALE_SABBREVDAYNAME1 + i))
                return true;
        return isInQuotes(word, shortDate_) || isInQuotes(word, localeText(LOCALE_SLONGDATE));
    }

    // Whether a quoted text of the picture begins with the word: "г" does in "d MMMM yyyy 'г.'".
    static bool isInQuotes(std::string_view word, const std::string& picture) {
        const std::string quoted = std::string("'").append(word);
        const std::size_t at = picture.find(quoted);
        return at != std::string::npos && !isLetter(picture.c_str()[at + quoted.size()]);
    }

    static bool isName(std::string_view word, int item) {
        std::string name = localeText(item);
        if (name.ends_with('.'))
            name.pop_back();
        return !name.empty() && sameWord(word, name);
    }

    bool marksFit(std::size_t dateNumbers) const {
        for (std::size_t i = 0; i < numbers_.size(); ++i) {
            const bool first = i == 0 && month_ == 0;
            const std::string allowed = first              ? " "
                                        : i <= dateNumbers ? kBetween + dateMarks_
                                                           : kBetween + timeMarks_;
            if (!onlyOf(numbers_[i].marks, allowed))
                return false;
        }
        return true;
    }

    bool readDate(std::size_t used, std::size_t wanted) {
        if (used + 1 < wanted || used == 0 || (used < wanted && numbers_.size() > used))
            return false;
        const bool yearFirst = used == wanted && numbers_[0].digits > 2;
        // The places of the fields, without the month if that is named.
        std::string order = yearFirst ? "yMd" : month_ != 0 ? "dMy" : orderOf(shortDate_);
        if (month_ != 0)
            std::erase(order, 'M');
        if (used < wanted)
            std::erase(order, 'y');
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
        return when_.year >= 100 && dayOf(when_).ok();
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

    static std::string orderOf(std::string_view picture) {
        std::string order;
        for (const char c : picture)
            if (std::string_view("dMy").find(c) != std::string_view::npos &&
                order.find(c) == std::string::npos)
                order += c;
        return order.size() == 3 ? order : "Mdy";
    }

    static std::string punctuationOf(const std::string& picture) {
        std::string marks;
        std::copy_if(picture.begin(), picture.end(), std::back_inserter(marks),
                     [](char c) { return !isLetter(c) && c != '\''; });
        return marks;
    }

    inline static const std::string kBetween = " ,";
    const std::string shortDate_ = localeText(platform::LOCALE_SSHORTDATE);
    const std::string forenoonText_ = localeText(platform::LOCALE_S1159);
    const std::string afternoonText_ = localeText(platform::LOCALE_S2359);
    std::string dateMarks_ = punctuationOf(shortDate_) + "/-";
    const std::string timeMarks_ = localeText(platform::LOCALE_STIME) + ":";

    std::vector<Number> numbers_;
    int month_ = 0; // of a named month
    int half_ = 0;  // of the day, where it is told: 1 or 2
    DateTime when_;
};

} // namespace

std::string FormatDate(const DateTime& when, std::string_view picture) {
    std::string text;
    bool quoted = false;
    for (std::size_t at = 0; at < picture.size();) {
        const char c = picture[at];
        if (c == '\'') {
            // Two quotes in a row are one in the text.
            const bool two = picture.substr(at + 1).starts_with('\'');
            text += two ? "'" : "";
            quoted ^= !two;
            at += two ? 2 : 1;
        } else if (isAsciiLetter(c) && !quoted) {
            const std::size_t end = std::min(picture.find_first_not_of(c, at), picture.size());
            text += field(when, c, end - at);
            at = end;
        } else {
            text += c;
            ++at;
        }
    }
    return text;
}

std::string ShortDate(const DateTime& when) {
    return FormatDate(when, localeText(platform::LOCALE_SSHORTDATE));
}

std::string ShortDateTime(const DateTime& when) {
    return ShortDate(when) + " " + FormatDate(when, localeText(platform::LOCALE_STIMEFORMAT));
}

std::optional<DateTime> ReadDate(std::string_view text) {
    constexpr std::size_t kLongest = 100; // more than any locale's long date and time take
    if (text.size() > kLongest)
        return std::nullopt;
    return DateReader().read(text);
}

} // namespace quorvanta
