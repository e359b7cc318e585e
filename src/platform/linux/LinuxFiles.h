// Files on Linux and other systems with POSIX calls.
#pragma once

#include "platform/Files.h"

namespace platform {

class LinuxFiles : public Files {
public:
    std::string programDirectory() const override;
    std::string join(const std::string& directory, const std::string& name) const override;
    void changeDirectory(const std::string& directory) override;
    bool exists(const std::string& path) const override;
    void remove(const std::string& path) override;

    // Only a regular file is opened.
    std::unique_ptr<InputFile> openForInput(const std::string& path) override;

    // What is written reaches the file at close(), and is left to the system to force to the disk.
    std::unique_ptr<OutputFile> openForAppend(const std::string& path) override;

    // Beside the file stands "<path>.spare", which the new content is written into. A file that is
    // a symbolic link stays one: what it points at is replaced.
    std::unique_ptr<Replacement> replace(const std::string& path,
                                         const std::string& backup) override;
};

} // namespace platform
