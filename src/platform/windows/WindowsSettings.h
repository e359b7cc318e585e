// The per-user settings store: the user's own registry, under Software.
#pragma once

#include "platform/Settings.h"

namespace platform {

class WindowsSettings final : public Settings {
public:
    std::string get(const std::string& application, const std::string& section,
                    const std::string& key, const std::string& fallback) const override;
    void save(const std::string& application, const std::string& section, const std::string& key,
              const std::string& value) override;
};

} // namespace platform
