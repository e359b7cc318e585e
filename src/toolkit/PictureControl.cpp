#include "toolkit/PictureControl.h"

#include "toolkit/Keyboard.h"

namespace toolkit {

std::string PictureControl::spoken() const {
    return spokenAs.empty() ? ToolTipText : spokenAs;
}

bool PictureBox::useKey(const KeyStroke& key) {
    if (key.code != key::Space)
        return false;
    if (!key.repeats)
        doubleClick();
    return true;
}

} // namespace toolkit
