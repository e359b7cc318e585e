#include "desktop/win32/Printer.h"

#include "desktop/win32/Look.h"
#include "platform/RuntimeError.h"

#include <winspool.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <type_traits>
#include <vector>

namespace desktop_win32 {

namespace {

constexpr int kPointsPerInch = 72;
constexpr std::size_t kLongestText = 8192; // of one call; more is wider than any paper

[[noreturn]] void fail() {
    throw platform::RuntimeError(platform::PrinterError);
}

template <auto Close>
struct Closing {
    template <class It>
    void operator()(It it) const {
        Close(it);
    }
};
using Context = std::unique_ptr<std::remove_pointer_t<HDC>, Closing<DeleteDC>>;
using FontHandle = std::unique_ptr<std::remove_pointer_t<HFONT>, Closing<DeleteObject>>;

// A call of the spooler, whose library is loaded at the first print: with it come 4 MB of CUPS
// under Wine. A file of that name beside the program is none of it.
template <class Call>
Call* ofSpooler(const char* name) {
    static HMODULE const library =
        LoadLibraryExW(L"winspool.drv", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    FARPROC const call = library ? GetProcAddress(library, name) : nullptr;
    if (!call)
        fail();
    return std::bit_cast<Call*>(call);
}

std::wstring defaultPrinter() {
    const auto ask = ofSpooler<decltype(GetDefaultPrinterW)>("GetDefaultPrinterW");
    DWORD size = 0;
    ask(nullptr, &size);
    std::wstring name(size, L'\0');
    if (size == 0 || !ask(name.data(), &size))
        fail();
    name.resize(size - 1);
    return name;
}

// The system would keep the job of a printer that is stopped or away.
bool takesPages(const std::wstring& name) {
    const auto open = ofSpooler<decltype(OpenPrinterW)>("OpenPrinterW");
    const auto close = ofSpooler<decltype(ClosePrinter)>("ClosePrinter");
    const auto ask = ofSpooler<decltype(GetPrinterW)>("GetPrinterW");
    HANDLE opened = nullptr;
    if (!open(const_cast<wchar_t*>(name.c_str()), &opened, nullptr)) // it isn't changed
        return false;
    const std::unique_ptr<void, decltype(close)> queue(opened, close);
    DWORD size = 0;
    ask(opened, 2, nullptr, 0, &size);
    // In units of its strictest member.
    std::vector<PRINTER_INFO_2W> room(size / sizeof(PRINTER_INFO_2W) + 1);
    if (!ask(opened, 2, reinterpret_cast<BYTE*>(room.data()), size, &size))
        return false;
    constexpr DWORD kAway = PRINTER_STATUS_PAUSED | PRINTER_STATUS_ERROR | PRINTER_STATUS_OFFLINE |
                            PRINTER_STATUS_NOT_AVAILABLE | PRINTER_STATUS_PENDING_DELETION;
    return (room[0].Status & kAway) == 0 &&
           (room[0].Attributes & PRINTER_ATTRIBUTE_WORK_OFFLINE) == 0;
}

Context open() {
    const std::wstring name = defaultPrinter();
    Context context(takesPages(name) ? CreateDCW(L"WINSPOOL", name.c_str(), nullptr, nullptr)
                                     : nullptr);
    if (!context)
        fail();
    SetBkMode(context.get(), TRANSPARENT);
    return context;
}

// A font selected into a device, which has its own one back at the end.
class Selected {
public:
    Selected(HDC device, const toolkit::Font& design) : device_(device) {
        LOGFONTW wanted{};
        wanted.lfHeight =
            -static_cast<LONG>(std::lround(design.size * GetDeviceCaps(device, LOGPIXELSY) /
                                           kPointsPerInch)); // negative: of the em
        wanted.lfWeight = design.bold ? FW_BOLD : FW_NORMAL;
        wanted.lfItalic = design.italic;
        wanted.lfUnderline = design.underline;
        wanted.lfCharSet = DEFAULT_CHARSET;
        // The printer's own font is the one that pages have by default.
        wide(design.name.empty() ? "Arial" : design.name).copy(wanted.lfFaceName, LF_FACESIZE - 1);
        font_.reset(CreateFontIndirectW(&wanted));
        if (font_)
            before_ = SelectObject(device, font_.get());
        if (!before_)
            fail();
    }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;
    ~Selected() { SelectObject(device_, before_); }

private:
    HDC device_;
    FontHandle font_;
    HGDIOBJ before_ = nullptr;
};

int dots(double twips, int perInch) {
    return MulDiv(static_cast<int>(std::lround(twips)), perInch,
                  static_cast<int>(toolkit::kTwipsPerInch));
}

// The device counts from the corner of the printable area. What lies beyond it is cut off here, as
// not every driver does so.
void draw(HDC device, const toolkit::PrintedText& line) {
    const Selected font(device, line.font);
    const RECT area{0, 0, GetDeviceCaps(device, HORZRES), GetDeviceCaps(device, VERTRES)};
    const int left = dots(line.left, GetDeviceCaps(device, LOGPIXELSX));
    const int top = dots(line.top, GetDeviceCaps(device, LOGPIXELSY));
    const std::wstring text = wide(line.text);
    const int length = static_cast<int>(std::min(text.size(), kLongestText));
    int fitting = 0;
    SIZE size;
    if (!GetTextExtentExPointW(device, text.c_str(), length, area.right - left, &fitting, nullptr,
                               &size))
        fail();
    SetTextColor(device, static_cast<COLORREF>(line.colour));
    // One character more than fit, which the edge cuts.
    if (!ExtTextOutW(device, left, top, ETO_CLIPPED, &area, text.c_str(),
                     static_cast<UINT>(std::min(fitting + 1, length)), nullptr))
        fail();
}

// A document of the device. It is taken back unless it was handed over.
class Job {
public:
    explicit Job(HDC device) : device_(device) {
        DOCINFOW document{};
        document.cbSize = sizeof document;
        document.lpszDocName = L"Quorvanta";
        if (StartDocW(device, &document) <= 0)
            fail();
    }
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;
    ~Job() {
        if (device_)
            AbortDoc(device_);
    }

    void handOver() {
        if (EndDoc(device_) <= 0)
            fail();
        device_ = nullptr;
    }

private:
    HDC device_;
};

class Printer final : public toolkit::PrinterDevice {
public:
    double lineHeight(const toolkit::Font& font) override {
        return twips(metrics(font).tmHeight, LOGPIXELSY);
    }
    double averageCharWidth(const toolkit::Font& font) override {
        return twips(metrics(font).tmAveCharWidth, LOGPIXELSX);
    }
    void print(const std::vector<toolkit::PrintedText>& page) override;

private:
    TEXTMETRICW metrics(const toolkit::Font& font) const {
        const Selected selected(device_.get(), font);
        TEXTMETRICW metrics{};
        if (!GetTextMetricsW(device_.get(), &metrics))
            fail();
        return metrics;
    }
    double twips(LONG dots, int resolution) const {
        return dots * toolkit::kTwipsPerInch / GetDeviceCaps(device_.get(), resolution);
    }

    Context device_ = open();
};

// The printer may have stopped, or come back as another one, since it was asked last.
void Printer::print(const std::vector<toolkit::PrintedText>& page) {
    device_ = open();
    Job job(device_.get());
    if (StartPage(device_.get()) <= 0)
        fail();
    for (const toolkit::PrintedText& line : page)
        draw(device_.get(), line);
    if (EndPage(device_.get()) <= 0)
        fail();
    job.handOver();
}

} // namespace

std::unique_ptr<toolkit::PrinterDevice> makePrinterDevice() {
    return std::make_unique<Printer>();
}

} // namespace desktop_win32
