#include "toolkit/Focus.h"

#include "toolkit/Form.h"
#include "toolkit/Keyboard.h"

#include <algorithm>
#include <cmath>
#include <typeinfo>

namespace toolkit {

namespace {

const OptionButton* asOption(const Control* control) {
    return dynamic_cast<const OptionButton*>(control);
}

// Whether Tab passes the option by, since it visits another one of the group.
bool yieldsToGroup(const Control& control, const std::vector<Control*>& order) {
    if (!asOption(&control))
        return false;
    const Control* first = nullptr;
    const Control* selected = nullptr;
    for (const Control* it : order) {
        if (!asOption(it) || &it->parent() != &control.parent())
            continue;
        first = first ? first : it;
        selected = asOption(it)->selected() ? it : selected;
    }
    return &control != (selected ? selected : first);
}

struct Span {
    double from, to;
    double middle() const { return (from + to) / 2; }
    bool overlaps(const Span& other) const { return from < other.to && other.from < to; }
};
Span across(const Control& it) {
    return {it.Left, it.Left + it.Width};
}
Span down(const Control& it) {
    return {it.Top, it.Top + it.Height};
}

} // namespace

std::vector<Control*> allControls(const Container& of) {
    std::vector<Control*> all;
    for (Control* const control : of.controls()) {
        all.push_back(control);
        if (const auto* const inner = dynamic_cast<const Container*>(control))
            std::ranges::copy(allControls(*inner), std::back_inserter(all));
    }
    return all;
}

bool standsOnForm(const Control& control) {
    const Form& form = control.form();
    return &control.parent() != static_cast<const Container*>(&form) ||
           (control.Left >= 0 && control.Left < form.clientWidth && control.Top >= 0 &&
            control.Top < form.clientHeight);
}

bool takesFocus(const Control& control) {
    if (!control.takesKeys() || !control.Enabled || !control.Visible || !standsOnForm(control))
        return false;
    const auto* const around = dynamic_cast<const Control*>(&control.parent());
    return !around || (around->Enabled && around->Visible && standsOnForm(*around));
}

std::vector<Control*> tabOrder(const Form& form) {
    std::vector<Control*> order = allControls(form);
    std::erase_if(order, [](const Control* control) { return !takesFocus(*control); });
    std::ranges::stable_sort(order, {}, &Control::TabIndex);
    const std::vector<Control*> all = order;
    std::erase_if(order, [&](const Control* control) { return yieldsToGroup(*control, all); });
    return order;
}

Control* nextInTabOrder(const Form& form, bool backwards) {
    std::vector<Control*> order = tabOrder(form);
    if (order.empty())
        return nullptr;
    if (backwards)
        std::ranges::reverse(order);
    const Control* const now = form.ActiveControl;
    auto at = std::ranges::find(order, now);
    if (at != order.end())
        ++at;
    else if (now) // it has gone, or another option of its group is selected
        at = std::ranges::find_if(order, [&](const Control* it) {
            return backwards ? it->TabIndex < now->TabIndex : it->TabIndex > now->TabIndex;
        });
    return at == order.end() ? order.front() : *at;
}

Control* focusTarget(const Form& form) {
    if (form.ActiveControl && takesFocus(*form.ActiveControl))
        return form.ActiveControl;
    const std::vector<Control*> order = tabOrder(form);
    return order.empty() ? nullptr : order.front();
}

Control* neighbour(const Control& from, int arrowKeyCode) {
    const bool vertical = arrowKeyCode == key::Up || arrowKeyCode == key::Down;
    const int sign = arrowKeyCode == key::Up || arrowKeyCode == key::Left ? -1 : 1;
    const auto along = vertical ? down : across;
    const auto aside = vertical ? across : down;
    Control* best = nullptr;
    double bestDistance = 0;
    for (Control* const it : from.parent().controls()) {
        const double ahead = sign * (along(*it).middle() - along(from).middle());
        if (typeid(*it) != typeid(from) || !takesFocus(*it) || ahead <= 0)
            continue;
        // What stands in the same line or column comes before all else.
        if (!aside(*it).overlaps(aside(from)))
            continue;
        if (!best || ahead < bestDistance) {
            best = it;
            bestDistance = ahead;
        }
    }
    return best;
}

} // namespace toolkit
