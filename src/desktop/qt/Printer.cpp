#include "toolkit/Printer.h"

#include "desktop/qt/Look.h"
#include "desktop/qt/QtDesktop.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"

#include <QApplication>
#include <QBuffer>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryFile>

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
void layOut(QPdfWriter& page, const platform::PrintQueue& queue) {
    const platform::Paper paper = queue.paper();
    const QPageSize size(QSizeF(paper.width, paper.height), QPageSize::Millimeter, {},
                         QPageSize::FuzzyMatch);
    const QMarginsF margins(paper.left, paper.top, paper.right, paper.bottom);
    page.setPageLayout({size, queue.landscape() ? QPageLayout::Landscape : QPageLayout::Portrait,
                        margins, QPageLayout::Millimeter, margins});
}

// The printer's own font is the one that pages have by default.
QFont printed(toolkit::Font design) {
    if (design.name.empty())
        design.name = "Arial";
    QFont it = font(design);
    it.setPointSizeF(design.size);
    return it;
}

void draw(QPdfWriter& writer, const std::vector<toolkit::PrintedText>& page) {
    const double dotsPerTwip = writer.resolution() / toolkit::kTwipsPerInch;
    QPainter painter;
    if (!painter.begin(&writer))
        fail();
    painter.setClipRect(QRect(0, 0, writer.width(), writer.height()));
    for (const toolkit::PrintedText& line : page) {
        painter.setFont(printed(line.font));
        painter.setPen(colour(line.colour));
        painter.drawText(
            QPointF(line.left * dotsPerTwip,
                    line.top * dotsPerTwip + QFontMetricsF(painter.font(), &writer).ascent()),
            text(line.text));
    }
    if (!painter.end())
        fail();
}

class Printer : public toolkit::PrinterDevice {
public:
    Printer() { defaultPrinter(); } // which must be there from the first line on

    double lineHeight(const toolkit::Font& font) override { return twips(metrics(font).height()); }
    double averageCharWidth(const toolkit::Font& font) override {
        return twips(metrics(font).averageCharWidth());
    }
    void print(const std::vector<toolkit::PrintedText>& page) override;

private:
    QFontMetricsF metrics(const toolkit::Font& font) { return {printed(font), &measured_}; }
    double twips(double dots) const {
        return dots * toolkit::kTwipsPerInch / measured_.resolution();
    }

    QBuffer nowhere_;
    QPdfWriter measured_{&nowhere_}; // what texts are measured for, and nothing is drawn on
};

// The page goes into a file first, and the file is handed over by ourselves: the drawing that
// failed leaves no job, and a job that was refused is seen. The printer may have come back as
// another one since it was asked last.
void Printer::print(const std::vector<toolkit::PrintedText>& page) {
    const auto queue = defaultPrinter();
    QTemporaryFile file;
    if (!file.open())
        fail();
    QPdfWriter writer(&file);
    layOut(writer, *queue);
    draw(writer, page);
    // A full disk shows only here.
    if (!file.flush() || !file.seek(0) || !file.readAll().trimmed().endsWith("%%EOF"))
        fail();
    queue->print(QFile::encodeName(file.fileName()).toStdString(),
                 QCoreApplication::applicationName().toStdString());
}

} // namespace

std::unique_ptr<toolkit::PrinterDevice> QtDesktop::newPrinterDevice() {
    application();
    return std::make_unique<Printer>();
}

} // namespace desktop_qt
