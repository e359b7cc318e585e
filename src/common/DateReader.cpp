#include "common/DateText.h"
#include "common/DateWords.h"
#include "common/LocaleText.h"
#include "platform/Picture.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <span>
#include <utility>
#include <vector>

namespace quorvanta {

namespace {

using platform::DateTime;

// A number or a word of the text, and what stands between it and the one ahead of it.
struct Token {
    std::string marks; // without the blanks
    bool blank = false;
    bool behindWord = true; // or first in the text
    const DateWord* word = nullptr;
    std::size_t digits = 0; // of a number
    int value = 0;
};
using Tokens = std::vector<Token>;

// What may stand beside a word, and at both ends of the text.
bool standsBesideWord(std::string_view marks) {
    constexpr std::string_view kMarks[] = {"", ".", ",", ".,", "-", "/", "’", "'"};
    return std::ranges::find(kMarks, marks) != std::end(kMarks);
}

bool isNumber(const Token& token) {
    return token.digits > 0;
}

// Whether the text goes on with the letter of "2005-07-25T18:42".
bool isIsoTime(const Tokens& before, std::string_view text) {
    if (text.size() < 2 || text[0] != 'T' || !isDigit(text[1]))
        return false;
    const auto first = std::ranges::find_if(before, isNumber);
    return std::ranges::count_if(before, isNumber) == 3 && first->digits == 4;
}

// The tokens of a text, or none where it has something that no date has.
Tokens tokensIn(std::string_view text, const DateWords& words) {
    constexpr std::size_t kMostDigits = 4;
    Tokens tokens;
    Token next;
    while (!text.empty()) {
        std::size_t length = 1;
        if (isDigit(text.front())) {
            length = std::min(text.find_first_not_of("0123456789"), text.size());
            if (length > kMostDigits)
                return {};
            std::from_chars(text.data(), text.data() + length, next.value);
            next.digits = length;
        } else if (isLetter(text.front()) && (next.word = words.frontOf(text))) {
            length = next.word->text.size();
        } else if (text.front() == ' ' || isIsoTime(tokens, text)) {
            next.blank = true;
        } else {
            next.marks += text.front();
        }
        if (next.word || isNumber(next)) {
            tokens.push_back(std::exchange(next, {}));
            next.behindWord = tokens.back().word != nullptr;
        }
        text.remove_prefix(length);
    }
    return standsBesideWord(next.marks) ? tokens : Tokens();
}

// What the words of a date say.
struct Named {
    int month = 0; // 1 to 12, 0 for none
    int half = 0;  // of the day: 1 or 2, 0 for none
};

// Nothing where a word is out of place.
std::optional<Named> namedIn(const Tokens& tokens) {
    Named named;
    bool monthMayBeDay = false;
    for (const Token& token : tokens) {
        if (!token.word)
            continue;
        const DateWord& word = *token.word;
        // "mar" is the name of a day and of a month in Spanish: the other month counts.
        if (word.month != 0 && (named.month == 0 || monthMayBeDay)) {
            named.month = word.month;
            monthMayBeDay = word.day;
        } else if (word.half != 0) {
            named.half = word.half;
        } else if (!word.day && !word.filler) {
            return std::nullopt;
        }
        if (!standsBesideWord(token.marks))
            return std::nullopt;
    }
    return named;
}

// The punctuation of a picture.
std::string marksOf(std::string_view picture) {
    std::string marks;
    for (const platform::PictureToken& token : platform::tokensOf(picture))
        for (const char c : token.text)
            if (!isLetter(c) && c != '\'' && c != ' ')
                marks += c;
    return marks;
}

// Whether `mark` is one of those in `marks`.
bool isOneOf(std::string_view mark, std::string_view marks) {
    return mark.size() == 1 && marks.find(mark) != std::string_view::npos;
}

bool dateMarksFit(std::span<const Token> date, bool monthNamed) {
    const bool whole = date.size() > 2;
    const std::string marks =
        marksOf(localeText(platform::LOCALE_SSHORTDATE)) + (whole ? "/-." : "/-");
    return std::ranges::all_of(date, [&](const Token& it) {
        if (monthNamed || it.behindWord)
            return standsBesideWord(it.marks);
        if (it.marks.empty())
            return whole;
        return isOneOf(it.marks, marks) && (it.marks == date[1].marks || date[1].behindWord);
    });
}

bool timeMarksFit(std::span<const Token> time) {
    const std::string marks = localeText(platform::LOCALE_STIME) + ":";
    return std::ranges::all_of(time, [&](const Token& it) {
        if (it.behindWord)
            return standsBesideWord(it.marks);
        if (&it == &time.front())
            return it.blank && !isOneOf(it.marks, "-/") && standsBesideWord(it.marks);
        return isOneOf(it.marks, marks);
    });
}

// The fields of a picture of the locale in their order.
std::string fieldsOf(int item) {
    const std::string fields = platform::dateLetters(localeText(item));
    return fields.size() == 3 ? fields : "Mdy";
}

// What a date's numbers are in their order. A year that can be seen by its digits goes before the
// order of the locale.
std::string orderOf(std::span<const Token> date, bool monthNamed) {
    const bool whole = date.size() == (monthNamed ? 2 : 3);
    std::string order = monthNamed ? "dy" : fieldsOf(platform::LOCALE_SSHORTDATE);
    if (whole && date.front().digits > 2) {
        order = monthNamed ? "yd" : "yMd";
    } else if (whole && order.front() == 'y' && date.back().digits > 2) {
        order = fieldsOf(platform::LOCALE_SLONGDATE);
        std::erase(order, 'y');
        order += 'y';
    }
    if (!whole)
        std::erase(order, 'y');
    return order;
}

// The day that the numbers and the named month, if there is one, make together.
std::optional<DateTime> dayOf(std::span<const Token> date, int month) {
    const std::string order = orderOf(date, month != 0);
    DateTime day{.year = platform::current().clock.now().year, .month = month};
    for (std::size_t i = 0; i < date.size(); ++i) {
        const bool year = order[i] == 'y', shortYear = year && date[i].digits <= 2;
        if (!year && date[i].digits > 2)
            return std::nullopt;
        (year ? day.year : order[i] == 'M' ? day.month : day.day) = date[i].value;
        if (shortYear)
            day.year += date[i].value < 50 ? 2000 : 1900;
    }
    const std::chrono::year_month_day known{std::chrono::year(day.year),
                                            std::chrono::month(static_cast<unsigned>(day.month)),
                                            std::chrono::day(static_cast<unsigned>(day.day))};
    return day.year >= 100 && known.ok() ? std::optional(day) : std::nullopt;
}

// Takes a date off the front of the numbers.
std::optional<DateTime> takeDate(std::span<const Token>& numbers, int month) {
    const std::size_t whole = month != 0 ? 2 : 3; // with a year
    const std::span<const Token> date = numbers.first(std::min(numbers.size(), whole));
    if (date.size() + 1 < whole || !dateMarksFit(date, month != 0))
        return std::nullopt;
    numbers = numbers.subspan(date.size());
    return dayOf(date, month);
}

// Adds the time that the numbers make, if there are any, to the day.
bool addTime(std::span<const Token> numbers, int half, DateTime& when) {
    if (numbers.empty())
        return half == 0;
    if (numbers.size() > 3 || (numbers.size() == 1 && half == 0) || !timeMarksFit(numbers))
        return false;
    int* const fields[] = {&when.hour, &when.minute, &when.second};
    for (std::size_t i = 0; i < numbers.size(); ++i)
        *fields[i] = numbers[i].value;
    if (half != 0) {
        if (when.hour < 1 || when.hour > 12)
            return false;
        when.hour = when.hour % 12 + (half == 2 ? 12 : 0);
    }
    return when.hour < 24 && when.minute < 60 && when.second < 60;
}

} // namespace

std::optional<DateTime> ReadDate(std::string_view text) {
    constexpr std::size_t kLongest = 200; // bytes: more than any locale's long date and time take
    if (text.size() > kLongest)
        return std::nullopt;
    const std::string plain = folded(text);
    const bool worded = std::ranges::any_of(plain, isLetter);
    const DateWords words(worded);
    Tokens tokens = tokensIn(plain, words);
    const std::optional<Named> named = namedIn(tokens);
    std::erase_if(tokens, [](const Token& it) { return it.word != nullptr; });
    if (!named || tokens.empty() || (!worded && !tokens.front().marks.empty()))
        return std::nullopt;
    std::span<const Token> numbers = tokens;
    std::optional<DateTime> when = takeDate(numbers, named->month);
    if (when && !addTime(numbers, named->half, *when))
        return std::nullopt;
    return when;
}

} // namespace quorvanta
