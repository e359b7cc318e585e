// The program's pictures, from its resources.
#pragma once

#include "desktop/win32/System.h"

#include <string>

namespace desktop_win32 {

// The picture of that name in a size in pixels, its colours multiplied by their opacity as
// AlphaBlend takes them; nullptr if there is none. The caller deletes it.
HBITMAP picture(const std::string& name, SIZE size);

// Paints such a bitmap with its top left corner at the place.
void paintPicture(HDC dc, HBITMAP picture, POINT place, SIZE size);

} // namespace desktop_win32
