// The fake platform with the system's own files and locale, the files in a directory of the test's
// own that goes with it, and on a desktop whose boxes are error boxes.
#pragma once

#include "storage/cQuorvantaLite.h"
#include "tests/support/DataFile.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakePlatform.h"

#include <filesystem>
#include <fstream>

#ifdef _WIN32
#include "platform/windows/WindowsFiles.h"
#include "platform/windows/WindowsLocale.h"
#else
#include "platform/linux/LinuxFiles.h"
#include "platform/linux/LinuxLocale.h"
#endif

namespace tests {

// The user's locale by a name such as "de_DE".
#ifdef _WIN32
using SystemFiles = platform::WindowsFiles;
platform::WindowsLocale localeNamed(const std::string& name);
#else
using SystemFiles = platform::LinuxFiles;
inline platform::LinuxLocale localeNamed(const std::string& name) {
    return platform::LinuxLocale(platform::LocaleCategories::of(name));
}
#endif

// In the locale's code page.
inline std::string valueOf(const platform::Locale& locale, int item) {
    return locale.toBytes(locale.GetLocaleInfoA(platform::LOCALE_USER_DEFAULT, item).value_or(""));
}

// Of the items from `first` on, each behind a bar: as many as `like` has bars.
inline std::string valuesOf(const platform::Locale& locale, int first, std::string_view like) {
    std::string values;
    const auto count = static_cast<int>(std::ranges::count(like, '|'));
    for (int item = first; item < first + count; ++item)
        values.append("|").append(valueOf(locale, item));
    return values;
}

struct RealFiles : SystemFiles {
    // Its name has characters of one, two and three bytes.
    std::string directory = join(std::filesystem::temp_directory_path().string(),
                                 "quorvanta ä日." + std::to_string(std::random_device()()));

    RealFiles() { std::filesystem::create_directory(own("")); }
    ~RealFiles() override {
        std::error_code failure;
        std::filesystem::remove_all(own(""), failure);
    }
    RealFiles(const RealFiles&) = delete;

    std::string programDirectory() const override { return directory; }
    std::string path(const std::string& name) const { return join(directory, name); }
    // The path as the standard library has it.
    std::filesystem::path own(const std::string& name) const {
        const std::string it = name.empty() ? directory : path(name);
        return std::u8string(it.begin(), it.end());
    }
    std::string content(const std::string& name) const {
        std::ifstream file(own(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void create(const std::string& name, const std::string& text) const {
        std::filesystem::create_directories(own(name).parent_path());
        std::ofstream(own(name), std::ios::binary) << text;
    }
};

struct RealFilesPlatform {
    FakePlatform fake;
    RealFiles files;
    FakeDesktop boxes;
    decltype(localeNamed("")) locale;
    platform::Platform all{fake.process, fake.clock,   fake.random, fake.settings, files,
                           locale,       fake.machine, fake.shell,  fake.printing, fake.help};

    explicit RealFilesPlatform(const std::string& localeName = "en_US")
        : locale(localeNamed(localeName)) {
        platform::install(&all);
        toolkit::install(&boxes);
        toolkit::App.Path = files.directory;
        forgetStored();
    }
    ~RealFilesPlatform() { toolkit::install(nullptr); }
    RealFilesPlatform(const RealFilesPlatform&) = delete;
};

// The data file's routines, and single operations, on real files.
struct FilesTest : RealFilesPlatform {
    void saveRow(const std::string& row) {
        quorvanta::gstrFavorites[1] = row;
        quorvanta::cQuorvantaLite().WriteLottoFile();
    }
    std::string dataFile() { return files.content("Quorvanta.txt"); }

    // The numbers of reading, entering, replacing, appending and removing.
    Texts::value_type numbersOf(const std::string& name) {
        const std::string path = files.path(name);
        std::string numbers;
        const std::function<void()> operations[] = {
            [&] { files.openForInput(path); }, [&] { files.changeDirectory(path); },
            [&] { files.replace(path, path + "b")->discardOld(); },
            [&] { files.openForAppend(path); }, [&] { files.remove(path); }};
        for (const auto& operation : operations)
            numbers += std::to_string(numberOf(operation)) + " ";
        return numbers;
    }
};

} // namespace tests
