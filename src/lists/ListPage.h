// What the pages of number rows have in common: a keypad on which numbers are picked, a grid of ten
// rows into which they are filed, and the ways to delete a row and to swap two of them.
//
// Which numbers are picked is held in FontBold of the keys alone. While the page is open the grid
// holds the rows; after each change they are stored as shared texts. In grid row r stands row r,
// its numbers from column 1 on; a row whose cell in column 1 is empty is free.
#pragma once

#include "frame/Page.h"
#include "frame/modQuorvantaLite.h"

#include <functional>
#include <initializer_list>

namespace quorvanta {

class ListPage : public Page {
public:
    // What differs between the pages.
    struct Design {
        Page::Design page;
        const char* corner;        // the header of the row headers
        RowTexts& rows;            // where the rows are stored
        int leastNumbers;          // in a row that is filed
        int lastColumn;            // cells in a row
        void (*msgRowsAreFull)();  // no row is free
        void (*msgTooFewPicked)(); // fewer than leastNumbers are picked
        bool deletingUnchooses;    // whether DeleteGridRow leaves no row chosen
        struct {                   // under which failures are reported
            const char *get, *set, *file, *remove;
        } labels;
        double keypadLeft, keypadTop, buttonTop, resetLeft, copyLeft;
        toolkit::Place grid, cancel, statBar;
    };

    toolkit::Frame frKeys;
    toolkit::ControlArray<toolkit::CommandButton> cmdKey{*this, "cmdKey"};
    toolkit::MSFlexGrid grd1;
    toolkit::CommandButton cmdReset;
    toolkit::CommandButton cmdCopy;
    toolkit::CommandButton cmdCancel;
    toolkit::StatusBar statBar1;

protected:
    ListPage(const Design& design, toolkit::Menu Page::*ownEntry);

    void Form_KeyDown(int& KeyCode, int Shift) override;

    virtual void cmdKey_Click(int Index) = 0;
    virtual void cmdCopy_Click() = 0;
    void cmdReset_Click();
    void mnuReset_Click() { cmdReset_Click(); }
    void grd1_Click();
    virtual void grd1_DblClick() = 0;
    void mnuDeleteGridRow_Click() { grd1_DblClick(); }
    void grd1_LostFocus() { leaveShiftMode(); }

    virtual void clearNumber(int number) { cmdKey(number).FontBold = false; } // of Reset
    virtual void showRow() {} // a row was clicked outside shift mode

    void getRows(); // the shared texts into the grid
    void setRows(); // the grid into the shared texts
    bool fileRow(); // the picked numbers into the first free row; whether that was done
    void DeleteGridRow(int row);

    // Each cell, column or property is a step of its own of the routine that calls.
    using Step = std::function<void(const std::function<void()>&)>;
    void writeHeaders(const Step& step);
    void halveColumns(const Step& step);
    void toggleKey(const Step& step, int number);
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
