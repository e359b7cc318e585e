// What ICU's data says of a locale, read where it is stored. ICU's formatters answer the same, but
// opening one takes in time zones, calendars and plurals: megabytes, and a part of every start.
#pragma once

#include <unicode/resbund.h>

#include <initializer_list>
#include <optional>
#include <string>

namespace platform {

class LocaleData {
public:
    // `part` is a branch of ICU's data ("curr"); none is that of formats and their names.
    explicit LocaleData(std::string locale, std::string part = {})
        : locale_(std::move(locale)), part_(std::move(part)) {}

    const std::string& locale() const { return locale_; }

    // The text at a path of keys ("calendar/gregorian/dayNames/format/wide") and then, within
    // lists, of places: the locale's own, or else the one that it inherits. Empty if there is none.
    std::string text(const std::string& path, std::initializer_list<int> places = {}) const;

    // Whether the data is of the locale's language and country, and not of others' in their place.
    bool isOwn() const;

private:
    icu::ResourceBundle& data() const;

    std::string locale_, part_;
    mutable std::optional<icu::ResourceBundle> data_; // opened at the first need
};

// The text or number at a path of data that belongs to no locale ("supplementalData").
std::string commonText(const char* bundle, const std::string& path);

// The text that `call` puts into a buffer, empty if it fails.
template <class Call>
std::string textOf(Call&& call) {
    UChar buffer[256] = {};
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length = call(buffer, 256, &status);
    std::string text;
    if (U_SUCCESS(status) && length > 0)
        icu::UnicodeString(false, buffer, length).toUTF8String(text);
    return text;
}

// The two letters at the end of a locale's name.
inline std::string countryOf(const std::string& locale) {
    return locale.substr(locale.rfind('_') + 1);
}

} // namespace platform
