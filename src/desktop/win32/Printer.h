// The user's default printer.
#pragma once

#include "toolkit/Printer.h"

#include <memory>

namespace desktop_win32 {

// Raises PrinterError where there is no default printer, or it takes no page now.
std::unique_ptr<toolkit::PrinterDevice> makePrinterDevice();

} // namespace desktop_win32
