// Starts and saves with a fault at each system call in turn. The linker puts the functions
// __wrap_... below in the place of the system calls of the program's code.
#include "common/ErrorReport.h"
#include "frame/MainCode_ZW.h"
#include "platform/linux/LinuxProcess.h"
#include "tests/support/Forms.h"
#include "tests/support/SaveFaults.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using tests::fault, tests::Names, tests::Start, tests::Trial;

bool meetsFault() {
    if (fault.position == 0 || ++fault.calls != fault.position)
        return false;
    if (fault.error == 0)
        ::raise(SIGKILL);
    errno = fault.error;
    return true;
}

template <class Call, class... Arguments>
auto faulty(std::string_view name, Call call, Arguments... arguments) {
    EXPECT_FALSE(fault.unforced && name.starts_with("rename"));
    fault.unforced = name == "write" || (fault.unforced && name != "fsync");
    fault.renamed = name.starts_with("rename") || (fault.renamed && name != "fsync");
    const bool refused = fault.refused.contains(name);
    if (refused)
        errno = EACCES;
    return refused || meetsFault() ? decltype(call(arguments...))(-1) : call(arguments...);
}

} // namespace

extern "C" {
#define FAULTY(result, name, parameters, ...)                                                      \
    result __real_##name parameters;                                                               \
    result __wrap_##name parameters {                                                              \
        return faulty(#name, __real_##name, __VA_ARGS__);                                          \
    }
FAULTY(ssize_t, read, (int fd, void* to, size_t size), fd, to, size)
FAULTY(int, fsync, (int fd), fd)
FAULTY(int, ftruncate, (int fd, off_t size), fd, size)
FAULTY(int, fchmod, (int fd, mode_t mode), fd, mode)
FAULTY(int, rename, (const char* from, const char* to), from, to)
FAULTY(int, renameat2, (int at, const char* from, int to, const char* path, unsigned flags), at,
       from, to, path, flags)
FAULTY(int, link, (const char* from, const char* to), from, to)
FAULTY(int, unlink, (const char* path), path)
FAULTY(int, chdir, (const char* path), path)
FAULTY(int, faccessat, (int at, const char* path, int mode, int flags), at, path, mode, flags)
FAULTY(int, flock, (int fd, int how), fd, how)
FAULTY(int, fstat, (int fd, struct stat* result), fd, result)
FAULTY(int, lstat, (const char* path, struct stat* result), path, result)

int __real_open(const char* path, int flags, ...);
int __wrap_open(const char* path, int flags, ...) {
    return faulty("open", [=] { return __real_open(path, flags, 0666); });
}
int __real_close(int fd);
int __wrap_close(int fd) {
    const int result = __real_close(fd);
    return meetsFault() ? -1 : result;
}
ssize_t __real_write(int fd, const void* from, size_t size);
ssize_t __wrap_write(int fd, const void* from, size_t size) {
    if (fault.position != 0 && fault.calls + 1 == fault.position)
        __real_write(fd, from, size / 2);
    return faulty("write", __real_write, fd, from, size);
}
}

