#include "desktop/win32/Look.h"

#include <map>
#include <tuple>

namespace desktop_win32 {

namespace {

double perPixel(int dpi) {
    return toolkit::kTwipsPerInch / dpi;
}

// The bitmap font of that name has no sizes between its few: this one is drawn like it.
const char* installedName(const std::string& design) {
    return design == "MS Sans Serif" ? "Microsoft Sans Serif" : design.c_str();
}

HFONT fontOfHeight(const toolkit::Font& design, int height) {
    static std::map<std::tuple<std::string, int, bool, bool, bool>, HFONT> made;
    HFONT& font = made[{design.name, height, design.bold, design.italic, design.underline}];
    if (!font) {
        LOGFONTW wanted{};
        wanted.lfHeight = -height;
        wanted.lfWeight = design.bold ? FW_BOLD : FW_NORMAL;
        wanted.lfItalic = design.italic;
        wanted.lfUnderline = design.underline;
        wanted.lfCharSet = DEFAULT_CHARSET;
        wanted.lfQuality = CLEARTYPE_QUALITY;
        wide(installedName(design.name)).copy(wanted.lfFaceName, LF_FACESIZE - 1);
        font = CreateFontIndirectW(&wanted);
    }
    return font;
}

} // namespace

int pixels(double twips, int dpi) {
    return toolkit::pixels(twips, perPixel(dpi));
}

double twips(int pixels, int dpi) {
    return toolkit::twips(pixels, perPixel(dpi));
}

toolkit::Place place(const RECT& area) {
    return {1.0 * area.left, 1.0 * area.top, 1.0 * area.right - area.left,
            1.0 * area.bottom - area.top};
}

RECT rectangle(const toolkit::Place& area) {
    return {std::lround(area.Left), std::lround(area.Top), std::lround(area.Left + area.Width),
            std::lround(area.Top + area.Height)};
}

RECT rectangle(const toolkit::Control& control, int dpi) {
    return {pixels(control.Left, dpi), pixels(control.Top, dpi),
            pixels(control.Left + control.Width, dpi), pixels(control.Top + control.Height, dpi)};
}

std::wstring wide(const std::string& utf8) {
    const int size = static_cast<int>(utf8.size());
    std::wstring text(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0)),
        L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, text.data(), static_cast<int>(text.size()));
    return text;
}

std::string narrow(const std::wstring& text) {
    const int size = static_cast<int>(text.size());
    std::string utf8(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), size,
                                                                  nullptr, 0, nullptr, nullptr)),
                     '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, utf8.data(), static_cast<int>(utf8.size()),
                        nullptr, nullptr);
    return utf8;
}

COLORREF colour(toolkit::Colour bgr, int themeIndex) {
    return bgr == toolkit::kThemeColour ? GetSysColor(themeIndex) : static_cast<COLORREF>(bgr);
}

void fill(HDC dc, const RECT& area, COLORREF with) {
    SetDCBrushColor(dc, with);
    FillRect(dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

HFONT font(const toolkit::Font& design, int dpi) {
    return fontOfHeight(design, toolkit::fontPixels(design, perPixel(dpi)));
}

HFONT fittingFont(const toolkit::Font& design, int dpi, const std::wstring& text, int width) {
    const auto widthAt = [&](int height) {
        return static_cast<int>(extent(text, fontOfHeight(design, height)).cx);
    };
    return fontOfHeight(
        design, toolkit::fittingHeight(toolkit::fontPixels(design, perPixel(dpi)), width, widthAt));
}

SIZE extent(const std::wstring& text, HFONT font) {
    HDC const dc = GetDC(nullptr);
    HGDIOBJ const before = SelectObject(dc, font);
    RECT room{};
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &room, DT_CALCRECT | DT_NOPREFIX);
    SelectObject(dc, before);
    ReleaseDC(nullptr, dc);
    return {room.right, room.bottom};
}

} // namespace desktop_win32
