// Reads data files that a generator has spoilt, and writes what was read. What was read must come
// back as it was written, whatever the file held.
//
// Built as it is, the program makes its own inputs: --runs N --seed S --locale NAME. Built with
// -fsanitize=fuzzer and QUORVANTA_LIBFUZZER defined, the fuzzer of the compiler makes them.
#include "storage/cQuorvantaLite.h"
#include "tests/support/DataFile.h"
#include "tests/support/RealFiles.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>

namespace {

std::string localeName = "en_US";

std::string readAndSave(const tests::RealFiles& files) {
    quorvanta::ResetSharedState();
    quorvanta::cQuorvantaLite().ReadLottoFile();
    quorvanta::cQuorvantaLite().WriteLottoFile();
    return files.content("Quorvanta.txt");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static tests::RealFilesPlatform system(localeName);
    static tests::ErrorBoxes boxes;
    boxes.last = toolkit::Ignore;
    const std::string input(reinterpret_cast<const char*>(data), size);
    system.files.create("Quorvanta.txt", input);
    const std::string first = readAndSave(system.files);
    boxes.boxes.clear();
    if (readAndSave(system.files) != first || !boxes.boxes.empty()) {
        std::cerr << "What was saved did not come back, after reading:\n" << input << "\n";
        std::abort();
    }
    return 0;
}

#ifndef QUORVANTA_LIBFUZZER

namespace {

void spoilOnce(std::string& text, std::mt19937_64& random) {
    static const std::string kWords =
        "[StammNumbers]\r\n|[Favorites]\r\n|[Win/Loss]\r\n|[Other]\r\n|\r\n7\r\n|\r\n10\r\n|\r|\n|"
        "10.|Win:|Bal:|Date:|1e308|1E-320|-|,5|.5|270,5|99999999999999999999|\xA0|";
    const auto below = [&](std::size_t limit) { return random() % limit; };
    const std::size_t at = below(text.size() + 1), length = below(40), way = below(4);
    if (way == 0) {
        text.replace(at, below(2), 1, static_cast<char>(below(256)));
    } else if (way == 1) {
        text.erase(at, below(20) == 0 ? text.npos : length);
    } else if (way == 2) {
        text.insert(below(text.size() + 1), text.substr(at, length));
    } else {
        std::string word;
        std::istringstream words(kWords);
        for (auto place = 1 + below(20); place > 0; --place)
            std::getline(words, word, '|');
        text.insert(at, word);
    }
}

} // namespace

int main(int count, char** arguments) {
    std::uint64_t runs = 2000, seed = 1;
    for (int i = 1; i + 1 < count; i += 2) {
        const std::string name = arguments[i], value = arguments[i + 1];
        if (name == "--locale")
            localeName = value;
        else
            (name == "--runs" ? runs : seed) = std::stoull(value);
    }
    for (std::uint64_t run = seed; run < seed + runs; ++run) {
        std::mt19937_64 random(run);
        std::string text = tests::wholeFile();
        for (auto spoils = 1 + random() % 8; spoils > 0; --spoils)
            spoilOnce(text, random);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    }
    std::cout << runs << " files read, seeds " << seed << " to " << seed + runs - 1 << "\n";
}

#endif
