#include "lists/Keypad.h"

#include "frame/modConstants.h"
#include "numbers/Board.h"

#include <string>

namespace quorvanta {

namespace {

constexpr NumberPlaces kKeys{.lefts = {90, 630, 1170, 1725, 2280, 2820, 3360},
                             .firstTop = 255,
                             .lineHeight = 345,
                             .width = 510,
                             .height = 315};

std::string speakPick(const toolkit::Control& key) {
    return key.Caption.get() + (key.FontBold ? ", picked" : "");
}

} // namespace

void buildKeypad(toolkit::Frame& frame, toolkit::ControlArray<toolkit::CommandButton>& keys) {
    keys.load(0, frame).Visible = false; // so that each key's index is its number
    for (int n = 1; n <= kNumbers; ++n)
        keys.load(n, frame, std::to_string(n), kKeys.of(n)).speaks = speakPick;
}

std::vector<int> pickedNumbers(const toolkit::ControlArray<toolkit::CommandButton>& keys) {
    std::vector<int> numbers;
    for (int n = 1; n <= kNumbers; ++n)
        if (keys(n).FontBold)
            numbers.push_back(n);
    return numbers;
}

} // namespace quorvanta
