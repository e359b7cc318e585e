#include "platform/linux/LinuxReplacement.h"

#include "platform/RuntimeError.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace platform {

namespace {

// Failures of a step behind discardOld(). That something is missing then is no missing data file,
// which the program passes over in silence.
[[noreturn]] void raise(int error, const std::string& path) {
    raiseErrno(error == ENOENT ? ENOTDIR : error, path);
}

void must(bool done, const std::string& path) {
    if (!done)
        raise(errno, path);
}

// What `path` leads to: symbolic links followed, the last of them possibly to nothing.
std::string linkTarget(std::string path) {
    for (int links = 0; links < 40; ++links) {
        char target[PATH_MAX];
        const ssize_t length = ::readlink(path.c_str(), target, sizeof target);
        if (length <= 0)
            break;
        const std::string to(target, static_cast<std::size_t>(length));
        path = to.front() == '/' ? to : directoryOf(path).append("/").append(to);
    }
    return path;
}

bool swapNames(const std::string& one, const std::string& other) {
    return ::renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) == 0;
}

bool rename(const std::string& from, const std::string& to) {
    return ::rename(from.c_str(), to.c_str()) == 0;
}

void removeIfThere(const std::string& path) {
    must(::unlink(path.c_str()) == 0 || errno == ENOENT, path);
}

void copy(const std::string& from, const std::string& to) {
    const Descriptor source = Descriptor::open(from, O_RDONLY);
    must(bool(source), from);
    if (!S_ISREG(source.status().st_mode))
        throw RuntimeError(PathAccess);
    removeIfThere(to);
    Descriptor target = Descriptor::open(to, O_WRONLY | O_CREAT | O_EXCL);
    must(bool(target), to);
    char buffer[1 << 16];
    for (;;) {
        const ssize_t count = ::read(source.get(), buffer, sizeof buffer);
        must(count >= 0 || errno == EINTR, from);
        if (count == 0)
            break;
        if (count > 0) {
            const auto size = static_cast<std::size_t>(count);
            must(target.write({buffer, size}) == size, to);
        }
    }
    must(::fsync(target.get()) == 0, to);
}

// The names in the directory of `path` are on the disk behind it. Who may write there and not read
// leaves that to the system, and some file systems have nothing to be forced.
void forceDirectory(const std::string& path) {
    const Descriptor directory = Descriptor::open(directoryOf(path), O_RDONLY | O_DIRECTORY);
    if (!directory && errno == EACCES)
        return;
    must(directory && (::fsync(directory.get()) == 0 || errno == EINVAL), path);
}

} // namespace

LinuxReplacement::LinuxReplacement(const std::string& path, const std::string& backup)
    : path_(linkTarget(path)), backup_(backup), spare_(path_ + ".spare") {}

LinuxReplacement::~LinuxReplacement() {
    giveUpSpare();
}

void LinuxReplacement::discardOld() {
    struct stat old;
    if (::lstat(path_.c_str(), &old) != 0) {
        fromOld_ = errno != ENOENT;
        raiseErrno(errno, path_);
    }
    if (S_ISDIR(old.st_mode))
        throw RuntimeError(PathAccess);
    const std::string directory = directoryOf(path_);
    if (::faccessat(AT_FDCWD, directory.c_str(), W_OK | X_OK, AT_EACCESS) != 0)
        raiseErrno(errno, path_);
    fromOld_ = false;
}

void LinuxReplacement::open() {
    if (fromOld_) {
        file_ = Descriptor::openRegular(path_, O_WRONLY | O_CREAT | O_APPEND);
        return;
    }
    struct stat backup;
    if (::stat(backup_.c_str(), &backup) == 0 && S_ISDIR(backup.st_mode))
        throw RuntimeError(PathAccess);
    openSpare();
    takeOverAttributes();
}

void LinuxReplacement::openSpare() {
    file_ = Descriptor::open(spare_, O_WRONLY | O_NOFOLLOW);
    if (file_) {
        // Under a second name the same bytes may be dear to someone.
        const struct stat spare = file_.status();
        if (S_ISREG(spare.st_mode) && spare.st_nlink == 1 && spare.st_uid == ::geteuid())
            return;
        file_.close();
    }
    removeIfThere(spare_);
    file_ = Descriptor::open(spare_, O_WRONLY | O_CREAT | O_EXCL);
    must(bool(file_), spare_);
    spareSpoiled_ = true;
}

// The new file is to be as open or closed to other users as the old one. That its owner can't be
// kept, as only root may give files away, is no reason not to save.
void LinuxReplacement::takeOverAttributes() {
    struct stat old;
    if (::lstat(path_.c_str(), &old) != 0 || !S_ISREG(old.st_mode))
        return;
    const struct stat fresh = file_.status();
    if (old.st_uid != fresh.st_uid || old.st_gid != fresh.st_gid) [[maybe_unused]]
        const int kept = ::fchown(file_.get(), old.st_uid, old.st_gid);
    if (old.st_mode != fresh.st_mode)
        must(::fchmod(file_.get(), old.st_mode & 07777) == 0, spare_);
}

void LinuxReplacement::writeLine(std::string_view line) {
    text_.append(line).append("\r\n");
}

void LinuxReplacement::close() {
    if (!file_)
        open();
    if (fromOld_) {
        append();
        return;
    }
    try {
        spareSpoiled_ = true;
        must(file_.write(text_) == text_.size(), spare_);
        must(::ftruncate(file_.get(), static_cast<off_t>(text_.size())) == 0, spare_);
        must(::fsync(file_.get()) == 0, spare_);
        file_.close();
        putInPlace();
    } catch (const RuntimeError&) {
        // Bytes that could not be forced once are taken for forced by the next attempt. So that
        // one begins with a new file.
        giveUpSpare();
        throw;
    }
}

void LinuxReplacement::putInPlace() {
    if (swapNames(spare_, path_)) {
        spareSpoiled_ = false;
        keepOld();
        return;
    }
    // There is no old content, or the file system doesn't let two files change names.
    struct stat old;
    if (!oldKept_ && ::lstat(path_.c_str(), &old) == 0)
        linkOld();
    oldKept_ = true; // a repeated attempt can find the new content there
    must(rename(spare_, path_), path_);
    spareSpoiled_ = false;
    forceDirectory(path_);
}

// The old content bears the spare's name now, and goes to the backup's.
void LinuxReplacement::keepOld() {
    const bool swapped = swapNames(spare_, backup_);
    const bool moved = !swapped && errno == ENOENT && rename(spare_, backup_);
    try {
        if (!swapped && !moved)
            copy(spare_, backup_); // a backup on another file system
        forceDirectory(path_);
    } catch (const RuntimeError&) {
        const bool back = swapped ? swapNames(spare_, backup_) : !moved || rename(backup_, spare_);
        spareSpoiled_ = back && swapNames(spare_, path_);
        throw;
    }
}

void LinuxReplacement::linkOld() {
    removeIfThere(backup_);
    if (::link(path_.c_str(), backup_.c_str()) != 0)
        copy(path_, backup_);
}

// One write, so that an end of the process leaves none or all of it behind the old content.
void LinuxReplacement::append() {
    const off_t before = file_.status().st_size;
    if (file_.write(text_) != text_.size() || ::fsync(file_.get()) != 0) {
        const int error = errno;
        must(::ftruncate(file_.get(), before) == 0, path_);
        raise(error, path_);
    }
    file_.close();
}

void LinuxReplacement::giveUpSpare() {
    file_.close();
    if (spareSpoiled_)
        ::unlink(spare_.c_str());
    spareSpoiled_ = false;
}

} // namespace platform
