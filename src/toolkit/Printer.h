// The system's default printer: a page that the program writes on line by line.
#pragma once

#include "toolkit/Control.h"

#include <memory>
#include <string>
#include <vector>

namespace toolkit {

// A text on a page, its top left corner in twips from the top left of the printable area. A font
// without a name is the printer's own.
struct PrintedText {
    double left = 0, top = 0;
    std::string text;
    Font font;
    Colour colour = kBlack;
};

// What a desktop answers for the printer. Each call raises PrinterError where the printer can't
// serve it, and can be made again when the printer is back.
class PrinterDevice {
public:
    virtual ~PrinterDevice() = default;

    virtual double lineHeight(const Font& font) = 0;       // twips
    virtual double averageCharWidth(const Font& font) = 0; // twips
    // Hands the page to the printer as one job, or fails and leaves no job behind. What lies beyond
    // the printable area is cut off.
    virtual void print(const std::vector<PrintedText>& page) = 0;
};

// Starts a text at a print column. Columns count from 1 and are as wide as the average character of
// the current font.
struct Tab {
    int column = 1;
};

// The page is kept until EndDoc hands it over, so a document that is given up has never reached the
// printer. The font and the colour stay from one document to the next.
class PrinterObject {
public:
    double CurrentY = 0; // twips from the top of the printable area
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    double FontSize = 10; // points
    Colour ForeColor = kBlack;

    // Prints one line at CurrentY, which moves down by the height of the line. The first Print
    // begins a document. Raises PrinterError, and then nothing has moved.
    void Print(const std::string& text = {}) { Print(Tab{}, text); }
    void Print(Tab tab, const std::string& text);
    // Hands the document over; does nothing without one. Raises PrinterError, and then the document
    // is still there to be handed over or given up.
    void EndDoc();
    // Gives the document up.
    void KillDoc();

private:
    bool begun_ = false;                    // there is a document
    std::unique_ptr<PrinterDevice> device_; // once a line has found the printer
    std::vector<PrintedText> page_;
};
extern PrinterObject Printer;

} // namespace toolkit
