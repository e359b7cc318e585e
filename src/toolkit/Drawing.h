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

} // namespace toolkit
