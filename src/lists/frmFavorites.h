// The page "Favorites". Its rows hold two to six numbers, and are printed on one page.
#pragma once

#include "lists/ListPage.h"

namespace quorvanta {

class frmFavorites : public toolkit::FormOf<frmFavorites, ListPage> {
public:
    frmFavorites();

    toolkit::Menu& mnuFavorite = *ownMenu;
    toolkit::Menu mnuDeleteGridRow{mnuFavorite, "mnuDeleteGridRow", "Delete Grid Row",
                                   [this] { mnuDeleteGridRow_Click(); }};
    toolkit::Menu mnu111{mnuFavorite, "mnu111", "-"};
    toolkit::Menu mnuReset{mnuFavorite, "mnuReset", "Reset", [this] { mnuReset_Click(); }};
    toolkit::Menu mnu112{mnuFavorite, "mnu112", "-"};
    toolkit::Menu mnnuFileToGrid{mnuFavorite, "mnnuFileToGrid", "File to Grid",
                                 [this] { mnnuFileToGrid_Click(); }};
    toolkit::Menu mnu895{mnuFavorite, "mnu895", "-"};
    toolkit::Menu mnuPrint{mnuFavorite, "mnuPrint", "Print Favorite Numbers",
                           [this] { mnuPrint_Click(); }};

protected:
    void SetFormProperties() override;
    void Form_Unload() override { SetFavoriteUDTs(); }
    void cmdKey_Click(int Index) override;
    void cmdCopy_Click() override;
    void grd1_DblClick() override;

private:
    void mnnuFileToGrid_Click() { cmdCopy_Click(); }
    void mnuPrint_Click() { PrintFavoriteNumbers(); }

    void GetFavoriteUDTs() { getRows(); }
    void SetFavoriteUDTs() { setRows(); }
    void SetFavoriteNumbers(int Index);
    bool SetFavoritesToGrid() { return fileRow(); }
    void PrintFavoriteNumbers();
};

} // namespace quorvanta
