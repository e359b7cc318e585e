#include "platform/windows/WindowsSettings.h"

#include "platform/RuntimeError.h"
#include "platform/windows/System.h"

namespace platform {

namespace {

std::wstring keyOf(const std::string& application, const std::string& section) {
    // The blank at the section's end is no part of a name that people look for.
    return wide("Software\\" + application + "\\" +
                section.substr(0, section.find_last_not_of(' ') + 1));
}

} // namespace

std::string WindowsSettings::get(const std::string& application, const std::string& section,
                                 const std::string& key, const std::string& fallback) const {
    const std::wstring path = keyOf(application, section), name = wide(key);
    std::wstring value(256, L'\0');
    for (;;) {
        auto size = static_cast<DWORD>(value.size() * sizeof(wchar_t));
        const LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(),
                                            RRF_RT_REG_SZ, nullptr, value.data(), &size);
        if (status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND)
            return fallback;
        if (status == ERROR_MORE_DATA) {
            value.resize(value.size() * 2);
            continue;
        }
        if (status != ERROR_SUCCESS)
            throw RuntimeError(PathAccess);
        return narrow(value.c_str());
    }
}

void WindowsSettings::save(const std::string& application, const std::string& section,
                           const std::string& key, const std::string& value) {
    const std::wstring text = wide(value);
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    if (RegSetKeyValueW(HKEY_CURRENT_USER, keyOf(application, section).c_str(), wide(key).c_str(),
                        REG_SZ, text.c_str(), size) != ERROR_SUCCESS)
        throw RuntimeError(PathAccess);
}

} // namespace platform
