#include "toolkit/Units.h"

#include <algorithm>

namespace toolkit {

namespace {

double luminance(Colour colour) {
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    const auto [red, green, blue] = parts(colour);
    return 0.2126 * linear(red) + 0.7152 * linear(green) + 0.0722 * linear(blue);
}

} // namespace

double contrast(Colour one, Colour other) {
    const auto [darker, lighter] = std::minmax({luminance(one) + 0.05, luminance(other) + 0.05});
    return lighter / darker;
}

} // namespace toolkit
