// Saves with a fault at each call of Windows in turn. The linker puts the pointers __wrap___imp_...
// below in the place of those by which the program's code reaches the calls.
#include "tests/support/SaveFaults.h"

#include "platform/windows/System.h"

namespace {

using tests::fault, tests::Start, tests::Trial, tests::kFile, tests::kBackup, tests::kSpare;

constexpr DWORD kKilled = 77;

bool meetsFault() {
    if (fault.position == 0 || ++fault.calls != fault.position)
        return false;
    if (fault.error == 0)
        TerminateProcess(GetCurrentProcess(), kKilled);
    return true;
}

template <class Result, class Call>
Result faulty(std::string_view name, Result failed, Call call) {
    EXPECT_FALSE(fault.unforced && name == "ReplaceFileW");
    fault.unforced = name == "WriteFile" || (fault.unforced && name != "FlushFileBuffers");
    if (!meetsFault())
        return call();
    SetLastError(static_cast<DWORD>(fault.error));
    return failed;
}

} // namespace

extern "C" {
// The name, what it gives for a failure, its parameters and their names.
#define FAULTY(name, failed, parameters, ...)                                                      \
    extern decltype(&name) __real___imp_##name;                                                    \
    static auto WINAPI faulty##name parameters {                                                   \
        return faulty(#name, failed, [&] { return __real___imp_##name(__VA_ARGS__); });            \
    }                                                                                              \
    decltype(&name) __wrap___imp_##name = faulty##name;
FAULTY(CreateFileW, INVALID_HANDLE_VALUE,
       (const wchar_t* path, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security, DWORD how,
        DWORD flags, HANDLE like),
       path, access, share, security, how, flags, like)
FAULTY(ReadFile, FALSE, (HANDLE file, void* to, DWORD size, DWORD* count, OVERLAPPED* at), file, to,
       size, count, at)
FAULTY(FlushFileBuffers, FALSE, (HANDLE file), file)
FAULTY(MoveFileExW, FALSE, (const wchar_t* from, const wchar_t* to, DWORD how), from, to, how)
FAULTY(DeleteFileW, FALSE, (const wchar_t* path), path)
FAULTY(SetCurrentDirectoryW, FALSE, (const wchar_t* path), path)
FAULTY(GetFileAttributesW, INVALID_FILE_ATTRIBUTES, (const wchar_t* path), path)
FAULTY(GetFileType, DWORD(FILE_TYPE_UNKNOWN), (HANDLE file), file)
FAULTY(GetFileSizeEx, FALSE, (HANDLE file, LARGE_INTEGER* size), file, size)

extern decltype(&CloseHandle) __real___imp_CloseHandle;
static BOOL WINAPI faultyCloseHandle(HANDLE it) {
    const BOOL closed = __real___imp_CloseHandle(it); // as the end of the process does, too
    return faulty("CloseHandle", FALSE, [=] { return closed; });
}
decltype(&CloseHandle) __wrap___imp_CloseHandle = faultyCloseHandle;

extern decltype(&WriteFile) __real___imp_WriteFile;
static BOOL WINAPI faultyWriteFile(HANDLE file, const void* from, DWORD size, DWORD* count,
                                   OVERLAPPED* at) {
    if (fault.position != 0 && fault.calls + 1 == fault.position)
        __real___imp_WriteFile(file, from, size / 2, count, at);
    return faulty("WriteFile", FALSE,
                  [=] { return __real___imp_WriteFile(file, from, size, count, at); });
}
decltype(&WriteFile) __wrap___imp_WriteFile = faultyWriteFile;

extern decltype(&ReplaceFileW) __real___imp_ReplaceFileW;
static BOOL WINAPI faultyReplaceFileW(const wchar_t* path, const wchar_t* by, const wchar_t* backup,
                                      DWORD how, void* none, void* reserved) {
    if (fault.refused.contains("half") && fault.position != 0 && fault.calls + 1 == fault.position)
        __real___imp_MoveFileExW(path, backup, MOVEFILE_REPLACE_EXISTING);
    return faulty("ReplaceFileW", FALSE,
                  [=] { return __real___imp_ReplaceFileW(path, by, backup, how, none, reserved); });
}
decltype(&ReplaceFileW) __wrap___imp_ReplaceFileW = faultyReplaceFileW;
}

namespace {

const Start kStarts[] = {{"first run"},
                         {"second run", {kFile}},
                         {"later run", {kFile, kBackup, kSpare}},
                         {"file lost", {kBackup}},
                         // ReplaceFileW has done the first of its two steps when it meets the fault
                         {"replaced by halves", {kFile, kBackup}, {"half"}}};

// This program as a child, in the trial's directory; its exit status.
int childStatus(const Trial& trial, int position) {
    std::wstring file(MAX_PATH, L'\0');
    GetModuleFileNameW(nullptr, file.data(), MAX_PATH);
    std::wstring line = L"child " + std::to_wstring(position);
    for (const auto& name : fault.refused)
        line += L" " + platform::wide(name);
    STARTUPINFOW how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION child{};
    const auto begin = [&] {
        return CreateProcessW(file.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                              platform::wide(trial.files.directory).c_str(), &how, &child);
    };
    EXPECT_TRUE(begin() || (Sleep(1000), begin()))
        << GetLastError(); // Wine refuses one in thousands
    WaitForSingleObject(child.hProcess, INFINITE);
    DWORD status = 0;
    GetExitCodeProcess(child.hProcess, &status);
    CloseHandle(child.hThread);
    CloseHandle(child.hProcess);
    EXPECT_TRUE(status == 0 || status == kKilled) << status;
    return static_cast<int>(status);
}

TEST(SaveFaults, KilledAnywhereLeavesAllOldOrAllNewAndTheNextRunSaves) {
    for (const Start& start : kStarts)
        tests::saveKilledAtEachCall(start, childStatus);
}

TEST(SaveFaults, FailingCallLeavesAllOldOrAllNewWhateverTheAnswer) {
    for (const Start& start : kStarts)
        for (const int answer : {toolkit::Abort, toolkit::Retry, toolkit::Ignore})
            for (const auto& [error, number] : {std::pair(ERROR_DISK_FULL, "61"),
                                                {ERROR_CRC, "57"},
                                                {ERROR_ACCESS_DENIED, "70"},
                                                {ERROR_FILE_NOT_FOUND, "76"},
                                                {ERROR_UNABLE_TO_MOVE_REPLACEMENT, "70"},
                                                {ERROR_UNABLE_TO_MOVE_REPLACEMENT_2, "70"}})
                tests::saveFailingAtEachCall(start, answer, error, number);
}

} // namespace

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    if (count == 1)
        return RUN_ALL_TESTS();
    Trial trial({});
    std::filesystem::remove(trial.files.own(""));
    const auto here = std::filesystem::current_path().u8string();
    trial.files.directory = toolkit::App.Path = std::string(here.begin(), here.end());
    trial.chooseValues();
    fault.refused.insert(arguments + 2, arguments + count);
    const bool outlived = trial.save(std::stoi(arguments[1]));
    // Nothing is cleared up: the directory is the parent's.
    return TerminateProcess(GetCurrentProcess(), outlived ? 1 : 0);
}
