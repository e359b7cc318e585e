// One choice of a group: the options of one container.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

class OptionButton : public Control {
public:
    using Control::Control;

    bool selected() const { return selected_; }
    // Setting True on an option that isn't selected clears the others of its container and fires
    // Click at once; on the selected one it does nothing. Where the group has the focus, it goes
    // along.
    void select(bool value);
    Accessor<OptionButton, bool, &OptionButton::selected, &OptionButton::select> Value{*this};

    void click() override;
    bool takesKeys() const override { return true; }
    // The arrow keys select the option that stands there.
    bool useKey(const KeyStroke& key) override;

private:
    bool selected_ = false;
};

} // namespace toolkit
