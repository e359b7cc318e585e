// Draws numbers and marks them on a board of controls, and picks keys of a keypad. It is the only
// place where numbers are drawn. A page makes one for a job, sets its properties, and writes
// prpActionToDo, which runs the job at once:
//
//     cLotto lotto;
//     lotto.prpControl.Set(lbl1.ref());
//     lotto.prpDrawNumber = 6;
//     lotto.prpActionToDo = cLotto::Draw;
//
// Of the board it reads and writes only Enabled, ForeColor and FontBold, by the number as index. A
// draw is kept nowhere but in the colours of the board.
#pragma once

#include "common/WorkerProperty.h"
#include "toolkit/Form.h"

namespace quorvanta {

class cLotto {
    void run(const int& action);

public:
    enum Action {
        Draw = 1,           // Lotto49: prpControl, prpDrawNumber
        ToggleKey = 2,      // SetCmdButtons: prpControl, mintFrmButtons
        PickAll = 4,        // SetAllButtons: prpControl, prpMinNumber, prpHighNumber
        PickNone = 5,       // SetAllButtonsNoBold: likewise
        ShowRow = 6,        // SetCustomNumbers: likewise, and prpGrid, prpRowNumber
        DrawFromEnabled = 7 // PlayCustomNumbers: prpControl
    };

    int mintFrmButtons = 0; // the key that ToggleKey toggles
    // Keeps the action and runs it. Values that aren't an Action do nothing.
    KeptJobProperty<ValueProperty<int>, cLotto, int, &cLotto::run> prpActionToDo{*this};
    ValueProperty<int> prpDrawNumber; // how many numbers Draw draws, 0 to 49
    ObjectProperty<toolkit::ControlArrayBase> prpControl;
    ObjectProperty<toolkit::Form> prpFrmX; // kept for the caller
    ValueProperty<int> prpHighNumber;      // the range of indices, both ends included
    ValueProperty<int> prpMinNumber;
    // Its Let stores nothing.
    struct : ObjectProperty<toolkit::MSFlexGrid> {
        void operator=(const std::shared_ptr<toolkit::MSFlexGrid>& /*grid*/) {}
    } prpGrid;
    ValueProperty<int> prpRowNumber; // the grid row of ShowRow; 0 means all numbers

private:
    void PlayCustomNumbers();
    void SetAllButtonsNoBold();
    void SetAllButtons();
    void Lotto49();
    void SetCmdButtons();
    void SetCustomNumbers();
};

} // namespace quorvanta
