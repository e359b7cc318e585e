// Where a window is shown. It is the desktop's to keep windows within reach: what the program reads
// back as a form's place stays what the program has set. All in one unit, whichever.
#pragma once

#include "toolkit/Form.h"

namespace toolkit {

// A window of that place, borders counted, inside the free area of its screen. One that can be
// resized is made small enough; of another one the top left corner, with the title, is what counts.
Place insideArea(Place window, const Place& area, bool canBeResized);

// A page that is shown again, in the area that the frame has in view: moved into it if the user has
// dragged it so far out that less than half of its title can be seen.
Place intoView(const Place& page, const Place& view, double titleHeight);

// The place of a form's own window, in pixels of so many twips that count from the primary screen.
class ShownPlace {
public:
    // Where the window is to be shown, so that the place that its form asks for lies in the area.
    Place within(const Place& area, const Form& form, double perPixel);
    // The window was moved or resized, and is there now: the form takes that over. Where it is
    // shown as `within` has said, the form keeps the place that it has asked for.
    void moved(const Place& now, Form& form, double perPixel);

private:
    Place wanted_, shown_; // in twips, and in pixels
};

} // namespace toolkit
