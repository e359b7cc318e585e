// The program's own entries of the per-user settings store.
#pragma once

#include <string>

namespace quorvanta {

// The stored value, or `fallback` if the store holds none for the key.
std::string ZWGetSetting(const std::string& key, const std::string& fallback);

// Stores the value at once. Raises PathAccess where the store can't be written.
void ZWSaveSetting(const std::string& key, const std::string& value);

} // namespace quorvanta
