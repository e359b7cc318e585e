// The page "Customize 6". Its rows hold seven numbers or more; its board shows the numbers of one
// row, and the Jackpot Generator draws six of them. A draw is only shown, as numbers turned red.
#pragma once

#include "lists/ListPage.h"

namespace quorvanta {

class frmCustomize6 : public toolkit::FormOf<frmCustomize6, ListPage> {
public:
    frmCustomize6();

    toolkit::ControlArray<toolkit::Frame> fra2{*this, "fra2"};
    toolkit::ControlArray<toolkit::Label> Label1{*this, "Label1"};
    toolkit::CommandButton cmdAll{*this, "cmdAll", "&All Numbers", {5250, 2940, 1155, 500}};
    toolkit::CommandButton cmdJackpot{
        *this, "cmdJackpot", "&Jackpot Generator", {6465, 5280, 1530, 495}};

    toolkit::Menu& mnuCustom = *ownMenu;
    toolkit::Menu mnuAllNumbers{mnuCustom, "mnuAllNumbers", "All Numbers",
                                [this] { mnuAllNumbers_Click(); }};
    toolkit::Menu mnuLine1{mnuCustom, "mnuLine1", "-"};
    toolkit::Menu mnuDeleteGridRow{mnuCustom, "mnuDeleteGridRow", "Delete Grid Row",
                                   [this] { mnuDeleteGridRow_Click(); }};
    toolkit::Menu mnuLine2{mnuCustom, "mnuLine2", "-"};
    toolkit::Menu mnuFileToGrid{mnuCustom, "mnuFileToGrid", "File to Grid",
                                [this] { mnuFileToGrid_Click(); }};
    toolkit::Menu mnuLine3{mnuCustom, "mnuLine3", "-"};
    toolkit::Menu mnuReset{mnuCustom, "mnuReset", "Reset", [this] { mnuReset_Click(); }};
    toolkit::Menu mnuLine4{mnuCustom, "mnuLine4", "-"};
    toolkit::Menu mnuJackpotGenerator{mnuCustom, "mnuJackpotGenerator", "Jackpot Generator",
                                      [this] { mnuJackpotGenerator_Click(); }};

protected:
    void SetFormProperties() override;
    void Form_Unload() override { SetCustomizeUDTs(); }
    void cmdKey_Click(int Index) override;
    void cmdCopy_Click() override;
    void grd1_DblClick() override;
    void clearNumber(int number) override;
    void showRow() override { GoCustomJackPot(kShow); }

private:
    static constexpr int kShow = 0; // the modes of GoCustomJackPot
    static constexpr int kDraw = 1;

    void cmdAll_Click() { SetAllNumbers(); }
    void mnuAllNumbers_Click() { cmdAll_Click(); }
    void mnuFileToGrid_Click() { cmdCopy_Click(); }
    void cmdJackpot_Click() { GoCustomJackPot(kDraw); }
    void mnuJackpotGenerator_Click() { cmdJackpot_Click(); }

    void GetCustomizeUDTs() { getRows(); }
    void SetCustomizeUDTs() { setRows(); }
    void SetCustomNumbers(int Index);
    bool SetCustomToGrid() { return fileRow(); }
    void SetAllNumbers();
    void GoCustomJackPot(int mode);
};

} // namespace quorvanta
