#include "frame/Shared.h"

namespace quorvanta {

RowTexts gstrStammNumbers;
RowTexts gstrFavorites;
double gdblWin = 0;
double gdblLoss = 0;
double gdblBalance = 0;
double gdblLargest = 0;
std::string gstrBankrollDate;
std::string gstrWinDirectory;
std::string gstrWinSysDirectory;
std::string gstrShortDateFormat;
int gintLanguage = 0;

void ResetSharedState() {
    gstrStammNumbers = {};
    gstrFavorites = {};
    gdblWin = gdblLoss = gdblBalance = gdblLargest = 0;
    gstrBankrollDate.clear();
    gstrWinDirectory.clear();
    gstrWinSysDirectory.clear();
    gstrShortDateFormat.clear();
    gintLanguage = 0;
}

} // namespace quorvanta
