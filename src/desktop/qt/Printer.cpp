#include "desktop/qt/Printer.h"

#include "desktop/qt/Look.h"
#include "platform/RuntimeError.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QLibrary>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryFile>

#include <cups/cups.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

namespace desktop_qt {

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr int kPatience = 5;           // seconds that the print server gets for each answer
constexpr double kPerMillimetre = 100; // the print server's unit of paper

[[noreturn]] void fail() {
    throw platform::RuntimeError(platform::PrinterError);
}

// The client library of the print server. It is loaded at the first print, since it brings others
// with it that would be felt at every start.
class Cups {
    struct Symbol {
        QFunctionPointer address;
        template <class Function>
        operator Function() const {
            return reinterpret_cast<Function>(address);
        }
    };
    static Symbol find(const char* name) {
        const QFunctionPointer address = QLibrary::resolve(QStringLiteral("cups"), 2, name);
        return address ? Symbol{address} : (fail(), Symbol{});
    }

public:
    decltype(&::cupsServer) server = find("cupsServer");
    decltype(&::ippPort) port = find("ippPort");
    decltype(&::cupsEncryption) encryption = find("cupsEncryption");
    decltype(&::httpConnect2) connect = find("httpConnect2");
    decltype(&::httpSetTimeout) setTimeout = find("httpSetTimeout");
    decltype(&::httpClose) close = find("httpClose");
    decltype(&::cupsGetNamedDest) getNamedDest = find("cupsGetNamedDest");
    decltype(&::cupsGetOption) getOption = find("cupsGetOption");
    decltype(&::cupsFreeDests) freeDests = find("cupsFreeDests");
    decltype(&::cupsPrintFile2) printFile = find("cupsPrintFile2");
    decltype(&::pwgMediaForPWG) paper = find("pwgMediaForPWG");
    decltype(&::pwgMediaForPPD) driverPaper = find("pwgMediaForPPD");
};

const Cups& cups() {
    static const Cups library;
    return library;
}

// The default printer's queue as it is now. It has a connection of its own: the one that the
// library shares out waits for a server that hangs without an end.
class Queue {
public:
    Queue() {
        if (!connection_)
            fail();
        cups().setTimeout(connection_.get(), kPatience, nullptr, nullptr);
        printer_.reset(cups().getNamedDest(connection_.get(), nullptr, nullptr));
        // A stopped queue would keep the job; one that rejects jobs says so itself.
        if (!printer_ || option("printer-state") == std::to_string(IPP_PSTATE_STOPPED))
            fail();
    }

    QString name() const {
        QString name = QString::fromLocal8Bit(printer_->name);
        if (printer_->instance)
            name += u'/' + QString::fromLocal8Bit(printer_->instance);
        return name;
    }

    // The paper that the user has chosen for the printer, if any.
    QPageSize paper() const {
        std::string name(option("media").empty() ? option("PageSize") : option("media"));
        name.resize(std::min(name.find(','), name.size())); // the rest tells the tray
        const pwg_media_t* paper = cups().paper(name.c_str());
        if (!paper)
            paper = cups().driverPaper(name.c_str());
        if (!paper)
            return {};
        return QPageSize(QSizeF(paper->width, paper->length) / kPerMillimetre,
                         QPageSize::Millimeter, {}, QPageSize::FuzzyMatch);
    }

    bool landscape() const {
        const auto orientation = option("orientation-requested");
        return orientation == "4" || orientation == "5" || option("landscape") == "true";
    }

    // Makes one job of the file, with the options that the printer has by default.
    void print(const QString& file, const QString& title) {
        if (cups().printFile(connection_.get(), printer_->name, QFile::encodeName(file).constData(),
                             title.toUtf8().constData(), printer_->num_options,
                             printer_->options) == 0)
            fail();
    }

private:
    struct Close {
        void operator()(http_t* it) const { cups().close(it); }
        void operator()(cups_dest_t* it) const { cups().freeDests(1, it); }
    };

    std::string_view option(const char* name) const {
        const char* value = cups().getOption(name, printer_->num_options, printer_->options);
        return value ? value : "";
    }

    std::unique_ptr<http_t, Close> connection_{
        cups().connect(cups().server(), cups().port(), nullptr, AF_UNSPEC, cups().encryption(), 1,
                       kPatience * 1000, nullptr)};
    std::unique_ptr<cups_dest_t, Close> printer_;
};

// The page is laid out for the paper that the print server will take, else the server would scale
// or turn it, and out to the printer's own margins.
std::unique_ptr<QPrinter> open(const Queue& queue) {
    const QPrinterInfo info = QPrinterInfo::printerInfo(queue.name());
    if (info.isNull()) // just removed: another one must not stand in for it
        fail();
    auto printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    if (!printer->isValid() || printer->outputFormat() != QPrinter::NativeFormat)
        fail();
    const QPageSize chosen = queue.paper();
    printer->setPageSize(chosen.isValid() ? chosen : info.defaultPageSize());
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
    const double dotsPerTwip = printer.resolution() / kTwipsPerInch;
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
    double twips(double dots) const { return dots * kTwipsPerInch / printer_->resolution(); }

    std::unique_ptr<QPrinter> printer_ = open(Queue());
};

// The page goes into a file first, and the file is handed over by ourselves: the drawing that
// failed leaves no job, and a job that was refused is seen. The printer may have come back as
// another one since it was asked last.
void Printer::print(const std::vector<toolkit::PrintedText>& page) {
    Queue queue;
    printer_ = open(queue);
    QTemporaryFile file;
    if (!file.open())
        fail();
    printer_->setOutputFileName(file.fileName());
    draw(*printer_, page);
    // A full disk shows only here.
    if (!file.readAll().trimmed().endsWith("%%EOF"))
        fail();
    queue.print(file.fileName(), QCoreApplication::applicationName());
}

} // namespace

std::unique_ptr<toolkit::PrinterDevice> makePrinterDevice() {
    return std::make_unique<Printer>();
}

} // namespace desktop_qt
