// Numbers as text in the user's locale, and back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvanta {

// "." where the platform has no answer.
std::string decimalSeparator();

// A number as plain text: at most 15 significant digits, no trailing zeros, no grouping, the
// locale's decimal separator; the exponent form ("1E+15", "3.33333333333333E-02") for a number
// that is too large for 15 digits or needs more than 15 decimals. Raises Overflow for a value that
// is no finite number.
std::string CStr(double value);

// An amount: digits in groups of three with the locale's thousands separator, two decimals, a minus
// in front of a negative one that isn't shown as 0. Rounded with halves away from zero on the
// number's shortest text, the one of fewest digits that reads back as the number: 1.005 gives 1.01,
// although the double lies a little below. Raises Overflow like CStr.
std::string FormatMoney(double value);

// A text as a number: blanks around it, a sign in front, digits, both of the locale's separators
// and an exponent are read. A thousands separator may stand anywhere behind the first digit of the
// whole part; where it is a blank of any width every other will do, and so for both apostrophes.
// Raises TypeMismatch for a text that is no number, the empty text too, and Overflow for one too
// large for a double.
double CDbl(std::string_view text);

// The same, or nothing for a text that CDbl refuses.
std::optional<double> ReadNumber(std::string_view text);

// A text as a whole number of 16 bits, rounded half to even. Raises TypeMismatch and Overflow.
int CInt(std::string_view text);

} // namespace quorvanta
