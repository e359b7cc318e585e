// The properties of the worker classes, in one style: assigning is a property's Let, Set its Set,
// a call its Get.
//
//     lotto.prpDrawNumber = 6;
//     lotto.prpControl.Set(lbl1.ref());
//     lotto.prpDrawNumber(); // 6
//
// A property has those of the three that its kind gives it.
#pragma once

#include "platform/RuntimeError.h"

#include <memory>
#include <utility>

namespace quorvanta {

// Let and Get.
template <class T>
class ValueProperty {
public:
    ValueProperty() = default;
    ValueProperty(const ValueProperty&) = delete;

    const T& operator()() const { return value_; }
    ValueProperty& operator=(T value) {
        value_ = std::move(value);
        return *this;
    }

private:
    T value_{};
};

// Let, Set and Get.
template <class T>
class VariantProperty : public ValueProperty<T> {
public:
    using ValueProperty<T>::operator=;
    void Set(T value) { ValueProperty<T>::operator=(std::move(value)); }
};

// Set and Get of an object, by a counted reference. Get raises InvalidCall while there is none.
template <class T>
class ObjectProperty {
public:
    ObjectProperty() = default;
    ObjectProperty(const ObjectProperty&) = delete;

    T& operator()() const {
        if (!object_)
            throw platform::RuntimeError(platform::InvalidCall);
        return *object_;
    }
    void Set(std::shared_ptr<T> object) { object_ = std::move(object); }

private:
    std::shared_ptr<T> object_;
};

// A property that is a job: its Let runs `Run` of the owner before it returns.
template <class Owner, class T, void (Owner::*Run)(const T&)>
class JobProperty {
public:
    explicit JobProperty(Owner& owner) : owner_(owner) {}
    JobProperty(const JobProperty&) = delete;

    JobProperty& operator=(const T& value) {
        (owner_.*Run)(value);
        return *this;
    }

private:
    Owner& owner_;
};

// A job that also keeps what it was let, in a property of the kind `Kept`.
template <class Kept, class Owner, class T, void (Owner::*Run)(const T&)>
class KeptJobProperty : public Kept {
public:
    explicit KeptJobProperty(Owner& owner) : owner_(owner) {}

    KeptJobProperty& operator=(const T& value) {
        Kept::operator=(value);
        (owner_.*Run)(value);
        return *this;
    }

private:
    Owner& owner_;
};

} // namespace quorvanta
