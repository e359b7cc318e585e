// Patterns as ICU writes them, turned into the published pictures of dates, times and amounts.
#pragma once

#include <string>
#include <string_view>

namespace platform {

// "EEEE, d. MMMM y" becomes "dddd, d. MMMM yyyy", "h:mm:ss a" becomes "h:mm:ss tt". A year always
// has four digits. Fields without a letter in pictures (era, time zone) are left out.
std::string pictureOf(std::string_view pattern);

// The same without the name of the day: "dddd, d. MMMM yyyy" becomes "d. MMMM yyyy".
std::string withoutDayName(std::string_view picture);

// What stands between the first two numbers of a picture: "." in "dd.MM.yyyy".
std::string separatorOf(std::string_view picture);

// The order of a date: 0 month, day, year; 1 day, month, year; 2 year, month, day.
int dateOrder(std::string_view picture);

// "3;0": groups of three all the way; "3;2;0": one of three, then twos ("#,##,##0.###").
std::string groupingOf(std::string_view pattern);

// The places of sign, currency and amount in a currency pattern, as LOCALE_ICURRENCY and
// LOCALE_INEGCURR number them.
int positiveCurrencyMode(std::string_view pattern);
int negativeCurrencyMode(std::string_view pattern);

} // namespace platform
