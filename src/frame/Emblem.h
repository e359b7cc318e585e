// The maker's emblem: a diamond outline around a dark letter on a white square. In the frames of
// its animation a coloured segment runs round the outline.
#pragma once

#include "toolkit/Drawing.h"

namespace quorvanta {

inline constexpr int kEmblemFrames = 30;

// Frame 0 to 29, of 32 by 32 pixels. All are drawn at the first call and kept.
toolkit::Drawing emblemFrame(int index);

} // namespace quorvanta
