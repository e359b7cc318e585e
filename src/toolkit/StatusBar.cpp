#include "toolkit/StatusBar.h"

#include "platform/RuntimeError.h"

namespace toolkit {

StatusBar::Panel& StatusBar::Panels(int index) {
    if (index != 1)
        throw platform::RuntimeError(platform::SubscriptOutOfRange);
    return panel_;
}

} // namespace toolkit
