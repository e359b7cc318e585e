#include "platform/linux/LinuxSettings.h"
#include "storage/cQuorvantaLite.h"
#include "tests/support/DataFile.h"
#include "tests/support/RealFiles.h"

#include <gtest/gtest.h>

#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

struct Files : testing::Test {
    tests::RealFilesPlatform system;
    tests::RealFiles& files = system.files;
    tests::ErrorBoxes boxes;

    Files() { tests::forgetStored(); }

    void saveRow(const std::string& row) {
        quorvanta::gstrFavorites[1] = row;
        quorvanta::cQuorvantaLite().WriteLottoFile();
    }
    std::string dataFile() { return files.content("Quorvanta.txt"); }
};

int numberOf(const std::function<void()>& operation) {
    try {
        operation();
        return 0;
    } catch (const platform::RuntimeError& error) {
        return error.number;
    }
}

TEST_F(Files, LineEndsAtCarriageReturnAlone) {
    const std::string zero("a\0b", 3), buffer(65535, 'x'), longLine(1 << 20, 'y');
    const auto lines = [&](const std::string& text) {
        files.create("text", text);
        Texts result;
        std::string line;
        for (auto file = files.openForInput(files.path("text")); file->readLine(line);)
            result.push_back(line);
        return result;
    };
    EXPECT_EQ(lines(""), Texts());
    EXPECT_EQ(lines("a\r\nb\rc"), Texts({"a", "b", "c"}));
    EXPECT_EQ(lines("\n\r\n\n\r\r\n"), Texts({"\n", "\n", ""}));
    EXPECT_EQ(lines(zero + "\r"), Texts({zero}));
    EXPECT_EQ(lines(buffer + "\r\nb"), Texts({buffer, "b"})) << "split between two reads";
    EXPECT_EQ(lines(longLine + "\r\n" + longLine), Texts({longLine, longLine}));
}

TEST_F(Files, FailureHasTheNumberThatItsCauseTells) {
    fs::create_directory(files.path("directory"));
    ASSERT_EQ(::mkfifo(files.path("pipe").c_str(), 0666), 0);
    fs::create_directory(files.path("shut"));
    files.create("file", "");
    files.create("shut/file", "");
    for (const char* name : {"pipe", "file", "shut/file"})
        fs::permissions(files.path(name), fs::perms(0666));
    fs::permissions(files.path("shut"), fs::perms(0555));
    fs::permissions(files.directory, fs::perms(0777));
    // Root may write everywhere, and only root can become another user here.
    EXPECT_EQ(::seteuid(65534), ::getuid() == 0 ? 0 : -1);
    // The numbers of reading, entering, replacing, appending and removing.
    for (const auto& [name, numbers] : {std::pair("missing", std::vector{53, 76, 53, 0, 0}),
                                        {"no/where", {76, 76, 76, 76, 76}},
                                        {"file/where", {76, 76, 76, 76, 76}},
                                        {"directory", {75, 0, 75, 75, 75}},
                                        {"shut/file", {0, 76, 70, 0, 70}},
                                        {"pipe", {75, 76, 0, 75, 0}}}) {
        const std::string path = files.path(name);
        const std::vector found{numberOf([&] { files.openForInput(path); }),
                                numberOf([&] { files.changeDirectory(path); }),
                                numberOf([&] { files.replace(path, path + "b")->discardOld(); }),
                                numberOf([&] { files.openForAppend(path); }),
                                numberOf([&] { files.remove(path); })};
        EXPECT_EQ(found, numbers) << name;
    }
    EXPECT_EQ(numberOf([&] { files.openForInput("/dev/zero"); }), 75);
    EXPECT_EQ(::seteuid(::getuid()), 0);
}

TEST_F(Files, AppendedLinesStandBehindWhatWasThere) {
    for (const char* line : {"one", "two"}) {
        auto file = files.openForAppend(files.path("log"));
        file->writeLine(line);
        file->close();
    }
    files.openForAppend(files.path("log"))->writeLine("given up");
    EXPECT_EQ(files.content("log"), "one\r\ntwo\r\n");
}

TEST_F(Files, SavedFileKeepsItsRightsItsLinkAndTheContentBefore) {
    fs::create_directory(files.path("elsewhere"));
    fs::create_symlink("elsewhere/data", files.path("Quorvanta.txt"));
    files.create("dear", "dear");
    fs::create_hard_link(files.path("dear"), files.path("elsewhere/data.spare"));
    for (const char* row : {"first", "second", "third", "fourth"}) {
        const std::string before = dataFile();
        saveRow(row);
        EXPECT_NE(files.content("elsewhere/data").find(row), std::string::npos);
        EXPECT_EQ(files.content("Quorvanta.bak"), before);
    }
    fs::permissions(files.path("Quorvanta.txt"), fs::perms(0640));
    saveRow("fifth");
    EXPECT_EQ(fs::status(files.path("Quorvanta.txt")).permissions(), fs::perms(0640));
    EXPECT_TRUE(fs::is_symlink(files.path("Quorvanta.txt")));
    EXPECT_EQ(files.content("dear"), "dear") << "shared its bytes with a spare";
    EXPECT_EQ(boxes.takeReports(), Texts());
}

TEST_F(Files, SettingsThatCanNotBeReadAreReportedAndNotTakenForMissingOnes) {
    ::setenv("XDG_CONFIG_HOME", files.directory.c_str(), 1);
    platform::LinuxSettings settings;
    const auto get = [&] { return settings.get("Maker", "Title ", "system", "0"); };
    fs::create_directories(files.path("Maker/quorvanta.ini"));
    EXPECT_EQ(numberOf(get), 75);
    EXPECT_EQ(numberOf([&] { settings.save("Maker", "Title ", "system", "3"); }), 75);
    fs::remove(files.path("Maker/quorvanta.ini"));
    EXPECT_EQ(get(), "0");
    settings.save("Maker", "Title ", "system", "3");
    EXPECT_EQ(get(), "3");
}

} // namespace
