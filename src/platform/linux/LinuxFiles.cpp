#include "platform/linux/LinuxFiles.h"

#include "platform/RuntimeError.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/LinuxReplacement.h"

#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#include <vector>

namespace platform {

namespace {

constexpr std::size_t kBufferSize = 1 << 16;

// A broken file must not eat the machine's memory.
constexpr std::size_t kLongestLine = std::size_t{256} << 20;

class LinuxInputFile : public InputFile {
public:
    explicit LinuxInputFile(const std::string& path)
        : path_(path), file_(Descriptor::openRegular(path, O_RDONLY)), buffer_(kBufferSize) {}

    bool readLine(std::string& line) override {
        line.clear();
        if (!begun_.empty())
            std::swap(line, begun_);
        try {
            return readOn(line);
        } catch (...) {
            // A repeated call goes on where this one stopped.
            std::swap(line, begun_);
            throw;
        }
    }

private:
    bool readOn(std::string& line) {
        bool any = !line.empty(), tooLong = false;
        while (fill()) {
            if (std::exchange(skipLineFeed_, false) && buffer_[at_] == '\n') {
                ++at_;
                continue;
            }
            any = true;
            const char* start = buffer_.data() + at_;
            const void* end = std::memchr(start, '\r', size_ - at_);
            const std::size_t count =
                end ? static_cast<std::size_t>(static_cast<const char*>(end) - start) : size_ - at_;
            tooLong = tooLong || line.size() + count > kLongestLine;
            if (!tooLong)
                line.append(start, count);
            at_ += count;
            if (end) {
                ++at_;
                skipLineFeed_ = true;
                break;
            }
        }
        if (tooLong) {
            line = {};
            throw RuntimeError(OutOfMemory);
        }
        return any;
    }

    // False at the end of the file.
    bool fill() {
        if (at_ < size_)
            return true;
        ssize_t count;
        do
            count = ::read(file_.get(), buffer_.data(), buffer_.size());
        while (count < 0 && errno == EINTR);
        if (count < 0)
            raiseErrno(errno, path_);
        at_ = 0;
        size_ = static_cast<std::size_t>(count);
        return size_ > 0;
    }

    std::string path_;
    Descriptor file_;
    std::vector<char> buffer_;
    std::size_t at_ = 0, size_ = 0;
    bool skipLineFeed_ = false; // the character before was a CR that ended a line
    std::string begun_;         // of a line whose rest could not be read
};

class LinuxOutputFile : public OutputFile {
public:
    explicit LinuxOutputFile(const std::string& path)
        : path_(path), file_(Descriptor::openRegular(path, O_WRONLY | O_CREAT | O_APPEND)) {}

    void writeLine(std::string_view line) override { text_.append(line).append("\r\n"); }

    void close() override {
        const std::size_t done = file_.write(text_);
        const int error = errno;
        text_.erase(0, done);
        if (!text_.empty())
            raiseErrno(error, path_);
        if (!file_.close())
            raiseErrno(errno, path_);
    }

private:
    std::string path_;
    Descriptor file_;
    std::string text_;
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
    return std::make_unique<LinuxInputFile>(path);
}

std::unique_ptr<OutputFile> LinuxFiles::openForAppend(const std::string& path) {
    return std::make_unique<LinuxOutputFile>(path);
}

std::unique_ptr<Replacement> LinuxFiles::replace(const std::string& path,
                                                 const std::string& backup) {
    return std::make_unique<LinuxReplacement>(path, backup);
}

} // namespace platform
