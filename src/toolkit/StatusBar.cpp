#include "toolkit/StatusBar.h"

#include "platform/RuntimeError.h"

namespace toolkit {

Property<std::string>& StatusBar::Panels(int index) {
    if (index != 1)
        throw platform::RuntimeError(platform::SubscriptOutOfRange);
    return panel_;
}

} // namespace toolkit
