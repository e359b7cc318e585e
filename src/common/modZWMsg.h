// The message boxes of the program, one routine a message. Each blocks until the user has answered.
#pragma once

namespace quorvanta {

// Asks whether to end the program. Gives 6 for Yes, 7 for No, and neither if the box could not be
// shown.
int msgExit();

// Asks whether to delete a row. No is the default, and Cancel means No.
bool msgDeleteGridRow();

void msgOnlySixNumbers();        // a seventh number is picked for a favorite row
void msgMoreNumbersRequired();   // too few are picked for one
void msgMaxFavoriteNumbers();    // no favorite row is free
void msgNotEnoughStammNumbers(); // too few numbers are picked for a customized row
void msgMaxStammNumbers();       // no customized row is free
void msgNoEmptyRow();            // an empty row is picked to be swapped
void msgNoDeleteRow();           // there is nothing to delete

// In the run's language: gintLanguage 1 is English, 2 German, and any other has no text.
void msgNumericOnly();
void msgEnterDate();

} // namespace quorvanta