namespace {

using namespace quorvanta;

using tests::kFile, tests::kBackup, tests::kSpare;

const Start kStarts[] = {{"first run"},
                         {"second run", {kFile}},
                         {"later run", {kFile, kBackup, kSpare}},
                         {"file lost", {kBackup, kSpare}},
                         {"names can't change", {kFile, kBackup, kSpare}, {"renameat2"}},
                         {"no links either", {kFile, kBackup}, {"renameat2", "link"}}};

TEST(SaveFaults, KilledAnywhereLeavesAllOldOrAllNewAndTheNextRunSaves) {
    for (int i = 0; i < 2 * static_cast<int>(std::size(kStarts)); ++i) {
        const Start& start = kStarts[i / 2];
        int position = 0;
        for (int status = 1; status != 0;) {
            SCOPED_TRACE(start.name + ", call " + std::to_string(++position));
            Trial trial(start);
            const pid_t child = ::fork();
            if (child == 0)
                ::_exit(trial.save(position, 0, i % 2 == 1) ? 1 : 0);
            ASSERT_EQ(::waitpid(child, &status, 0), child);
            EXPECT_TRUE(trial.isOldOrFresh());
            trial.save();
            EXPECT_FALSE(fault.renamed) << "a power cut would bring the old names back";
            EXPECT_EQ(trial.read(), trial.fresh);
            EXPECT_TRUE(trial.boxes.boxes.empty());
        }
        EXPECT_GT(position, 10);
    }
}

TEST(SaveFaults, FailingCallLeavesAllOldOrAllNewWhateverTheAnswer) {
    for (const auto& [error, number] :
         {std::pair(ENOSPC, "61"), {EIO, "57"}, {EACCES, "70"}, {ENOENT, "76"}})
        for (const int answer : {toolkit::Abort, toolkit::Retry, toolkit::Ignore}) {
            for (const Start& start : kStarts)
                tests::saveFailingAtEachCall(start, answer, error, number);
            if (error != ENOENT)
                tests::saveFailingAtEachCall({"can't be deleted", {kFile}, {tests::kDeleting}},
                                             answer, error, number);
        }
    for (const Start& start : kStarts)
        tests::saveFailingAtEachCall(start, toolkit::Button{}, EIO, "57");
}

// What can't be read is told, and the end of the run still leaves it in the backup. The log is lost
// without a word.
TEST(StartFaults, NeverHarmTheFileAndOnlyWhatWasToldIsMissingFromTheRun) {
    // Its last line takes two reads.
    const std::string text = tests::wholeFile() + "Date:" + std::string(70'000, 'x') + "\r\n";
    for (const auto& [error, number] : {std::pair(EIO, "57"), {EACCES, "70"}, {ENOMEM, "7"}})
        for (const int answer : {toolkit::Abort, toolkit::Retry, toolkit::Ignore}) {
            std::vector<std::string> reports;
            int position = 0;
            for (bool reached = true; reached;) {
                SCOPED_TRACE("call " + std::to_string(++position) + ", error " + number +
                             ", answer " + std::to_string(answer));
                Trial run({"later run", {kFile, kBackup}}, text);
                run.boxes.last = answer;
                tests::dropForms();
                tests::forgetStored();
                mblnLogStarted = false;
                reached = run.underFault(Main, position, error);
                const auto told = run.boxes.takeReports();
                EXPECT_EQ(run.system.files.content(kFile), text);
                EXPECT_TRUE(tests::stored() == run.old ||
                            (!told.empty() && answer != toolkit::Retry));
                if (told.empty())
                    continue;
                reports.insert(reports.end(), told.begin(), told.end());
                cQuorvantaLite().WriteLottoFile();
                EXPECT_EQ(run.system.files.content(kBackup), text);
            }
            const std::string failed = number + std::string(" ReadLottoFile");
            EXPECT_EQ(reports, std::vector<std::string>(
                                   {failed, "75 ReadLottoFile", failed, failed, failed}))
                << "to open the file, to look at it, to read it twice and to meet its end";
        }
    tests::dropForms();
}

// A process that starts in the directory, and stays until it is killed.
struct Instance {
    int answer[2];
    pid_t process;

    explicit Instance(const tests::RealFiles& in) {
        EXPECT_EQ(::pipe(answer), 0);
        process = ::fork();
        if (process != 0)
            return;
        const char refused = platform::LinuxProcess().prevInstance(in.directory) ? 1 : 0;
        ::_exit(__real_write(answer[1], &refused, 1) == 1 ? ::pause() : 1);
    }
    ~Instance() {
        ::kill(process, SIGKILL);
        ::waitpid(process, nullptr, 0);
        __real_close(answer[0]);
        __real_close(answer[1]);
    }
    bool isRefused() const {
        char refused = 2;
        EXPECT_EQ(__real_read(answer[0], &refused, 1), 1);
        return refused == 1;
    }
};

TEST(Instances, AreOneForADirectoryAlsoWhereItCannotBeLockedAndLeaveNothingWhenKilled) {
    for (const Names& refused : {Names{}, {"flock"}, {"open"}}) {
        const tests::RealFiles here, there;
        fault = {.refused = refused};
        for (int run = 0; run < 2; ++run) {
            EXPECT_FALSE(Instance(here).isRefused());
            const Instance first(here);
            EXPECT_FALSE(first.isRefused());
            EXPECT_TRUE(Instance(here).isRefused());
            EXPECT_FALSE(Instance(there).isRefused());
        }
        EXPECT_TRUE(std::filesystem::is_empty(here.directory));
        fault = {};
    }
}

} // namespace
