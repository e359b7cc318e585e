// Reading and writing of lines over the bytes of an open file, the same on every system.
#pragma once

#include "platform/Files.h"

#include <cstddef>
#include <memory>
#include <string>

namespace platform {

// An open file's bytes, as the system gives and takes them. It is closed when the object goes.
// Every operation raises a RuntimeError made from the system's own error.
class Bytes {
public:
    virtual ~Bytes() = default;

    // Reads at most `size` bytes, and gives the count of those read: 0 at the end of the file.
    virtual std::size_t read(char* to, std::size_t size) = 0;

    // Writes `text`, from whose front it takes what has been written: all of it, or after a failure
    // what came before that.
    virtual void write(std::string& text) = 0;

    // Raises what the system had to complain of. The file is closed in any case.
    virtual void close() = 0;
};

// A line of more than 256 MiB is passed over and reported as OutOfMemory.
std::unique_ptr<InputFile> readLines(std::unique_ptr<Bytes> from);

// What is written reaches `to` at close().
std::unique_ptr<OutputFile> writeLines(std::unique_ptr<Bytes> to);

} // namespace platform
