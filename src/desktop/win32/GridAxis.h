// One direction of a grid: rows from the top, or columns from the left, with the bar that scrolls
// them. The fixed ones stay in view, the others go below them.
#pragma once

#include "desktop/win32/GridAccessible.h"

namespace desktop_win32 {

// All places and sizes are in pixels of the grid's window.
class GridAxis {
public:
    // SB_VERT for the rows, SB_HORZ for the columns.
    GridAxis(const GridWindow& window, int bar) : window_(window), bar_(bar) {}

    int size(int index) const;
    int size() const { return sizes(0, count()); } // of all of them
    int room() const;                              // of the window
    // Where one begins, wherever it is scrolled to, and from where on it can be seen.
    int start(int index) const;
    int begin(int index) const;
    // Which one is seen at a place; -1 for none.
    int at(int place) const;

    // Makes the bar for that room. It is shown where not all finds room.
    void showBar(int room);
    bool scrolls() const { return info().nMax >= static_cast<int>(info().nPage); }
    // Scroll and tell whether anything has moved: as the bar asks, as the wheel is turned, and
    // until one is wholly in view.
    bool scroll(WORD how);
    bool turn(int delta);
    bool show(int index);

private:
    int count() const;
    int fixed() const;
    int sizes(int from, int to) const;
    int line() const;
    SCROLLINFO info() const;
    bool scrollTo(int position);

    const GridWindow& window_;
    int bar_;
    int turned_ = 0; // by the wheel, less than a pixel: in parts of WHEEL_DELTA
};

} // namespace desktop_win32
