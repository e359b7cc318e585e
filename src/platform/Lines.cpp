#include "platform/Lines.h"

#include "platform/RuntimeError.h"

#include <cstring>
#include <utility>
#include <vector>

namespace platform {

namespace {

constexpr std::size_t kBufferSize = 1 << 16;

// A broken file must not eat the machine's memory.
constexpr std::size_t kLongestLine = std::size_t{256} << 20;

class LineReader : public InputFile {
public:
    explicit LineReader(std::unique_ptr<Bytes> from)
        : from_(std::move(from)), buffer_(kBufferSize) {}

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
        const std::size_t count = from_->read(buffer_.data(), buffer_.size());
        at_ = 0;
        size_ = count;
        return size_ > 0;
    }

    std::unique_ptr<Bytes> from_;
    std::vector<char> buffer_;
    std::size_t at_ = 0, size_ = 0;
    bool skipLineFeed_ = false; // the character before was a CR that ended a line
    std::string begun_;         // of a line whose rest could not be read
};

class LineWriter : public OutputFile {
public:
    explicit LineWriter(std::unique_ptr<Bytes> to) : to_(std::move(to)) {}

    void writeLine(std::string_view line) override { text_.append(line).append("\r\n"); }

    void close() override {
        to_->write(text_);
        to_->close();
    }

private:
    std::unique_ptr<Bytes> to_;
    std::string text_;
};

} // namespace

std::unique_ptr<InputFile> readLines(std::unique_ptr<Bytes> from) {
    return std::make_unique<LineReader>(std::move(from));
}

std::unique_ptr<OutputFile> writeLines(std::unique_ptr<Bytes> to) {
    return std::make_unique<LineWriter>(std::move(to));
}

} // namespace platform
