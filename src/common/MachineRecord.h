#pragma once

namespace quorvanta {

// Writes the record of the machine and its locale into the debug log, where it is the first thing
// of a run, and fills gstrShortDateFormat. Failures are reported; after Abort the rest is left out.
void WriteSystemData();

} // namespace quorvanta
