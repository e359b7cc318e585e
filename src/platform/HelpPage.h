// The user's guide as a page for a browser, which has no contents of its own beside the text.
#pragma once

#include <string>
#include <string_view>

namespace platform {

// The HTML text with its contents at the left side: a link to each heading of the levels 1 to 3.
// Headings without an id are given one. Tags are expected in small letters.
std::string helpPage(std::string_view html);

} // namespace platform
