// What a user does and sees on the pages of number rows.
#pragma once

#include "lists/frmCustomize6.h"
#include "lists/frmFavorites.h"
#include "tests/support/ProgramTest.h"

namespace tests {

inline constexpr int kCtrlKey = 17;

inline void pick(quorvanta::ListPage& page, const std::vector<int>& numbers) {
    for (const int n : numbers)
        userClick(page.cmdKey(n));
}

inline std::string picked(const quorvanta::ListPage& page) {
    std::string numbers;
    for (int n = 1; n <= 49; ++n)
        if (page.cmdKey(n).FontBold)
            numbers += page.cmdKey(n).Caption.get() + " ";
    return numbers;
}

// The first cells of the rows 1 to 10, "-" for an empty one.
inline std::string firstCells(const quorvanta::RowTexts& rows) {
    std::string cells;
    for (std::size_t r = 1; r < rows.size(); ++r) {
        const std::string cell = rows[r].substr(0, rows[r].find(';'));
        cells += (r > 1 ? " " : "") + (cell.empty() ? "-" : cell);
    }
    return cells;
}

inline std::string firstCells(const quorvanta::ListPage& page) {
    quorvanta::RowTexts rows;
    for (int r = 1; r <= 10; ++r)
        rows.at(static_cast<std::size_t>(r)) = page.grd1.text(r, 1);
    return firstCells(rows);
}

// Row r is told by its first number, r.
inline void fillRows(quorvanta::RowTexts& rows, int count) {
    for (int r = 1; r <= count; ++r)
        rows.at(static_cast<std::size_t>(r)) = std::to_string(r) + ";21;22;23;24;25;26;";
}

inline std::string menuText(const std::vector<toolkit::Menu*>& menus) {
    std::string text;
    for (const toolkit::Menu* menu : menus) {
        text += (text.empty() ? "" : "|") + menu->Caption.get() + (menu->Enabled ? "" : " (off)");
        if (!menu->entries().empty())
            text += "{" + menuText(menu->entries()) + "}";
    }
    return text;
}

} // namespace tests
