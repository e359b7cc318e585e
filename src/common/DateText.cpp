#include "common/DateText.h"

#include "common/LocaleText.h"
#include "platform/Picture.h"

#include <algorithm>
#include <chrono>

namespace quorvanta {

namespace {

using platform::DateTime;

std::string padded(int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width > digits.size() ? width - digits.size() : 0, '0') + digits;
}

// The number of a day from 0, Monday, to 6.
int weekday(const DateTime& when) {
    const std::chrono::year_month_day date{std::chrono::year(when.year),
                                           std::chrono::month(static_cast<unsigned>(when.month)),
                                           std::chrono::day(static_cast<unsigned>(when.day))};
    const std::chrono::weekday day{std::chrono::sys_days(date)};
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

} // namespace

std::string FormatDate(const DateTime& when, std::string_view picture) {
    std::string text;
    for (const platform::PictureToken& token : platform::tokensOf(picture))
        text += token.letter == '\0' ? token.text : field(when, token.letter, token.count);
    return text;
}

std::string ShortDate(const DateTime& when) {
    return FormatDate(when, localeText(platform::LOCALE_SSHORTDATE));
}

std::string ShortDateTime(const DateTime& when) {
    return ShortDate(when) + " " + FormatDate(when, localeText(platform::LOCALE_STIMEFORMAT));
}

} // namespace quorvanta
