// Text in a caller's buffer, the way that the system's calls of old hand it over.
#pragma once

#include "platform/Platform.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string>

namespace quorvanta {

// Puts `text` and a closing NUL into `buffer`, in the user's code page. Gives the count of bytes,
// the NUL included, or 0 and an untouched buffer where there is no text or it doesn't fit.
inline int fill(std::span<char> buffer, const std::optional<std::string>& text) {
    if (!text)
        return 0;
    const std::string bytes = platform::current().locale.toBytes(*text);
    if (bytes.size() >= buffer.size())
        return 0;
    *std::ranges::copy(bytes, buffer.begin()).out = '\0';
    return static_cast<int>(bytes.size()) + 1;
}

} // namespace quorvanta
