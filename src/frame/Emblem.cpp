#include "frame/Emblem.h"

#include <array>
#include <cmath>

namespace quorvanta {

namespace {

using toolkit::Colour;

constexpr int kSize = 32;
constexpr double kMiddle = (kSize - 1) / 2.0;

// Of the sixteen colours that every display has.
constexpr Colour kOutline = 0x800000; // navy
constexpr Colour kDark = toolkit::kBlack;
constexpr std::array<Colour, 5> kSegment{0x00FFFF, toolkit::kRed, toolkit::kRed, 0x000080,
                                         0x000080}; // from its head to its tail

// How far round the outline a point lies, clockwise from the top: 0 to 1.
double wayRound(double x, double y) {
    const double side = std::abs(x) / (std::abs(x) + std::abs(y));
    if (x >= 0)
        return (y < 0 ? side : 2 - side) / 4;
    return (y >= 0 ? 2 + side : 4 - side) / 4;
}

bool inLetter(double x, double y) {
    if (std::abs(x) > 5 || std::abs(y) > 6)
        return false;
    return std::abs(y) > 4 || std::abs(x + y * 5 / 6) < 1.6;
}

Colour pixel(int frame, double x, double y) {
    const double out = std::abs(x) + std::abs(y);
    if (out > 12 && out <= 15) {
        const double head = (frame + 1.0) / kEmblemFrames;
        const double behind = std::fmod(head - wayRound(x, y) + 1, 1) * kEmblemFrames;
        const auto part = static_cast<std::size_t>(behind);
        return part < kSegment.size() ? kSegment[part] : kOutline;
    }
    return inLetter(x, y) ? kDark : toolkit::kWhite;
}

toolkit::Drawing draw(int frame) {
    auto bitmap = std::make_shared<toolkit::Bitmap>();
    bitmap->width = bitmap->height = kSize;
    for (int y = 0; y < kSize; ++y)
        for (int x = 0; x < kSize; ++x)
            bitmap->pixels.push_back(pixel(frame, x - kMiddle, y - kMiddle));
    return {std::move(bitmap)};
}

} // namespace

toolkit::Drawing emblemFrame(int index) {
    static const auto frames = [] {
        std::array<toolkit::Drawing, kEmblemFrames> all;
        for (int i = 0; i < kEmblemFrames; ++i)
            all[static_cast<std::size_t>(i)] = draw(i);
        return all;
    }();
    return frames.at(static_cast<std::size_t>(index));
}

} // namespace quorvanta
