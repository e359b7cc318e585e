// The program itself.
#pragma once

#include <string>

namespace toolkit {

struct AppObject {
    AppObject(); // with the version that the build is of

    std::string Path; // the program's directory
    std::string HelpFile;
    int Major, Minor, Revision;
    bool PrevInstance = false; // another instance of the program runs
};
extern AppObject App;

} // namespace toolkit
