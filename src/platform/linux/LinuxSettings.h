// The per-user settings store: an INI file in the user's configuration directory.
#pragma once

#include "platform/Settings.h"

namespace platform {

class LinuxSettings : public Settings {
public:
    std::string get(const std::string& application, const std::string& section,
                    const std::string& key, const std::string& fallback) const override;
    void save(const std::string& application, const std::string& section, const std::string& key,
              const std::string& value) override;
};

} // namespace platform
