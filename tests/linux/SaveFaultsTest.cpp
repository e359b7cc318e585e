// Saves the data file with a fault at each system call in turn, and reads it back. The linker puts
// the functions __wrap_... below in the place of the system calls of the program's code.
#include "storage/cQuorvantaLite.h"
#include "tests/support/DataFile.h"
#include "tests/support/RealFiles.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

enum class Kind { None, Kill, KillHalfWritten, Fail };

struct {
    Kind kind = Kind::None;
    int position = 0; // of the call that meets the fault, counted from 1
    int error = 0;
    bool names = true, links = true; // whether files can change names, and have two
    bool deletable = true;
    int calls = 0;
} fault;

bool meetsFault() {
    if (fault.kind == Kind::None || ++fault.calls != fault.position)
        return false;
    if (fault.kind == Kind::Kill)
        ::raise(SIGKILL);
    errno = fault.error;
    return fault.kind == Kind::Fail;
}

template <class Call, class... Arguments>
auto faulty(Call call, Arguments... arguments) {
    return meetsFault() ? decltype(call(arguments...))(-1) : call(arguments...);
}

} // namespace

extern "C" {
#define FAULTY(name, parameters, ...)                                                              \
    int __real_##name parameters;                                                                  \
    int __wrap_##name parameters {                                                                 \
        return faulty(__real_##name __VA_OPT__(, ) __VA_ARGS__);                                   \
    }
FAULTY(fsync, (int fd), fd)
FAULTY(ftruncate, (int fd, off_t size), fd, size)
FAULTY(fchmod, (int fd, mode_t mode), fd, mode)
FAULTY(rename, (const char* from, const char* to), from, to)
FAULTY(unlink, (const char* path), path)
FAULTY(chdir, (const char* path), path)
FAULTY(fstat, (int fd, struct stat* result), fd, result)
FAULTY(lstat, (const char* path, struct stat* result), path, result)
#undef FAULTY

int __real_open(const char* path, int flags, ...);
int __wrap_open(const char* path, int flags, ...) {
    return faulty([=] { return __real_open(path, flags, 0666); });
}
int __real_faccessat(int at, const char* path, int mode, int flags);
int __wrap_faccessat(int at, const char* path, int mode, int flags) {
    return fault.deletable ? faulty(__real_faccessat, at, path, mode, flags) : (errno = EACCES, -1);
}
int __real_close(int fd);
int __wrap_close(int fd) {
    return meetsFault() ? __real_close(fd), errno = fault.error, -1 : __real_close(fd);
}
ssize_t __real_read(int fd, void* to, size_t size);
ssize_t __wrap_read(int fd, void* to, size_t size) {
    return faulty(__real_read, fd, to, size);
}
ssize_t __real_write(int fd, const void* from, size_t size);
ssize_t __wrap_write(int fd, const void* from, size_t size) {
    const bool half = fault.kind == Kind::KillHalfWritten || fault.kind == Kind::Fail;
    if (half && fault.calls + 1 == fault.position) {
        __real_write(fd, from, size / 2);
        if (fault.kind == Kind::KillHalfWritten)
            ::raise(SIGKILL);
    }
    return faulty(__real_write, fd, from, size);
}
int __real_link(const char* from, const char* to);
int __wrap_link(const char* from, const char* to) {
    return fault.links ? faulty(__real_link, from, to) : (errno = EPERM, -1);
}
int __real_renameat2(int, const char* from, int, const char* to, unsigned flags);
int __wrap_renameat2(int, const char* from, int, const char* to, unsigned flags) {
    return fault.names ? faulty(__real_renameat2, AT_FDCWD, from, AT_FDCWD, to, flags)
                       : (errno = EINVAL, -1);
}
}

namespace {

using namespace quorvanta;

struct Start {
    const char* name;
    bool file, backup, spare, names, links;
};

const Start kStarts[] = {
    {"first run", false, false, false, true, true},
    {"second run", true, false, false, true, true},
    {"later run", true, true, true, true, true},
    {"file lost", false, true, true, true, true},
    {"names can't change", true, true, true, false, true},
    {"no links either", true, true, false, false, false},
};

struct SaveFaults : testing::TestWithParam<Start> {
    tests::StoredValues oldValues, newValues;
    int positions = 0;

    SaveFaults() {
        for (int row = 1; row <= kRows; ++row) {
            std::get<0>(newValues)[row] = "7;8;9;";
            std::get<1>(newValues)[row] = "1;2;";
        }
        std::get<2>(newValues) = 12.5;
        std::get<6>(newValues) = "1/2/2003";
    }

