// A property of a form or control: reads and sets like a plain value, and tells the owner's peer
// when its value changes.
#pragma once

#include <utility>

namespace toolkit {

// What a peer can be told of.
enum class Prop {
    Caption,
    Enabled,
    Visible,
    ForeColor,
    FontBold,
    Left,
    Top,
    Width,
    Height,
    Checked,
    Value,
    Picture,
    Text,
    Selection,
    Interval,
    Rows,
    Row,
    ColWidth,
    RowHeight,
};

class Object;
void tellPeer(Object& owner, Prop which);

template <class T>
class Property {
public:
    Property(Object& owner, Prop which, T value = {})
        : owner_(owner), which_(which), value_(std::move(value)) {}
    Property(const Property&) = delete;

    operator const T&() const { return value_; }
    const T& get() const { return value_; }

    Property& operator=(T value) {
        if (value_ != value) {
            value_ = std::move(value);
            tellPeer(owner_, which_);
        }
        return *this;
    }
    Property& operator=(const Property& other) { return *this = other.value_; }

    // Takes over a value that the desktop already shows, so the peer isn't told.
    void assume(T value) { value_ = std::move(value); }

private:
    Object& owner_;
    Prop which_;
    T value_;
};

// A property whose owner does more on reading or setting than keep a value.
template <class Owner, class T, T (Owner::*Get)() const, void (Owner::*Set)(T)>
class Accessor {
public:
    explicit Accessor(Owner& owner) : owner_(owner) {}
    Accessor(const Accessor&) = delete;

    operator T() const { return (owner_.*Get)(); }
    Accessor& operator=(T value) {
        (owner_.*Set)(std::move(value));
        return *this;
    }
    Accessor& operator=(const Accessor& other) { return *this = static_cast<T>(other); }

private:
    Owner& owner_;
};

} // namespace toolkit
