// Controls of one name, told apart by an index that need not begin at 0 nor be without gaps. Events
// of an element are raised on the array, with the index.
#pragma once

#include "toolkit/Control.h"

namespace toolkit {

class ControlArrayBase {
public:
    ControlArrayBase(Form& form, std::string name) : form_(form), name_(std::move(name)) {}
    virtual ~ControlArrayBase() = default;
    ControlArrayBase(const ControlArrayBase&) = delete;
    ControlArrayBase& operator=(const ControlArrayBase&) = delete;

    // Raises NoSuchElement for an index without an element.
    Control& operator()(int index) const {
        if (index < 0 || index >= static_cast<int>(elements_.size()) || !elements_[at(index)])
            missing(index);
        return *elements_[at(index)];
    }
    bool has(int index) const {
        return index >= 0 && index < static_cast<int>(elements_.size()) && elements_[at(index)];
    }

    const std::string& name() const { return name_; }
    // A counted reference: it keeps the elements alive after their form has been unloaded.
    std::shared_ptr<ControlArrayBase> ref();

    std::function<void(int Index)> Click;
    std::function<void(int Index)> GotFocus;
    std::function<void(int Index)> LostFocus;
    std::function<void(int Index, int& KeyCode, int Shift)> KeyDown;
    std::function<void(int Index, int& KeyAscii)> KeyPress;

protected:
    void add(int index, Control& control);

private:
    static std::size_t at(int index) { return static_cast<std::size_t>(index); }
    [[noreturn]] static void missing(int index);

    Form& form_;
    std::string name_;
    std::vector<Control*> elements_; // nullptr where an index has no element
};

template <class T>
class ControlArray : public ControlArrayBase {
public:
    using ControlArrayBase::ControlArrayBase;

    T& operator()(int index) const { return static_cast<T&>(ControlArrayBase::operator()(index)); }

    // Makes the element `index`; the other arguments are those of T's constructor.
    template <class Parent, class... Rest>
    T& load(int index, Parent& parent, Rest&&... rest) {
        owned_.push_back(std::make_unique<T>(parent, name(), std::forward<Rest>(rest)...));
        add(index, *owned_.back());
        return *owned_.back();
    }

private:
    std::vector<std::unique_ptr<T>> owned_;
};

} // namespace toolkit
