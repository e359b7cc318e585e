#include "platform/windows/WindowsReplacement.h"

#include "platform/RuntimeError.h"

namespace platform {

namespace {

std::string wholeNameOf(const std::string& path) {
    return path + ".new";
}

// Failures of a step behind discardOld(). That something is missing then is no missing data file,
// which the program passes over in silence.
void must(bool done, const std::string& path) {
    if (done)
        return;
    const DWORD error = GetLastError();
    raiseError(error == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : error, path);
}

DWORD attributesOf(const std::string& path) {
    return GetFileAttributesW(wide(path).c_str());
}

bool rename(const std::string& from, const std::string& to) {
    return patiently([&] {
        return MoveFileExW(wide(from).c_str(), wide(to).c_str(),
                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    });
}

bool missing(const std::string& path) {
    return attributesOf(path) == INVALID_FILE_ATTRIBUTES && GetLastError() == ERROR_FILE_NOT_FOUND;
}

} // namespace

WindowsReplacement::WindowsReplacement(const std::string& path, const std::string& backup)
    : path_(path), backup_(backup), spare_(path + ".spare"), whole_(wholeNameOf(path)) {}

WindowsReplacement::~WindowsReplacement() {
    if (file_ && !fromOld_) {
        file_.close();
        DeleteFileW(wide(spare_).c_str());
    }
}

void WindowsReplacement::finish(const std::string& path) {
    if (missing(path))
        must(rename(wholeNameOf(path), path) || GetLastError() == ERROR_FILE_NOT_FOUND, path);
}

void WindowsReplacement::discardOld() {
    finish(path_);
    const DWORD old = attributesOf(path_);
    if (old == INVALID_FILE_ATTRIBUTES) {
        const DWORD error = GetLastError();
        fromOld_ = error != ERROR_FILE_NOT_FOUND;
        raiseError(error, path_);
    }
    if (old & FILE_ATTRIBUTE_DIRECTORY)
        throw RuntimeError(PathAccess);
    if (old & FILE_ATTRIBUTE_READONLY)
        throw RuntimeError(PermissionDenied);
    // Who may not delete the file may not give its name away either.
    Handle::open(path_, DELETE, OPEN_EXISTING);
    fromOld_ = false;
}

void WindowsReplacement::open() {
    if (fromOld_) {
        file_ = Handle::open(path_, FILE_APPEND_DATA | FILE_READ_ATTRIBUTES, OPEN_ALWAYS);
        return;
    }
    const DWORD backup = attributesOf(backup_);
    if (backup != INVALID_FILE_ATTRIBUTES && backup & FILE_ATTRIBUTE_DIRECTORY)
        throw RuntimeError(PathAccess);
    file_ = Handle::open(spare_, GENERIC_WRITE, CREATE_ALWAYS);
}

void WindowsReplacement::close() {
    if (!file_)
        open();
    if (fromOld_) {
        append();
        return;
    }
    try {
        must(file_.write(text_) == text_.size(), spare_);
        must(FlushFileBuffers(file_.get()), spare_);
        must(file_.close(), spare_);
        must(rename(spare_, whole_), spare_);
    } catch (const RuntimeError&) {
        // The next attempt begins with a new file.
        file_.close();
        DeleteFileW(wide(spare_).c_str());
        throw;
    }
    putInPlace();
}

void WindowsReplacement::putInPlace() {
    const bool replaced = patiently([&] {
        return ReplaceFileW(wide(path_).c_str(), wide(whole_).c_str(), wide(backup_).c_str(),
                            REPLACEFILE_WRITE_THROUGH | REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                            nullptr);
    });
    if (replaced)
        return;
    const DWORD error = GetLastError();
    // There was no old content, or it already has the backup's name.
    if (error == ERROR_FILE_NOT_FOUND || missing(path_)) {
        must(rename(whole_, path_), path_);
        return;
    }
    if (attributesOf(path_) != INVALID_FILE_ATTRIBUTES)
        DeleteFileW(wide(whole_).c_str());
    SetLastError(error);
    must(false, path_);
}

// One write, so that an end of the process leaves none or all of it behind the old content.
void WindowsReplacement::append() {
    LARGE_INTEGER before;
    must(GetFileSizeEx(file_.get(), &before), path_);
    if (file_.write(text_) != text_.size() || !FlushFileBuffers(file_.get())) {
        const DWORD error = GetLastError();
        FILE_END_OF_FILE_INFO end{before};
        file_.close();
        const Handle again = Handle::open(path_, GENERIC_WRITE, OPEN_EXISTING);
        must(SetFileInformationByHandle(again.get(), FileEndOfFileInfo, &end, sizeof end), path_);
        SetLastError(error);
        must(false, path_);
    }
    file_.close();
}

} // namespace platform
