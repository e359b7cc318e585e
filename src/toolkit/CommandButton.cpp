#include "toolkit/CommandButton.h"

#include "toolkit/Focus.h"
#include "toolkit/Keyboard.h"

namespace toolkit {

bool CommandButton::useKey(const KeyStroke& key) {
    if (!isArrow(key))
        return false;
    if (Control* const next = neighbour(*this, key.code))
        next->SetFocus();
    return true;
}

} // namespace toolkit
