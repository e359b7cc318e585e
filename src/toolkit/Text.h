// Characters of the texts inside the program, which are UTF-8.
#pragma once

#include <string>

namespace toolkit {

// How many characters a text has, as SelStart and SelLength count them.
int characters(const std::string& text);

// Windows count in units of UTF-16: a character beyond the first 65,536 is two. How many units that
// many characters of the text take from its beginning, and the other way round.
int units(const std::string& text, int characters);
int charactersIn(const std::string& text, int units);

// The characters one by one; a byte that belongs to none gives U+FFFD.
std::u32string codePoints(const std::string& text);
std::string utf8(char32_t character);

} // namespace toolkit
