#include "platform/Platform.h"

#include <cassert>

namespace platform {

namespace {
const Platform* installed = nullptr;
}

const Platform& current() {
    assert(installed);
    return *installed;
}

void install(const Platform* it) {
    installed = it;
}

} // namespace platform
