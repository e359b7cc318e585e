// Dates as text in the user's locale, and back.
#pragma once

#include "platform/Clock.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvanta {

// A date, or a date and time, in the locale's short form.
std::string ShortDate(const platform::DateTime& when);
std::string ShortDateTime(const platform::DateTime& when);

// A date in a picture such as "dd.MM.yyyy", in the letters of the locale's own pictures.
std::string FormatDate(const platform::DateTime& when, std::string_view picture);

// The date that the locale reads in the text, or nothing. Its numbers stand in the order of the
// short date with "/", "-", "." or blanks between, or year first with three or four digits; where
// the locale has the year first and it stands last, the day and the month are in the order of the
// long date. The month may be named, a time may follow. The year may be left out for the present
// one, but not behind a "." that isn't the locale's own: "1.5" is a number to an American. Years of
// two digits are those from 1950 to 2049.
std::optional<platform::DateTime> ReadDate(std::string_view text);

} // namespace quorvanta
