// Characters of the texts inside the program, which are UTF-8.
#pragma once

#include <string>

namespace toolkit {

// How many characters a text has, as SelStart and SelLength count them.
int characters(const std::string& text);

// The characters one by one; a byte that belongs to none gives U+FFFD.
std::u32string codePoints(const std::string& text);
std::string utf8(char32_t character);

} // namespace toolkit
