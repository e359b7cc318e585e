#include "toolkit/ControlArray.h"

#include "toolkit/Form.h"

namespace toolkit {

std::shared_ptr<ControlArrayBase> ControlArrayBase::ref() {
    return {form_.shared_from_this(), this};
}

void ControlArrayBase::add(int index, Control& control) {
    if (index >= static_cast<int>(elements_.size()))
        elements_.resize(at(index) + 1);
    elements_[at(index)] = &control;
    control.joinArray(*this, index);
}

void ControlArrayBase::missing(int index) {
    throw platform::RuntimeError(platform::NoSuchElement, "Control array element '" +
                                                              std::to_string(index) +
                                                              "' doesn't exist");
}

} // namespace toolkit
