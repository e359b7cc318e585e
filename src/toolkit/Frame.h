// A titled border around other controls.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

class Frame : public Control, public Container {
public:
    Frame(Container& parent, std::string name, std::string caption = {}, Place place = {})
        : Control(parent, std::move(name), std::move(caption), place),
          Container(parent.ownerForm()) {}
};

} // namespace toolkit
