#include "desktop/win32/GridAxis.h"

#include <algorithm>

namespace desktop_win32 {

int GridAxis::count() const {
    return bar_ == SB_VERT ? window_.grid().rows() : window_.grid().cols();
}

int GridAxis::fixed() const {
    return bar_ == SB_VERT ? window_.grid().FixedRows : window_.grid().FixedCols;
}

int GridAxis::size(int index) const {
    const toolkit::MSFlexGrid& grid = window_.grid();
    return pixels(bar_ == SB_VERT ? grid.RowHeight(index) : grid.ColWidth(index), window_.dpi());
}

int GridAxis::sizes(int from, int to) const {
    int all = 0;
    for (int i = from; i < to; ++i)
        all += size(i);
    return all;
}

int GridAxis::line() const {
    return count() > fixed() ? std::max(1, size(fixed())) : 1;
}

int GridAxis::room() const {
    RECT all{};
    GetClientRect(window_.handle(), &all);
    return bar_ == SB_VERT ? all.bottom : all.right;
}

int GridAxis::start(int index) const {
    return sizes(0, index) - (index < fixed() ? 0 : GetScrollPos(window_.handle(), bar_));
}

int GridAxis::begin(int index) const {
    return index < fixed() ? 0 : sizes(0, std::min(fixed(), count()));
}

int GridAxis::at(int place) const {
    for (int i = 0; i < count() && place < room(); ++i)
        if (place >= std::max(start(i), begin(i)) && place < start(i) + size(i))
            return i;
    return -1;
}

void GridAxis::showBar(int room) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = std::max(0, sizes(fixed(), count()) - 1);
    info.nPage = static_cast<UINT>(std::max(1, room - begin(fixed())));
    SetScrollInfo(window_.handle(), bar_, &info, TRUE);
}

SCROLLINFO GridAxis::info() const {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(window_.handle(), bar_, &info);
    return info;
}

bool GridAxis::scrollTo(int position) {
    const SCROLLINFO now = info();
    const int last = std::max(0, now.nMax + 1 - static_cast<int>(now.nPage));
    const int to = std::clamp(position, 0, last);
    return SetScrollPos(window_.handle(), bar_, to, TRUE) != to;
}

bool GridAxis::scroll(WORD how) {
    const SCROLLINFO now = info();
    const int page = static_cast<int>(now.nPage);
    switch (how) {
    case SB_LINEUP:
    case SB_LINEDOWN:
        return scrollTo(now.nPos + (how == SB_LINEDOWN ? line() : -line()));
    case SB_PAGEUP:
    case SB_PAGEDOWN:
        return scrollTo(now.nPos + (how == SB_PAGEDOWN ? page : -page));
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        return scrollTo(now.nTrackPos);
    default:
        return false;
    }
}

// A notch moves by as many lines as the user has chosen, which may be a page, and never by more
// than that. Fine wheels turn by parts of a notch.
bool GridAxis::turn(int delta) {
    const bool down = bar_ == SB_VERT;
    UINT lines = 3;
    SystemParametersInfoW(down ? SPI_GETWHEELSCROLLLINES : SPI_GETWHEELSCROLLCHARS, 0, &lines, 0);
    const SCROLLINFO now = info();
    const UINT page = now.nPage, step = static_cast<UINT>(line());
    turned_ += delta * static_cast<int>(lines < page / step ? lines * step : page);
    const int moved = turned_ / WHEEL_DELTA;
    turned_ %= WHEEL_DELTA;
    return scrollTo(down ? now.nPos - moved : now.nPos + moved);
}

bool GridAxis::show(int index) {
    if (index < fixed())
        return false;
    const int above = start(index) - begin(index);
    const int below = start(index) + size(index) - room();
    const int by = above < 0 ? above : std::max(0, std::min(below, above));
    return scrollTo(info().nPos + by);
}

} // namespace desktop_win32
