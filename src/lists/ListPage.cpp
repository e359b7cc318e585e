#include "lists/ListPage.h"

#include "common/Trap.h"
#include "common/modZWMsg.h"
#include "frame/MainCode_ZW.h"
#include "frame/modConstants.h"
#include "lists/Keypad.h"
#include "lists/cFlexGrid.h"
#include "numbers/cLotto.h"

#include <cmath>
#include <string>
#include <vector>

namespace quorvanta {

namespace {

constexpr int kCtrl = 2; // of the keys held down, Ctrl alone

// The cells of a stored row. Only a cell that a ";" ends counts, and of those only the first
// `most`.
std::vector<std::string> cellsOf(const std::string& text, int most) {
    std::vector<std::string> cells;
    std::size_t from = 0;
    for (int c = 1; c <= most; ++c) {
        const std::size_t end = text.find(';', from);
        if (end == std::string::npos)
            break;
        cells.push_back(text.substr(from, end - from));
        from = end + 1;
    }
    return cells;
}

std::string joinCells(const toolkit::MSFlexGrid& grid, int row, int lastColumn) {
    std::string text;
    for (int c = 1; c <= lastColumn; ++c)
        text += grid.text(row, c) + ";";
    return text;
}

// 0 if every row is filled.
int firstFreeRow(const toolkit::MSFlexGrid& grid) {
    for (int r = 1; r <= kRows; ++r)
        if (grid.text(r, 1).empty())
            return r;
    return 0;
}

} // namespace

ListPage::ListPage(const Design& design, toolkit::Menu Page::*ownEntry)
    : Page(design.page, ownEntry),
      frKeys(*this, "frKeys", "Keypad", {design.keypadLeft, design.keypadTop, 3945, 2745}),
      grd1(*this, "grd1", design.grid),
      cmdReset(*this, "cmdReset", "&Reset", {design.resetLeft, design.buttonTop, 1155, 500}),
      cmdCopy(*this, "cmdCopy", "&File to Grid", {design.copyLeft, design.buttonTop, 1155, 500}),
      cmdCancel(*this, "cmdCancel", "Close", design.cancel),
      statBar1(*this, "statBar1", {}, design.statBar),
      design_(design) {
    KeyPreview = true;
    buildKeypad(frKeys, cmdKey);
    cmdKey.Click = [this](int Index) { cmdKey_Click(Index); };
    cmdReset.ToolTipText = "Resets the Keypad";
    cmdReset.Click = [this] { cmdReset_Click(); };
    cmdCopy.ToolTipText = "Copies numbers to Custom Numbers";
    cmdCopy.Click = [this] { cmdCopy_Click(); };
    cmdCancel.Cancel = true;
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    grd1.spokenAs = design.corner;
    grd1.Click = [this] { grd1_Click(); };
    grd1.DblClick = [this] { grd1_DblClick(); };
    grd1.LostFocus = [this] { grd1_LostFocus(); };
}

void ListPage::setTabOrder(std::initializer_list<toolkit::Control*> controls) {
    int index = 0;
    for (toolkit::Control* control : controls) {
        control->TabIndex = index++;
        if (const auto* inner = dynamic_cast<const toolkit::Container*>(control))
            for (toolkit::Control* within : inner->controls())
                within->TabIndex = index++;
    }
}

void ListPage::writeHeaders(const Step& step) {
    step([&] { grd1.TextMatrix(0, 0) = design_.corner; });
    for (int c = 1; c <= design_.lastColumn; ++c)
        step([&] { grd1.TextMatrix(0, c) = "# " + std::to_string(c); });
    for (int r = 1; r <= kRows; ++r)
        step([&] { grd1.TextMatrix(r, 0) = std::to_string(r) + "."; });
}

void ListPage::halveColumns(const Step& step) {
    for (int c = 1; c <= design_.lastColumn; ++c)
        step(
            [&] { grd1.setColWidth(c, static_cast<int>(std::nearbyint(grd1.ColWidth(c) / 2.0))); });
}

void ListPage::getRows() {
    trapped(design_.labels.get, [&](auto step) {
        for (int r = 1; r <= kRows; ++r) {
            int column = 0;
            for (const std::string& cell : cellsOf(design_.rows.at(r), design_.lastColumn)) {
                ++column;
                step([&] { grd1.TextMatrix(r, column) = cell; });
            }
        }
    });
}

void ListPage::setRows() {
    trapped(design_.labels.set, [&](auto step) {
        for (int r = 1; r <= kRows; ++r)
            step([&] { design_.rows.at(r) = joinCells(grd1, r, design_.lastColumn); });
    });
}

void ListPage::toggleKey(const Step& step, int number) {
    cLotto lotto;
    step([&] { lotto.prpControl.Set(cmdKey.ref()); });
    lotto.mintFrmButtons = number;
    step([&] { lotto.prpActionToDo = cLotto::ToggleKey; });
}

bool ListPage::fileRow() {
    bool filed = false;
    trapped(design_.labels.file, [&](auto step) {
        int row = 0;
        std::vector<int> numbers;
        step([&] { row = firstFreeRow(grd1); });
        if (row == 0)
            return design_.msgRowsAreFull();
        step([&] { numbers = pickedNumbers(cmdKey); });
        if (static_cast<int>(numbers.size()) < design_.leastNumbers)
            return design_.msgTooFewPicked();
        int column = 0;
        for (const int number : numbers) {
            ++column;
            step([&] { grd1.TextMatrix(row, column) = std::to_string(number); });
        }
        filed = true;
    });
    return filed;
}

void ListPage::cmdReset_Click() {
    for (int n = 1; n <= kNumbers; ++n)
        clearNumber(n);
    grd1.Row = 0;
}

void ListPage::DeleteGridRow(int row) {
    trapped(design_.labels.remove, [&](auto step) {
        cFlexGrid rows;
        step([&] { rows.prpGrid.Set(grd1.ref()); });
        rows.prpActiveRow = row;
        rows.prpStartPos = 1;
        rows.prpEndPos = design_.lastColumn;
        step([&] { rows.prpActionToDo = cFlexGrid::ClearRow; });
        step([&] { rows.prpActionToDo = cFlexGrid::CloseGap; });
        if (design_.deletingUnchooses)
            step([&] { grd1.Row = 0; });
    });
}

void ListPage::Form_KeyDown(int& /*KeyCode*/, int Shift) {
    if (Shift != kCtrl)
        return;
    mblnShiftMode = !mblnShiftMode;
    if (mblnShiftMode)
        grd1.Row = 0;
    SetShiftMode();
}

void ListPage::SetShiftMode() {
    trapped("frmFavorites.SetShiftMode", [&](auto step) {
        step([&] { SetStatBarText(statBar1, 1, mblnShiftMode ? "Shift mode" : ""); });
        if (!mblnShiftMode)
            mintFirstRow = mintSecondRow = 0;
    });
}

void ListPage::leaveShiftMode() {
    mblnShiftMode = false;
    SetShiftMode();
}

void ListPage::grd1_Click() {
    if (mblnShiftMode)
        pickRow();
    else
        showRow();
}

void ListPage::pickRow() {
    const int row = grd1.Row;
    if (grd1.TextMatrix(row, 1).empty()) {
        msgNoEmptyRow();
        return;
    }
    if (mintFirstRow == 0) {
        mintFirstRow = row;
    } else {
        mintSecondRow = row;
        ShiftRows();
    }
    if (mintFirstRow != 0 && mintSecondRow != 0)
        leaveShiftMode();
}

void ListPage::ShiftRows() {
    trapped("frmFavorites.ShiftRows", [&](auto step) {
        // With the header as the second row nothing has been picked yet.
        if (mintFirstRow == mintSecondRow || mintSecondRow == 0)
            return;
        bool empty = true;
        step([&] {
            empty = grd1.TextMatrix(mintFirstRow, 1).empty() ||
                    grd1.TextMatrix(mintSecondRow, 1).empty();
        });
        if (empty)
            return msgNoEmptyRow();
        cFlexGrid rows;
        step([&] { rows.prpGrid.Set(grd1.ref()); });
        rows.prpStartPos = 1;
        rows.prpEndPos = design_.lastColumn;
        rows.prpActiveRow = mintFirstRow;
        rows.prpSecondRow = mintSecondRow;
        step([&] { rows.prpActionToDo = cFlexGrid::SwapRows; });
        step([&] { setRows(); });
    });
}

} // namespace quorvanta
