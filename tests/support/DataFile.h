// What the tests of the data file share: a whole file, the values it holds, and error boxes that
// answer from a script.
#pragma once

#include "frame/Shared.h"
#include "tests/support/FakeDesktop.h"

#include <string>
#include <tuple>

namespace tests {

// The file of a user with two customized rows and one favorite row.
inline std::string wholeFile() {
    std::string stamm = "1.3;7;12;25;33;41;48;" + std::string(42, ';') +
                        "\r\n2.8;11;19;23;29;34;40;46;" + std::string(41, ';') + "\r\n";
    std::string favorites = "1.5;9;14;22;36;44;\r\n2.;;;;;;\r\n";
    for (int row = 3; row <= quorvanta::kRows; ++row) {
        stamm += std::to_string(row) + "." + std::string(49, ';') + "\r\n";
        favorites += std::to_string(row) + ".;;;;;;\r\n";
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

// Answers error boxes with `answers`, one after the other, and then with `last` for ever.
struct ErrorBoxes : FakeDesktop {
    int last = toolkit::Abort;

    ErrorBoxes() {
        toolkit::install(this);
        onBox = [this] {
            if (answers.empty())
                answers = {last};
        };
    }
    ~ErrorBoxes() override { toolkit::install(nullptr); }
    ErrorBoxes(const ErrorBoxes&) = delete;
};

} // namespace tests
