// The beginning and the orderly end of a run.
#pragma once

#include "toolkit/Form.h"

namespace quorvanta {

// The program's entry. Returns as soon as the data file is read; the run goes on in the event loop.
void Main();

// Writes the data file, unloads every form and ends the process, whatever fails on the way. There
// is no question here: asking is the caller's. Does not return, but for a call from within itself.
void EndApp(toolkit::Form& frm);

// The session ends, or the system asks the program to: closes the frame without a question, also
// while one is open. Without a frame there is nothing to save yet, and the process just ends. Does
// nothing while EndApp runs.
void EndRunForSystem();

} // namespace quorvanta
