// Starts and saves with a fault at each system call in turn. The linker puts the functions
// __wrap_... below in the place of the system calls of the program's code.
#include "common/ErrorReport.h"
#include "frame/MDIForm1.h"
#include "frame/MainCode_ZW.h"
#include "storage/cQuorvantaLite.h"
#include "tests/support/DataFile.h"
#include "tests/support/RealFiles.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <set>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Names = std::set<std::string>;

struct {
    int position = 0; // of the call that meets the fault, counted from 1; 0 for no fault
    int error = 0;    // of that call; 0 to be killed there
    Names refused;    // calls that always fail, and don't count
    int calls = 0;
    bool unforced = false; // what was written last is not forced to the disk
} fault;

bool meetsFault() {
    if (fault.position == 0 || ++fault.calls != fault.position)
        return false;
    if (fault.error == 0)
        ::raise(SIGKILL);
    errno = fault.error;
    return true;
}

template <class Call, class... Arguments>
auto faulty(const char* name, Call call, Arguments... arguments) {
    const bool refused = fault.refused.contains(name);
    if (refused)
        errno = EACCES;
    return refused || meetsFault() ? decltype(call(arguments...))(-1) : call(arguments...);
}

} // namespace

extern "C" {
#define FAULTY(name, parameters, ...)                                                              \
    int __real_##name parameters;                                                                  \
    int __wrap_##name parameters {                                                                 \
        return faulty(#name, __real_##name, __VA_ARGS__);                                          \
    }
FAULTY(ftruncate, (int fd, off_t size), fd, size)
FAULTY(fchmod, (int fd, mode_t mode), fd, mode)
FAULTY(rename, (const char* from, const char* to), from, to)
FAULTY(link, (const char* from, const char* to), from, to)
FAULTY(unlink, (const char* path), path)
FAULTY(chdir, (const char* path), path)
FAULTY(faccessat, (int at, const char* path, int mode, int flags), at, path, mode, flags)
FAULTY(fstat, (int fd, struct stat* result), fd, result)
FAULTY(lstat, (const char* path, struct stat* result), path, result)
#undef FAULTY

int __real_open(const char* path, int flags, ...);
int __wrap_open(const char* path, int flags, ...) {
    return faulty("open", [=] { return __real_open(path, flags, 0666); });
}
int __real_fsync(int fd);
int __wrap_fsync(int fd) {
    fault.unforced = false;
    return faulty("fsync", __real_fsync, fd);
}
int __real_renameat2(int at, const char* from, int to, const char* path, unsigned flags);
int __wrap_renameat2(int at, const char* from, int to, const char* path, unsigned flags) {
    EXPECT_FALSE(fault.unforced) << "when " << path << " is replaced";
    return faulty("renameat2", __real_renameat2, at, from, to, path, flags);
}
int __real_close(int fd);
int __wrap_close(int fd) {
    const int result = __real_close(fd);
    return meetsFault() ? -1 : result;
}
ssize_t __real_read(int fd, void* to, size_t size);
ssize_t __wrap_read(int fd, void* to, size_t size) {
    return faulty("read", __real_read, fd, to, size);
}
ssize_t __real_write(int fd, const void* from, size_t size);
ssize_t __wrap_write(int fd, const void* from, size_t size) {
    fault.unforced = true;
    if (fault.position != 0 && fault.calls + 1 == fault.position)
        __real_write(fd, from, size / 2);
    return faulty("write", __real_write, fd, from, size);
}
}

namespace {

using namespace quorvanta;

const std::string kFile = "Quorvanta.txt", kBackup = "Quorvanta.bak", kSpare = kFile + ".spare",
                  kLabel = " WriteLottoFile";

struct Start {
    const char* name;
    Names files = {}, refused = {};
};

void PrintTo(const Start& start, std::ostream* out) {
    *out << start.name;
}

// A directory as the start has it, new values to be saved, and a start or a save under a fault.
struct Trial {
    const Start& start;
    tests::RealFilesPlatform system;
    tests::ErrorBoxes boxes;
    tests::StoredValues old, fresh;

