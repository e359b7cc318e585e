// Who and where: the logged-on user, the computer, and the system's directories. Each fills a
// buffer with text in the user's code page and a closing NUL.
#pragma once

namespace platform {

class Machine {
public:
    virtual ~Machine() = default;

    // False, and an untouched buffer, if the name is unknown or doesn't fit.
    virtual bool GetUserNameA(char* buffer, int size) const = 0;
    virtual bool GetComputerNameA(char* buffer, int size) const = 0;

    // The length of the path, or 0 if there is none or it doesn't fit.
    virtual int GetWindowsDirectoryA(char* buffer, int size) const = 0;
    virtual int GetSystemDirectoryA(char* buffer, int size) const = 0;
};

} // namespace platform
