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

    toolkit::Menu& mnuCustom = mnuList;
    toolkit::Menu mnuAllNumbers{mnuCustom, "mnuAllNumbers", "All Numbers",
                                [this] { SetAllNumbers(); }};
    toolkit::Menu mnuLine1{mnuCustom, "mnuLine1", "-"};
    toolkit::Menu mnuDeleteGridRow{mnuCustom, "mnuDeleteGridRow", "Delete Grid Row",
                                   [this] { grd1_DblClick(); }};
    toolkit::Menu mnuLine2{mnuCustom, "mnuLine2", "-"};
    toolkit::Menu mnuFileToGrid{mnuCustom, "mnuFileToGrid", "File to Grid",
                                [this] { cmdCopy_Click(); }};
    toolkit::Menu mnuLine3{mnuCustom, "mnuLine3", "-"};
    toolkit::Menu mnuReset{mnuCustom, "mnuReset", "Reset", [this] { cmdReset_Click(); }};
    toolkit::Menu mnuLine4{mnuCustom, "mnuLine4", "-"};
    toolkit::Menu mnuJackpotGenerator{mnuCustom, "mnuJackpotGenerator", "Jackpot Generator",
                                      [this] { GoCustomJackPot(kDraw); }};

protected:
    void layOutGrid() override { SetFormProperties(); }
    void storeRows() override { SetCustomizeUDTs(); }
    void pickNumber(int number) override { SetCustomNumbers(number); }
    bool fileNumbers() override { return SetCustomToGrid(); }
    void deleteRow(int row) override { DeleteGridRow(row); }
    void showRow() override { GoCustomJackPot(kShow); }
    void clearNumber(int number) override;

private:
    static constexpr int kShow = 0; // the modes of GoCustomJackPot
    static constexpr int kDraw = 1;

    void SetFormProperties();
    void SetCustomizeUDTs();
    void GetCustomizeUDTs();
    void SetCustomNumbers(int Index);
    bool SetCustomToGrid();
    void DeleteGridRow(int row);
    void SetAllNumbers();
    void GoCustomJackPot(int mode);
};

} // namespace quorvanta
