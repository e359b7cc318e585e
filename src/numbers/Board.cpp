#include "numbers/Board.h"

#include "frame/modConstants.h"
#include "toolkit/Form.h"

#include <string>

namespace quorvanta {

namespace {

bool isDrawn(const toolkit::Control& label) {
    return label.ForeColor == toolkit::kRed;
}

std::string speakMark(const toolkit::Control& label) {
    return label.Caption.get() + (isDrawn(label) ? ", drawn" : "");
}

} // namespace

toolkit::Place NumberPlaces::of(int number) const {
    const int line = (number - 1) / kInLine;
    const auto column = static_cast<std::size_t>((number - 1) % kInLine);
    return {lefts.at(column), firstTop + line * lineHeight, width, height};
}

void buildBoard(toolkit::Form& form, toolkit::ControlArray<toolkit::Frame>& frames, int index,
                toolkit::ControlArray<toolkit::Label>& labels, const BoardDesign& design) {
    auto& frame = frames.load(index, form, "", design.frame);
    frame.spokenAs = "Board";
    for (int n = 1; n <= kNumbers; ++n) {
        auto& label = labels.load(n, frame, std::to_string(n), design.labels.of(n));
        label.BackColor = toolkit::kWhite;
        label.ForeColor = toolkit::kBlack;
        label.BorderStyle = true;
        label.TextAlign = toolkit::Alignment::Centre;
        label.design = {.name = "Arial", .size = design.fontSize};
        label.speaks = speakMark;
    }
}

void announceDraw(toolkit::ControlArray<toolkit::Label>& labels) {
    std::string numbers;
    for (int n = 1; n <= kNumbers; ++n)
        if (isDrawn(labels(n)))
            numbers += (numbers.empty() ? "Drawn: " : ", ") + std::to_string(n);
    if (!numbers.empty())
        labels(1).announce(numbers);
}

} // namespace quorvanta
