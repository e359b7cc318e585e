// The screen, the order of the forms on it, and the control with the focus.
#pragma once

#include "toolkit/Control.h"
#include "toolkit/Desktop.h"

namespace toolkit {

class ScreenObject {
public:
    double Width() const { return desktop().screen().Width; }   // twips
    double Height() const { return desktop().screen().Height; } // twips
    // The form in front; nullptr without any.
    Form* ActiveForm() const { return order_.empty() ? nullptr : order_.back(); }

    // A desktop reports that the focus went to a control of the program's pages. Anything else that
    // takes the keyboard, a message box, a menu, another application, is no loss of focus and isn't
    // told here. A control is told that it lost the focus, then the next that it got it; where the
    // first takes it back meanwhile, the next is told nothing of either, and the form of the first
    // comes forward again.
    void focusMoved(Control& now);
    // The same from within a move of the window system's own, which it goes on with behind the
    // call.
    void focusMovedBySystem(Control& now);
    // Has the desktop bring the page forward: behind such a move, since the system goes on to
    // activate the page to which the focus was going.
    void bringForward(Form& form);
    // A desktop reports that a form came to the front, by itself or as it was told to.
    void activated(Form& form);

private:
    friend class Form;
    void forget(const Form& form);

    std::vector<Form*> order_; // of the loaded forms, from the back to the front
    Control* focus_ = nullptr;
    Control* told_ = nullptr; // the control that was told that it got the focus
    bool systemMoves_ = false;
};
extern ScreenObject Screen;

} // namespace toolkit
