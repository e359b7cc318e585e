#include "platform/linux/LinuxPrinting.h"

#include "platform/RuntimeError.h"

#include <QLibrary>

#include <cups/cups.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace platform {

namespace {

constexpr int kPatience = 5;           // seconds that the print server gets for each answer
constexpr double kPerMillimetre = 100; // the print server's unit of paper
constexpr int kSamePaper = 100;        // drivers round the sides of a paper to points
constexpr Paper kA4{.width = 210, .height = 297};

[[noreturn]] void fail() {
    throw RuntimeError(PrinterError);
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
    decltype(&::pwgMediaForPWG) mediaForPWG = find("pwgMediaForPWG");
    decltype(&::pwgMediaForPPD) mediaForPPD = find("pwgMediaForPPD");
    decltype(&::cupsCopyDestInfo) copyDestInfo = find("cupsCopyDestInfo");
    decltype(&::cupsFreeDestInfo) freeDestInfo = find("cupsFreeDestInfo");
    decltype(&::cupsGetDestMediaByName) getMediaByName = find("cupsGetDestMediaByName");
    decltype(&::cupsGetDestMediaDefault) getMediaDefault = find("cupsGetDestMediaDefault");
};

const Cups& cups() {
    static const Cups library;
    return library;
}

// A queue of the print server. It has a connection of its own: the one that the library shares out
// waits for a server that hangs without an end.
class CupsQueue final : public PrintQueue {
public:
    CupsQueue() {
        if (!connection_)
            fail();
        cups().setTimeout(connection_.get(), kPatience, nullptr, nullptr);
        printer_.reset(cups().getNamedDest(connection_.get(), nullptr, nullptr));
        // A stopped queue would keep the job; one that rejects jobs says so itself.
        if (!printer_ || option("printer-state") == std::to_string(IPP_PSTATE_STOPPED))
            fail();
    }

    Paper paper() const override {
        const std::unique_ptr<cups_dinfo_t, Close> info(
            cups().copyDestInfo(connection_.get(), printer_.get()));
        if (!info)
            fail();
        const auto chosen = chosenPaper();
        cups_size_t size{};
        // The server answers with another paper that is like the one, too.
        const auto found = [&](auto ask, auto... name) {
            return ask(connection_.get(), printer_.get(), info.get(), name..., 0, &size) != 0 &&
                   (!chosen || (std::abs(size.width - chosen->width) <= kSamePaper &&
                                std::abs(size.length - chosen->length) <= kSamePaper));
        };
        const bool usual = found(cups().getMediaDefault);
        if (!usual && !chosen)
            return kA4;
        if (!usual && !found(cups().getMediaByName, chosen->name.c_str()))
            size = {}; // as far as is known, it is printed to its edges
        if (chosen) {
            size.width = chosen->width;
            size.length = chosen->length;
        }
        const auto edge = [](int length) { return length / kPerMillimetre; };
        return {edge(size.width), edge(size.length), edge(size.left),
                edge(size.top),   edge(size.right),  edge(size.bottom)};
    }

    bool landscape() const override {
        const auto orientation = option("orientation-requested");
        return orientation == "4" || orientation == "5" || option("landscape") == "true";
    }

    void print(const std::string& file, const std::string& title) override {
        if (cups().printFile(connection_.get(), printer_->name, file.c_str(), title.c_str(),
                             printer_->num_options, printer_->options) == 0)
            fail();
    }

private:
    struct Close {
        void operator()(http_t* it) const { cups().close(it); }
        void operator()(cups_dest_t* it) const { cups().freeDests(1, it); }
        void operator()(cups_dinfo_t* it) const { cups().freeDestInfo(it); }
    };

    std::string_view option(const char* name) const {
        const char* value = cups().getOption(name, printer_->num_options, printer_->options);
        return value ? value : "";
    }

    struct Media {
        std::string name;
        int width, length;
    };

    // The paper that the user has chosen; nothing where that is left to the printer.
    std::optional<Media> chosenPaper() const {
        std::string name(option("media").empty() ? option("PageSize") : option("media"));
        name.resize(std::min(name.find(','), name.size())); // the rest names the tray
        const pwg_media_t* media = cups().mediaForPWG(name.c_str());
        if (!media)
            media = cups().mediaForPPD(name.c_str());
        if (!media)
            return std::nullopt;
        return Media{media->pwg, media->width, media->length}; // the next answer overwrites it
    }

    std::unique_ptr<http_t, Close> connection_{
        cups().connect(cups().server(), cups().port(), nullptr, AF_UNSPEC, cups().encryption(), 1,
                       kPatience * 1000, nullptr)};
    std::unique_ptr<cups_dest_t, Close> printer_;
};

} // namespace

std::unique_ptr<PrintQueue> LinuxPrinting::defaultPrinter() {
    return std::make_unique<CupsQueue>();
}

} // namespace platform
