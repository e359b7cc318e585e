// The keypad on which the numbers of a row are picked: a frame with a key a number, which is the
// key's index. A picked key is bold; nothing else keeps what is picked.
#pragma once

#include "toolkit/ControlArray.h"
#include "toolkit/Controls.h"

#include <vector>

namespace quorvanta {

// Makes the keys in their frame. Key 0 is hidden and never used.
void buildKeypad(toolkit::Frame& frame, toolkit::ControlArray<toolkit::CommandButton>& keys);

// In rising order.
std::vector<int> pickedNumbers(const toolkit::ControlArray<toolkit::CommandButton>& keys);

} // namespace quorvanta
