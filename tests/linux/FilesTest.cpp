#include "tests/support/FilesTest.h"

#include "platform/linux/LinuxSettings.h"

#include <pwd.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using tests::Texts;

struct LinuxFiles : tests::FilesTest {};

TEST_F(LinuxFiles, FailureHasTheNumberThatItsCauseTells) {
    ASSERT_EQ(::mkfifo(files.path("pipe").c_str(), 0666), 0);
    fs::create_directory(files.path("shut"));
    files.create("shut/file", "");
    for (const char* name : {"pipe", "shut/file"})
        fs::permissions(files.path(name), fs::perms(0666));
    fs::permissions(files.path("shut"), fs::perms(0555));
    fs::permissions(files.directory, fs::perms(0777));
    // Root may write everywhere, and only root can become another user here.
    EXPECT_EQ(::seteuid(65534), ::getuid() == 0 ? 0 : -1);
    EXPECT_EQ(numbersOf("shut/file"), "0 76 70 0 70 ");
    EXPECT_EQ(numbersOf("pipe"), "75 76 0 75 0 ");
    EXPECT_EQ(numberOf([&] { files.openForInput("/dev/zero"); }), 75);
    EXPECT_EQ(::seteuid(::getuid()), 0);
}

TEST_F(LinuxFiles, SavedFileKeepsItsRightsAndItsLink) {
    fs::create_directory(files.path("elsewhere"));
    fs::create_symlink("elsewhere/data", files.path("Quorvanta.txt"));
    files.create("dear", "dear");
    fs::create_hard_link(files.path("dear"), files.path("elsewhere/data.spare"));
    for (const char* row : {"first", "second", "third", "fourth"}) {
        saveRow(row);
        EXPECT_NE(files.content("elsewhere/data").find(row), std::string::npos);
    }
    fs::permissions(files.path("Quorvanta.txt"), fs::perms(0640));
    saveRow("fifth");
    EXPECT_EQ(fs::status(files.path("Quorvanta.txt")).permissions(), fs::perms(0640));
    EXPECT_TRUE(fs::is_symlink(files.path("Quorvanta.txt")));
    EXPECT_EQ(files.content("dear"), "dear") << "shared its bytes with a spare";
    EXPECT_EQ(boxes.takeReports(), Texts());
}

TEST_F(LinuxFiles, SettingsThatCanNotBeReadAreReportedAndNotTakenForMissingOnes) {
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

TEST(Settings, GoToTheUsersOwnHomeAlsoWhereNobodyTellsIt) {
    const std::string told = ::getenv("HOME") ? ::getenv("HOME") : "";
    ::unsetenv("HOME");
    tests::FakeHelp help;
    platform::makePlatform(help);
    EXPECT_STREQ(::getenv("HOME"), ::getpwuid(::getuid())->pw_dir);
    ::setenv("HOME", told.c_str(), 1);
}

} // namespace
