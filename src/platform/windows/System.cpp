#include "platform/windows/System.h"

#include "platform/RuntimeError.h"

#include <algorithm>

namespace platform {

namespace {

Failure failureOf(DWORD error, const std::string& path) {
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
        return FileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_DIRECTORY:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
        return PathNotFound;
    case ERROR_ACCESS_DENIED: {
        // This is also what a directory in the place of a file gives.
        const DWORD attributes = GetFileAttributesW(wide(path).c_str());
        const bool directory =
            attributes != INVALID_FILE_ATTRIBUTES && attributes & FILE_ATTRIBUTE_DIRECTORY;
        return directory ? PathAccess : PermissionDenied;
    }
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
    case ERROR_DELETE_PENDING:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_UNABLE_TO_REMOVE_REPLACED:
    case ERROR_UNABLE_TO_MOVE_REPLACEMENT:
    case ERROR_UNABLE_TO_MOVE_REPLACEMENT_2:
        return PermissionDenied;
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_CANT_RESOLVE_FILENAME:
        return PathAccess;
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_DISK_FULL:
    case ERROR_FILE_TOO_LARGE:
        return DiskFull;
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
        return OutOfMemory;
    default:
        return DeviceError;
    }
}

} // namespace

std::wstring wide(std::string_view text) {
    const int size = static_cast<int>(text.size());
    std::wstring result(text.size(), L'\0'); // never more units than bytes
    const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, result.data(), size);
    result.resize(static_cast<std::size_t>(length));
    return result;
}

std::string narrow(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    std::string result(text.size() * 3, '\0');
    const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, result.data(), size * 3,
                                           nullptr, nullptr);
    result.resize(static_cast<std::size_t>(length));
    return result;
}

void raiseError(DWORD error, const std::string& path) {
    throw RuntimeError(failureOf(error, path));
}

Handle Handle::open(const std::string& path, DWORD access, DWORD disposition, bool patient) {
    Handle opened;
    const auto tryOnce = [&] {
        opened = Handle(CreateFileW(wide(path).c_str(), access,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
        return bool(opened);
    };
    const bool done = patiently(tryOnce, patient);
    if (!done)
        raiseError(GetLastError(), path);
    if (GetFileType(opened.get()) != FILE_TYPE_DISK)
        throw RuntimeError(PathAccess);
    return opened;
}

bool Handle::close() {
    const HANDLE it = std::exchange(it_, INVALID_HANDLE_VALUE);
    return it == INVALID_HANDLE_VALUE || CloseHandle(it);
}

std::size_t Handle::write(std::string_view text) const {
    constexpr std::size_t kMost = 1 << 20;
    std::size_t done = 0;
    while (done < text.size()) {
        DWORD count = 0;
        const auto size = static_cast<DWORD>(std::min(text.size() - done, kMost));
        const bool written = WriteFile(it_, text.data() + done, size, &count, nullptr);
        done += count;
        if (!written)
            break;
        if (count == 0) {
            SetLastError(ERROR_DISK_FULL);
            break;
        }
    }
    return done;
}

} // namespace platform
