#include "tests/support/RealFiles.h"

#include "platform/windows/System.h"

platform::WindowsLocale tests::localeNamed(const std::string& name) {
    std::wstring own = platform::wide(name);
    std::ranges::replace(own, L'_', L'-');
    return platform::WindowsLocale(static_cast<int>(LocaleNameToLCID(own.c_str(), 0)));
}
