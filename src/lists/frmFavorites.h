// The page "Favorites". Its rows hold two to six numbers, and are printed on one page.
#pragma once

#include "lists/ListPage.h"

namespace quorvanta {

class frmFavorites : public toolkit::FormOf<frmFavorites, ListPage> {
public:
    frmFavorites();

    toolkit::Menu& mnuFavorite = mnuList;
    toolkit::Menu mnuDeleteGridRow{mnuFavorite, "mnuDeleteGridRow", "Delete Grid Row",
                                   [this] { grd1_DblClick(); }};
    toolkit::Menu mnu111{mnuFavorite, "mnu111", "-"};
    toolkit::Menu mnuReset{mnuFavorite, "mnuReset", "Reset", [this] { cmdReset_Click(); }};
    toolkit::Menu mnu112{mnuFavorite, "mnu112", "-"};
    toolkit::Menu mnnuFileToGrid{mnuFavorite, "mnnuFileToGrid", "File to Grid",
                                 [this] { cmdCopy_Click(); }};
    toolkit::Menu mnu895{mnuFavorite, "mnu895", "-"};
    toolkit::Menu mnuPrint{mnuFavorite, "mnuPrint", "Print Favorite Numbers",
                           [this] { PrintFavoriteNumbers(); }};

protected:
    void layOutGrid() override { SetFormProperties(); }
    void storeRows() override { SetFavoriteUDTs(); }
    void pickNumber(int number) override { SetFavoriteNumbers(number); }
    bool fileNumbers() override { return SetFavoritesToGrid(); }
    void deleteRow(int row) override { DeleteGridRow(row); }
    void grd1_DblClick() override;

private:
    void SetFormProperties();
    void GetFavoriteUDTs();
    void SetFavoriteUDTs();
    void SetFavoriteNumbers(int Index);
    bool SetFavoritesToGrid();
    void DeleteGridRow(int row);
    void PrintFavoriteNumbers();
};

} // namespace quorvanta
