// What shows a picture. A named drawing fills the control, a bitmap is enlarged without blurring.
#pragma once

#include "toolkit/Control.h"
#include "toolkit/Drawing.h"

namespace toolkit {

class PictureControl : public Control {
public:
    using Control::Control;

    Property<Drawing> Picture{*this, Prop::Picture};

    std::string spoken() const override;
};

class Image : public PictureControl {
public:
    using PictureControl::PictureControl;
};

// A picture in a sunken border, which takes the focus. The space bar acts like a double click.
class PictureBox : public PictureControl {
public:
    using PictureControl::PictureControl;

    bool takesKeys() const override { return true; }
    bool useKey(const KeyStroke& key) override;
};

} // namespace toolkit
