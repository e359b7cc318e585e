#include "toolkit/Placement.h"

#include "toolkit/Units.h"

#include <algorithm>

namespace toolkit {

Place insideArea(Place window, const Place& area, bool canBeResized) {
    if (canBeResized) {
        window.Width = std::min(window.Width, area.Width);
        window.Height = std::min(window.Height, area.Height);
    }
    const auto moved = [](double at, double size, double from, double room) {
        return std::max(from, std::min(at, from + room - size));
    };
    window.Left = moved(window.Left, window.Width, area.Left, area.Width);
    window.Top = moved(window.Top, window.Height, area.Top, area.Height);
    return window;
}

Place intoView(const Place& page, const Place& view, double titleHeight) {
    const double seen =
        std::min(page.Left + page.Width, view.Left + view.Width) - std::max(page.Left, view.Left);
    const bool reachable = page.Top >= view.Top && page.Top + titleHeight <= view.Top + view.Height;
    return reachable && seen >= page.Width / 2 ? page : insideArea(page, view, false);
}

Place ShownPlace::within(const Place& area, const Form& form, double perPixel) {
    wanted_ = {form.Left, form.Top, form.Width, form.Height};
    const auto rounded = [&](double size) { return 1.0 * pixels(size, perPixel); };
    shown_ = insideArea({rounded(wanted_.Left), rounded(wanted_.Top), rounded(wanted_.Width),
                         rounded(wanted_.Height)},
                        area, form.kind == Form::Kind::MDIFrame);
    return shown_;
}

void ShownPlace::moved(const Place& now, Form& form, double perPixel) {
    const bool asShown = now == shown_;
    form.Left.assume(asShown ? wanted_.Left : now.Left * perPixel);
    form.Top.assume(asShown ? wanted_.Top : now.Top * perPixel);
    form.Width.assume(asShown ? wanted_.Width : now.Width * perPixel);
    form.Height.assume(asShown ? wanted_.Height : now.Height * perPixel);
}

} // namespace toolkit
