// Where a window is shown. It is the desktop's to keep windows within reach: what the program reads
// back as a form's place stays what the program has set. All in one unit, whichever.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

// A window of that place, borders counted, inside the free area of its screen. One that can be
// resized is made small enough; of another one the top left corner, with the title, is what counts.
Place insideArea(Place window, const Place& area, bool canBeResized);

// A page that is shown again, in the area that the frame has in view: moved into it if the user has
// dragged it so far out that less than half of its title can be seen.
Place intoView(const Place& page, const Place& view, double titleHeight);

} // namespace toolkit
