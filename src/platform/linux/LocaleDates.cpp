#include "platform/linux/LocaleDates.h"

#include "platform/LocaleItems.h"
#include "platform/linux/LocaleTables.h"
#include "platform/linux/Pictures.h"

#include <utility>

namespace platform {

namespace {

// Places in ICU's list of patterns.
enum { MediumTime = 2, FullDate = 4, ShortDate = 7 };

// Pictures have plain blanks, and no marks for the direction of the text.
std::string plain(std::string text) {
    constexpr std::pair<std::string_view, std::string_view> kReplaced[] = {
        {"\u00A0", " "}, {"\u202F", " "}, {"\u2009", " "},
        {"\u200E", ""},  {"\u200F", ""},  {"\u061C", ""}};
    for (const auto& [from, to] : kReplaced)
        for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
            text.replace(at, from.size(), to);
    return text;
}

// The week begins on Monday here, and on Sunday in ICU.
int day(int item, int monday) {
    return (item - monday + 1) % 7;
}

} // namespace

std::string LocaleDates::picture(int place) const {
    return pictureOf(plain(name("DateTimePatterns", {place})));
}

std::string LocaleDates::shortDate() const {
    return picture(ShortDate);
}

std::string LocaleDates::longDate() const {
    const std::string full = picture(FullDate);
    return longDateWithoutDayName(data_.locale()) ? withoutDayName(full) : full;
}

// Where ICU has the language of other countries alone, the hours are still the country's.
std::string LocaleDates::time() const {
    if (data_.isOwn())
        return picture(MediumTime);
    const std::string country = countryOf(data_.locale());
    const std::string hours = commonText("supplementalData", "timeData/" + country + "/preferred");
    return pictureOf(plain(name(hours == "h" ? "availableFormats/hms" : "availableFormats/Hms")));
}

std::string LocaleDates::name(const char* kind, std::initializer_list<int> place) const {
    return data_.text(std::string("calendar/gregorian/") + kind, place);
}

std::string LocaleDates::text(int item) const {
    const auto within = [item](int first, int count) {
        return item >= first && item < first + count;
    };
    switch (item) {
    case LOCALE_SSHORTDATE:
        return shortDate();
    case LOCALE_SLONGDATE:
        return longDate();
    case LOCALE_STIMEFORMAT:
        return time();
    case LOCALE_SDATE:
        return separatorOf(shortDate());
    case LOCALE_STIME:
        return separatorOf(time());
    case LOCALE_IDATE:
        return std::to_string(dateOrder(shortDate()));
    case LOCALE_ILDATE:
        return std::to_string(dateOrder(longDate()));
    case LOCALE_ITIME:
        return time().find('H') == std::string::npos ? "0" : "1";
    case LOCALE_ICENTURY:
        return "1"; // every short date has a year of four digits
    case LOCALE_S1159:
    case LOCALE_S2359:
        return name("AmPmMarkers", {item - LOCALE_S1159});
    default:
        break;
    }
    if (within(LOCALE_SDAYNAME1, 7))
        return name("dayNames/format/wide", {day(item, LOCALE_SDAYNAME1)});
    if (within(LOCALE_SABBREVDAYNAME1, 7))
        return name("dayNames/format/abbreviated", {day(item, LOCALE_SABBREVDAYNAME1)});
    if (within(LOCALE_SMONTHNAME1, 12))
        return name("monthNames/format/wide", {item - LOCALE_SMONTHNAME1});
    if (within(LOCALE_SABBREVMONTHNAME1, 12))
        return name("monthNames/format/abbreviated", {item - LOCALE_SABBREVMONTHNAME1});
    return {};
}

} // namespace platform
