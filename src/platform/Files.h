// Files as the program uses them: text files of 8-bit characters, read and written by lines. Text
// here is bytes; platform/Locale.h turns it into the program's UTF-8 and back.
//
// Every operation raises a RuntimeError made from the system's own error: FileNotFound,
// DeviceError, DiskFull, PermissionDenied, PathAccess, PathNotFound.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace platform {

// A text file open for reading. It is closed when the object goes.
class InputFile {
public:
    virtual ~InputFile() = default;

    // Reads the next line, which ends at CR, at CR LF or at the end of the file, into `line`,
    // without its end. A LF with no CR before it is a character of the line. False at the end of
    // the file.
    virtual bool readLine(std::string& line) = 0;
};

// A text file open for writing.
class OutputFile {
public:
    // Gives up what close() has not yet handed over. Never throws.
    virtual ~OutputFile() = default;

    // Writes `line` and CR LF.
    virtual void writeLine(std::string_view line) = 0;

    // Hands everything over to the system and closes the file. A close that failed can be called
    // again, and then tries anew.
    virtual void close() = 0;
};

// A file's content being replaced by new content, without a moment at which the disk holds neither.
// The old content stays under the file's name until close() has put the new content, forced to the
// disk, in its place; the old content then stands in the backup file.
class Replacement {
public:
    // Gives up a replacement that was not closed: the file stays as it was.
    virtual ~Replacement() = default;

    // Means that the new content begins empty. Raises FileNotFound if there is no file yet, and the
    // same failures as removing the file would. Without a call, or after one that failed for
    // another reason than FileNotFound, the new content begins with the old.
    virtual void discardOld() = 0;

    // Makes ready to write. The writes are held back until close().
    virtual void open() = 0;
    virtual void writeLine(std::string_view line) = 0;

    // Puts the new content in place. It either does all of it or leaves the file as it was, and can
    // be called again after a failure.
    virtual void close() = 0;
};

class Files {
public:
    virtual ~Files() = default;

    // The real directory of the running program file, without a separator at its end.
    virtual std::string programDirectory() const = 0;

    // `name` inside `directory`.
    virtual std::string join(const std::string& directory, const std::string& name) const = 0;

    virtual void changeDirectory(const std::string& directory) = 0;
    virtual bool exists(const std::string& path) const = 0;
    virtual void remove(const std::string& path) = 0;

    virtual std::unique_ptr<InputFile> openForInput(const std::string& path) = 0;
    // Creates the file if need be.
    virtual std::unique_ptr<OutputFile> openForAppend(const std::string& path) = 0;
    virtual std::unique_ptr<Replacement> replace(const std::string& path,
                                                 const std::string& backup) = 0;
};

} // namespace platform
