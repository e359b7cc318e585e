// The data file's routines on the system's own files.
#pragma once

#include "storage/cQuorvantaLite.h"
#include "tests/support/DataFile.h"
#include "tests/support/RealFiles.h"

#include <gtest/gtest.h>

#include <functional>

namespace tests {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

struct FilesTest : testing::Test {
    RealFilesPlatform system;
    RealFiles& files = system.files;
    ErrorBoxes boxes;

    FilesTest() { forgetStored(); }

    void saveRow(const std::string& row) {
        quorvanta::gstrFavorites[1] = row;
        quorvanta::cQuorvantaLite().WriteLottoFile();
    }
    std::string dataFile() { return files.content("Quorvanta.txt"); }

    static int numberOf(const std::function<void()>& operation) {
        try {
            operation();
            return 0;
        } catch (const platform::RuntimeError& error) {
            return error.number;
        }
    }

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
