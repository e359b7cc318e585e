// The system's own header, in the form in which the desktop wants it.
#pragma once

#include <windows.h>
// Those that build on it.
#include <commctrl.h>

#undef MessageBox // the system's macro would rename the toolkit's
