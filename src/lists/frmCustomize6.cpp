#include "lists/frmCustomize6.h"

#include "common/Trap.h"
#include "common/modZWMsg.h"
#include "numbers/Board.h"
#include "numbers/cLotto.h"

#include <string>

namespace quorvanta {

namespace {

constexpr BoardDesign kBoard{.frame = {120, 105, 3705, 3390},
                             .labels = {.lefts = {60, 570, 1080, 1590, 2100, 2610, 3120},
                                        .firstTop = 165,
                                        .lineHeight = 450,
                                        .width = 510,
                                        .height = 435},
                             .fontSize = 14.25};

const ListPage::Design& design() {
    static const ListPage::Design it{.page = {.name = "frmCustomize6",
                                              .clientWidth = 8085,
                                              .clientHeight = 6165,
                                              .title = "Customize 6",
                                              .website = "Quorvanta Lite Website",
                                              .ownMenu = "Customize"},
                                     .corner = "Customized",
                                     .rows = gstrStammNumbers,
                                     .leastNumbers = kDrawn + 1, // a draw leaves one at least
                                     .lastColumn = kNumbers,
                                     .msgRowsAreFull = msgMaxStammNumbers,
                                     .msgTooFewPicked = msgNotEnoughStammNumbers,
                                     .deletingUnchooses = false,
                                     .labels = {.get = "frmCustomized.GetCustomizeUDTs",
                                                .set = "frmCustomize6.SetCustomizeUDTs",
                                                .file = "frmCustomize6.SetCustomNumbers",
                                                .remove = "frmCustomize6.DeleteGridRow"},
                                     .keypadLeft = 3990,
                                     .keypadTop = 105,
                                     .buttonTop = 2940,
                                     .resetLeft = 3990,
                                     .copyLeft = 6795,
                                     .grid = {120, 3600, 7875, 1635},
                                     .cancel = {120, 5280, 1530, 495},
                                     .statBar = {0, 5850, 8085, 315}};
    return it;
}

} // namespace

frmCustomize6::frmCustomize6() : FormOf(design(), &Page::mnuCustomize) {
    buildBoard(*this, fra2, 1, Label1, kBoard);
    setTabOrder({&fra2(1), &frKeys, &cmdReset, &cmdAll, &cmdCopy, &grd1, &cmdCancel, &cmdJackpot});
    cmdAll.Click = [this] { cmdAll_Click(); };
    cmdJackpot.Click = [this] { cmdJackpot_Click(); };
    mnuJackpotGenerator.Shortcut = "F5";
}

void frmCustomize6::SetFormProperties() {
    trapped("frmCustomize6.SetFormProperties", [&](auto step) {
        step([&] { grd1.Rows = kRows + 1; });
        step([&] { grd1.Cols = kNumbers + 1; });
        writeHeaders(step);
        halveColumns(step);
        step([&] { GetCustomizeUDTs(); });
    });
}

void frmCustomize6::cmdKey_Click(int Index) {
    grd1.Row = 0;
    SetCustomNumbers(Index);
}

void frmCustomize6::SetCustomNumbers(int Index) {
    trapped("frmCustomize6.SetCustomNumbers", [&](auto step) { toggleKey(step, Index); });
}

void frmCustomize6::cmdCopy_Click() {
    if (!SetCustomToGrid())
        return;
    cmdReset_Click();
    SetCustomizeUDTs();
}

void frmCustomize6::grd1_DblClick() {
    const int row = grd1.Row;
    if (row == 0 || grd1.TextMatrix(row, 3).empty()) {
        msgNoDeleteRow();
        return;
    }
    if (msgDeleteGridRow()) {
        DeleteGridRow(row);
        SetCustomizeUDTs();
    }
    grd1.Row = 0;
}

void frmCustomize6::clearNumber(int number) {
    Label1(number).Enabled = true;
    Label1(number).ForeColor = toolkit::kBlack;
    ListPage::clearNumber(number);
}

void frmCustomize6::SetAllNumbers() {
    trapped("frmCustomize6.SetAllNumbers", [&](auto step) {
        cLotto lotto;
        step([&] { lotto.prpControl.Set(cmdKey.ref()); });
        lotto.prpHighNumber = kNumbers;
        lotto.prpMinNumber = 1;
        step([&] { lotto.prpActionToDo = cLotto::PickAll; });
    });
}

void frmCustomize6::GoCustomJackPot(int mode) {
    trapped("frmCustomize6.GoCustomJackPot", [&](auto step) {
        const int row = grd1.RowSel();
        bool free = true;
        // Of row 0, the header, the cell is never empty: all numbers are in the pool.
        step([&] { free = grd1.TextMatrix(row, 2).empty(); });
        if (free) {
            for (int n = 1; n <= kNumbers; ++n) {
                step([&] { Label1(n).Enabled = true; });
                step([&] { Label1(n).ForeColor = toolkit::kBlack; });
                step([&] { Label1(n).Enabled = false; });
            }
            return;
        }
        cLotto lotto;
        step([&] { lotto.prpControl.Set(Label1.ref()); });
        step([&] { lotto.prpGrid.Set(grd1.ref()); });
        lotto.prpHighNumber = kNumbers;
        lotto.prpMinNumber = 1;
        lotto.prpRowNumber = row;
        step([&] { lotto.prpActionToDo = cLotto::ShowRow; });
        if (mode != kDraw)
            return;
        step([&] { lotto.prpActionToDo = cLotto::DrawFromEnabled; });
        announceDraw(Label1);
    });
}

} // namespace quorvanta
