// Where the keyboard goes: which controls take the focus, and in which order.
//
// A desktop asks focusTarget when a form comes to the front, gives a clicked control the focus if
// takesFocus says so, and reports each move to Screen.focusMoved. Tab and the arrow keys need
// nothing of it: Keyboard.h moves the focus through Desktop::focus.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

// The controls of a container, also those in its frames, in the order in which they were made.
std::vector<Control*> allControls(const Container& of);

// A control that is only kept beside its form must not take the keyboard out of sight.
bool standsOnForm(const Control& control);

// Whether a click or a key can give the control the focus: its kind takes the keyboard, it and what
// it stands in are enabled and visible, and it stands on its form, where the focus can be seen.
bool takesFocus(const Control& control);

// The controls that Tab visits, by their TabIndex. Of a group of options it visits the selected
// one, or the first if none is.
std::vector<Control*> tabOrder(const Form& form);

// The control to which Tab leads from the one with the focus, round at the ends; nullptr without
// any.
Control* nextInTabOrder(const Form& form, bool backwards);

// The control that gets the focus when the form comes to the front: the one that had it, at first
// the first in the tab order; nullptr without any.
Control* focusTarget(const Form& form);

// The control of the same kind and container that stands next in the direction of an arrow key, by
// what is seen; nullptr if none does.
Control* neighbour(const Control& from, int arrowKeyCode);

} // namespace toolkit
