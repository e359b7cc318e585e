// The system's default printer.
#pragma once

#include "toolkit/Printer.h"

#include <memory>

namespace desktop_qt {

// Raises PrinterError if there is no default printer, or it takes no jobs.
std::unique_ptr<toolkit::PrinterDevice> makePrinterDevice();

} // namespace desktop_qt
