#include "platform/Addresses.h"

#include <algorithm>

namespace platform {

namespace {

bool begins(std::string_view text, std::string_view with) {
    return text.size() > with.size() &&
           std::equal(with.begin(), with.end(), text.begin(), [](char a, char b) {
               return a == (b >= 'A' && b <= 'Z' ? b - 'A' + 'a' : b);
           });
}

} // namespace

std::string addressToOpen(std::string_view text) {
    if (std::ranges::any_of(text, [](unsigned char c) { return c <= ' ' || c == 0x7F; }))
        return {};
    if (begins(text, "www."))
        return "http://" + std::string(text);
    for (const char* scheme : {"http://", "https://", "mailto:"})
        if (begins(text, scheme))
            return std::string(text);
    return {};
}

} // namespace platform
