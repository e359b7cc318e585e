// Composes the platform, the desktop and the program, and runs it.

#include "desktop/qt/QtDesktop.h"
#include "frame/MainCode_ZW.h"
#include "platform/Platform.h"
#include "platform/linux/LinuxClock.h"
#include "platform/linux/LinuxFiles.h"
#include "platform/linux/LinuxLocale.h"
#include "platform/linux/LinuxMachine.h"
#include "platform/linux/LinuxProcess.h"
#include "platform/linux/LinuxSettings.h"
#include "platform/linux/LinuxShell.h"

#include <cstdio>

int main(int argc, char** argv) {
    platform::LinuxProcess process;
    platform::LinuxClock clock;
    platform::LinuxRandom random;
    platform::LinuxSettings settings;
    platform::LinuxFiles files;
    platform::LinuxLocale locale;
    platform::LinuxMachine machine;
    platform::LinuxShell shell;
    desktop_qt::QtDesktop desktop(argc, argv);
    toolkit::install(&desktop);
    const platform::Platform all{process, clock,   random, settings, files,
                                 locale,  machine, shell,  desktop};
    platform::install(&all);
    try {
        toolkit::App.Path = files.programDirectory();
    } catch (const platform::RuntimeError& error) {
        std::fprintf(stderr, "quorvanta: the program's directory: %s\n", error.what());
        return 1;
    }
    toolkit::App.PrevInstance = process.prevInstance();

    quorvanta::Main();

    desktop.whenSessionEnds(quorvanta::EndRunForSystem);
    desktop.whenReadable(platform::LinuxProcess::endRequests(), quorvanta::EndRunForSystem);
    return desktop.run();
}
