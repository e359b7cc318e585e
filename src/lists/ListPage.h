// What the pages of number rows have in common: a keypad on which numbers are picked, a grid of ten
// rows into which they are filed, the ways to delete a row and to swap two of them, and the menus.
//
// Which numbers are picked is held in FontBold of the keys alone. While the page is open the grid
// holds the rows; after each change they are stored as shared texts. In grid row r stands row r,
// its numbers from column 1 on; a row whose cell in column 1 is empty is free.
#pragma once

#include "common/modZWMsg.h"
#include "frame/Navigation.h"
#include "frame/modQuorvantaLite.h"
#include "toolkit/Form.h"

#include <functional>
#include <initializer_list>

namespace quorvanta {

class ListPage : public toolkit::Form {
public:
    // What differs between the pages.
    struct Design {
        const char* name;
        double clientWidth, clientHeight;
        const char* title;     // the page's part of the caption
        const char* corner;    // the header of the row headers
        RowTexts& rows;        // where the rows are stored
        int lastColumn;        // cells in a row
        int deleteTest;        // the column whose cell is empty in a row that can't be deleted
        bool refusalUnchooses; // whether a deletion without data leaves no row chosen
        int rowAfterNo;        // the current row after a deletion that the user has declined
        double keypadLeft, keypadTop, buttonTop, resetLeft, copyLeft;
        toolkit::Place grid, cancel, statBar;
        const char *fileMenu, *listMenuName, *listMenu, *website;
    };

    toolkit::Frame frKeys;
    toolkit::ControlArray<toolkit::CommandButton> cmdKey{*this, "cmdKey"};
    toolkit::MSFlexGrid grd1;
    toolkit::CommandButton cmdReset;
    toolkit::CommandButton cmdCopy;
    toolkit::CommandButton cmdCancel;
    toolkit::StatusBar statBar1;

    toolkit::Menu mnuFile;
    toolkit::Menu mnuMainForm{mnuFile, "mnuMainForm", "6 From 49", mnuMainForm_Click};
    toolkit::Menu mnuBankroll{mnuFile, "mnuBankroll", "Bankroll", mnuBankroll_Click};
    toolkit::Menu mnuCustomize{mnuFile, "mnuCustomize", "Customize 6", mnuCustomize_Click};
    toolkit::Menu mnuFavorites{mnuFile, "mnuFavorites", "Favorites", mnuFavorites_Click};
    toolkit::Menu mnuX342{mnuFile, "mnuX342", "-"};
    toolkit::Menu mnuClose{mnuFile, "mnuClose", "&Close", [this] { Unload(); }};
    toolkit::Menu mnuList; // the page's own menu, with entries of its own
    toolkit::Menu mnuQuorvantaLite{*this, "mnuQuorvantaLite", "Quor Vanta"};
    toolkit::Menu mnuWebsite;
    toolkit::Menu mnuHelp{*this, "mnuHelp", "Help"};
    toolkit::Menu mnuContents{mnuHelp, "mnuContents", "Contents",
                              [this] { mnuContents_Click(*this); }};
    toolkit::Menu mnu117{mnuHelp, "mnu117", "-"};
    toolkit::Menu mnuAbout{mnuHelp, "mnuAbout", "About", mnuAbout_Click};

protected:
    explicit ListPage(const Design& design);

    void Form_Load() override;
    void Form_Unload() override { storeRows(); }
    void Form_KeyDown(int& KeyCode, int Shift) override;

    // What a page does in its own way, or under a name and a trap label of its own.
    virtual void layOutGrid() = 0;           // at load
    virtual void storeRows() = 0;            // the grid into the shared texts
    virtual void pickNumber(int number) = 0; // a key was clicked
    virtual bool fileNumbers() = 0;          // whether a row was filed
    virtual void deleteRow(int row) = 0;
    virtual void showRow() {} // a row was clicked outside shift mode
    virtual void clearNumber(int number) { cmdKey(number).FontBold = false; }

    void cmdCopy_Click();
    void cmdReset_Click();
    void grd1_Click();
    virtual void grd1_DblClick();

    // The routines behind those of the pages. Each reports its failures under `label`.
    void getRows(const char* label); // the shared texts into the grid
    void setRows(const char* label); // the grid into the shared texts
    void toggleKey(const char* label, int number);
    bool fileRow(const char* label, int atLeast, void (*rowsAreFull)(), void (*tooFew)());
    void removeRow(const char* label, int row);

    // Each cell and each column is a step of its own of the routine that calls.
    using Step = std::function<void(const std::function<void()>&)>;
    void writeHeaders(const Step& step);
    void halveColumns(const Step& step);
    void setTabOrder(std::initializer_list<toolkit::Control*> controls);

    // Shift mode: two rows, picked one after the other, change places.
    void SetShiftMode();
    void ShiftRows();
    void leaveShiftMode();
    bool mblnShiftMode = false;
    int mintFirstRow = 0; // 0 for none
    int mintSecondRow = 0;

private:
    void pickRow();

    const Design& design_;
};

} // namespace quorvanta
