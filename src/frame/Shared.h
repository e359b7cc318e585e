// The state that all pages share. It lives for the whole run; the data file is its image on disk
// between two runs.
#pragma once

#include <array>
#include <string>

namespace quorvanta {

// Ten texts with indices 1 to 10. Index 0 is never used.
using RowTexts = std::array<std::string, 11>;
inline constexpr int kRows = 10;

// A row as it is stored: the text of its cells, each followed by ";".
extern RowTexts gstrStammNumbers;
extern RowTexts gstrFavorites;

extern double gdblWin;     // total amount won
extern double gdblLoss;    // total amount of bets
extern double gdblBalance; // gdblWin less gdblLoss
extern double gdblLargest; // largest win to date
extern std::string gstrBankrollDate;

// Copies of values of cLocalSettings, filled once at start-up.
extern std::string gstrWinDirectory;
extern std::string gstrWinSysDirectory;
extern std::string gstrShortDateFormat;

// The language of those messages that exist in two: 1 English, 2 German.
extern int gintLanguage;

// Captions and message box titles are built from this one text. Its trailing blank belongs to it.
inline constexpr const char* kProductTitle = "Quor Vanta ";
inline constexpr const char* kMaker = "Zephyrwick";

// Puts every shared value back to what it is when a run begins.
void ResetSharedState();

} // namespace quorvanta
