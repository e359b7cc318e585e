#include "toolkit/Screen.h"

#include "toolkit/Form.h"

#include <utility>

namespace toolkit {

ScreenObject Screen;

void ScreenObject::activated(Form& form) {
    if (!form.loaded())
        return;
    std::erase(order_, &form);
    order_.push_back(&form);
}

void ScreenObject::focusMoved(Control& now) {
    Control* const before = focus_;
    if (before == &now || !now.form().loaded())
        return; // a window that goes moves the focus about inside it
    // Either event may unload either form.
    const auto keepNow = now.form().shared_from_this();
    const auto keepBefore = before ? before->form().shared_from_this() : nullptr;
    focus_ = &now;
    now.form().ActiveControl = &now;
    activated(now.form());
    if (before && std::exchange(told_, nullptr) == before)
        before->lostFocus();
    if (focus_ == &now && told_ != &now) {
        told_ = &now;
        now.gotFocus();
    }
    if (focus_ && focus_ != &now)
        bringForward(focus_->form());
}

void ScreenObject::focusMovedBySystem(Control& now) {
    const bool outer = std::exchange(systemMoves_, true);
    focusMoved(now);
    systemMoves_ = outer;
}

void ScreenObject::bringForward(Form& form) {
    if (systemMoves_)
        desktop().later([keep = form.shared_from_this()] { desktop().bringForward(*keep); });
    else
        desktop().bringForward(form);
}

void ScreenObject::forget(const Form& form) {
    std::erase(order_, &form);
    for (Control** control : {&focus_, &told_})
        if (*control && &(*control)->form() == &form)
            *control = nullptr;
}

} // namespace toolkit
