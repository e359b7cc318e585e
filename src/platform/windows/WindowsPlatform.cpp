#include "platform/Platform.h"
#include "platform/RuntimeError.h"
#include "platform/StandardRandom.h"
#include "platform/windows/WindowsClock.h"
#include "platform/windows/WindowsFiles.h"
#include "platform/windows/WindowsHelp.h"
#include "platform/windows/WindowsLocale.h"
#include "platform/windows/WindowsMachine.h"
#include "platform/windows/WindowsProcess.h"
#include "platform/windows/WindowsSettings.h"
#include "platform/windows/WindowsShell.h"

namespace platform {

namespace {

// A page is painted straight for the printer by the desktop, which needs no job of a file.
struct NoPrinting final : Printing {
    std::unique_ptr<PrintQueue> defaultPrinter() override { throw RuntimeError(PrinterError); }
};

struct Windows {
    WindowsProcess process;
    WindowsClock clock;
    StandardRandom random;
    WindowsSettings settings;
    WindowsFiles files;
    WindowsLocale locale;
    WindowsMachine machine;
    WindowsShell shell;
    NoPrinting printing;
    WindowsHelp help;
};

} // namespace

Platform makePlatform(Help* /*viewer*/) {
    static auto* const it = new Windows; // never given up: the process's last moments use it too
    return {it->process, it->clock,   it->random, it->settings, it->files,
            it->locale,  it->machine, it->shell,  it->printing, it->help};
}

} // namespace platform
