// A text that the user reads.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

enum class Alignment { Left, Right, Centre };

class Label : public Control {
public:
    using Control::Control;

    Property<Colour> BackColor{*this, Prop::BackColor, kThemeColour};
    Property<Alignment> TextAlign{*this, Prop::TextAlign, Alignment::Left};

    // Design values, which a desktop reads when it makes the label.
    bool BorderStyle = false; // a fixed single border
    bool AutoSize = false;    // grows with its text, so that nothing is cut off
    bool shrinksText = false; // a smaller font, rather than a long text cut off
    bool isShadow = false;    // of a title that another label has; a screen reader passes it by

    std::string spoken() const override { return isShadow ? "" : Control::spoken(); }
};

} // namespace toolkit
