// A platform in memory, with switches for what a test wants to see fail. Constructing one installs
// it; its end takes it away.
#pragma once

#include "platform/Platform.h"
#include "platform/RuntimeError.h"

#include <deque>
#include <functional>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace tests {

// Thrown where the real process would end, so that nothing behind it runs.
struct ProcessEnded {};

// The number of the failure that an operation raises, or 0.
inline int numberOf(const std::function<void()>& operation) {
    try {
        operation();
        return 0;
    } catch (const platform::RuntimeError& error) {
        return error.number;
    }
}

struct FakeProcess : platform::Process {
    bool prevInstance(const std::string& /*directory*/) override { return false; }
    void whenAskedToEnd(std::function<void()> /*wanted*/) override {}
    void whenDisplayEnds(std::function<void()> /*ended*/) override {}
    [[noreturn]] void end() override { throw ProcessEnded{}; }
};

struct FakeClock : platform::Clock {
    platform::DateTime now() const override { return {2005, 7, 25, 18, 42, 7}; }
};

// Gives the values of `script` first, then those of a generator with a fixed seed.
struct FakeRandom : platform::Random {
    std::deque<float> script;
    std::mt19937 engine{1};
    int seeds = 0;
    bool broken = false; // it can't be seeded

    void seed() override {
        ++seeds;
        if (broken)
            throw platform::RuntimeError(platform::DeviceError);
    }
    float next() override {
        if (script.empty())
            return static_cast<float>(engine() >> 8) * 0x1p-24F;
        const float r = script.front();
        script.pop_front();
        return r;
    }
};

struct FakeSettings : platform::Settings {
    std::map<std::string, std::string> values; // by "application/section/key"
    bool broken = false;                       // nothing can be saved

    std::string get(const std::string& application, const std::string& section,
                    const std::string& key, const std::string& fallback) const override {
        const auto it = values.find(application + "/" + section + "/" + key);
        return it == values.end() ? fallback : it->second;
    }
    void save(const std::string& application, const std::string& section, const std::string& key,
              const std::string& value) override {
        if (broken)
            throw platform::RuntimeError(platform::PermissionDenied);
        values[application + "/" + section + "/" + key] = value;
    }
};

// Files by path, below the program's directory "/app". `fault` is asked before each operation, by
// the operation's name and the path, and may throw.
struct FakeFiles : platform::Files {
    std::map<std::string, std::string> content;
    std::string directory = "/";
    std::function<void(const std::string& operation, const std::string& path)> fault;

    void check(const std::string& operation, const std::string& path) const {
        if (fault)
            fault(operation, path);
    }
    void checkThere(const std::string& operation, const std::string& path) const {
        check(operation, path);
        if (!exists(path))
            throw platform::RuntimeError(platform::FileNotFound);
    }

    struct Input : platform::InputFile {
        const FakeFiles& files;
        std::string path;
        std::istringstream text;

        Input(const FakeFiles& f, const std::string& p)
            : files(f), path(p), text(f.content.at(p)) {}
        bool readLine(std::string& line) override {
            files.check("readLine", path);
            const bool any = bool(std::getline(text, line, '\r'));
            if (text.peek() == '\n')
                text.get();
            return any;
        }
    };
    // A file being appended to, or being replaced.
    struct Output : platform::OutputFile, platform::Replacement {
        FakeFiles& files;
        std::string path, text;
        bool fromOld = true;

        Output(FakeFiles& f, const std::string& p) : files(f), path(p) {}
        void discardOld() override {
            files.check("remove", path);
            fromOld = false;
            if (!files.exists(path))
                throw platform::RuntimeError(platform::FileNotFound);
        }
        void open() override {
            files.check("openForAppend", path);
            text = fromOld ? files.content[path] : "";
        }
        void writeLine(std::string_view line) override {
            files.check("writeLine", path);
            text.append(line).append("\r\n");
        }
        void close() override {
            files.check("close", path);
            files.content[path] = text;
        }
    };

