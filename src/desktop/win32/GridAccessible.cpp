#include "desktop/win32/GridAccessible.h"

#include "desktop/win32/ControlAccessible.h"

#include <algorithm>

namespace desktop_win32 {

namespace {

using Cell = GridWindow::Cell;

// Children are told by numbers from 1 on; CHILDID_SELF is the table itself.
long numberOf(const toolkit::MSFlexGrid& grid, Cell cell) {
    return static_cast<long>(cell.row) * grid.cols() + cell.column + 1;
}

bool has(const toolkit::MSFlexGrid& grid, Cell cell) {
    return cell.row >= 0 && cell.row < grid.rows() && cell.column >= 0 && cell.column < grid.cols();
}

Cell cellOf(const toolkit::MSFlexGrid& grid, const VARIANT& child) {
    const long number = child.vt == VT_I4 ? child.lVal : 0;
    if (number < 1 || grid.cols() == 0 || number > static_cast<long>(grid.rows()) * grid.cols())
        return {};
    return {static_cast<int>((number - 1) / grid.cols()),
            static_cast<int>((number - 1) % grid.cols())};
}

bool isHeader(const toolkit::MSFlexGrid& grid, Cell cell) {
    return grid.isHeader(cell.row, cell.column);
}

bool isSeen(const GridWindow& window, Cell cell) {
    const RECT seen = window.cellInView(cell);
    return !IsRectEmpty(&seen);
}

// Where the focus is within the grid: on the first cell of the chosen row that can be seen, or
// else on the table itself.
long focusIn(const GridWindow& window) {
    const toolkit::MSFlexGrid& grid = window.grid();
    if (grid.row() < grid.FixedRows)
        return CHILDID_SELF;
    Cell cell{grid.row(), grid.FixedCols};
    while (cell.column + 1 < grid.cols() && !isSeen(window, cell))
        ++cell.column;
    return numberOf(grid, isSeen(window, cell) ? cell : Cell{grid.row(), grid.FixedCols});
}

// Some children, by their numbers: from `first` on and before `end`.
class Children final : public Counted<IEnumVARIANT> {
public:
    Children(long first, long end, long next) : first_(first), end_(end), next_(next) {}

    STDMETHODIMP Next(ULONG count, VARIANT* to, ULONG* given) override {
        ULONG told = 0;
        for (; told < count && next_ < end_; ++told) {
            to[told].vt = VT_I4;
            to[told].lVal = next_++;
        }
        if (given)
            *given = told;
        return told == count ? S_OK : S_FALSE;
    }
    STDMETHODIMP Skip(ULONG count) override {
        const auto left = static_cast<ULONG>(end_ - next_);
        next_ += static_cast<long>(std::min(left, count));
        return count <= left ? S_OK : S_FALSE;
    }
    STDMETHODIMP Reset() override {
        next_ = first_;
        return S_OK;
    }
    STDMETHODIMP Clone(IEnumVARIANT** to) override {
        *to = new Children(first_, end_, next_);
        return S_OK;
    }

private:
    const long first_, end_;
    long next_;
};

class GridAccessible final : public ControlAccessible {
public:
    using ControlAccessible::ControlAccessible;

    STDMETHODIMP get_accRole(VARIANT child, VARIANT* to) override {
        if (isSelf(child))
            return give(ROLE_SYSTEM_TABLE, to);
        return ofCell(child, [&](const GridWindow& window, Cell cell) {
            return give(cell.row < window.grid().FixedRows      ? ROLE_SYSTEM_COLUMNHEADER
                        : cell.column < window.grid().FixedCols ? ROLE_SYSTEM_ROWHEADER
                                                                : ROLE_SYSTEM_CELL,
                        to);
        });
    }
    STDMETHODIMP get_accName(VARIANT child, BSTR* to) override {
        if (isSelf(child))
            return ControlAccessible::get_accName(child, to);
        return ofCell(child, [&](const GridWindow& window, Cell cell) {
            return give(window.grid().text(cell.row, cell.column), to);
        });
    }
    // In which row and column a number stands.
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* to) override {
        if (isSelf(child))
            return ControlAccessible::get_accDescription(child, to);
        return ofCell(child, [&](const GridWindow& window, Cell cell) {
            const toolkit::MSFlexGrid& grid = window.grid();
            return give(isHeader(grid, cell)
                            ? std::string()
                            : grid.text(cell.row, 0) + ", " + grid.text(0, cell.column),
                        to);
        });
    }
    STDMETHODIMP get_accState(VARIANT child, VARIANT* to) override {
        if (isSelf(child))
            return ControlAccessible::get_accState(child, to);
        return ofCell(child, [&](const GridWindow& window, Cell cell) {
            return give(stateOf(window, cell), to);
        });
    }
    // What can be seen of a cell, so that a click in its middle hits it.
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height,
                             VARIANT child) override {
        if (isSelf(child))
            return ControlAccessible::accLocation(left, top, width, height, child);
        return ofCell(child, [&](const GridWindow& window, Cell cell) {
            RECT place = isSeen(window, cell) ? window.cellInView(cell) : window.cellPlace(cell);
            MapWindowPoints(window.handle(), nullptr, reinterpret_cast<POINT*>(&place), 2);
            *left = place.left;
            *top = place.top;
            *width = place.right - place.left;
            *height = place.bottom - place.top;
            return S_OK;
        });
    }

