#include "platform/linux/Descriptor.h"

#include "platform/RuntimeError.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace platform {

namespace {

Failure failureOf(int error, const std::string& path) {
    struct stat directory;
    switch (error) {
    case ENOENT:
        return ::stat(directoryOf(path).c_str(), &directory) == 0 ? FileNotFound : PathNotFound;
    case ENOTDIR:
        return PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case EBUSY:
    case ETXTBSY:
        return PermissionDenied;
    case EISDIR:
    case EEXIST:
    case ENOTEMPTY:
    case ELOOP:
    case ENAMETOOLONG:
        return PathAccess;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return DiskFull;
    case ENOMEM:
        return OutOfMemory;
    default:
        return DeviceError;
    }
}

} // namespace

void raiseErrno(int error, const std::string& path) {
    throw RuntimeError(failureOf(error, path));
}

std::string directoryOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

Descriptor::~Descriptor() {
    close();
}

Descriptor Descriptor::open(const std::string& path, int flags) {
    for (;;) {
        Descriptor opened(::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666));
        if (opened || errno != EINTR)
            return opened;
    }
}

Descriptor Descriptor::openRegular(const std::string& path, int flags) {
    Descriptor opened = open(path, flags);
    if (!opened)
        raiseErrno(errno == ENXIO ? EISDIR : errno, path);
    if (!S_ISREG(opened.status().st_mode))
        throw RuntimeError(PathAccess);
    return opened;
}

bool Descriptor::close() {
    const int fd = std::exchange(fd_, -1);
    // After EINTR the descriptor is gone all the same.
    return fd < 0 || ::close(fd) == 0 || errno == EINTR;
}

struct stat Descriptor::status() const {
    struct stat result {};
    ::fstat(fd_, &result);
    return result;
}

std::size_t Descriptor::write(std::string_view bytes) const {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::write(fd_, bytes.data() + done, bytes.size() - done);
        if (count > 0)
            done += static_cast<std::size_t>(count);
        else if (count == 0 || errno != EINTR)
            break;
    }
    return done;
}

} // namespace platform
