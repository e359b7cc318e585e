#include "tests/support/RealFiles.h"

#include "platform/RuntimeError.h"
#include "platform/windows/WindowsMachine.h"
#include "platform/windows/WindowsProcess.h"
#include "platform/windows/WindowsSettings.h"
#include "platform/windows/WindowsShell.h"

#include <gtest/gtest.h>

#include "platform/windows/System.h"

namespace {

using namespace platform;

struct Windows : testing::Test, tests::FilesTest {
    // Another's hold on a file.
    Handle held(const std::string& name, DWORD share) {
        return Handle(CreateFileW(wide(files.path(name)).c_str(), GENERIC_READ, share, nullptr,
                                  OPEN_EXISTING, 0, nullptr));
    }
};

TEST_F(Windows, FailureHasTheNumberThatItsCauseTells) {
    for (const char* name : {"shut", "held"})
        files.create(name, "");
    SetFileAttributesW(wide(files.path("shut")).c_str(), FILE_ATTRIBUTE_READONLY);
    const std::string shut = numbersOf("shut"); // Wine appends to it for root
    EXPECT_TRUE(shut.starts_with("0 76 70 ") && shut.ends_with(" 70 ")) << shut;
    SetFileAttributesW(wide(files.path("shut")).c_str(), FILE_ATTRIBUTE_NORMAL);
    const Handle other = held("held", 0);
    EXPECT_EQ(numbersOf("held"), "70 76 70 70 70 ");
    const ULONGLONG before = GetTickCount64();
    for (int record = 0; record < 20; ++record)
        EXPECT_EQ(tests::numberOf([&] { files.openForAppend(files.path("held")); }), 70);
    EXPECT_LT(GetTickCount64() - before, 5000U) << "each of a start's records was waited for";
    EXPECT_EQ(tests::numberOf([&] { files.openForInput("NUL"); }), 75);
}

TEST_F(Windows, SaveWaitsForThoseWhoLookIntoTheFileForAMoment) {
    saveRow("first");
    Handle other = held("Quorvanta.txt", 0);
    const HANDLE closer = CreateThread(
        nullptr, 0,
        [](void* it) -> DWORD {
            Sleep(150);
            static_cast<Handle*>(it)->close();
            return 0;
        },
        &other, 0, nullptr);
    saveRow("second");
    WaitForSingleObject(closer, INFINITE);
    CloseHandle(closer);
    EXPECT_EQ(boxes.takeReports(), tests::Texts());
    EXPECT_NE(dataFile().find("second"), std::string::npos);
}

TEST_F(Windows, ProgramDirectoryIsTheOneOfTheProgramFile) {
    const std::string directory = files.WindowsFiles::programDirectory();
    EXPECT_TRUE(files.exists(files.join(directory, "windows_tests.exe"))) << directory;
    EXPECT_EQ(directory.find('?'), std::string::npos);
}

TEST_F(Windows, OneProcessHasADirectoryHoweverItIsSpelt) {
    WindowsProcess process;
    EXPECT_FALSE(process.prevInstance("C:\\a place\\\xC3\x84"));
    EXPECT_TRUE(process.prevInstance("c:\\A PLACE\\\xC3\xA4"));
    EXPECT_FALSE(process.prevInstance("C:\\a place"));
}

TEST(WindowsSettings, ComeBackAndAreTheUsersOwn) {
    const std::string maker = "Quorvanta's tests";
    WindowsSettings settings;
    const auto drop = [&] {
        RegDeleteTreeW(HKEY_CURRENT_USER, wide("Software\\" + maker).c_str());
    };
    drop();
    EXPECT_EQ(settings.get(maker, "Title ", "system", "0"), "0");
    for (const std::string& value : {std::string("3"), std::string(), std::string(999, 'x')}) {
        settings.save(maker, "Title ", "system", value);
        EXPECT_EQ(settings.get(maker, "Title ", "system", "0"), value);
    }
    RegSetKeyValueW(HKEY_CURRENT_USER, wide("Software\\" + maker + "\\Title").c_str(), L"system",
                    REG_DWORD, "123", 4);
    EXPECT_THROW(settings.get(maker, "Title ", "system", "0"), RuntimeError);
    drop();
}

TEST(WindowsMachine, KnowsItsUserItsNameAndTwoDirectories) {
    const WindowsMachine machine;
    EXPECT_NE(machine.GetUserNameA().value_or(""), "");
    EXPECT_NE(machine.GetComputerNameA().value_or(""), "");
    const std::string windows = machine.GetWindowsDirectoryA().value_or("");
    EXPECT_EQ(windows.substr(1, 2), ":\\");
    EXPECT_EQ(machine.GetSystemDirectoryA(), windows + "\\system32");
}

TEST(WindowsShell, OpensAddressesAloneAndTellsWhatCanNotBeStarted) {
    WindowsShell shell;
    EXPECT_EQ(shell.ShellExecuteA(0, "open", "", nullptr, nullptr, 1), 2);
    EXPECT_EQ(shell.ShellExecuteA(0, "open", "winver.exe", nullptr, nullptr, 1), 31);
    EXPECT_THROW(shell.start("C:\\no such.exe"), RuntimeError);
}

} // namespace
