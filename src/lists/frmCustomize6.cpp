#include "lists/frmCustomize6.h"

#include "common/Trap.h"
#include "numbers/Board.h"
#include "numbers/cLotto.h"

#include <string>

namespace quorvanta {

namespace {

constexpr int kLeastNumbers = kDrawn + 1; // a row holds more numbers than a draw takes

constexpr BoardDesign kBoard{.frame = {120, 105, 3705, 3390},
                             .labels = {.lefts = {60, 570, 1080, 1590, 2100, 2610, 3120},
                                        .firstTop = 165,
                                        .lineHeight = 450,
                                        .width = 510,
                                        .height = 435},
                             .fontSize = 14.25};

const ListPage::Design& design() {
    static const ListPage::Design it{.name = "frmCustomize6",
                                     .clientWidth = 8085,
                                     .clientHeight = 6165,
                                     .title = "Customize 6",
                                     .corner = "Customized",
                                     .rows = gstrStammNumbers,
                                     .lastColumn = kNumbers,
                                     .deleteTest = 3,
                                     .refusalUnchooses = false,
                                     .rowAfterNo = 0,
                                     .keypadLeft = 3990,
                                     .keypadTop = 105,
                                     .buttonTop = 2940,
                                     .resetLeft = 3990,
                                     .copyLeft = 6795,
                                     .grid = {120, 3600, 7875, 1635},
                                     .cancel = {120, 5280, 1530, 495},
                                     .statBar = {0, 5850, 8085, 315},
                                     .fileMenu = "&File",
                                     .listMenuName = "mnuCustom",
                                     .listMenu = "Customize",
                                     .website = "Quorvanta Lite Website"};
    return it;
}

} // namespace

frmCustomize6::frmCustomize6() : FormOf(design()) {
    buildBoard(*this, fra2, 1, Label1, kBoard);
    setTabOrder({&fra2(1), &frKeys, &cmdReset, &cmdAll, &cmdCopy, &grd1, &cmdCancel, &cmdJackpot});
    cmdAll.Click = [this] { SetAllNumbers(); };
    cmdJackpot.Click = [this] { GoCustomJackPot(kDraw); };
    mnuCustomize.Enabled = false; // it would show the page that it stands on
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

void frmCustomize6::SetCustomizeUDTs() {
    setRows("frmCustomize6.SetCustomizeUDTs");
}

void frmCustomize6::GetCustomizeUDTs() {
    getRows("frmCustomized.GetCustomizeUDTs");
}

void frmCustomize6::SetCustomNumbers(int Index) {
    toggleKey("frmCustomize6.SetCustomNumbers", Index);
}

bool frmCustomize6::SetCustomToGrid() {
    return fileRow("frmCustomize6.SetCustomNumbers", kLeastNumbers, msgMaxStammNumbers,
                   msgNotEnoughStammNumbers);
}

void frmCustomize6::DeleteGridRow(int row) {
    removeRow("frmCustomize6.DeleteGridRow", row);
}

void frmCustomize6::clearNumber(int number) {
    Label1(number).Enabled = true;
    Label1(number).ForeColor = toolkit::kBlack;
    ListPage::clearNumber(number);
}

void frmCustomize6::SetAllNumbers() {
    trapped("frmCustomize6.SetAllNumbers", [&](auto step) {
        cLotto lotto;
        step([&] { lotto.prpControl = cmdKey.ref(); });
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
        step([&] { lotto.prpControl = Label1.ref(); });
        step([&] { lotto.prpGrid = grd1.ref(); });
        lotto.prpHighNumber = kNumbers;
        lotto.prpMinNumber = 1;
        lotto.prpRowNumber = row;
        step([&] { lotto.prpActionToDo = cLotto::ShowRow; });
        if (mode == kDraw)
            step([&] { lotto.prpActionToDo = cLotto::DrawFromEnabled; });
    });
}

} // namespace quorvanta
