#include "common/UserSetting.h"

#include "frame/modConstants.h"
#include "platform/Platform.h"

namespace quorvanta {

std::string ZWGetSetting(const std::string& key, const std::string& fallback) {
    return platform::current().settings.get(kMaker, kProductTitle, key, fallback);
}

void ZWSaveSetting(const std::string& key, const std::string& value) {
    platform::current().settings.save(kMaker, kProductTitle, key, value);
}

} // namespace quorvanta
