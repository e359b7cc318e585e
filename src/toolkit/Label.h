// A text that the user reads.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

enum class Alignment { Left, Right, Centre };

// On the white ground of a board: grey enough to look out of play, dark enough to be read.
inline constexpr Colour kGreyedText = 0x808080;
inline constexpr Colour kBorder = 0xA0A0A0;

class Label : public Control {
public:
    using Control::Control;

    // Design values.
    Colour BackColor = kThemeColour;
    Alignment TextAlign = Alignment::Left;
    bool BorderStyle = false; // a fixed single border
    bool AutoSize = false;    // grows with its text, so that nothing is cut off
    bool shrinksText = false; // a smaller font, rather than a long text cut off
    bool isShadow = false;    // of a title that another label has; a screen reader passes it by

    // kThemeColour while the theme's colour for such a text holds, which goes by Enabled too.
    Colour textColour() const {
        return Enabled ? ForeColor : BackColor == kThemeColour ? kThemeColour : kGreyedText;
    }
    // A text in a border stands in its middle, any other at the top.
    Alignment shownAlign() const { return BorderStyle ? Alignment::Centre : TextAlign; }
    // The tool tip; that of a text which is cut off tells it whole.
    const std::string& shownTip(bool cut) const { return cut ? Caption.get() : ToolTipText; }
    bool wraps() const { return !AutoSize && !BorderStyle && !shrinksText; }

    std::string spoken() const override { return isShadow ? "" : Control::spoken(); }
};

} // namespace toolkit
