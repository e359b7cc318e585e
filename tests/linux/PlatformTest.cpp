#include "tests/support/RealFiles.h"

#include "platform/linux/LinuxMachine.h"
#include "platform/linux/LinuxSettings.h"
#include "platform/linux/LinuxShell.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include <fcntl.h>
#include <pwd.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using tests::Texts;

struct LinuxFiles : testing::Test, tests::FilesTest {};

TEST_F(LinuxFiles, FailureHasTheNumberThatItsCauseTells) {
    ASSERT_EQ(::mkfifo(files.path("pipe").c_str(), 0666), 0);
    files.create("shut/file", "");
    for (const char* name : {"pipe", "shut/file"})
        fs::permissions(files.path(name), fs::perms(0666));
    fs::permissions(files.path("shut"), fs::perms(0555));
    fs::permissions(files.directory, fs::perms(0777));
    // Root may write everywhere, and only root can become another user here.
    EXPECT_EQ(::seteuid(65534), ::getuid() == 0 ? 0 : -1);
    EXPECT_EQ(numbersOf("shut/file"), "0 76 70 0 70 ");
    EXPECT_EQ(numbersOf("pipe"), "75 76 0 75 0 ");
    EXPECT_EQ(tests::numberOf([&] { files.openForInput("/dev/zero"); }), 75);
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
    EXPECT_EQ(tests::numberOf(get), 75);
    EXPECT_EQ(tests::numberOf([&] { settings.save("Maker", "Title ", "system", "3"); }), 75);
    fs::remove(files.path("Maker/quorvanta.ini"));
    EXPECT_EQ(get(), "0");
    settings.save("Maker", "Title ", "system", "3");
    EXPECT_EQ(get(), "3");
}

TEST(Settings, GoToTheUsersOwnHomeAlsoWhereNobodyTellsIt) {
    const std::string told = ::getenv("HOME") ? ::getenv("HOME") : "";
    ::unsetenv("HOME");
    tests::FakeHelp help;
    platform::makePlatform(&help);
    EXPECT_STREQ(::getenv("HOME"), ::getpwuid(::getuid())->pw_dir);
    ::setenv("HOME", told.c_str(), 1);
}

TEST(LinuxMachine, KnowsItsUserItsNameAndTwoDirectories) {
    const platform::LinuxMachine machine;
    EXPECT_NE(machine.GetUserNameA().value_or(""), "");
    EXPECT_EQ(machine.GetComputerNameA().value_or(".").find('.'), std::string::npos);
    EXPECT_EQ(machine.GetWindowsDirectoryA(), "/usr/bin");
    EXPECT_EQ(machine.GetSystemDirectoryA(), "/usr/sbin");
}

struct Shell : testing::Test {
    tests::RealFiles files;
    platform::LinuxShell shell;