    std::string programDirectory() const override { return "/app"; }
    std::string join(const std::string& d, const std::string& name) const override {
        return d + "/" + name;
    }
    void changeDirectory(const std::string& d) override {
        check("changeDirectory", d);
        directory = d;
    }
    bool exists(const std::string& path) const override { return content.contains(path); }
    void remove(const std::string& path) override {
        checkThere("remove", path);
        content.erase(path);
    }
    std::unique_ptr<platform::InputFile> openForInput(const std::string& path) override {
        checkThere("openForInput", path);
        return std::make_unique<Input>(*this, path);
    }
    std::unique_ptr<platform::OutputFile> openForAppend(const std::string& path) override {
        auto file = std::make_unique<Output>(*this, path);
        file->open();
        return file;
    }
    std::unique_ptr<platform::Replacement> replace(const std::string& path,
                                                   const std::string& /*backup*/) override {
        return std::make_unique<Output>(*this, path);
    }
};

// An American user's locale by default; a test changes the items it wants otherwise. Text is taken
// for ASCII.
struct FakeLocale : platform::Locale {
    std::map<int, std::string> items{{13, "1"},  {14, "."},           {15, ","}, {29, "/"},
                                     {30, ":"},  {31, "M/d/yyyy"},    {33, "0"}, {40, "AM"},
                                     {41, "PM"}, {4099, "h:mm:ss tt"}};

    std::optional<std::string> GetLocaleInfoA(int, int item) const override {
        const auto it = items.find(item);
        return it == items.end() ? std::nullopt : std::optional(it->second);
    }
    std::string upperCase(std::string_view text) const override {
        std::string capitals(text);
        for (char& c : capitals)
            c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        return capitals;
    }
    std::string fromBytes(std::string_view bytes) const override { return std::string(bytes); }
    std::string toBytes(std::string_view text) const override { return std::string(text); }
};

struct FakeMachine : platform::Machine {
    std::string user = "leipreir", computer = "OFFICE1", windows = "/usr/bin", system = "/usr/sbin";
    bool broken = false; // its directories can't even be asked for

    const std::string& directory(const std::string& path) const {
        return broken ? throw platform::RuntimeError(platform::PathNotFound) : path;
    }
    std::optional<std::string> GetUserNameA() const override { return user; }
    std::optional<std::string> GetComputerNameA() const override { return computer; }
    std::optional<std::string> GetWindowsDirectoryA() const override { return directory(windows); }
    std::optional<std::string> GetSystemDirectoryA() const override { return directory(system); }
};

// Keeps what it is asked for.
struct FakeShell : platform::Shell {
    int answer = 42;
    bool broken = false; // addresses can't even be handed over
    std::vector<std::string> opened, started;

    int ShellExecuteA(std::uintptr_t, const char* operation, const char* file, const char*,
                      const char*, int) override {
        if (broken)
            throw platform::RuntimeError(platform::FileNotFound);
        opened.push_back(std::string(operation) + " " + file);
        return answer;
    }
    std::vector<std::string> calculators(const std::string& directory) const override {
        return {directory + "/sums", directory + "/abacus"};
    }
    void start(const std::string& path) override { started.push_back(path); }
};

struct NoPrinter : platform::Printing {
    std::unique_ptr<platform::PrintQueue> defaultPrinter() override {
        throw platform::RuntimeError(platform::PrinterError);
    }
};

struct FakeHelp : platform::Help {
    std::vector<std::string> files; // those shown

    bool WinHelpA(std::uintptr_t, const char* file, unsigned command, std::uintptr_t) override {
        if (command == platform::HELP_TAB)
            files.emplace_back(file);
        return true;
    }
};

struct FakePlatform {
    FakeProcess process;
    FakeClock clock;
    FakeRandom random;
    FakeSettings settings;
    FakeFiles files;
    FakeLocale locale;
    FakeMachine machine;
    FakeShell shell;
    NoPrinter printing;
    FakeHelp help;
    platform::Platform all{process, clock,   random, settings, files,
                           locale,  machine, shell,  printing, help};

    FakePlatform() { platform::install(&all); }
    ~FakePlatform() { platform::install(nullptr); }
    FakePlatform(const FakePlatform&) = delete;
};

} // namespace tests
