// Composes the platform, the desktop and the program, and runs it.

#include "desktop/SystemDesktop.h"
#include "frame/MainCode_ZW.h"
#include "platform/Platform.h"

#include <cstdio>

int main() {
    const auto desktop = desktop::makeDesktop();
    desktop->sessionEnds = quorvanta::EndRunForSystem;
    desktop->displayEnds = quorvanta::EndRunWithoutDisplay;
    toolkit::install(desktop.get());
    static const platform::Platform all = platform::makePlatform(desktop->helpViewer());
    platform::install(&all);
    try {
        toolkit::App.Path = all.files.programDirectory();
    } catch (const platform::RuntimeError& error) {
        std::fprintf(stderr, "quorvanta: the program's directory: %s\n", error.what());
        return 1;
    }
    toolkit::App.PrevInstance = all.process.prevInstance(toolkit::App.Path);

    quorvanta::Main();

    all.process.whenAskedToEnd(desktop->waker(quorvanta::EndRunForSystem));
    return desktop->run();
}
