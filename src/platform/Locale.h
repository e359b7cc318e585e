// The user's locale, item by item, and the 8-bit code page of the user's files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

// The locale of the logged-on user, as GetLocaleInfoA takes it.
inline constexpr int LOCALE_USER_DEFAULT = 1024;

class Locale {
public:
    virtual ~Locale() = default;

    // The item's text, UTF-8 of characters that the user's code page has, or nothing for an item or
    // a locale that is unknown. Items have the published numbers (LOCALE_SSHORTDATE is 31), and
    // values the published forms ("M/d/yyyy").
    virtual std::optional<std::string> GetLocaleInfoA(int locale, int item) const = 0;

    // The text in capitals, as the language of the dates writes them: "EKİM" for the Turkish
    // "ekim". Texts that differ in nothing but their capitals become the same.
    virtual std::string upperCase(std::string_view text) const = 0;

    // Text of a file, in the user's code page, as UTF-8, and back. Every byte sequence comes back
    // from toBytes(fromBytes(x)) as it was, also bytes that the code page leaves undefined. A
    // character that the code page doesn't have becomes "?".
    virtual std::string fromBytes(std::string_view bytes) const = 0;
    virtual std::string toBytes(std::string_view text) const = 0;
};

} // namespace platform
