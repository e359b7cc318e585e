// What may be handed to the system's opener.
#pragma once

#include <string>
#include <string_view>

namespace platform {

// The address to open for `text`, or empty where it is none: an opener can start programs too, so
// it is only given addresses of the web and of mail, and none with a blank or a control character.
// A name that begins with "www." is taken for a web address that lacks its scheme.
std::string addressToOpen(std::string_view text);

} // namespace platform
