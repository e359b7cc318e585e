// The fake platform with real files, in a directory of the test's own that goes with it.
#pragma once

#include "platform/linux/LinuxFiles.h"
#include "platform/linux/LinuxLocale.h"
#include "tests/support/FakePlatform.h"
#include "toolkit/Form.h"

#include <filesystem>
#include <fstream>

#include <stdlib.h>

namespace tests {

struct RealFiles : platform::LinuxFiles {
    std::string directory = (std::filesystem::temp_directory_path() / "quorvanta.XXXXXX").string();

    RealFiles() {
        if (!::mkdtemp(directory.data()))
            throw std::runtime_error("no temporary directory");
    }
    ~RealFiles() override {
        std::error_code failure;
        std::filesystem::remove_all(directory, failure);
    }
    RealFiles(const RealFiles&) = delete;

    std::string programDirectory() const override { return directory; }
    std::string path(const std::string& name) const { return join(directory, name); }
    std::string content(const std::string& name) const {
        std::ifstream file(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void create(const std::string& name, const std::string& text) const {
        std::ofstream(path(name), std::ios::binary) << text;
    }
};

struct RealFilesPlatform {
    FakePlatform fake;
    RealFiles files;
    platform::LinuxLocale locale;
    platform::Platform all{fake.process, fake.clock,   fake.random, fake.settings, files,
                           locale,       fake.machine, fake.shell,  fake.help};

    explicit RealFilesPlatform(const std::string& localeName = "en_US")
        : locale(platform::LocaleCategories::of(localeName)) {
        platform::install(&all);
        toolkit::App.Path = files.directory;
    }
};

} // namespace tests
