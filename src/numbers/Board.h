// The 49 numbers in seven lines of seven, and the board that shows them: labels in a frame, with
// the number as index. A label's colour and whether it is enabled are all that a board holds.
#pragma once

#include "toolkit/ControlArray.h"
#include "toolkit/Controls.h"

#include <array>

namespace quorvanta {

inline constexpr int kInLine = 7;

// Where the numbers stand in their frame, in twips: 1 at the top left, 49 at the bottom right.
struct NumberPlaces {
    std::array<double, kInLine> lefts;
    double firstTop, lineHeight;
    double width, height; // of one number

    toolkit::Place of(int number) const;
};

struct BoardDesign {
    toolkit::Place frame;
    NumberPlaces labels;
    double fontSize; // points
};

// Makes the frame `index` of `frames`, and in it the labels 1 to 49.
void buildBoard(toolkit::Form& form, toolkit::ControlArray<toolkit::Frame>& frames, int index,
                toolkit::ControlArray<toolkit::Label>& labels, const BoardDesign& design);

// Has a screen reader say the drawn numbers, in rising order.
void announceDraw(toolkit::ControlArray<toolkit::Label>& labels);

} // namespace quorvanta
