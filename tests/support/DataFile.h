// What the tests of the data file share: a whole file, the values it holds, and error boxes that
// answer from a script.
#pragma once

#include "frame/Shared.h"
#include "toolkit/Desktop.h"

#include <deque>
#include <string>
#include <tuple>
#include <vector>

namespace tests {

inline std::string crLf(const std::string& text) {
    std::string result;
    for (const char c : text)
        result += c == '\n' ? std::string("\r\n") : std::string(1, c);
    return result;
}

// The file of a user with two customized rows and one favorite row.
inline std::string wholeFile() {
    std::string text = "7/25/2005 6:42:07 PM\n"
                       "Tampering with this file will cause the program not to run correctly!\n"
                       "\n[StammNumbers]\n"
                       "1.3;7;12;25;33;41;48;" +
                       std::string(42, ';') + "\n2.8;11;19;23;29;34;40;46;" + std::string(41, ';') +
                       "\n";
    for (int row = 3; row <= 10; ++row)
        text += std::to_string(row) + "." + std::string(49, ';') + "\n";
    text += "\n[Favorites]\n1.5;9;14;22;36;44;\n";
    for (int row = 2; row <= 10; ++row)
        text += std::to_string(row) + ".;;;;;;\n";
    return crLf(text + "\n[Win/Loss]\nWin:1250.5\nLoss:980\nBal:270.5\nLarge:500\nDate:3/2/2005\n");
}

// Everything that the data file keeps.
inline auto storedValues() {
    using namespace quorvanta;
    return std::tuple(gstrStammNumbers, gstrFavorites, gdblWin, gdblLoss, gdblBalance, gdblLargest,
                      gstrBankrollDate);
}
using StoredValues = decltype(storedValues());

inline void setStoredValues(const StoredValues& values) {
    using namespace quorvanta;
    std::tie(gstrStammNumbers, gstrFavorites, gdblWin, gdblLoss, gdblBalance, gdblLargest,
             gstrBankrollDate) = values;
}

// Answers error boxes with `answers`, one after the other, and then with `last` for ever.
struct ErrorBoxes : toolkit::Desktop {
    std::deque<int> answers;
    int last = toolkit::Abort;
    std::vector<std::string> prompts;

    ErrorBoxes() { toolkit::install(this); }
    ~ErrorBoxes() override { toolkit::install(nullptr); }
    ErrorBoxes(const ErrorBoxes&) = delete;
    ErrorBoxes& operator=(const ErrorBoxes&) = delete;

    int messageBox(const toolkit::MessageBox& box) override {
        prompts.push_back(box.text);
        if (answers.empty())
            return last;
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

} // namespace tests
