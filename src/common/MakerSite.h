// The maker's public web site and copyright: the one place that names them.
#pragma once

#include <string>

namespace quorvanta {

inline constexpr const char* kSite = "www.zephyrwick.example"; // as the user reads it
inline const std::string kHomePage = std::string("https://") + kSite + "/";
inline const std::string kProductPage = kHomePage + "prod02.htm";

inline constexpr const char* kCopyright = "Copyright \u00A9 2005 - 2026 Zephyrwick";

} // namespace quorvanta
