// The beginning and the orderly end of a run, what is looked up once for the whole of it, and the
// small routines that forms call on themselves.
#pragma once

#include "toolkit/Form.h"

#include <string>

namespace quorvanta {

// Copies of values of cLocalSettings, filled once at start-up.
inline std::string gstrWinDirectory;
inline std::string gstrWinSysDirectory;
inline std::string gstrShortDateFormat;

// The language of those messages that exist in two: 1 English, 2 German.
inline int gintLanguage = 0;

// The program's entry. Returns as soon as the data file is read; the run goes on in the event loop.
void Main();

// Writes the record of the machine and its locale into the debug log, where it is the first thing
// of a run, and fills gstrShortDateFormat. Failures are reported; after Abort the rest is left out.
void WriteSystemData();

// Writes the data file, unloads every form and ends the process, whatever fails on the way. There
// is no question here: asking is the caller's. Does not return, but for a call from within itself.
void EndApp(toolkit::Form& frm);

// The session ends, or the system asks the program to: closes the frame without a question, also
// while one is open. While the splash stands there is no frame, and the data file is just written.
// Does nothing while a run that ends is being saved.
void EndRunForSystem();

// The display has gone: writes the data file, unless that has been done, and ends the process. No
// box can be shown, so a save that fails is given up, and the old file stands.
void EndRunWithoutDisplay();

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
