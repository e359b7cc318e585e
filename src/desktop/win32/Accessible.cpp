#include "desktop/win32/Accessible.h"

#include "desktop/win32/ControlAccessible.h"

namespace desktop_win32 {

namespace {

class Accessible final : public ControlAccessible {
public:
    using ControlAccessible::ControlAccessible;

    // A picture's window is a label's to the system.
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* to) override {
        const auto it = window();
        if (!it || !dynamic_cast<toolkit::PictureControl*>(&it->control()))
            return ControlAccessible::get_accRole(child, to);
        return give(ROLE_SYSTEM_GRAPHIC, to);
    }
};

} // namespace

LRESULT accessibleObject(const std::shared_ptr<ControlWindow>& window, WPARAM wParam) {
    return accessibleObject<Accessible>(window, wParam);
}

} // namespace desktop_win32
