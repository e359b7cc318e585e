// The values that all pages share and that the user gets back at the next start: the data file is
// their image on disk. They live for the whole run.
#pragma once

#include "frame/modConstants.h"

#include <array>
#include <string>

namespace quorvanta {

// Texts with indices 1 to 10. Index 0 is never used.
using RowTexts = std::array<std::string, kRows + 1>;

// A row as it is stored: the text of its cells, each followed by ";".
inline RowTexts gstrStammNumbers;
inline RowTexts gstrFavorites;

inline double gdblWin = 0;     // total amount won
inline double gdblLoss = 0;    // total amount of bets
inline double gdblBalance = 0; // gdblWin less gdblLoss
inline double gdblLargest = 0; // largest win to date
inline std::string gstrBankrollDate;

} // namespace quorvanta