    explicit Trial(const Start& it) : start(it) {
        fault = {.refused = start.refused};
        for (const auto& name : start.files)
            system.files.create(name, tests::wholeFile());
        old = fresh = read();
        std::get<0>(fresh)[1] = "7;8;9;";
        std::get<1>(fresh)[10] = "1;2;";
        std::get<6>(fresh) = "1/2/2003";
    }
    // False if it was over before the fault's position.
    static bool underFault(void (*work)(), int position, int error) {
        fault.position = position;
        fault.error = error;
        work();
        fault.position = 0;
        return fault.calls >= position;
    }
    bool go(int position = 0, int error = 0) const {
        tests::stored() = fresh;
        return underFault([] { cQuorvantaLite().WriteLottoFile(); }, position, error);
    }
    static bool begin(int position = 0, int error = 0) {
        toolkit::Form::dropAll();
        ResetSharedState();
        StartNewDebugLog();
        return underFault(Main, position, error);
    }
    // Whether the work ended before it was killed at the position.
    static bool survives(int position, const std::function<bool(int)>& work) {
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(work(position) ? 1 : 0);
        int status = 1;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        return status == 0;
    }
    static tests::StoredValues read() {
        ResetSharedState();
        cQuorvantaLite().ReadLottoFile();
        return tests::stored();
    }
    void expectOldOrNew() {
        const auto values = read();
        EXPECT_TRUE(values == old || values == fresh);
        EXPECT_TRUE(!start.files.contains(kFile) || system.files.exists(system.files.path(kFile)));
    }
};

struct SaveFaults : testing::TestWithParam<Start> {};

TEST_P(SaveFaults, KilledAnywhereLeavesAllOldOrAllNewAndTheNextRunSaves) {
    int position = 0;
    for (bool done = false; !done;) {
        SCOPED_TRACE("call " + std::to_string(++position));
        Trial save(GetParam());
        done = save.survives(position, [&](int at) { return save.go(at); });
        save.expectOldOrNew();
        save.go();
        EXPECT_EQ(save.read(), save.fresh);
        EXPECT_TRUE(save.boxes.boxes.empty());
    }
    EXPECT_GT(position, 10);
}

// Also behind an old content that can't be deleted, where the user ignores that.
TEST_P(SaveFaults, FailingCallLeavesAllOldOrAllNewWhateverTheAnswer) {
    const auto saveAtEachCall = [&](bool deletable, int answer, int error,
                                    const std::string& number) {
        int position = 0;
        for (bool reached = true; reached;) {
            SCOPED_TRACE("call " + std::to_string(++position) + ", error " + number + ", answer " +
                         std::to_string(answer) + (deletable ? "" : ", appending"));
            Trial save(GetParam());
            save.boxes.last = answer;
            if (!deletable) {
                save.boxes.answers = {toolkit::Ignore, answer};
                save.boxes.last = toolkit::Ignore;
                fault.refused.insert("faccessat");
            }
            reached = save.go(position, error);
            const auto reports = save.boxes.takeReports();
            for (const auto& it : reports)
                EXPECT_TRUE(it == number + kLabel || it == "75" + kLabel ||
                            (!deletable && it == "70" + kLabel))
                    << it;
            save.expectOldOrNew();
            if (!deletable) {
                EXPECT_TRUE(save.system.files.content(kFile).starts_with(tests::wholeFile()));
            } else if (reports.empty() || answer == toolkit::Retry) {
                EXPECT_EQ(save.read(), save.fresh);
            }
        }
        EXPECT_GT(position, 5);
    };
    for (const int answer : {toolkit::Abort, toolkit::Retry, toolkit::Ignore})
        for (const auto& [error, number] :
             {std::pair(ENOSPC, "61"), {EIO, "57"}, {EACCES, "70"}, {ENOENT, "76"}})
            for (const bool deletable : {true, false})
                if (deletable || (error != ENOENT && GetParam().files.contains(kFile)))
                    saveAtEachCall(deletable, answer, error, number);
}

INSTANTIATE_TEST_SUITE_P(
    Starts, SaveFaults,
    testing::Values(Start{"first run"}, Start{"second run", {kFile}},
                    Start{"later run", {kFile, kBackup, kSpare}},
                    Start{"file lost", {kBackup, kSpare}},
                    Start{"names can't change", {kFile, kBackup, kSpare}, {"renameat2"}},
                    Start{"no links either", {kFile, kBackup}, {"renameat2", "link"}}));

// What can't be read is told, and the end of the run still leaves it in the backup. The log is lost
// without a word.
TEST(StartFaults, NeverHarmTheFileAndOnlyWhatWasToldIsMissingFromTheRun) {
    const Start later{"later run", {kFile, kBackup}};
    // Its last line takes two reads.
    const std::string text = tests::wholeFile() + "Date:" + std::string(70'000, 'x') + "\r\n";
    for (const auto& [error, number] : {std::pair(EIO, "57"), {EACCES, "70"}, {ENOMEM, "7"}})
        for (const int answer : {toolkit::Abort, toolkit::Retry, toolkit::Ignore}) {
            std::vector<std::string> reports;
            int position = 0;
            for (bool reached = true; reached;) {
                SCOPED_TRACE("call " + std::to_string(++position) + ", error " + number +
                             ", answer " + std::to_string(answer));
                Trial run(later);
                run.system.files.create(kFile, text);
                run.old = run.read();
                run.boxes.last = answer;
                reached = run.begin(position, error);
                const auto told = run.boxes.takeReports();
                EXPECT_EQ(run.system.files.content(kFile), text);
                EXPECT_TRUE(tests::stored() == run.old ||
                            (!told.empty() && answer != toolkit::Retry));
                if (told.empty())
                    continue;
                reports.insert(reports.end(), told.begin(), told.end());
                MDIForm1::the().Show();
                EXPECT_THROW(MDIForm1::the().Unload(toolkit::AppWindows), tests::ProcessEnded);
                EXPECT_EQ(run.system.files.content(kBackup), text);
            }
            const auto label = [](const std::string& of) { return of + " ReadLottoFile"; };
            EXPECT_EQ(reports, (std::vector{label(number), label("75"), label(number),
                                            label(number), label(number)}))
                << "to open the file, to look at it, to read it twice and to meet its end";
        }
    toolkit::Form::dropAll();
}

TEST(StartFaults, KilledAnywhereLeaveTheFileToTheNextStart) {
    const Start second{"second run", {kFile}};
    int position = 0;
    for (bool done = false; !done;) {
        SCOPED_TRACE("call " + std::to_string(++position));
        Trial run(second);
        done = run.survives(position, [&](int at) { return run.begin(at); });
        EXPECT_EQ(run.system.files.content(kFile), tests::wholeFile());
        run.begin();
        EXPECT_EQ(tests::stored(), run.old);
        EXPECT_TRUE(run.boxes.boxes.empty());
    }
    EXPECT_GT(position, 100);
    toolkit::Form::dropAll();
}

} // namespace
