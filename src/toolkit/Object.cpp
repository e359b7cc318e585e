#include "toolkit/Object.h"

#include "toolkit/Form.h"

namespace toolkit {

void tellPeer(Object& owner, Prop which) {
    if (owner.peer())
        owner.peer()->changed(which);
}

void Object::raise(const std::function<void()>& event) {
    if (form_.loaded())
        form_.run(event);
}

} // namespace toolkit
