#include "platform/windows/WindowsFiles.h"

#include "platform/Lines.h"
#include "platform/RuntimeError.h"
#include "platform/windows/System.h"
#include "platform/windows/WindowsReplacement.h"

#include <utility>

namespace platform {

namespace {

constexpr std::size_t kLongestPath = 32768;

class WindowsBytes : public Bytes {
public:
    WindowsBytes(const std::string& path, DWORD access, DWORD disposition, bool patient = true)
        : path_(path), file_(Handle::open(path, access, disposition, patient)) {}

    std::size_t read(char* to, std::size_t size) override {
        DWORD count = 0;
        if (!ReadFile(file_.get(), to, static_cast<DWORD>(size), &count, nullptr))
            raiseError(GetLastError(), path_);
        return count;
    }

    void write(std::string& text) override {
        const std::size_t done = file_.write(text);
        const DWORD error = GetLastError();
        text.erase(0, done);
        if (!text.empty())
            raiseError(error, path_);
    }

    void close() override {
        if (!file_.close())
            raiseError(GetLastError(), path_);
    }

private:
    std::string path_;
    Handle file_;
};

// Where the links of `path` lead to, or the path itself where that can't be found out.
std::wstring linksResolved(const std::wstring& path) {
    const Handle file(CreateFileW(path.c_str(), 0,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, 0, nullptr));
    std::wstring real(kLongestPath, L'\0');
    const DWORD length = file ? GetFinalPathNameByHandleW(file.get(), real.data(), kLongestPath,
                                                          FILE_NAME_NORMALIZED | VOLUME_NAME_DOS)
                              : 0;
    if (length == 0 || length >= kLongestPath)
        return path;
    real.resize(length);
    // The usual form is the one that people and other programs expect.
    if (real.starts_with(L"\\\\?\\UNC\\"))
        return L"\\\\" + real.substr(8);
    return real.starts_with(L"\\\\?\\") ? real.substr(4) : real;
}

} // namespace

std::string WindowsFiles::programDirectory() const {
    std::wstring path(kLongestPath, L'\0');
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), kLongestPath);
    if (length == 0 || length >= kLongestPath)
        throw RuntimeError(PathNotFound);
    path.resize(length);
    path = linksResolved(path);
    return narrow(std::wstring_view(path).substr(0, path.rfind(L'\\')));
}

std::string WindowsFiles::join(const std::string& directory, const std::string& name) const {
    return directory + "\\" + name;
}

void WindowsFiles::changeDirectory(const std::string& directory) {
    if (SetCurrentDirectoryW(wide(directory).c_str()))
        return;
    const DWORD error = GetLastError();
    raiseError(error == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : error, directory);
}

bool WindowsFiles::exists(const std::string& path) const {
    return GetFileAttributesW(wide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

void WindowsFiles::remove(const std::string& path) {
    if (!DeleteFileW(wide(path).c_str()))
        raiseError(GetLastError(), path);
}

std::unique_ptr<InputFile> WindowsFiles::openForInput(const std::string& path) {
    WindowsReplacement::finish(path);
    return readLines(std::make_unique<WindowsBytes>(path, GENERIC_READ, OPEN_EXISTING));
}

std::unique_ptr<OutputFile> WindowsFiles::openForAppend(const std::string& path) {
    const bool patient = std::exchange(appends_, false);
    auto file = std::make_unique<WindowsBytes>(path, FILE_APPEND_DATA, OPEN_ALWAYS, patient);
    appends_ = true;
    return writeLines(std::move(file));
}

std::unique_ptr<Replacement> WindowsFiles::replace(const std::string& path,
                                                   const std::string& backup) {
    return std::make_unique<WindowsReplacement>(path, backup);
}

} // namespace platform
