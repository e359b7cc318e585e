// What the program is built on and never changes.
#pragma once

#include <string>

namespace quorvanta {

// The lottery, and the rows that a page of number rows has.
inline constexpr int kNumbers = 49;
inline constexpr int kDrawn = 6; // of a play that is no system play
inline constexpr int kRows = 10;

// Captions and message box titles are built from this one text. Its trailing blank belongs to it.
inline constexpr const char* kProductTitle = "Quor Vanta ";

// The maker, with its public web site as the user reads it and as a browser is given it.
inline constexpr const char* kMaker = "Zephyrwick";
inline constexpr const char* kCopyright = "Copyright \u00A9 2005 - 2026 Zephyrwick";
inline constexpr const char* kSite = "www.zephyrwick.example";
inline const std::string kHomePage = std::string("https://") + kSite + "/";
inline const std::string kProductPage = kHomePage + "prod02.htm";

} // namespace quorvanta
