// Saves with a fault at each system call in turn. The linker puts the functions
// __wrap_... below in the place of the system calls of the program's code.
#include "platform/linux/LinuxProcess.h"
#include "tests/support/SaveFaults.h"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using tests::fault, tests::Names, tests::Start, tests::Trial;
using tests::kFile, tests::kBackup, tests::kSpare;

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

const Start kStarts[] = {{"first run"},
                         {"second run", {kFile}},
                         {"later run", {kFile, kBackup, kSpare}},
                         {"file lost", {kBackup, kSpare}},
                         {"names can't change", {kFile, kBackup, kSpare}, {"renameat2"}},
                         {"no links either", {kFile, kBackup}, {"renameat2", "link"}}};

TEST(SaveFaults, KilledAnywhereLeavesAllOldOrAllNewAndTheNextRunSaves) {
    for (const Start& start : kStarts)
        for (const bool displayGone : {false, true})
            tests::saveKilledAtEachCall(start, [=](Trial& trial, int position) {
                const pid_t child = ::fork();
                if (child == 0)
                    ::_exit(trial.save(position, 0, displayGone) ? 1 : 0);
                int status = 0;
                EXPECT_EQ(::waitpid(child, &status, 0), child);
                return status;
            });
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

// Each start opens the directory anew, as one of another process does, and holds it from then on.
TEST(Instances, AreOneForADirectoryAlsoWhereItCannotBeLocked) {
    const Names refused[] = {{}, {"flock"}, {"open"}};
    const tests::RealFiles here[3], there[3];
    for (int i = 0; i < 3; ++i) {
        fault = {.refused = refused[i]};
        const auto isRefused = [&](const tests::RealFiles& files) {
            return platform::LinuxProcess().prevInstance(files.directory);
        };
        EXPECT_FALSE(isRefused(here[i]));
        EXPECT_TRUE(isRefused(here[i]));
        EXPECT_FALSE(isRefused(there[i]));
        EXPECT_TRUE(std::filesystem::is_empty(here[i].directory));
        fault = {};
    }
}

} // namespace
