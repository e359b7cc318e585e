// The time of saving the data file against that of putting the same bytes in its place with the
// plain system calls, as durably, in turns. Usage: save_bench [turns] [directory]
#include "storage/cQuorvantaLite.h"
#include "tests/support/RealFiles.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <iostream>
#include <span>

#include <fcntl.h>
#include <unistd.h>

namespace {

// The system's disk at rest before each turn, so that none pays for the turn before.
double microseconds(const std::function<void()>& turn) {
    ::sync();
    const auto start = std::chrono::steady_clock::now();
    turn();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start)
        .count();
}

void must(bool done) {
    if (!done)
        throw std::runtime_error("a system call failed");
}

void writeAndForce(const std::string& path, const std::string& text, int ifThere) {
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | ifThere, 0666);
    must(::write(fd, text.data(), text.size()) == static_cast<ssize_t>(text.size()));
    must(::fsync(fd) == 0);
    must(::close(fd) == 0);
}

void putInPlace(const std::string& fresh, const std::string& path, const std::string& directory) {
    must(::rename(fresh.c_str(), path.c_str()) == 0);
    const int fd = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    must(::fsync(fd) == 0 && ::close(fd) == 0);
}

struct Contender {
    const char* name;
    std::function<void(int)> turn;
    std::vector<double> times;

    double at(double share) {
        std::ranges::sort(times);
        return times[static_cast<std::size_t>(share * static_cast<double>(times.size() - 1))];
    }
};

// Prints the figures, and gives whether a save, the last contender, keeps its promise.
bool report(std::span<Contender> contenders) {
    const double plain = contenders.front().at(0.5);
    for (Contender& it : contenders)
        std::cout << it.name << ": median " << it.at(0.5) << ", 10% " << it.at(0.1) << ", 90% "
                  << it.at(0.9) << ", ratio " << it.at(0.5) / plain << "\n";
    return contenders.back().at(0.5) / plain <= 1.2;
}

} // namespace

int main(int count, char** arguments) {
    const int turns = count > 1 ? std::atoi(arguments[1]) : 300;
    if (count > 2)
        ::setenv("TMPDIR", arguments[2], 1);
    tests::RealFilesPlatform system;
    const std::string text = tests::wholeFile();
    system.files.create("Quorvanta.txt", text);
    quorvanta::cQuorvantaLite().ReadLottoFile();
    const auto path = [&](const char* name) { return system.files.path(name); };

    Contender contenders[] = {
        {"write aside, force, rename, force the directory",
         [&](int) {
             writeAndForce(path("aside"), text, O_EXCL);
             putInPlace(path("aside"), path("plain"), system.files.directory);
         },
         {}},
        {"write a new file and force it",
         [&](int turn) { writeAndForce(path("new") + std::to_string(turn), text, O_EXCL); },
         {}},
        {"save",
         [&](int turn) {
             quorvanta::gdblWin = turn;
             quorvanta::cQuorvantaLite().WriteLottoFile();
         },
         {}},
    };
    for (int turn = 0; turn < turns; ++turn)
        for (Contender& contender : contenders)
            contender.times.push_back(microseconds([&] { contender.turn(turn); }));
    must(system.boxes.boxes.empty());

    std::cout << turns << " turns of " << text.size() << " bytes, in microseconds\n";
    return report(contenders) ? 0 : 1;
}
