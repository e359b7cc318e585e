// The per-user settings store. It survives the end of the program, however that comes.
#pragma once

#include <string>

namespace platform {

class Settings {
public:
    virtual ~Settings() = default;

    // The stored value, or `fallback` if the store holds none under these names. Raises PathAccess
    // where the store can't be read.
    virtual std::string get(const std::string& application, const std::string& section,
                            const std::string& key, const std::string& fallback) const = 0;

    // Stores the value at once. Raises PathAccess where the store can't be written.
    virtual void save(const std::string& application, const std::string& section,
                      const std::string& key, const std::string& value) = 0;
};

} // namespace platform
