#include "lists/frmFavorites.h"

#include "common/Trap.h"
#include "common/modZWMsg.h"
#include "lists/Keypad.h"

namespace quorvanta {

namespace {

constexpr int kMostNumbers = 6;

const ListPage::Design& design() {
    static const ListPage::Design it{.page = {.name = "frmFavorites",
                                              .clientWidth = 8265,
                                              .clientHeight = 4245,
                                              .title = "Favorites",
                                              .website = "Quor Vanta Website",
                                              .ownMenu = "Favorites",
                                              .file = "File"},
                                     .corner = "Favorites",
                                     .rows = gstrFavorites,
                                     .leastNumbers = 2,
                                     .lastColumn = kMostNumbers,
                                     .msgRowsAreFull = msgMaxFavoriteNumbers,
                                     .msgTooFewPicked = msgMoreNumbersRequired,
                                     .deletingUnchooses = true,
                                     .labels = {.get = "frmFavorite.GetFavoriteUDTs",
                                                .set = "frmFavorite.SetFavoriteUDTs",
                                                .file = "frmFavorites.SetFavoritesToGrid",
                                                .remove = "frmFavorites.DeleteGridRow"},
                                     .keypadLeft = 4125,
                                     .keypadTop = 135,
                                     .buttonTop = 3300,
                                     .resetLeft = 4125,
                                     .copyLeft = 6915,
                                     .grid = {120, 210, 0, 0}, // sized to its content
                                     .cancel = {135, 3300, 1530, 495},
                                     .statBar = {0, 3930, 8265, 315}};
    return it;
}

} // namespace

frmFavorites::frmFavorites() : FormOf(design(), &Page::mnuFavorites) {
    setTabOrder({&grd1, &frKeys, &cmdCopy, &cmdReset, &cmdCancel});
    grd1.ToolTipText = "Double click to delete a row";
}

void frmFavorites::SetFormProperties() {
    trapped("frmFavorites.SetFormProperties", [&](auto step) {
        step([&] { grd1.Rows = kRows + 1; });
        step([&] { grd1.Cols = kMostNumbers + 1; });
        writeHeaders(step);
        step([&] { grd1.Height = grd1.RowHeight(1) * (kRows + 1) + 100; });
        halveColumns(step);
        step([&] { grd1.Width = grd1.ColWidth(1) * kMostNumbers; });
        step([&] { grd1.Width = grd1.Width + grd1.ColWidth(0) + 150; });
        step([&] { GetFavoriteUDTs(); });
    });
}

void frmFavorites::cmdKey_Click(int Index) {
    grd1.Row = 0;
    SetFavoriteNumbers(Index);
}

void frmFavorites::SetFavoriteNumbers(int Index) {
    trapped("frmFavorites.SetFavoriteNumbers", [&](auto step) {
        int others = 0;
        step([&] {
            const auto picked = static_cast<int>(pickedNumbers(cmdKey).size());
            others = cmdKey(Index).FontBold ? picked - 1 : picked;
        });
        if (others < kMostNumbers)
            toggleKey(step, Index);
        else
            step([&] { msgOnlySixNumbers(); });
    });
}

void frmFavorites::cmdCopy_Click() {
    if (!SetFavoritesToGrid())
        return;
    cmdReset_Click();
    SetFavoriteUDTs();
}

void frmFavorites::grd1_DblClick() {
    leaveShiftMode();
    const int row = grd1.Row;
    if (row == 0 || grd1.TextMatrix(row, 1).empty()) {
        msgNoDeleteRow();
        grd1.Row = 0;
    } else if (msgDeleteGridRow()) {
        DeleteGridRow(row);
        SetFavoriteUDTs();
    } else {
        grd1.Row = 1;
    }
}

} // namespace quorvanta
