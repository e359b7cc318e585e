#include "platform/linux/LinuxFiles.h"

#include "platform/Lines.h"
#include "platform/RuntimeError.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/LinuxReplacement.h"

#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <unistd.h>

namespace platform {

namespace {

class LinuxBytes : public Bytes {
public:
    LinuxBytes(const std::string& path, int flags)
        : path_(path), file_(Descriptor::openRegular(path, flags)) {}

    std::size_t read(char* to, std::size_t size) override {
        ssize_t count;
        do
            count = ::read(file_.get(), to, size);
        while (count < 0 && errno == EINTR);
        if (count < 0)
            raiseErrno(errno, path_);
        return static_cast<std::size_t>(count);
    }

    void write(std::string& text) override {
        const std::size_t done = file_.write(text);
        const int error = errno;
        text.erase(0, done);
        if (!text.empty())
            raiseErrno(error, path_);
    }

    void close() override {
        if (!file_.close())
            raiseErrno(errno, path_);
    }

private:
    std::string path_;
    Descriptor file_;
};

} // namespace

std::string LinuxFiles::programDirectory() const {
    char target[PATH_MAX];
    const ssize_t length = ::readlink("/proc/self/exe", target, sizeof target);
    if (length <= 0)
        throw RuntimeError(PathNotFound);
    return directoryOf(std::string(target, static_cast<std::size_t>(length)));
}

std::string LinuxFiles::join(const std::string& directory, const std::string& name) const {
    return directory + "/" + name;
}

void LinuxFiles::changeDirectory(const std::string& directory) {
    if (::chdir(directory.c_str()) != 0)
        raiseErrno(errno == ENOENT ? ENOTDIR : errno, directory);
}

bool LinuxFiles::exists(const std::string& path) const {
    struct stat status;
    return ::stat(path.c_str(), &status) == 0;
}

void LinuxFiles::remove(const std::string& path) {
    if (::unlink(path.c_str()) != 0)
        raiseErrno(errno, path);
}

std::unique_ptr<InputFile> LinuxFiles::openForInput(const std::string& path) {
    return readLines(std::make_unique<LinuxBytes>(path, O_RDONLY));
}

std::unique_ptr<OutputFile> LinuxFiles::openForAppend(const std::string& path) {
    return writeLines(std::make_unique<LinuxBytes>(path, O_WRONLY | O_CREAT | O_APPEND));
}

std::unique_ptr<Replacement> LinuxFiles::replace(const std::string& path,
                                                 const std::string& backup) {
    return std::make_unique<LinuxReplacement>(path, backup);
}

} // namespace platform
