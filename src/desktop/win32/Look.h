// The toolkit's units and values in those of Windows.
#pragma once

#include "desktop/win32/System.h"
#include "toolkit/Units.h"

#include <string>

namespace desktop_win32 {

// The screen's pixels of a resolution, in dots to the inch; 96 shows a logical pixel as one.
int pixels(double twips, int dpi);
double twips(int pixels, int dpi);
toolkit::Place place(const RECT& area);
RECT rectangle(const toolkit::Place& area);
// From edge to edge, so that neighbours meet at every resolution.
RECT rectangle(const toolkit::Control& control, int dpi);

std::wstring wide(const std::string& utf8);
std::string narrow(const std::wstring& text);

// The system's number for a colour. What the user's theme has is told by its index, a COLOR_...
COLORREF colour(toolkit::Colour bgr, int themeIndex);

void fill(HDC dc, const RECT& area, COLORREF with);

// The font stays the desktop's.
HFONT font(const toolkit::Font& design, int dpi);
// The font in a size in which the text is no wider than `width` pixels, if there is one.
HFONT fittingFont(const toolkit::Font& design, int dpi, const std::wstring& text, int width);
// How much room a text takes in a font, in pixels. Its lines end in CR LF.
SIZE extent(const std::wstring& text, HFONT font);

} // namespace desktop_win32
