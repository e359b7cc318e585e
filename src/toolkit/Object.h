// What forms and controls have in common: a name, the form they belong to, and a peer.
#pragma once

#include "toolkit/Property.h"

#include <functional>
#include <memory>
#include <string>

namespace toolkit {

class Form;

// A desktop's side of a shown form or control.
class Peer {
public:
    virtual ~Peer() = default;
    virtual void changed(Prop which) = 0;
    // A cell of a grid has another text.
    virtual void cellChanged(int /*row*/, int /*column*/) {}
};

class Object {
public:
    Object(Form& form, std::string name) : form_(form), name_(std::move(name)) {}
    virtual ~Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    const std::string& name() const { return name_; }
    Form& form() const { return form_; }

    Peer* peer() const { return peer_.get(); }
    // With no peer attached an object works all the same, shown nowhere.
    void attach(std::unique_ptr<Peer> peer) { peer_ = std::move(peer); }

protected:
    // Runs an event of this object, unless its form has been unloaded. The form and its controls
    // outlive the event, whatever the event does to them.
    void raise(const std::function<void()>& event);

private:
    Form& form_;
    std::string name_;
    std::unique_ptr<Peer> peer_;
};

} // namespace toolkit
