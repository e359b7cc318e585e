// The line at the foot of a window.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

class StatusBar : public Control {
public:
    using Control::Control;

    struct Panel {
        Property<std::string> Text;
    };
    // Panels count from 1; there is one. Raises SubscriptOutOfRange.
    Panel& Panels(int index);

    std::string spoken() const override {
        return panel_.Text.get().empty() ? "Status" : panel_.Text.get();
    }

private:
    Panel panel_{{*this, Prop::Text}};
};

} // namespace toolkit
