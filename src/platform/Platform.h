// What the program asks of the operating system, one interface a subject. main.cpp installs the
// platform of the system it is built for; tests install one of their own.
#pragma once

#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/Help.h"
#include "platform/Locale.h"
#include "platform/Machine.h"
#include "platform/Printing.h"
#include "platform/Process.h"
#include "platform/Random.h"
#include "platform/Settings.h"
#include "platform/Shell.h"

namespace platform {

struct Platform {
    Process& process;
    Clock& clock;
    Random& random;
    Settings& settings;
    Files& files;
    Locale& locale;
    Machine& machine;
    Shell& shell;
    Printing& printing;
    Help& help;
};

// The installed platform. Calling it before install() is a mistake of the caller.
const Platform& current();

// The platform of the system that the program is built for. It lasts as long as the process.
// `viewer` shows help files where that is a desktop's. The system's folder defines it.
Platform makePlatform(Help* viewer);

// Makes `it` the current platform; nullptr takes it away again.
void install(const Platform* it);

} // namespace platform
