// Draws numbers and marks them on a board of controls, and picks keys of a keypad. It is the only
// place where numbers are drawn. A page makes one for a job, sets its properties, and writes
// prpActionToDo, which runs the job at once:
//
//     cLotto lotto;
//     lotto.prpControl = lbl1.ref();
//     lotto.prpDrawNumber = 6;
//     lotto.prpActionToDo = cLotto::Draw;
//
// Of the board it reads and writes only Enabled, ForeColor and FontBold, by the number as index. A
// draw is kept nowhere but in the colours of the board.
#pragma once

#include "frame/modConstants.h"
#include "toolkit/ControlArray.h"
#include "toolkit/MSFlexGrid.h"

#include <memory>

namespace quorvanta {

class cLotto {
public:
    enum Action {
        Draw = 1,           // Lotto49: prpControl, prpDrawNumber
        ToggleKey = 2,      // SetCmdButtons: prpControl, mintFrmButtons
        PickAll = 4,        // SetAllButtons: prpControl, prpMinNumber, prpHighNumber
        PickNone = 5,       // SetAllButtonsNoBold: likewise
        ShowRow = 6,        // SetCustomNumbers: likewise, and prpGrid, prpRowNumber
        DrawFromEnabled = 7 // PlayCustomNumbers: prpControl
    };

    int mintFrmButtons = 0;           // the key that ToggleKey toggles
    toolkit::Form* prpFrmX = nullptr; // kept for the caller
    std::shared_ptr<toolkit::ControlArrayBase> prpControl;
    std::shared_ptr<toolkit::MSFlexGrid> prpGrid;
    int prpDrawNumber = 0; // how many numbers Draw draws, 0 to 49
    int prpMinNumber = 0;  // the range of indices, both ends included
    int prpHighNumber = 0;
    int prpRowNumber = 0; // the grid row of ShowRow; 0 means all numbers

    int action() const { return action_; }
    void run(int action);
    // Stores the action and runs it. Values that aren't an Action do nothing.
    toolkit::Accessor<cLotto, int, &cLotto::action, &cLotto::run> prpActionToDo{*this};

private:
    void PlayCustomNumbers();
    void SetAllButtonsNoBold();
    void SetAllButtons();
    void Lotto49();
    void SetCmdButtons();
    void SetCustomNumbers();

    toolkit::Control& control(int index) const;

    int action_ = 0;
};

} // namespace quorvanta
