#pragma once

#include "platform/Printing.h"

namespace platform {

// Through CUPS, over connections with time-outs.
class LinuxPrinting final : public Printing {
public:
    std::unique_ptr<PrintQueue> defaultPrinter() override;
};

} // namespace platform
