// Reads data files that a generator has spoilt, and writes what was read. What was read must come
// back as it was written, whatever the file held.
//
// Built as it is, the program makes its own inputs: --runs N --seed S --locale NAME. Built with
// -fsanitize=fuzzer and QUORVANTA_LIBFUZZER defined, the fuzzer of the compiler makes them.
#include "storage/cQuorvantaLite.h"
#include "tests/support/DataFile.h"
#include "tests/support/RealFiles.h"

#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <iostream>

namespace {

std::string localeName = "en_US";

void check(bool holds, const char* what, const std::string& input) {
    if (holds)
        return;
    std::cerr << what << ", after reading:\n" << input << "\n";
    std::abort();
}

// The file as it stands, without its first line: the time.
std::string written(const tests::RealFiles& files) {
    quorvanta::cQuorvantaLite().WriteLottoFile();
    return files.content("Quorvanta.txt").substr(files.content("Quorvanta.txt").find('\n'));
}

void readAnew() {
    quorvanta::ResetSharedState();
    quorvanta::cQuorvantaLite().ReadLottoFile();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static tests::RealFilesPlatform system(localeName);
    static tests::ErrorBoxes boxes;
    boxes.last = toolkit::Ignore;
    const std::string input(reinterpret_cast<const char*>(data), size);
    system.files.create("Quorvanta.txt", input);
    readAnew();

    boxes.prompts.clear();
    const std::string first = written(system.files);
    const auto rows = std::pair(quorvanta::gstrStammNumbers, quorvanta::gstrFavorites);
    const std::string date = quorvanta::gstrBankrollDate;
    readAnew();
    check(rows == std::pair(quorvanta::gstrStammNumbers, quorvanta::gstrFavorites) &&
              date == quorvanta::gstrBankrollDate,
          "a row or the date changed", input);
    check(written(system.files) == first, "a second save differs from the first", input);
    check(boxes.prompts.empty(), "the program can't read what it wrote", input);
    return 0;
}

#ifndef QUORVANTA_LIBFUZZER

namespace {

class Spoiler {
public:
    explicit Spoiler(std::uint64_t seed) : engine_(seed) {}

    std::string spoil(std::string text) {
        for (std::size_t count = 1 + below(8); count > 0; --count)
            spoilOnce(text);
        return text;
    }

private:
    std::size_t below(std::size_t limit) { return limit == 0 ? 0 : engine_() % limit; }

    void spoilOnce(std::string& text) {
        static const char* const kWords[] = {"[StammNumbers]\r\n",
                                             "[Favorites]\r\n",
                                             "[Win/Loss]\r\n",
                                             "[Other]\r\n",
                                             "\r",
                                             "\n",
                                             "\r\n",
                                             "1.",
                                             "2",
                                             "9",
                                             "10",
                                             "10.",
                                             "\r\n7\r\n",
                                             "Win:",
                                             "Loss:",
                                             "Bal:",
                                             "Large:",
                                             "Date:",
                                             "1e308",
                                             "1E-320",
                                             "-",
                                             ",5",
                                             ".5",
                                             "270,5",
                                             "99999999999999999999",
                                             "\xA0"};
        const std::size_t at = below(text.size() + 1), length = below(40);
        switch (below(6)) {
        case 0:
            text.insert(at, 1, static_cast<char>(below(256)));
            break;
        case 1:
            text.erase(at, length);
            break;
        case 2:
            text.insert(below(text.size() + 1), text.substr(at, length));
            break;
        case 3:
            if (at < text.size())
                text[at] = static_cast<char>(below(256));
            break;
        case 4:
            if (below(20) == 0)
                text.resize(at);
            break;
        default:
            text.insert(at, kWords[below(std::size(kWords))]);
        }
    }

    std::mt19937_64 engine_;
};

} // namespace

int main(int count, char** arguments) {
    long runs = 2000, seed = 1;
    for (int i = 1; i + 1 < count; i += 2) {
        const std::string_view name = arguments[i], value = arguments[i + 1];
        if (name == "--locale")
            localeName = value;
        else
            std::from_chars(value.data(), value.data() + value.size(),
                            name == "--runs" ? runs : seed);
    }
    const std::string whole = tests::wholeFile();
    for (long run = 0; run < runs; ++run) {
        const std::string text = Spoiler(static_cast<std::uint64_t>(seed + run)).spoil(whole);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    }
    std::cout << runs << " files read, seeds " << seed << " to " << seed + runs - 1 << "\n";
}

#endif
