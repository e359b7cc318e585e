// What the Linux files share: an open descriptor, and the run-time failure behind an errno.
#pragma once

#include <sys/stat.h>

#include <string>
#include <string_view>
#include <utility>

namespace platform {

// Raises the failure that `error`, an errno of an operation on `path`, means to the program.
[[noreturn]] void raiseErrno(int error, const std::string& path);

// The part of `path` in front of its last separator.
std::string directoryOf(const std::string& path);

// An open file, closed at the end of its scope.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int fd) : fd_(fd) {}
    Descriptor(Descriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(fd_, other.fd_);
        return *this;
    }
    ~Descriptor();

    // Opens `path`, or stays closed with errno set. Never waits for the other end of a pipe and
    // never hands the descriptor to a child process.
    static Descriptor open(const std::string& path, int flags);

    // The same, raising the failure. Anything but a regular file is a PathAccess failure: reading
    // a device or a pipe might never end.
    static Descriptor openRegular(const std::string& path, int flags);

    explicit operator bool() const { return fd_ >= 0; }
    int get() const { return fd_; }

    // False, with errno set, if the system had something to complain of. Closed in any case.
    bool close();

    struct stat status() const;

    // Writes all of `bytes` at the descriptor's place, and gives the count of those written: less
    // than all means a failure, with errno set.
    std::size_t write(std::string_view bytes) const;

private:
    int fd_ = -1;
};

} // namespace platform
