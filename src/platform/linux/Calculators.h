// The calculators that a desktop may have: programs by their names, and entries of its menu.
#pragma once

#include <QStringList>

#include <string>
#include <vector>

namespace platform {

// The paths to look for, those of the desktop in use first: in the directory itself, and for the
// programs of the user, in /usr/bin, also in /usr/local/bin and in the menu, whose entries are
// files too.
std::vector<std::string> calculatorPaths(const std::string& directory);

// What starts the program or the menu entry at `path`: a program and its arguments, or nothing
// where the entry names none that is there.
QStringList commandOf(const std::string& path);

} // namespace platform
