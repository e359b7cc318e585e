#include "platform/windows/WindowsProcess.h"

#include "platform/windows/System.h"

#include <cstdint>
#include <cstdio>

namespace platform {

namespace {

// The name of a mutex may hold no "\" and not as many characters as a path, so it holds a number
// made from the path, the same for all spellings in small and capital letters (FNV-1a, 64 bits).
std::wstring mutexName(const std::string& directory) {
    std::wstring path = wide(directory);
    CharLowerBuffW(path.data(), static_cast<DWORD>(path.size()));
    std::uint64_t number = 14695981039346656037U;
    for (const wchar_t unit : path)
        number = (number ^ static_cast<std::uint16_t>(unit)) * 1099511628211U;
    char name[64];
    std::snprintf(name, sizeof name, "Global\\Quorvanta-%08lx%08lx",
                  static_cast<unsigned long>(number >> 32U),
                  static_cast<unsigned long>(number & 0xFFFFFFFFU));
    return wide(name);
}

} // namespace

bool WindowsProcess::prevInstance(const std::string& directory) {
    // The handle is never closed: the mutex goes with the process, however that ends.
    SetLastError(ERROR_SUCCESS);
    CreateMutexW(nullptr, FALSE, mutexName(directory).c_str());
    // Another user's mutex is denied to us.
    const DWORD error = GetLastError();
    return error == ERROR_ALREADY_EXISTS || error == ERROR_ACCESS_DENIED;
}

void WindowsProcess::end() {
    std::fflush(nullptr);
    TerminateProcess(GetCurrentProcess(), 0);
    for (;;)
        Sleep(INFINITE); // until it has
}

} // namespace platform
