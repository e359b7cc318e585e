#include "toolkit/Toolbar.h"

namespace toolkit {

void Toolbar::clickButton(const ToolbarButton& button) {
    if (takesInput() && ButtonClick)
        raise([this, button] { ButtonClick(button); });
}

} // namespace toolkit
