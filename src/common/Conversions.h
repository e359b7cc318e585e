// Values as text in the user's locale, and back.
#pragma once

#include "platform/Clock.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvanta {

// A number as plain text: at most 15 significant digits, no trailing zeros, no grouping, the
// locale's decimal separator; the exponent form ("1E+15", "3.33333333333333E-02") for a number
// that is too large for 15 digits or needs more than 15 decimals. Raises Overflow for a value that
// is no finite number.
std::string CStr(double value);

// An amount: digits in groups of three with the locale's thousands separator, two decimals, rounded
// with halves away from zero as the number's 15 digits show them. Raises Overflow like CStr.
std::string FormatMoney(double value);

// A text as a number: blanks around it, a sign in front, digits, both of the locale's separators
// and an exponent are read. A thousands separator may stand anywhere behind the first digit of the
// whole part; where it is a blank of any width every other will do, and so for both apostrophes.
// Raises TypeMismatch for a text that is no number, the empty text too, and Overflow for one too
// large for a double.
double CDbl(std::string_view text);

// A text as a whole number of 16 bits, rounded half to even. Raises TypeMismatch and Overflow.
int CInt(std::string_view text);

// A date, or a date and time, in the locale's short form.
std::string ShortDate(const platform::DateTime& when);
std::string ShortDateTime(const platform::DateTime& when);

// A date in a picture such as "dd.MM.yyyy", in the letters of the locale's own pictures.
std::string FormatDate(const platform::DateTime& when, std::string_view picture);

// The date that the locale reads in the text, or nothing. Its numbers stand in the order of the
// short date, or year first with three or four digits; the month may be named, the year left out
// for the present one, a time may follow. Years of two digits are those from 1950 to 2049.
std::optional<platform::DateTime> ReadDate(std::string_view text);

} // namespace quorvanta
