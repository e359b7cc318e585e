// The start of the program against that of a bare window, in turns; a start that is refused against
// one that isn't; memory with a page open; processor time while idle. Both are copied into a
// directory of their own and watched from outside. Other programs are measured beside them.
// Usage: start_bench program bare-window [turns [other-program...]]
#include "bench/Figures.h"
#include "bench/Watched.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace bench;
using namespace std::chrono_literals;

// A home that has never seen the program.
struct Home {
    fs::path path;

    Home() {
        std::string name = (fs::temp_directory_path() / "startbenchXXXXXX").string();
        if (!mkdtemp(name.data()))
            throw std::runtime_error("no temporary directory");
        path = name;
        for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
            setenv(variable, name.c_str(), 1);
    }
    ~Home() { fs::remove_all(path); }
    Home(const Home&) = delete;
    Home& operator=(const Home&) = delete;

    std::string copy(const char* program) const {
        const fs::path to = path / fs::path(program).filename();
        fs::copy_file(program, to);
        return to.string();
    }
    std::map<std::string, fs::file_time_type> files() const {
        std::map<std::string, fs::file_time_type> all;
        for (const auto& entry : fs::recursive_directory_iterator(path))
            all[entry.path()] = entry.last_write_time();
        return all;
    }
};

struct Start {
    Figures processor, wall, refusedProcessor, refusedWall;
};

// A start up to the first window; of the program also a second start while the first is up.
void start(const std::string& program, Start& figures, const Home* refusedIn) {
    Watched it(program);
    it.waitUntilShown();
    figures.processor.add(it.processorTime());
    figures.wall.add(it.wallTime());
    if (!refusedIn)
        return;
    const auto before = refusedIn->files();
    Watched second(program);
    const Watched::End end = second.waitUntilEnded();
    if (end.status != 0 || refusedIn->files() != before)
        throw std::runtime_error("the second start was not refused, or has written");
    figures.refusedProcessor.add(end.processorTime);
    figures.refusedWall.add(end.wallTime);
}

void click(std::uint32_t window, int x, int y) {
    const std::string command = "xdotool mousemove --window " + std::to_string(window) + " " +
                                std::to_string(x) + " " + std::to_string(y) + " click 1";
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error("xdotool failed");
}

struct Page {
    const char* name;
    int button; // where its button lies on the toolbar, in points from the left
    int white;  // points of its board, its grid or its boxes, which tell that it is there
};
constexpr Page kPages[] = {{"6 From 49", 20, 49 * 30 * 25},
                           {"Customize 6", 64, 49 * 30 * 25},
                           {"Favorites", 104, 200 * 100},
                           {"Bankroll", 144, 4 * 80 * 10}};

// The frame with a page open.
std::unique_ptr<Watched> withPageOpen(const std::string& program, const Page& page) {
    auto it = std::make_unique<Watched>(program);
    const auto splash = it->waitUntilShown();
    const auto frame = it->waitUntilShown(splash);
    click(frame, page.button, 45);
    it->waitUntilQuiet();
    if (Watched::whitePoints(frame) < page.white)
        throw std::runtime_error("the page didn't open");
    return it;
}

bool starts(const std::string& program, const std::string& bare, int turns, const Home& home) {
    Start ours, theirs;
    start(program, ours, nullptr); // the first read of the files from the disk counts for nobody
    start(bare, theirs, nullptr);
    ours = theirs = {};
    for (int i = 0; i < turns; ++i) {
        start(program, ours, &home);
        start(bare, theirs, nullptr);
    }
    tell("start to splash, processor time", ours.processor, "ms");
    tell("bare window, processor time", theirs.processor, "ms");
    tell("start to splash, wall time", ours.wall, "ms");
    tell("bare window, wall time", theirs.wall, "ms");
    tell("refused start, processor time", ours.refusedProcessor, "ms");
    tell("refused start, wall time", ours.refusedWall, "ms");
    bool kept = keeps("start, processor time against a bare window",
                      ours.processor.median() / theirs.processor.median(), 1.2);
    kept &= keeps("refused start, processor time against a start",
                  ours.refusedProcessor.median() / ours.processor.median(), 0.5);
    kept &= keeps("refused start, wall time against a start",
                  ours.refusedWall.median() / ours.wall.median(), 0.5);
    return kept;
}

bool memory(const std::string& program, const std::string& bare, int turns, const Page& page) {
    Figures ours, theirs;
    for (int i = 0; i < turns; ++i) {
        ours.add(withPageOpen(program, page)->resident());
        Watched window(bare);
        window.waitUntilShown();
        theirs.add(window.resident());
    }
    tell(std::string("frame and ") + page.name + ", resident memory", ours, "MB");
    tell("bare window, resident memory", theirs, "MB");
    return keeps(std::string(page.name) + ", memory against a bare window",
                 ours.median() / theirs.median(), 1.25);
}

bool idle(const std::string& program, const Page& page) {
    const auto it = withPageOpen(program, page);
    std::this_thread::sleep_for(2s); // the mouse has come to rest
    const double before = it->processorTime();
    std::this_thread::sleep_for(10s);
    return keeps(std::string(page.name) + ", processor milliseconds in ten idle seconds",
                 it->processorTime() - before, 0);
}

// Programs of a like size, for comparison.
void others(const std::vector<std::string>& programs, int turns) {
    for (const std::string& program : programs) {
        Figures processor, wall, memory;
        for (int i = -1; i < turns; ++i) {
            Watched it(program);
            it.waitUntilShown();
            if (i < 0)
                continue; // the first read of its files from the disk
            processor.add(it.processorTime());
            wall.add(it.wallTime());
            memory.add(it.resident());
        }
        tell(program + ", processor time", processor, "ms");
        tell(program + ", wall time", wall, "ms");
        tell(program + ", resident memory", memory, "MB");
    }
}

} // namespace

int main(int count, char** arguments) {
    if (count < 3) {
        std::cerr << "usage: start_bench program bare-window [turns [other-program...]]\n";
        return 2;
    }
    const int turns = count > 3 ? std::atoi(arguments[3]) : 20;
    try {
        const Home home;
        const std::string program = home.copy(arguments[1]);
        const std::string bare = home.copy(arguments[2]);
        bool kept = starts(program, bare, turns, home);
        for (const Page& page : kPages) {
            kept &= memory(program, bare, turns, page);
            kept &= idle(program, page);
        }
        others({arguments + std::min(count, 4), arguments + count}, turns);
        return kept ? 0 : 1;
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << "\n";
        return 2;
    }
}
