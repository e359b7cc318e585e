// What the program is built on and never changes.
#pragma once

namespace quorvanta {

// The lottery.
inline constexpr int kNumbers = 49;
inline constexpr int kDrawn = 6; // of a play that is no system play

} // namespace quorvanta
