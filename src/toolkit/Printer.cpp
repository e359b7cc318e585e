#include "toolkit/Printer.h"

#include "toolkit/Desktop.h"

#include <algorithm>

namespace toolkit {

PrinterObject Printer;

void PrinterObject::Print(Tab tab, const std::string& text) {
    begun_ = true;
    if (!device_)
        device_ = desktop().newPrinterDevice();
    const Font font{.name = {},
                    .size = FontSize,
                    .bold = FontBold,
                    .italic = FontItalic,
                    .underline = FontUnderline};
    const double height = device_->lineHeight(font);
    const double left = std::max(0, tab.column - 1) * device_->averageCharWidth(font);
    page_.push_back({left, CurrentY, text, font, ForeColor});
    CurrentY += height;
}

void PrinterObject::EndDoc() {
    if (begun_ && !device_)
        device_ = desktop().newPrinterDevice(); // no line has found the printer yet
    if (!page_.empty())
        device_->print(page_);
    KillDoc();
}

void PrinterObject::KillDoc() {
    device_.reset();
    page_.clear();
    begun_ = false;
    CurrentY = 0;
}

} // namespace toolkit
