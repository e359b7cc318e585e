// Saves the data file with a fault at each system call in turn, and reads it back. The linker puts
// the functions __wrap_... below in the place of the system calls of the program's code.
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
FAULTY(fsync, (int fd), fd)
FAULTY(ftruncate, (int fd, off_t size), fd, size)
FAULTY(fchmod, (int fd, mode_t mode), fd, mode)
FAULTY(rename, (const char* from, const char* to), from, to)
FAULTY(renameat2, (int at, const char* from, int to, const char* path, unsigned flags), at, from,
       to, path, flags)
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
    if (fault.position != 0 && fault.calls + 1 == fault.position)
        __real_write(fd, from, size / 2);
    return faulty("write", __real_write, fd, from, size);
}
}

namespace {

using namespace quorvanta;

const std::string kFile = "Quorvanta.txt", kBackup = "Quorvanta.bak", kSpare = kFile + ".spare";

struct Start {
    const char* name;
    Names files = {}, refused = {};
};

void PrintTo(const Start& start, std::ostream* out) {
    *out << start.name;
}

// A directory as the start has it, new values to be saved, and a save under a fault.
struct Save {
    const Start& start;
    tests::RealFilesPlatform system;
    tests::ErrorBoxes boxes;
    tests::StoredValues old, fresh;

    explicit Save(const Start& it) : start(it) {
        fault = {.refused = start.refused};
        for (const auto& name : start.files)
            system.files.create(name, tests::wholeFile());
        old = fresh = read();
        std::get<0>(fresh)[1] = "7;8;9;";
        std::get<1>(fresh)[10] = "1;2;";
        std::get<6>(fresh) = "1/2/2003";
    }
    // False if the save was over before the fault's position.
    bool go(int position = 0, int error = 0) {
        tests::stored() = fresh;
        fault.position = position;
        fault.error = error;
        cQuorvantaLite().WriteLottoFile();
        fault.position = 0;
        return fault.calls >= position;
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
    for (int status = 1; status != 0;) {
        SCOPED_TRACE("call " + std::to_string(++position));
        Save save(GetParam());
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(save.go(position) ? 1 : 0);
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        save.expectOldOrNew();
        save.go();
        EXPECT_EQ(save.read(), save.fresh);
        EXPECT_TRUE(save.boxes.boxes.empty());
    }
    EXPECT_GT(position, 10);
}

// Also behind an old content that can't be deleted, where the user ignores that.
TEST_P(SaveFaults, FailingCallLeavesAllOldOrAllNewWhateverTheAnswer) {
    const auto saveAtEachCall = [&](bool deletable, int answer, int error) {
        int position = 0;
        for (bool reached = true; reached;) {
            SCOPED_TRACE("call " + std::to_string(++position) + ", error " + std::to_string(error) +
                         ", answer " + std::to_string(answer) + (deletable ? "" : ", appending"));
            Save save(GetParam());
            save.boxes.last = answer;
            if (!deletable) {
                save.boxes.answers = {toolkit::Ignore, answer};
                save.boxes.last = toolkit::Ignore;
                fault.refused.insert("faccessat");
            }
            reached = save.go(position, error);
            save.expectOldOrNew();
            if (!deletable) {
                EXPECT_TRUE(save.system.files.content(kFile).starts_with(tests::wholeFile()));
            } else if (save.boxes.boxes.empty() || answer == toolkit::Retry) {
                EXPECT_EQ(save.read(), save.fresh);
            }
        }
        EXPECT_GT(position, 5);
    };
    for (const int answer : {toolkit::Abort, toolkit::Retry, toolkit::Ignore})
        for (const int error : {ENOSPC, EIO, EACCES})
            for (const bool deletable : {true, false})
                if (deletable || GetParam().files.contains(kFile))
                    saveAtEachCall(deletable, answer, error);
}

INSTANTIATE_TEST_SUITE_P(
    Starts, SaveFaults,
    testing::Values(Start{"first run"}, Start{"second run", {kFile}},
                    Start{"later run", {kFile, kBackup, kSpare}},
                    Start{"file lost", {kBackup, kSpare}},
                    Start{"names can't change", {kFile, kBackup, kSpare}, {"renameat2"}},
                    Start{"no links either", {kFile, kBackup}, {"renameat2", "link"}}));

} // namespace
