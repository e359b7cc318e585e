#include "platform/linux/LocaleData.h"

#include <unicode/ures.h>

namespace platform {

namespace {

// ICU calls getWithFallback internal, though its public header has it. What it replaces would be
// our own knowledge of which locale inherits from which.
std::string textAt(icu::ResourceBundle& data, const std::string& path,
                   std::initializer_list<int> places) {
    UErrorCode status = U_ZERO_ERROR;
    icu::ResourceBundle found = data.getWithFallback(path.c_str(), status);
    for (const int place : places)
        found = found.get(place, status);
    if (U_FAILURE(status))
        return {};
    if (found.getType() == URES_INT)
        return std::to_string(found.getInt(status));
    if (found.getType() == URES_ARRAY) // a pattern with the name of the digits that it is for
        found = found.get(0, status);
    std::string text;
    return found.getString(status).toUTF8String(text);
}

} // namespace

icu::ResourceBundle& LocaleData::data() const {
    if (!data_) {
        UErrorCode status = U_ZERO_ERROR;
        const std::string branch = U_ICUDATA_NAME "-" + part_;
        data_.emplace(part_.empty() ? nullptr : branch.c_str(), icu::Locale(locale_.c_str()),
                      status);
    }
    return *data_;
}

std::string LocaleData::text(const std::string& path, std::initializer_list<int> places) const {
    return textAt(data(), path, places);
}

bool LocaleData::isOwn() const {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale found = data().getLocale(ULOC_VALID_LOCALE, status);
    const icu::Locale wanted(locale_.c_str());
    return std::string_view(found.getLanguage()) == wanted.getLanguage() &&
           std::string_view(found.getCountry()) == wanted.getCountry();
}

std::string commonText(const char* bundle, const std::string& path) {
    UErrorCode status = U_ZERO_ERROR;
    UResourceBundle* const opened = ures_openDirect(nullptr, bundle, &status);
    icu::ResourceBundle data(opened, status); // a copy
    ures_close(opened);
    return textAt(data, path, {});
}

} // namespace platform
