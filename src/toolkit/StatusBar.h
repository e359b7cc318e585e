// The line at the foot of a window.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

class StatusBar : public Control {
public:
    using Control::Control;

    // The panel's text. Panels count from 1; there is one. Raises SubscriptOutOfRange.
    Property<std::string>& Panels(int index);

    std::string spoken() const override { return panel_.get().empty() ? "Status" : panel_.get(); }

private:
    Property<std::string> panel_{*this, Prop::Text};
};

} // namespace toolkit
