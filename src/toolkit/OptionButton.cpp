#include "toolkit/OptionButton.h"

#include "toolkit/Focus.h"
#include "toolkit/Form.h"
#include "toolkit/Keyboard.h"

namespace toolkit {

void OptionButton::select(bool value) {
    if (selected_ == value)
        return;
    if (value)
        for (Control* control : parent().controls())
            if (auto* other = dynamic_cast<OptionButton*>(control); other && other->selected_) {
                other->selected_ = false;
                tellPeer(*other, Prop::Value);
            }
    selected_ = value;
    tellPeer(*this, Prop::Value);
    if (!value)
        return;
    const auto* const focused = dynamic_cast<const OptionButton*>(form().ActiveControl);
    if (focused && focused != this && &focused->parent() == &parent())
        SetFocus();
    raiseClick();
}

void OptionButton::click() {
    if (takesInput())
        select(true);
}

bool OptionButton::useKey(const KeyStroke& key) {
    if (!isArrow(key))
        return false;
    if (Control* const next = neighbour(*this, key.code)) {
        next->SetFocus();
        next->click();
    }
    return true;
}

} // namespace toolkit
