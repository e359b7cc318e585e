#include "storage/cQuorvantaLite.h"

#include "common/DateText.h"
#include "common/NumberText.h"
#include "common/Trap.h"
#include "frame/modQuorvantaLite.h"
#include "platform/Platform.h"

#include <algorithm>
#include <optional>
#include <span>

namespace quorvanta {

namespace {

enum class Section { None, StammNumbers, Favorites, WinLoss };

struct Header {
    std::string_view line;
    Section opens;
};

constexpr std::string_view kStammNumbersHeader = "[StammNumbers]";
constexpr std::string_view kFavoritesHeader = "[Favorites]";
constexpr std::string_view kWinLossHeader = "[Win/Loss]";

constexpr Header kHeaders[] = {
    {kStammNumbersHeader, Section::StammNumbers},
    {kFavoritesHeader, Section::Favorites},
    {kWinLossHeader, Section::WinLoss},
};

// A line that begins with `begins` holds row `row`, behind its first `prefix` characters. The first
// match in a section's list counts. Rows 2 to 9 have always been known by the digit alone in the
// one section and by digit and dot in the other, and users have files that rest on it.
struct RowLine {
    std::string_view begins;
    int row;
    std::size_t prefix;
};

constexpr RowLine kStammNumbersLines[] = {
    {"1.", 1, 2}, {"2", 2, 2}, {"3", 3, 2}, {"4", 4, 2}, {"5", 5, 2},
    {"6", 6, 2},  {"7", 7, 2}, {"8", 8, 2}, {"9", 9, 2}, {"10", 10, 3},
};

constexpr RowLine kFavoritesLines[] = {
    {"1.", 1, 2}, {"2.", 2, 2}, {"3.", 3, 2}, {"4.", 4, 2}, {"5.", 5, 2},
    {"6.", 6, 2}, {"7.", 7, 2}, {"8.", 8, 2}, {"9.", 9, 2}, {"10", 10, 3},
};

struct Amount {
    std::string_view prefix;
    double& value;
};

const Amount kAmounts[] = {
    {"Win:", gdblWin},
    {"Loss:", gdblLoss},
    {"Bal:", gdblBalance},
    {"Large:", gdblLargest},
};

constexpr std::string_view kDatePrefix = "Date:";

constexpr std::string_view kWarning =
    "Tampering with this file will cause the program not to run correctly!";

std::string besideProgram(const char* name) {
    platform::Files& files = platform::current().files;
    return files.join(files.programDirectory(), name);
}

// Reports failures under `label`, but for the file that isn't there: that has an answer of its own.
auto reporting(const char* label, Answer fileNotFound) {
    return [=](const platform::RuntimeError& error) {
        return error.number == platform::FileNotFound
                   ? fileNotFound
                   : ShowErrorBox(error.number, error.description, label);
    };
}

// `text`, which is UTF-8, behind its first `count` characters.
std::string withoutFirst(std::size_t count, std::string text) {
    std::size_t at = 0;
    for (; count > 0; --count) {
        if (at >= text.size())
            throw platform::RuntimeError(platform::InvalidCall);
        const auto lead = static_cast<unsigned char>(text[at]);
        at += lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    }
    text.erase(0, at);
    return text;
}

void takeRow(std::span<const RowLine> known, const std::string& line, RowTexts& rows) {
    const auto match =
        std::ranges::find_if(known, [&](const RowLine& it) { return line.starts_with(it.begins); });
    if (match != known.end())
        rows[match->row] = withoutFirst(match->prefix, platform::current().locale.fromBytes(line));
}

void takeWinLoss(std::string_view line) {
    const platform::Locale& locale = platform::current().locale;
    for (const Amount& amount : kAmounts) {
        if (line.starts_with(amount.prefix)) {
            amount.value = CDbl(locale.fromBytes(line.substr(amount.prefix.size())));
            return;
        }
    }
    if (line.starts_with(kDatePrefix))
        gstrBankrollDate = locale.fromBytes(line.substr(kDatePrefix.size()));
}

// False at the end of the file. A read that fails again right behind one that was passed over is
// the end too: what gives nothing more would otherwise be asked about for ever.
bool readLine(platform::InputFile& file, std::string& line, bool passedOver) {
    try {
        return file.readLine(line);
    } catch (...) {
        if (!passedOver)
            throw;
        return false;
    }
}

// Stores what the line holds in its section. A line that holds nothing is none of our business.
void takeLine(Section section, const std::string& line) {
    switch (section) {
    case Section::None:
        break;
    case Section::StammNumbers:
        takeRow(kStammNumbersLines, line, gstrStammNumbers);
        break;
    case Section::Favorites:
        takeRow(kFavoritesLines, line, gstrFavorites);
        break;
    case Section::WinLoss:
        takeWinLoss(line);
        break;
    }
}

// The data file while it is written. It is looked for at the first use, so that a failure of that
// meets the step that it belongs to.
class NewDataFile {
public:
    platform::Replacement& operator*() {
        if (!file_)
            file_ = platform::current().files.replace(besideProgram("Quorvanta.txt"),
                                                      besideProgram("Quorvanta.bak"));
        return *file_;
    }
    platform::Replacement* operator->() { return &**this; }

private:
    std::unique_ptr<platform::Replacement> file_;
};

// Writes lines 1 to 32. `line` takes a function that gives the line's text.
template <class Line>
void writeBody(Line line) {
    const auto fixed = [&](std::string_view text) { line([=] { return std::string(text); }); };
    const auto rows = [&](std::string_view header, const RowTexts& texts) {
        fixed("");
        fixed(header);
        for (int row = 1; row <= kRows; ++row)
            line([&] { return std::to_string(row) + "." + texts[row]; });
    };

    line([] { return ShortDateTime(platform::current().clock.now()); });
    fixed(kWarning);
    rows(kStammNumbersHeader, gstrStammNumbers);
    rows(kFavoritesHeader, gstrFavorites);
    fixed("");
    fixed(kWinLossHeader);
    for (const Amount& amount : kAmounts)
        line([&] { return std::string(amount.prefix) + CStr(amount.value); });
}

} // namespace

void cQuorvantaLite::WriteLottoFile() {
    trappedWith(reporting("WriteLottoFile", Answer::Ignore), [](auto step) {
        const platform::Platform& os = platform::current();
        step([&] { os.files.changeDirectory(os.files.programDirectory()); });

        NewDataFile file;
        step([&] { file->discardOld(); });
        step([&] { file->open(); });
        const auto line = [&](auto text) {
            step([&] { file->writeLine(os.locale.toBytes(text())); });
        };
        writeBody(line);
        step([&] {
            if (gstrBankrollDate.empty())
                gstrBankrollDate = ShortDate(os.clock.now());
        });
        line([] { return std::string(kDatePrefix) + gstrBankrollDate; });
        step([&] { file->close(); });
    });
}

void cQuorvantaLite::ReadLottoFile() {
    trappedWith(reporting("ReadLottoFile", Answer::Abort), [](auto step) {
        std::unique_ptr<platform::InputFile> file;
        step(
            [&] { file = platform::current().files.openForInput(besideProgram("Quorvanta.txt")); });
        if (!file)
            return;

        Section section = Section::None;
        std::string line;
        for (bool passedOver = false;;) {
            std::optional<bool> read; // nothing if the step was passed over
            step([&] { read = readLine(*file, line, passedOver); });
            passedOver = !read;
            if (passedOver)
                continue;
            if (!*read)
                return;
            const auto header = std::ranges::find(kHeaders, line, &Header::line);
            if (header != std::end(kHeaders))
                section = header->opens;
            step([&] { takeLine(section, line); });
        }
    });
}

} // namespace quorvanta
