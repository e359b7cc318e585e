#pragma once

#include "platform/Files.h"

namespace platform {

// Paths are UTF-8 here and UTF-16 to the system.
class WindowsFiles : public Files {
public:
    std::string programDirectory() const override;
    std::string join(const std::string& directory, const std::string& name) const override;
    void changeDirectory(const std::string& directory) override;
    bool exists(const std::string& path) const override;
    void remove(const std::string& path) override;

    // Only a file of a disk is opened. One whose replacement was cut off in its middle is put in
    // place first.
    std::unique_ptr<InputFile> openForInput(const std::string& path) override;

    // What is written reaches the file at close(), and is left to the system to force to the disk.
    // Behind a call that failed the next one doesn't wait: a start writes dozens of records, which
    // in a folder that may not be written would hold the splash back for many seconds.
    std::unique_ptr<OutputFile> openForAppend(const std::string& path) override;

    // Beside the file stand, for moments, "<path>.spare" and "<path>.new".
    std::unique_ptr<Replacement> replace(const std::string& path,
                                         const std::string& backup) override;

private:
    bool appends_ = true; // the last call of openForAppend didn't fail
};

} // namespace platform
