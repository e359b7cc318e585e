// Values as text in the user's locale, and back.
#pragma once

#include "platform/Clock.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvanta {

// A number as plain text: at most 15 significant digits, no trailing zeros, no grouping, the
// locale's decimal separator; the exponent form ("1E+15", "3.33333333333333E-02") for a number
// that is too large for 15 digits or needs more than 15 decimals.
std::string CStr(double value);

// A text as a number: blanks around it, a sign, digits, both of the locale's separators and an
// exponent are read. Raises TypeMismatch for a text that is no number, the empty text too, and
// Overflow for one too large for a double.
double CDbl(std::string_view text);

// A text as a whole number of 16 bits, rounded half to even. Raises TypeMismatch and Overflow.
int CInt(std::string_view text);

// A date, or a date and time, in the locale's short form.
std::string ShortDate(const platform::DateTime& when);
std::string ShortDateTime(const platform::DateTime& when);

// A date in a picture such as "dd.MM.yyyy", in the letters of the locale's own pictures.
std::string FormatDate(const platform::DateTime& when, std::string_view picture);

// The date that the locale reads in the text, or nothing.
std::optional<platform::DateTime> ReadDate(std::string_view text);

} // namespace quorvanta
