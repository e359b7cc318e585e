#include "desktop/qt/Printer.h"

#include "desktop/qt/Look.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryFile>

#include <memory>

namespace desktop_qt {

namespace {

[[noreturn]] void fail() {
    throw platform::RuntimeError(platform::PrinterError);
}

std::unique_ptr<platform::PrintQueue> defaultPrinter() {
    return platform::current().printing.defaultPrinter();
}

// The page is laid out for the paper that the print server will take, else the server would scale
// or turn it, and out to the printer's own margins.
std::unique_ptr<QPrinter> open(const platform::PrintQueue& queue) {
    const QPrinterInfo info = QPrinterInfo::printerInfo(QString::fromStdString(queue.name()));
    if (info.isNull()) // just removed: another one must not stand in for it
        fail();
    auto printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    if (!printer->isValid() || printer->outputFormat() != QPrinter::NativeFormat)
        fail();
    const auto chosen = queue.paper();
    printer->setPageSize(chosen ? QPageSize(QSizeF(chosen->width, chosen->height),
                                            QPageSize::Millimeter, {}, QPageSize::FuzzyMatch)
                                : info.defaultPageSize());
    printer->setPageOrientation(queue.landscape() ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer->setFullPage(false);
    printer->setPageMargins(printer->pageLayout().minimumMargins(), printer->pageLayout().units());
    return printer;
}

// The printer's own font is the one that pages have by default.
QFont printed(toolkit::Font design) {
    if (design.name.empty())
        design.name = "Arial";
    QFont it = font(design);
    it.setPointSizeF(design.size);
    return it;
}

void draw(QPrinter& printer, const std::vector<toolkit::PrintedText>& page) {
    const double dotsPerTwip = printer.resolution() / toolkit::kTwipsPerInch;
    QPainter painter;
    if (!painter.begin(&printer))
        fail();
    painter.setClipRect(QRect(0, 0, printer.width(), printer.height()));
    for (const toolkit::PrintedText& line : page) {
        painter.setFont(printed(line.font));
        painter.setPen(colour(line.colour));
        painter.drawText(
            QPointF(line.left * dotsPerTwip,
                    line.top * dotsPerTwip + QFontMetricsF(painter.font(), &printer).ascent()),
            text(line.text));
    }
    if (!painter.end())
        fail();
}

class Printer : public toolkit::PrinterDevice {
public:
    double lineHeight(const toolkit::Font& font) override { return twips(metrics(font).height()); }
    double averageCharWidth(const toolkit::Font& font) override {
        return twips(metrics(font).averageCharWidth());
    }
    void print(const std::vector<toolkit::PrintedText>& page) override;

private:
    QFontMetricsF metrics(const toolkit::Font& font) const {
        return {printed(font), printer_.get()};
    }
    double twips(double dots) const {
        return dots * toolkit::kTwipsPerInch / printer_->resolution();
    }

    std::unique_ptr<QPrinter> printer_ = open(*defaultPrinter());
};

// The page goes into a file first, and the file is handed over by ourselves: the drawing that
// failed leaves no job, and a job that was refused is seen. The printer may have come back as
// another one since it was asked last.
void Printer::print(const std::vector<toolkit::PrintedText>& page) {
    const auto queue = defaultPrinter();
    printer_ = open(*queue);
    QTemporaryFile file;
    if (!file.open())
        fail();
    printer_->setOutputFileName(file.fileName());
    draw(*printer_, page);
    // A full disk shows only here.
    if (!file.readAll().trimmed().endsWith("%%EOF"))
        fail();
    queue->print(QFile::encodeName(file.fileName()).toStdString(),
                 QCoreApplication::applicationName().toStdString());
}

} // namespace

std::unique_ptr<toolkit::PrinterDevice> makePrinterDevice() {
    return std::make_unique<Printer>();
}

} // namespace desktop_qt
