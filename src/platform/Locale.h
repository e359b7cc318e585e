// The user's locale, item by item, and the 8-bit code page of the user's files.
#pragma once

#include <string>
#include <string_view>

namespace platform {

// The locale of the logged-on user, as GetLocaleInfoA takes it.
inline constexpr int LOCALE_USER_DEFAULT = 1024;

class Locale {
public:
    virtual ~Locale() = default;

    // Fills `buffer`, of `size` characters, with the item's text in the user's code page and a
    // closing NUL. Gives the count of characters written, the NUL included, or 0 and an untouched
    // buffer for an item that is unknown or doesn't fit. Items have the published numbers
    // (LOCALE_SSHORTDATE is 31), and values the published forms ("M/d/yyyy").
    virtual int GetLocaleInfoA(int locale, int item, char* buffer, int size) const = 0;

    // Text of a file, in the user's code page, as UTF-8, and back. Every byte sequence comes back
    // from toBytes(fromBytes(x)) as it was, also bytes that the code page leaves undefined. A
    // character that the code page doesn't have becomes "?".
    virtual std::string fromBytes(std::string_view bytes) const = 0;
    virtual std::string toBytes(std::string_view text) const = 0;
};

} // namespace platform
