#include "toolkit/Placement.h"

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

} // namespace toolkit
