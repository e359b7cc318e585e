// What a picture control shows.
#pragma once

#include "toolkit/Control.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace toolkit {

// A small picture of colours, row by row from the top left.
struct Bitmap {
    int width = 0, height = 0; // pixels
    std::vector<Colour> pixels;
};

// Either one of the desktop's own drawings, by name, or a bitmap. Giving it from one control to
// another shares the bitmap, so it costs as little as a pointer, and two are equal if they share
// theirs.
class Drawing {
public:
    Drawing() = default;
    Drawing(const char* name) : name_(name) {}
    Drawing(std::shared_ptr<const Bitmap> bitmap) : bitmap_(std::move(bitmap)) {}

    const std::string& name() const { return name_; }
    const std::shared_ptr<const Bitmap>& bitmap() const { return bitmap_; } // nullptr if named
    bool operator==(const Drawing&) const = default;

private:
    std::string name_;
    std::shared_ptr<const Bitmap> bitmap_;
};

// A named drawing is there in several widths, in pixels: the one to be shown at `width` is that
// itself, else the next larger one, or beyond all the largest. 0 if `isThere(width)` holds for
// none.
template <class IsThere>
int drawnWidth(int width, IsThere isThere) {
    int found = width;
    while (found < 4 * width && !isThere(found))
        ++found;
    while (found > 0 && !isThere(found))
        --found;
    return found;
}

} // namespace toolkit
