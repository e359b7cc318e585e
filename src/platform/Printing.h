// The system's printing: the state of the default printer, and jobs handed over to it.
#pragma once

#include <memory>
#include <string>

namespace platform {

// The sides of an upright sheet, and its edges that the printer leaves white, in millimetres.
struct Paper {
    double width = 0, height = 0;
    double left = 0, top = 0, right = 0, bottom = 0;
};

// A printer as it was when it was asked for.
class PrintQueue {
public:
    virtual ~PrintQueue() = default;

    // The paper that the user has chosen for the printer, else the printer's own. Raises
    // PrinterError if the printer has gone.
    virtual Paper paper() const = 0;
    virtual bool landscape() const = 0;

    // Makes one job of the file, a whole document in a form that the system's printing takes, with
    // the options that the printer has by default. Raises PrinterError, and then there is no job.
    virtual void print(const std::string& file, const std::string& title) = 0;
};

class Printing {
public:
    virtual ~Printing() = default;

    // Raises PrinterError where there is no default printer, it is stopped, or the system's
    // printing doesn't answer.
    virtual std::unique_ptr<PrintQueue> defaultPrinter() = 0;
};

} // namespace platform
