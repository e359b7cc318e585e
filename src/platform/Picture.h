// Pictures of dates and times ("dd.MM.yyyy", "h:mm:ss tt", "d MMMM yyyy 'г.'"): letters stand for
// fields, and text that has letters of its own stands in quotes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

// One field of a picture, `count` times the letter, or a piece of text, whose letter is NUL.
struct PictureToken {
    char letter;
    std::size_t count;
    std::string text;
    bool quoted;
};

// The tokens of a picture in their order, one piece of text each for what is in quotes and what is
// not. Two quotes in a row are one quote in the text, and a piece of their own. A quote without its
// fellow reaches to the end.
std::vector<PictureToken> tokensOf(std::string_view picture);

// The letters of the date's fields in their order, each once: "dMy" for "dddd, dd.MM.yyyy". The
// name of the day is no field of the date.
std::string dateLetters(std::string_view picture);

} // namespace platform
