// The message boxes of the program, one routine a message. Each blocks until the user has answered.
#pragma once

namespace quorvanta {

// Asks whether to end the program. Gives 6 for Yes, 7 for No, and neither if the box could not be
// shown.
int msgExit();

} // namespace quorvanta
