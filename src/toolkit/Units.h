// The toolkit's units in pixels, points and colour parts. A desktop keeps twips, and turns them
// into pixels once, where it places a widget.
#pragma once

#include "toolkit/Control.h"

#include <cmath>

namespace toolkit {

inline constexpr double kTwipsPerInch = 1440;
inline constexpr double kTwipsPerPixel = 15; // of a logical pixel, 96 to the inch
inline constexpr double kTwipsPerPoint = 20;

// `perPixel` is less than 15 where more than 96 pixels fill an inch.
inline int pixels(double twips, double perPixel = kTwipsPerPixel) {
    return static_cast<int>(std::lround(twips / perPixel));
}
inline double twips(int pixels, double perPixel = kTwipsPerPixel) {
    return pixels * perPixel;
}

// The height of a font. Fonts are sized as all else on a form, so that texts fit their controls at
// every resolution.
inline int fontPixels(const Font& font, double perPixel = kTwipsPerPixel) {
    return pixels(font.size * kTwipsPerPoint, perPixel);
}

// How well two colours can be told apart, from 1 for equal ones to 21 for black and white.
double contrast(Colour one, Colour other);
// What lines and titles need at least, and what a mark needs.
inline constexpr double kReadable = 3, kNoticed = 2;
// The colour where it can be told from the one that it stands beside, else another.
inline Colour seenBeside(Colour beside, Colour wanted, Colour other, double atLeast = kReadable) {
    return contrast(wanted, beside) >= atLeast ? wanted : other;
}

struct ColourParts {
    int red, green, blue; // 0 to 255
};
inline ColourParts parts(Colour bgr) {
    return {bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF};
}

// The largest font height from `height` down to three quarters of it in which a text is no wider
// than `room`; the smallest if none is. `widthAt` gives the text's width in a height; all in
// pixels.
template <class Measure>
int fittingHeight(int height, int room, Measure widthAt) {
    const int smallest = height * 3 / 4;
    while (height > smallest && widthAt(height) > room)
        --height;
    return height;
}

} // namespace toolkit
