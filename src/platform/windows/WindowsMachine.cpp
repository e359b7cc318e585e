#include "platform/windows/WindowsMachine.h"

#include "platform/windows/System.h"

namespace platform {

namespace {

constexpr DWORD kLongest = 1024;

// What `ask` puts into a buffer, to be cut at its NUL.
template <class Ask>
std::optional<std::string> answered(Ask ask) {
    wchar_t buffer[kLongest] = {};
    return ask(buffer) ? std::optional(narrow(std::wstring_view(buffer))) : std::nullopt;
}

std::optional<std::string> directory(UINT(WINAPI* ask)(wchar_t*, UINT)) {
    return answered([=](wchar_t* buffer) {
        const UINT length = ask(buffer, kLongest);
        return length > 0 && length < kLongest;
    });
}

} // namespace

std::optional<std::string> WindowsMachine::GetUserNameA() const {
    DWORD size = kLongest;
    return answered([&](wchar_t* buffer) { return ::GetUserNameW(buffer, &size); });
}

std::optional<std::string> WindowsMachine::GetComputerNameA() const {
    DWORD size = kLongest;
    return answered([&](wchar_t* buffer) { return ::GetComputerNameW(buffer, &size); });
}

std::optional<std::string> WindowsMachine::GetWindowsDirectoryA() const {
    return directory(::GetWindowsDirectoryW);
}

std::optional<std::string> WindowsMachine::GetSystemDirectoryA() const {
    return directory(::GetSystemDirectoryW);
}

} // namespace platform
