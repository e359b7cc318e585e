// A file's content replaced on Windows.
//
// The new content is written into "<path>.spare" and forced to the disk, and then renamed to
// "<path>.new": a file of that name is always whole. Then ReplaceFileW gives it the file's name and
// the old content the backup's.
//
// What that promises: the file keeps its rights, its attributes and its streams, and a call that
// succeeds leaves both names in place. What it doesn't: it renames twice, and between the two, at
// the end of the process or with error 1177, no file bears the name. What is called "<path>.new" is
// then the content to have, and the next who opens the file renames it. MoveFileExW, which does
// that and puts the first content of all in place, renames once and is told to return only when
// that is on the disk.
#pragma once

#include "platform/Files.h"
#include "platform/windows/System.h"

namespace platform {

class WindowsReplacement final : public Replacement {
public:
    WindowsReplacement(const std::string& path, const std::string& backup);
    ~WindowsReplacement() override;

    // Gives `path` the content that a replacement which was cut off has left for it, if it did.
    static void finish(const std::string& path);

    void discardOld() override;

    // If the old content could not be discarded, the directory is likely closed to us, so the new
    // content then goes behind the old in the file itself.
    void open() override;
    void writeLine(std::string_view line) override { text_.append(line).append("\r\n"); }
    void close() override;

private:
    void putInPlace();
    void append();

    std::string path_, backup_, spare_, whole_;
    std::string text_;
    Handle file_;
    bool fromOld_ = true;
};

} // namespace platform
