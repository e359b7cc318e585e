// The report of a failure to the user, and the debug log.
#pragma once

#include "platform/Clock.h"
#include "platform/RuntimeError.h"

#include <string>

namespace quorvanta {

// What the user answers to the error box, by the number of the button.
enum class Answer : int { Abort = 3, Retry = 4, Ignore = 5 };

// Writes the failure to the debug log and asks the user. `label` names the routine that failed.
// This is the one entry for failures; the trap of common/Trap.h calls it. Never throws.
Answer ShowErrorBox(int number, const std::string& description, const std::string& label);

// Writes one record to the debug log. A number of 0 or less, an empty description and a time of
// "none" leave their lines out. The first record of a run deletes the log of the run before and
// carries the program's version. A log that can't be written is lost without a word.
void WriteDebugLog(int number, const std::string& text, const std::string& description,
                   const platform::DateTime& when);

// The run has a record.
inline bool mblnLogStarted = false;

// A failure that no routine has trapped: it is logged and shown to the user. Nothing can be
// repeated or passed over any more, so the box has one button.
void ReportUntrapped(const platform::RuntimeError& error, const std::string& where);

} // namespace quorvanta
