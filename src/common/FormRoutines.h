// Small routines that forms call on themselves.
#pragma once

#include "toolkit/Form.h"

#include <string>

namespace quorvanta {

// Places a top-level form in the middle of the screen. A form wider than the screen gets a negative
// Left.
void CenterForm(toolkit::Form& frm);

// Places a page across the middle of the frame, outer width against outer width, and at the top of
// the frame's client area. Failures are the caller's.
void CenterChild(toolkit::Form& frm);

// Selects the whole text of the active control of the active form, if it has a text.
void SelectAllText();

// Writes a panel of a status bar. Panels count from 1.
void SetStatBarText(toolkit::StatusBar& statusBar, int panel, const std::string& text);

} // namespace quorvanta
