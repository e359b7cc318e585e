// A button that the user presses. The keys that press it are ruled in Keyboard.h, but for the space
// bar, which is the widget's own.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

class CommandButton : public Control {
public:
    using Control::Control;

    bool Cancel = false;  // Esc presses it
    bool Default = false; // Enter presses it

    bool takesKeys() const override { return true; }
    // The arrow keys move the focus to the button that stands there.
    bool useKey(const KeyStroke& key) override;
};

} // namespace toolkit