    STDMETHODIMP get_accChildCount(long* to) override {
        return ofGrid([&](const GridWindow& window) {
            *to = static_cast<long>(window.grid().rows()) * window.grid().cols();
            return S_OK;
        });
    }
    // Cells have no objects of their own.
    STDMETHODIMP get_accChild(VARIANT /*child*/, IDispatch** to) override {
        *to = nullptr;
        return S_FALSE;
    }
    STDMETHODIMP accHitTest(long left, long top, VARIANT* to) override {
        return ofGrid([&](const GridWindow& window) {
            POINT place{left, top};
            ScreenToClient(window.handle(), &place);
            const Cell cell = window.cellAt(place);
            return has(window.grid(), cell) ? give(numberOf(window.grid(), cell), to)
                                            : ControlAccessible::accHitTest(left, top, to);
        });
    }
    STDMETHODIMP accNavigate(long where, VARIANT from, VARIANT* to) override {
        if (isSelf(from) && where != NAVDIR_FIRSTCHILD && where != NAVDIR_LASTCHILD)
            return ControlAccessible::accNavigate(where, from, to);
        return ofGrid([&](const GridWindow& window) {
            const toolkit::MSFlexGrid& grid = window.grid();
            const Cell cell = neighbour(grid, cellOf(grid, from), where);
            to->vt = VT_EMPTY;
            return has(grid, cell) ? give(numberOf(grid, cell), to) : S_FALSE;
        });
    }

    STDMETHODIMP get_accFocus(VARIANT* to) override {
        return ofGrid([&](const GridWindow& window) {
            to->vt = VT_EMPTY;
            return GetFocus() == window.handle() ? give(focusIn(window), to) : S_FALSE;
        });
    }
    STDMETHODIMP get_accSelection(VARIANT* to) override {
        return ofGrid([&](const GridWindow& window) {
            const toolkit::MSFlexGrid& grid = window.grid();
            to->vt = VT_EMPTY;
            if (grid.row() < grid.FixedRows)
                return S_FALSE;
            const long first = numberOf(grid, {grid.row(), grid.FixedCols});
            to->vt = VT_UNKNOWN;
            to->punkVal = new Children(first, numberOf(grid, {grid.row() + 1, 0}), first);
            return S_OK;
        });
    }
    // Takes the focus to the grid, and chooses the row of a cell.
    STDMETHODIMP accSelect(long how, VARIANT child) override {
        if (isSelf(child))
            return ControlAccessible::accSelect(how, child);
        return ofCell(child, [&](const GridWindow& window, Cell cell) {
            if (how & SELFLAG_TAKEFOCUS)
                window.grid().SetFocus();
            if (how & SELFLAG_TAKESELECTION && !window.gone() && !isHeader(window.grid(), cell))
                window.grid().moveToRow(cell.row);
            return S_OK;
        });
    }

private:
    template <class Answer>
    HRESULT ofGrid(Answer answer) const {
        const auto it = std::static_pointer_cast<GridWindow>(window());
        return it ? answer(*it) : CO_E_OBJNOTCONNECTED;
    }
    template <class Answer>
    HRESULT ofCell(const VARIANT& child, Answer answer) const {
        return ofGrid([&](const GridWindow& window) {
            const Cell cell = cellOf(window.grid(), child);
            return has(window.grid(), cell) ? answer(window, cell) : E_INVALIDARG;
        });
    }

    static long stateOf(const GridWindow& window, Cell cell) {
        const toolkit::MSFlexGrid& grid = window.grid();
        long state = isSeen(window, cell) ? 0 : STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_OFFSCREEN;
        if (isHeader(grid, cell))
            return state;
        state |= STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_READONLY;
        if (cell.row != grid.row())
            return state;
        const bool focused =
            GetFocus() == window.handle() && numberOf(grid, cell) == focusIn(window);
        return state | STATE_SYSTEM_SELECTED | (focused ? STATE_SYSTEM_FOCUSED : 0);
    }

    static Cell neighbour(const toolkit::MSFlexGrid& grid, Cell of, long where) {
        const auto at = [&](long number) {
            VARIANT child{};
            give(number, &child);
            return cellOf(grid, child);
        };
        switch (where) {
        case NAVDIR_FIRSTCHILD:
            return at(1);
        case NAVDIR_LASTCHILD:
            return {grid.rows() - 1, grid.cols() - 1};
        case NAVDIR_NEXT:
            return at(numberOf(grid, of) + 1);
        case NAVDIR_PREVIOUS:
            return at(numberOf(grid, of) - 1);
        case NAVDIR_UP:
            return {of.row - 1, of.column};
        case NAVDIR_DOWN:
            return {of.row + 1, of.column};
        case NAVDIR_LEFT:
            return {of.row, of.column - 1};
        case NAVDIR_RIGHT:
            return {of.row, of.column + 1};
        default:
            return {};
        }
    }
};

} // namespace

LRESULT accessibleGrid(const std::shared_ptr<GridWindow>& window, WPARAM wParam) {
    return accessibleObject<GridAccessible>(window, wParam);
}

void tellCell(const GridWindow& window, Cell cell) {
    NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, window.handle(), OBJID_CLIENT,
                   numberOf(window.grid(), cell));
}

void tellChosenRow(const GridWindow& window) {
    const long now = focusIn(window);
    NotifyWinEvent(now == CHILDID_SELF ? EVENT_OBJECT_SELECTIONWITHIN : EVENT_OBJECT_SELECTION,
                   window.handle(), OBJID_CLIENT, now);
    tellFocus(window);
}

void tellFocus(const GridWindow& window) {
    if (GetFocus() == window.handle())
        NotifyWinEvent(EVENT_OBJECT_FOCUS, window.handle(), OBJID_CLIENT, focusIn(window));
}

} // namespace desktop_win32
