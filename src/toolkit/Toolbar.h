// The row of picture buttons under a menu bar. A screen reader says a button's tool tip.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

// The pictures of a toolbar, by the desktop's resource names, counted from 1.
struct ImageList {
    std::vector<std::string> ListImages;
};

// A button of a toolbar; a separator has no key.
struct ToolbarButton {
    std::string Key;
    std::string ToolTipText;
    int Image = 0;
};

class Toolbar : public Control {
public:
    using Control::Control;

    // In logical pixels.
    static constexpr int kImage = 32, kButtonWidth = 39, kButtonHeight = 38;

    std::vector<ToolbarButton> Buttons;
    const ImageList* Images = nullptr;
    std::function<void(const ToolbarButton& Button)> ButtonClick;

    void clickButton(const ToolbarButton& button);
};

} // namespace toolkit