    // A directory as the start has it, the new values ready to be saved, and a save under a fault.
    struct Run {
        tests::RealFilesPlatform system;
        tests::ErrorBoxes boxes;

        explicit Run(const SaveFaults& test) {
            const Start& start = GetParam();
            fault = {.names = start.names, .links = start.links};
            for (const auto& [there, name] : {std::pair(start.file, "Quorvanta.txt"),
                                              {start.backup, "Quorvanta.bak"},
                                              {start.spare, "Quorvanta.txt.spare"}})
                if (there)
                    system.files.create(name, tests::wholeFile());
            tests::setStoredValues(test.newValues);
        }
        // False if the save was over before the fault's position.
        bool save(Kind kind, int position, int error) {
            fault.kind = kind;
            fault.position = position;
            fault.error = error;
            cQuorvantaLite().WriteLottoFile();
            fault.kind = Kind::None;
            return fault.calls >= position;
        }
        tests::StoredValues read() {
            fault.kind = Kind::None;
            ResetSharedState();
            cQuorvantaLite().ReadLottoFile();
            return tests::storedValues();
        }
    };

    void SetUp() override {
        Run run(*this);
        oldValues = run.read();
    }
    void expectOldOrNew(Run& run, const std::string& where) {
        const auto values = run.read();
        EXPECT_TRUE(values == oldValues || values == newValues) << where;
        if (GetParam().file) {
            EXPECT_TRUE(run.system.files.exists(run.system.files.path("Quorvanta.txt"))) << where;
        }
    }
    void TearDown() override {
        std::cout << positions << " saves with a fault, " << GetParam().name << "\n";
    }
};

TEST_P(SaveFaults, KilledAnywhereLeavesAllOldOrAllNewAndTheNextRunSaves) {
    for (const Kind kind : {Kind::Kill, Kind::KillHalfWritten}) {
        int status = 1;
        for (int position = 1; status != 0; ++position) {
            Run run(*this);
            const pid_t child = ::fork();
            if (child == 0) {
                const bool reached = run.save(kind, position, 0);
                ::_exit(reached ? 1 : 0);
            }
            ASSERT_EQ(::waitpid(child, &status, 0), child);
            const std::string where = "call " + std::to_string(position);
            expectOldOrNew(run, where);
            positions += status != 0;
            tests::setStoredValues(newValues);
            cQuorvantaLite().WriteLottoFile();
            EXPECT_EQ(run.read(), newValues) << where;
            EXPECT_TRUE(run.boxes.prompts.empty()) << where;
        }
        EXPECT_GT(positions, 10);
    }
}

TEST_P(SaveFaults, FailingCallLeavesAllOldOrAllNewWhateverTheAnswer) {
    for (const int answer : {toolkit::Abort, toolkit::Retry, toolkit::Ignore}) {
        for (const int error : {ENOSPC, EIO, EACCES}) {
            bool reached = true;
            for (int position = 1; reached; ++position) {
                Run run(*this);
                run.boxes.last = answer;
                reached = run.save(Kind::Fail, position, error);
                positions += reached;
                const bool reported = !run.boxes.prompts.empty();
                const std::string where = "call " + std::to_string(position) + ", error " +
                                          std::to_string(error) + ", answer " +
                                          std::to_string(answer);
                expectOldOrNew(run, where);
                if (!reported || answer == toolkit::Retry) {
                    EXPECT_EQ(run.read(), newValues) << where;
                }
            }
        }
    }
    EXPECT_GT(positions, 100);
}

TEST_P(SaveFaults, FailureBehindAnOldContentThatCanNotBeDeletedLeavesItWhole) {
    for (const int answer : {toolkit::Abort, toolkit::Retry, toolkit::Ignore}) {
        bool reached = GetParam().file;
        for (int position = 1; reached; ++position) {
            Run run(*this);
            fault.deletable = false;
            run.boxes.answers = {toolkit::Ignore, answer};
            run.boxes.last = toolkit::Ignore;
            reached = run.save(Kind::Fail, position, ENOSPC);
            positions += reached;
            fault.deletable = true;
            expectOldOrNew(run, "call " + std::to_string(position));
            EXPECT_TRUE(run.system.files.content("Quorvanta.txt").starts_with(tests::wholeFile()));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Starts, SaveFaults, testing::ValuesIn(kStarts), [](const auto& it) {
    std::string name = it.param.name;
    std::erase_if(name, [](char c) { return !std::isalpha(static_cast<unsigned char>(c)); });
    return name;
});

} // namespace
