// A run of the program without a platform and without windows, which each test begins and ends, and
// what its user does and sees on the pages of number rows.
#pragma once

#include "frame/MainCode_ZW.h"
#include "lists/frmCustomize6.h"
#include "lists/frmFavorites.h"
#include "tests/support/DataFile.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakePlatform.h"

#include <gtest/gtest.h>

namespace tests {

struct ProgramTest : ::testing::Test {
    FakePlatform os;
    FakeDesktop desk;
    // Failures that no routine has met, by number. A test that expects none leaves it alone.
    std::vector<int> untrapped;

    ProgramTest() {
        forgetStored();
        quorvanta::gstrWinDirectory = quorvanta::gstrWinSysDirectory = "";
        quorvanta::gstrShortDateFormat = "";
        quorvanta::gintLanguage = 1;
        toolkit::App = {};
        toolkit::App.Path = "/app";
        toolkit::Printer = {};
        toolkit::install(&desk);
        toolkit::Form::untrapped = [this](const toolkit::Form&, const platform::RuntimeError& e) {
            untrapped.push_back(e.number);
        };
    }
    ~ProgramTest() override {
        dropForms();
        toolkit::Form::untrapped = nullptr;
        toolkit::Printer = {};
        toolkit::install(nullptr);
        EXPECT_TRUE(untrapped.empty());
    }
};

// Shows the page.
template <class Page>
Page& open() {
    Page::the().Show();
    return Page::the();
}

using Numbers = std::vector<int>;

// The numbers from 1 to 49 for which the condition holds.
template <class Condition>
Numbers numbersWhere(Condition holds) {
    Numbers numbers;
    for (int n = 1; n <= 49; ++n)
        if (holds(n))
            numbers.push_back(n);
    return numbers;
}
inline Numbers picked(const quorvanta::ListPage& page) {
    return numbersWhere([&](int n) { return page.cmdKey(n).FontBold.get(); });
}
inline Numbers pool(const quorvanta::frmCustomize6& page) {
    return numbersWhere([&](int n) { return page.Label1(n).Enabled.get(); });
}
inline Numbers drawn(const quorvanta::frmCustomize6& page) {
    return numbersWhere([&](int n) { return page.Label1(n).ForeColor == toolkit::kRed; });
}

inline void pick(quorvanta::ListPage& page, const Numbers& numbers) {
    for (const int n : numbers)
        userClick(page.cmdKey(n));
}

// A row as a file holds it: every seventh number from the first one on.
inline std::string rowText(int first) {
    std::string text;
    for (int n = first; n <= 49; n += 7)
        text += std::to_string(n) + ";";
    return text;
}

// Rows are told by their first number, a digit a row, and "-" for a free one.
inline void fillRows(quorvanta::RowTexts& rows, const std::string& told) {
    for (std::size_t i = 0; i < told.size(); ++i)
        rows.at(i + 1) = told[i] == '-' ? "" : rowText(told[i] - '0');
}
// Likewise; "?" is a row that is not the one which begins with its number.
inline std::string tell(const quorvanta::RowTexts& rows) {
    std::string told;
    for (std::size_t r = 1; r < rows.size(); ++r) {
        const std::string cells = rows[r].substr(0, rows[r].find_last_not_of(';') + 1);
        const bool whole = rowText(std::atoi(cells.c_str())).starts_with(cells) &&
                           std::ranges::count(cells, ';') >= 5;
        told += cells.empty() ? '-' : whole ? cells.front() : '?';
    }
    return told;
}

} // namespace tests
