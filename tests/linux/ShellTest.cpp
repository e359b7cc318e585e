#include "platform/RuntimeError.h"
#include "platform/linux/LinuxShell.h"
#include "tests/support/RealFiles.h"

#include <gtest/gtest.h>

#include <chrono>
#include <sys/wait.h>
#include <thread>

namespace {

namespace fs = std::filesystem;

struct Shell : testing::Test {
    tests::RealFiles files;
    platform::LinuxShell shell;

    Shell() { setenv("PATH", files.directory.c_str(), 1); }
    void script(const std::string& name, const std::string& body,
                fs::perms permissions = fs::perms::owner_all) {
        files.create(name, "#!/bin/sh\n" + body);
        fs::permissions(files.path(name), permissions);
    }
    int open(const std::string& address, const char* directory = nullptr) {
        return shell.ShellExecuteA(0, "open", address.c_str(), nullptr, directory, 1);
    }
    // The file's content, once a started program has moved it into place.
    std::string waitFor(const std::string& name) {
        for (int i = 0; i < 500 && !fs::exists(files.path(name)); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return fs::exists(files.path(name)) ? files.content(name) : "(nothing came)";
    }
};

constexpr char kNote[] = "cd \"${0%/*}\"; printf '%s|' \"$@\" >new; /bin/mv new noted\n";

TEST_F(Shell, GivesTheOpenerTheAddressAsItStands) {
    script("xdg-open", kNote);
    const std::string address = "https://a.example/?q=$(touch${IFS}hit)&`id`;'\"|*>x#%20";
    EXPECT_GT(open(address), platform::kShellFailure);
    EXPECT_EQ(waitFor("noted"), address + "|");
    EXPECT_FALSE(fs::exists(files.path("hit")));
}

TEST_F(Shell, TellsWhyNothingWasOpened) {
    EXPECT_EQ(open("https://a.example/"), 31) << "no opener";
    script("xdg-open", kNote);
    EXPECT_EQ(open(""), 2);
    EXPECT_EQ(open("https://a.example/", "/no/such/directory"), 3);
    for (const char* other :
         {"file:///etc/passwd", "/bin/sh", "--help", "javascript:x()", "www.a.example",
          "https://a.example/\n--help", "https://a.example/ x"})
        EXPECT_EQ(open(other), 31) << other;
    files.create("xdg-open", "#!/no/such/interpreter\n");
    fs::permissions(files.path("xdg-open"), fs::perms::owner_all);
    EXPECT_EQ(open("mailto:a@a.example"), 2);
    EXPECT_FALSE(fs::exists(files.path("noted")));
}

TEST_F(Shell, LeavesAStartedProgramAlone) {
    script("sums", std::string("echo out; echo err >&2\n") + kNote + "exec /bin/sleep 5\n");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const auto before = std::chrono::steady_clock::now();
    shell.start(files.path("sums"));
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(5));
    EXPECT_EQ(waitFor("noted"), "|");
    EXPECT_EQ(testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
    EXPECT_THROW(shell.start(files.path("missing")), platform::RuntimeError);
}

TEST_F(Shell, NamesTheDesktopsOwnCalculatorFirst) {
    unsetenv("XDG_CURRENT_DESKTOP");
    const auto names = shell.calculators();
    setenv("XDG_CURRENT_DESKTOP", "X:MATE", 1);
    auto own = shell.calculators();
    EXPECT_EQ(own.front(), "mate-calc");
    EXPECT_TRUE(std::is_permutation(own.begin(), own.end(), names.begin(), names.end()));
}

} // namespace
