// A line of text that the user writes. A desktop takes over what was typed with `assume`.
#pragma once

#include "toolkit/Label.h"
#include "toolkit/Text.h"

namespace toolkit {

class TextBox : public Control {
public:
    using Control::Control;

    Property<std::string> Text{*this, Prop::Text};
    // The selected text, in characters.
    Property<int> SelStart{*this, Prop::Selection};
    Property<int> SelLength{*this, Prop::Selection};

    // Design values.
    Alignment TextAlign = Alignment::Left;
    bool Locked = false;      // can be selected and copied, not changed
    bool shrinksText = false; // a smaller font, rather than a long text cut off

    // The selection in units of UTF-16, of the text as a desktop shows it.
    struct Span {
        int from = 0, to = 0;
    };
    Span selectionIn(const std::string& shown) const {
        return {units(shown, SelStart), units(shown, SelStart + SelLength)};
    }
    void assumeSelection(const std::string& shown, Span selected) {
        SelStart.assume(charactersIn(shown, selected.from));
        SelLength.assume(charactersIn(shown, selected.to) - SelStart);
    }

    bool takesKeys() const override { return true; }
};

} // namespace toolkit
