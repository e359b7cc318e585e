#include "platform/Platform.h"
#include "platform/StandardRandom.h"
#include "platform/linux/LinuxClock.h"
#include "platform/linux/LinuxFiles.h"
#include "platform/linux/LinuxLocale.h"
#include "platform/linux/LinuxMachine.h"
#include "platform/linux/LinuxPrinting.h"
#include "platform/linux/LinuxProcess.h"
#include "platform/linux/LinuxSettings.h"
#include "platform/linux/LinuxShell.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace platform {

namespace {

struct Linux {
    LinuxProcess process;
    LinuxClock clock;
    StandardRandom random;
    LinuxSettings settings;
    LinuxFiles files;
    LinuxLocale locale;
    LinuxMachine machine;
    LinuxShell shell;
    LinuxPrinting printing;
};

} // namespace

Platform makePlatform(Help* viewer) {
    // Some starters don't tell the user's home, and "/" would be taken for it.
    if (const passwd* const user = std::getenv("HOME") ? nullptr : ::getpwuid(::getuid()))
        ::setenv("HOME", user->pw_dir, 0);
    static auto* const it = new Linux; // never given up: the process's last moments use it too
    return {it->process, it->clock,   it->random, it->settings, it->files,
            it->locale,  it->machine, it->shell,  it->printing, *viewer};
}

} // namespace platform
