// A horizontal rule.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

class Line : public Control {
public:
    Line(Container& parent, std::string name, double x1, double x2, double y)
        : Control(parent, std::move(name), {}, {x1, y, x2 - x1, 0}) {}
};

} // namespace toolkit
