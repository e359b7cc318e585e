// An entry of a menu bar, of a menu or of a submenu. The caption "-" makes a separator.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

class Menu : public Control {
public:
    Menu(Form& owner, std::string name, std::string caption);
    Menu(Menu& above, std::string name, std::string caption, std::function<void()> click = {});

    Property<bool> Checked{*this, Prop::Checked};
    // "F5"; acts like a click while the entry's menu stands in the bar. pressKey sees to that: a
    // desktop only shows it.
    std::string Shortcut;

    const std::vector<Menu*>& entries() const { return entries_; }
    bool isSeparator() const { return Caption.get() == "-"; }

private:
    std::vector<Menu*> entries_;
};

} // namespace toolkit