    Shell() { setenv("PATH", files.directory.c_str(), 1); }
    void opener(const std::string& script) {
        files.create("xdg-open", script);
        fs::permissions(files.path("xdg-open"), fs::perms::owner_all);
    }
    // Comes within seconds.
    void expectFile(const std::string& name) const {
        for (int i = 0; i < 500 && !fs::exists(files.own(name)); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        EXPECT_TRUE(fs::exists(files.own(name)));
    }
    int open(const std::string& address, const char* directory = nullptr) {
        return shell.ShellExecuteA(0, "open", address.c_str(), nullptr, directory, 1);
    }
};

TEST_F(Shell, GivesTheOpenerTheAddressAsItStandsAndLeavesItAlone) {
    opener("#!/bin/sh\necho out; echo err >&2; cd \"${0%/*}\"\n"
           "printf '%s|' \"$@\" >new; /bin/mv new noted; exec /bin/sleep 2\n");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const std::string address = "www.a.example/?q=$(touch${IFS}hit)&`id`;'\"|*>x#%20";
    EXPECT_GT(open(address), platform::kShellFailure);
    expectFile("noted");
    EXPECT_EQ(files.content("noted"), "http://" + address + "|");
    EXPECT_EQ(testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
}

TEST_F(Shell, TellsOfAnOpenerThatFailsAtOnceAndWaitsForNoOther) {
    struct {
        const char* script;
        bool opened;
        int least, most; // milliseconds
    } const openers[]{{"exit 0", true, 0, 400},
                      {"exit 3", false, 0, 400},
                      {"kill -9 $$", false, 0, 400},
                      {"/bin/sleep .2; exit 4", false, 200, 490},
                      {"/bin/sleep 3; exit 4", true, 490, 2500},
                      {"exec /bin/sleep 3 &", true, 0, 400}};
    const int ours =
        ::open(files.directory.c_str(), O_RDONLY); // not for the opener, though not CLOEXEC
    for (const auto& it : openers) {
        opener("#!/bin/sh\n[ -e /proc/self/fd/" + std::to_string(ours) + " ] && exit 5\n" +
               it.script + "\n");
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(open("https://a.example/") > platform::kShellFailure, it.opened) << it.script;
        const auto took = (std::chrono::steady_clock::now() - start) / std::chrono::milliseconds(1);
        EXPECT_GE(took, it.least) << it.script;
        EXPECT_LE(took, it.most) << it.script;
        EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
    }
    ::close(ours);
}

TEST_F(Shell, TellsWhyNothingWasOpened) {
    EXPECT_EQ(open("https://a.example/"), 31) << "no opener";
    opener("#!/bin/sh\n");
    EXPECT_EQ(open(""), 2);
    EXPECT_EQ(open("https://a.example/", "/no/such/directory"), 3);
    EXPECT_EQ(open("file:///etc/passwd"), 31);
    opener("#!/no/such/interpreter\n");
    EXPECT_EQ(open("mailto:a@a.example"), 2);
    EXPECT_THROW(shell.start(files.path("missing")), platform::RuntimeError);
}

TEST_F(Shell, FindsTheDesktopsOwnCalculatorFirstAndInTheMenuWhatBearsNoKnownName) {
    setenv("XDG_CURRENT_DESKTOP", "X:MATE", 1);
    setenv("XDG_DATA_HOME", files.directory.c_str(), 1);
    setenv("XDG_DATA_DIRS", files.path("system").c_str(), 1);
    const auto entry = [&](const std::string& name, const std::string& keys) {
        files.create(name, "[Desktop Entry]\nCategories=Utility;Calculator;\n" + keys +
                               "\n[Desktop Action x]\nExec=/bin/false\n");
    };
    const std::string note = "Exec=/bin/touch \"" + files.path("not ed") + "\" %U";
    entry("applications/a.desktop", note);
    entry("applications/hidden.desktop", note + "\nHidden=true");
    entry("applications/gone.desktop", note + "\nTryExec=/no/such/program");
    entry("system/applications/a.desktop", "Exec=/bin/false");
    entry("system/applications/hidden.desktop", note);
    files.create("applications/other.desktop", "[Desktop Entry]\nCategories=Math;\n" + note);

    const Texts paths = shell.calculators("/usr/bin");
    EXPECT_EQ(
        Texts(paths.begin(), paths.begin() + 3),
        (Texts{"/usr/bin/mate-calc", "/usr/local/bin/mate-calc", "/usr/bin/gnome-calculator"}));
    EXPECT_EQ(std::ranges::count(paths, "/usr/bin/gnome-calculator"), 1);
    EXPECT_EQ(Texts(paths.end() - 2, paths.end()),
              (Texts{"/usr/local/bin/xcalc", files.path("applications/a.desktop")}));
    EXPECT_EQ(shell.calculators("/usr/sbin").back(), "/usr/sbin/xcalc");

    shell.start(paths.back());
    expectFile("not ed");
    EXPECT_THROW(shell.start(files.path("applications/gone.desktop")), platform::RuntimeError);
}

} // namespace
