// A platform in memory, with switches for what a test wants to see fail. Constructing one installs
// it; its end takes it away.
#pragma once

#include "platform/Platform.h"
#include "platform/RuntimeError.h"

#include <cstring>
#include <deque>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace tests {

// Thrown where the real process would end, so that nothing behind it runs.
struct ProcessEnded {};

struct FakeProcess : platform::Process {
    bool another = false;
    bool ended = false;

    bool prevInstance() const override { return another; }
    [[noreturn]] void end() override {
        ended = true;
        throw ProcessEnded{};
    }
};

struct FakeClock : platform::Clock {
    platform::DateTime time{2005, 7, 25, 18, 42, 7};

    platform::DateTime now() const override { return time; }
};

// Gives the values of `script` first, then those of a generator with a fixed seed.
struct FakeRandom : platform::Random {
    std::deque<float> script;
    std::mt19937 engine{1};
    int seeds = 0;

    void seed() override { ++seeds; }
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
    int saves = 0;

    static std::string name(const std::string& a, const std::string& s, const std::string& k) {
        return a + "/" + s + "/" + k;
    }
    std::string get(const std::string& a, const std::string& s, const std::string& k,
                    const std::string& fallback) const override {
        const auto it = values.find(name(a, s, k));
        return it == values.end() ? fallback : it->second;
    }
    void save(const std::string& a, const std::string& s, const std::string& k,
              const std::string& value) override {
        ++saves;
        values[name(a, s, k)] = value;
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

    struct Input : platform::InputFile {
        const FakeFiles& files;
        std::string path, rest;
        std::size_t at = 0;

        Input(const FakeFiles& f, std::string p, std::string text)
            : files(f), path(std::move(p)), rest(std::move(text)) {}
        bool readLine(std::string& line) override {
            files.check("readLine", path);
            if (at >= rest.size())
                return false;
            const std::size_t end = std::min(rest.find('\r', at), rest.size());
            line = rest.substr(at, end - at);
            at = end + 1;
            if (at < rest.size() && rest[at] == '\n')
                ++at;
            return true;
        }
    };
    struct Output : platform::OutputFile {
        FakeFiles& files;
        std::string path;

        Output(FakeFiles& f, std::string p) : files(f), path(std::move(p)) {}
        void writeLine(std::string_view line) override {
            files.check("writeLine", path);
            files.content[path] += std::string(line) + "\r\n";
        }
        void close() override { files.check("close", path); }
    };
    struct NewContent : platform::Replacement {
        FakeFiles& files;
        std::string path, backup, text;
        bool fromOld = true;

        NewContent(FakeFiles& f, std::string p, std::string b)
            : files(f), path(std::move(p)), backup(std::move(b)) {}
        void discardOld() override {
            files.check("remove", path);
            fromOld = false;
            if (!files.exists(path))
                throw platform::RuntimeError(platform::FileNotFound);
        }
        void open() override {
            files.check("openForAppend", path);
            text = fromOld ? files.content[path] : std::string();
        }
        void writeLine(std::string_view line) override {
            files.check("writeLine", path);
            text += std::string(line) + "\r\n";
        }
        void close() override {
            files.check("close", path);
            if (files.exists(path))
                files.content[backup] = files.content[path];
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
        check("remove", path);
        if (content.erase(path) == 0)
            throw platform::RuntimeError(platform::FileNotFound);
    }
    std::unique_ptr<platform::InputFile> openForInput(const std::string& path) override {
        check("openForInput", path);
        if (!exists(path))
            throw platform::RuntimeError(platform::FileNotFound);
        return std::make_unique<Input>(*this, path, content[path]);
    }
    std::unique_ptr<platform::OutputFile> openForAppend(const std::string& path) override {
        check("openForAppend", path);
        content[path];
        return std::make_unique<Output>(*this, path);
    }
    std::unique_ptr<platform::Replacement> replace(const std::string& path,
                                                   const std::string& backup) override {
        return std::make_unique<NewContent>(*this, path, backup);
    }
};

// An American user's locale by default; a test changes the items it wants otherwise. Text is taken
// for ASCII.
struct FakeLocale : platform::Locale {
    std::map<int, std::string> items{{1, "0409"},
                                     {14, "."},
                                     {15, ","},
                                     {29, "/"},
                                     {30, ":"},
                                     {31, "M/d/yyyy"},
                                     {33, "0"},
                                     {36, "1"},
                                     {4099, "h:mm:ss tt"},
                                     {40, "AM"},
                                     {41, "PM"},
                                     {13, "1"},
                                     {32, "dddd, MMMM d, yyyy"},
                                     {12, ","}};

    int GetLocaleInfoA(int, int item, char* buffer, int size) const override {
        const auto it = items.find(item);
        if (it == items.end() || static_cast<int>(it->second.size()) >= size)
            return 0;
        std::memcpy(buffer, it->second.c_str(), it->second.size() + 1);
        return static_cast<int>(it->second.size()) + 1;
    }
    std::string fromBytes(std::string_view bytes) const override { return std::string(bytes); }
    std::string toBytes(std::string_view text) const override { return std::string(text); }
};

struct FakeMachine : platform::Machine {
    std::string user = "leipreir", computer = "OFFICE1", windows = "/usr/bin", system = "/usr/sbin";

    static int copy(const std::string& text, char* buffer, int size) {
        if (static_cast<int>(text.size()) >= size)
            return 0;
        std::memcpy(buffer, text.c_str(), text.size() + 1);
        return static_cast<int>(text.size());
    }
    bool GetUserNameA(char* buffer, int size) const override { return copy(user, buffer, size); }
    bool GetComputerNameA(char* buffer, int size) const override {
        return copy(computer, buffer, size);
    }
    int GetWindowsDirectoryA(char* buffer, int size) const override {
        return copy(windows, buffer, size);
    }
    int GetSystemDirectoryA(char* buffer, int size) const override {
        return copy(system, buffer, size);
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
    platform::Platform all{process, clock, random, settings, files, locale, machine};

    FakePlatform() { platform::install(&all); }
    ~FakePlatform() { platform::install(nullptr); }
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;
};

} // namespace tests
