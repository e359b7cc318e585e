// A file's content replaced on Linux, so that the file's name always leads to one whole content.
//
// The new content is written into a spare file beside the old one and forced to the disk. Then the
// two change names in one step of the system, and the old content changes names with the backup.
// What was the backup is the spare of the next time: no file is made or freed on the way, which
// costs less time than a new file would. At last the directory is forced, so that a power
// failure right behind a replacement doesn't bring back the old names. Hence the file whose bytes
// the next replacement writes over bears no other name on the disk than the spare's.
#pragma once

#include "platform/Files.h"
#include "platform/linux/Descriptor.h"

namespace platform {

class LinuxReplacement : public Replacement {
public:
    LinuxReplacement(const std::string& path, const std::string& backup);
    ~LinuxReplacement() override;

    void discardOld() override;

    // If the old content could not be discarded, the directory is likely closed to us, so the new
    // content then goes behind the old in the file itself.
    void open() override;
    void writeLine(std::string_view line) override;
    void close() override;

private:
    void openSpare();
    void takeOverAttributes();
    void putInPlace();
    void keepOld();
    void linkOld();
    void append();
    void giveUpSpare();

    std::string path_, backup_, spare_;
    std::string text_;
    Descriptor file_;
    bool fromOld_ = true;
    bool spareSpoiled_ = false; // it holds nothing whole
    bool oldKept_ = false;      // the backup has the old content already
};

} // namespace platform
