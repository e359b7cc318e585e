#include "lists/frmFavorites.h"

#include "common/Trap.h"
#include "lists/Keypad.h"

namespace quorvanta {

namespace {

constexpr int kMostNumbers = 6;
constexpr int kLeastNumbers = 2;

const ListPage::Design& design() {
    static const ListPage::Design it{.name = "frmFavorites",
                                     .clientWidth = 8265,
                                     .clientHeight = 4245,
                                     .title = "Favorites",
                                     .corner = "Favorites",
                                     .rows = gstrFavorites,
                                     .lastColumn = kMostNumbers,
                                     .deleteTest = 1,
                                     .refusalUnchooses = true,
                                     .rowAfterNo = 1,
                                     .keypadLeft = 4125,
                                     .keypadTop = 135,
                                     .buttonTop = 3300,
                                     .resetLeft = 4125,
                                     .copyLeft = 6915,
                                     .grid = {120, 210, 0, 0}, // sized to its content
                                     .cancel = {135, 3300, 1530, 495},
                                     .statBar = {0, 3930, 8265, 315},
                                     .fileMenu = "File",
                                     .listMenuName = "mnuFavorite",
                                     .listMenu = "Favorites",
                                     .website = "Quor Vanta Website"};
    return it;
}

} // namespace

frmFavorites::frmFavorites() : FormOf(design()) {
    setTabOrder({&grd1, &frKeys, &cmdCopy, &cmdReset, &cmdCancel});
    grd1.ToolTipText = "Double click to delete a row";
    mnuFavorites.Enabled = false; // it would show the page that it stands on
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

void frmFavorites::GetFavoriteUDTs() {
    getRows("frmFavorite.GetFavoriteUDTs");
}

void frmFavorites::SetFavoriteUDTs() {
    setRows("frmFavorite.SetFavoriteUDTs");
}

void frmFavorites::SetFavoriteNumbers(int Index) {
    trapped("frmFavorites.SetFavoriteNumbers", [&](auto step) {
        int others = 0;
        step([&] {
            const auto picked = static_cast<int>(pickedNumbers(cmdKey).size());
            others = cmdKey(Index).FontBold ? picked - 1 : picked;
        });
        if (others < kMostNumbers)
            step([&] { toggleKey("frmFavorites.SetFavoriteNumbers", Index); });
        else
            step([&] { msgOnlySixNumbers(); });
    });
}

bool frmFavorites::SetFavoritesToGrid() {
    return fileRow("frmFavorites.SetFavoritesToGrid", kLeastNumbers, msgMaxFavoriteNumbers,
                   msgMoreNumbersRequired);
}

void frmFavorites::DeleteGridRow(int row) {
    removeRow("frmFavorites.DeleteGridRow", row);
    grd1.Row = 0;
}

void frmFavorites::grd1_DblClick() {
    leaveShiftMode();
    ListPage::grd1_DblClick();
}

} // namespace quorvanta
