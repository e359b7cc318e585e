// What the files of this folder share: Windows' own declarations, its UTF-16, and the failures
// behind its error numbers.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <string>
#include <string_view>
#include <utility>

namespace platform {

std::wstring wide(std::string_view text);
std::string narrow(std::wstring_view text);

// Raises the failure that `error`, of an operation on `path`, means to the program.
[[noreturn]] void raiseError(DWORD error, const std::string& path);

// An open file, closed at the end of its scope.
class Handle {
public:
    Handle() = default;
    explicit Handle(HANDLE it) : it_(it) {}
    Handle(Handle&& other) noexcept : it_(std::exchange(other.it_, INVALID_HANDLE_VALUE)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(it_, other.it_);
        return *this;
    }
    ~Handle() { close(); }

    // Raises the failure. Anything but a file of a disk is a PathAccess failure: reading a device
    // might never end. A file that someone has open is waited for, where `patient`.
    static Handle open(const std::string& path, DWORD access, DWORD disposition,
                       bool patient = true);

    explicit operator bool() const { return it_ != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return it_; }

    // False, with the error set, if the system had something to complain of. Closed in any case.
    bool close();

    // Writes `text`, and gives the count of bytes written: less than all means a failure, with the
    // error set.
    std::size_t write(std::string_view text) const;

private:
    HANDLE it_ = INVALID_HANDLE_VALUE;
};

// Repeats `call` while it fails because someone has the file open: scanners for viruses and for
// searches look into each new file, for a moment. The error is set after a failure.
template <class Call>
bool patiently(Call call, bool patient = true) {
    constexpr DWORD kPause = 20; // milliseconds
    for (int tries = patient ? 0 : 25;; ++tries) {
        if (call())
            return true;
        const DWORD error = GetLastError();
        const bool held = error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
                          error == ERROR_ACCESS_DENIED || error == ERROR_DELETE_PENDING ||
                          error == ERROR_UNABLE_TO_REMOVE_REPLACED ||
                          error == ERROR_UNABLE_TO_MOVE_REPLACEMENT;
        if (!held || tries == 25)
            return false;
        Sleep(kPause);
    }
}

} // namespace platform
