// What the tests of the data file share: a whole file, and the values it holds.
#pragma once

#include "frame/modQuorvantaLite.h"

#include <string>
#include <tuple>

namespace tests {

// The file of a user with ten customized rows and favorite rows.
inline std::string wholeFile() {
    std::string stamm, favorites;
    for (int row = 1; row <= quorvanta::kRows; ++row) {
        const std::string numbers =
            std::to_string(row) + "." + std::to_string(row) + ";11;19;23;29;34;";
        stamm += numbers + "40;46;" + std::string(41, ';') + "\r\n";
        favorites += numbers + "\r\n";
    }
    return "7/25/2005 6:42:07 PM\r\n"
           "Tampering with this file will cause the program not to run correctly!\r\n"
           "\r\n[StammNumbers]\r\n" +
           stamm + "\r\n[Favorites]\r\n" + favorites +
           "\r\n[Win/Loss]\r\nWin:1250.5\r\nLoss:980\r\nBal:270.5\r\nLarge:500\r\nDate:3/2/"
           "2005\r\n";
}

// Everything that the data file keeps.
inline auto stored() {
    using namespace quorvanta;
    return std::tie(gstrStammNumbers, gstrFavorites, gdblWin, gdblLoss, gdblBalance, gdblLargest,
                    gstrBankrollDate);
}
using StoredValues = std::tuple<quorvanta::RowTexts, quorvanta::RowTexts, double, double, double,
                                double, std::string>;

inline void forgetStored() {
    stored() = StoredValues{};
}

} // namespace tests
