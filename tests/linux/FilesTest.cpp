#include "storage/cQuorvantaLite.h"
#include "tests/support/DataFile.h"
#include "tests/support/RealFiles.h"

#include <gtest/gtest.h>

#include <functional>

#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

struct Files : testing::Test {
    tests::RealFilesPlatform system;
    tests::RealFiles& files = system.files;
    tests::ErrorBoxes boxes;

    Files() { quorvanta::ResetSharedState(); }

    std::vector<std::string> lines(const std::string& text) {
        files.create("text", text);
        std::vector<std::string> result;
        std::string line;
        for (auto file = files.openForInput(files.path("text")); file->readLine(line);)
            result.push_back(line);
        return result;
    }
    void save() { quorvanta::cQuorvantaLite().WriteLottoFile(); }
};

int numberOf(const std::function<void()>& operation) {
    try {
        operation();
        return 0;
    } catch (const platform::RuntimeError& error) {
        return error.number;
    }
}

// Runs `body` in a process without root's rights, and gives whether it came out true.
bool asNobody(const std::function<bool()>& body) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit((::geteuid() != 0 || ::seteuid(65534) == 0) && body() ? 0 : 1);
    int status = 0;
    ::waitpid(child, &status, 0);
    return status == 0;
}

TEST_F(Files, LineEndsAtCarriageReturnAlone) {
    using Lines = std::vector<std::string>;
    const std::string zero("a\0b", 3), buffer(65535, 'x'), longLine(1 << 20, 'y');
    EXPECT_EQ(lines(""), Lines());
    EXPECT_EQ(lines("a\r\nb\rc"), Lines({"a", "b", "c"}));
    EXPECT_EQ(lines("a\nb\r\n"), Lines({"a\nb"}));
    EXPECT_EQ(lines("\n\r\n\n\r\r\n"), Lines({"\n", "\n", ""}));
    EXPECT_EQ(lines(zero + "\r"), Lines({zero}));
    EXPECT_EQ(lines(buffer + "\r\nb"), Lines({buffer, "b"})) << "split between two reads";
    EXPECT_EQ(lines(buffer + "\r"), Lines({buffer}));
    EXPECT_EQ(lines(longLine + "\r\n" + longLine), Lines({longLine, longLine}));
}

TEST_F(Files, FailureHasTheNumberThatItsCauseTells) {
    fs::create_directory(files.path("directory"));
    ASSERT_EQ(::mkfifo(files.path("pipe").c_str(), 0666), 0);
    files.create("file", "");
    struct Case {
        std::string name;
        int input, append, remove, enter, discard;
    };
    for (const Case& it : {Case{"missing", 53, 0, 53, 76, 53},
                           {"no/where", 76, 76, 76, 76, 76},
                           {"file/where", 76, 76, 76, 76, 76},
                           {"directory", 75, 75, 75, 0, 75},
                           {"pipe", 75, 75, 0, 76, 0},
                           {"/dev/zero", 75, 75, 0, 76, 0}}) {
        const std::string path = it.name[0] == '/' ? it.name : files.path(it.name);
        const auto expect = [&](int number, const std::function<void()>& operation) {
            EXPECT_EQ(numberOf(operation), number) << it.name;
        };
        expect(it.input, [&] { files.openForInput(path); });
        expect(it.enter, [&] { files.changeDirectory(path); });
        expect(it.discard, [&] { files.replace(path, path + "b")->discardOld(); });
        expect(it.append, [&] { files.openForAppend(path); });
        fs::remove(files.path("missing"));
        if (it.name[0] != '/')
            expect(it.remove, [&] { files.remove(path); });
    }
}

TEST_F(Files, AppendedLinesStandBehindWhatWasThere) {
    for (const char* line : {"one", "two"}) {
        auto file = files.openForAppend(files.path("log"));
        file->writeLine(line);
        file->close();
    }
    files.openForAppend(files.path("log"))->writeLine("given up");
    EXPECT_EQ(files.content("log"), "one\r\ntwo\r\n");
}

TEST_F(Files, SavedFileKeepsItsRightsItsLinkAndTheContentBefore) {
    fs::create_directory(files.path("elsewhere"));
    fs::create_symlink("elsewhere/data", files.path("Quorvanta.txt"));
    for (const char* row : {"first", "second", "third", "fourth"}) {
        const std::string before = files.content("Quorvanta.txt");
        quorvanta::gstrFavorites[1] = row;
        save();
        EXPECT_NE(files.content("elsewhere/data").find(row), std::string::npos);
        EXPECT_EQ(files.content("Quorvanta.bak"), before);
        fs::permissions(files.path("Quorvanta.txt"), fs::perms(0640));
    }
    save();
    EXPECT_EQ(fs::status(files.path("Quorvanta.txt")).permissions(), fs::perms(0640));
    EXPECT_TRUE(fs::is_symlink(files.path("Quorvanta.txt")));
    EXPECT_TRUE(boxes.prompts.empty());
}

TEST_F(Files, FileThatSharesItsBytesWithASpareIsNotWrittenOver) {
    files.create("dear", "dear");
    fs::create_hard_link(files.path("dear"), files.path("Quorvanta.txt.spare"));
    save();
    EXPECT_EQ(files.content("dear"), "dear");
    EXPECT_TRUE(files.content("Quorvanta.txt").ends_with("Date:7/25/2005\r\n"));
}

TEST_F(Files, DirectoryInTheFilesPlaceIsReportedAtEachStepThatNeedsTheFile) {
    fs::create_directory(files.path("Quorvanta.txt"));
    boxes.last = toolkit::Ignore;
    save();
    quorvanta::cQuorvantaLite().ReadLottoFile();
    EXPECT_EQ(boxes.prompts.size(), 4u) << "delete, open, close, and open for reading";
    for (const std::string& prompt : boxes.prompts)
        EXPECT_TRUE(prompt.starts_with("An error has occured: 75\r\n")) << prompt;
    EXPECT_TRUE(fs::is_directory(files.path("Quorvanta.txt")));
}

TEST_F(Files, ReadOnlyDirectoryKeepsTheOldFileOnAbortAndTakesTheNewBehindItOnIgnore) {
    files.create("Quorvanta.txt", tests::wholeFile());
    fs::permissions(files.path("Quorvanta.txt"), fs::perms(0666));
    fs::permissions(files.directory, fs::perms(0555));
    const auto saveWith = [&](int answer) {
        return asNobody([&] {
            boxes.last = answer;
            save();
            return boxes.prompts.size() == 1 &&
                   boxes.prompts[0].starts_with("An error has occured: 70\r\n");
        });
    };
    EXPECT_TRUE(saveWith(toolkit::Abort));
    EXPECT_EQ(files.content("Quorvanta.txt"), tests::wholeFile());
    quorvanta::gstrFavorites[1] = "new";
    EXPECT_TRUE(saveWith(toolkit::Ignore));
    EXPECT_TRUE(files.content("Quorvanta.txt").starts_with(tests::wholeFile()));
    quorvanta::ResetSharedState();
    quorvanta::cQuorvantaLite().ReadLottoFile();
    EXPECT_EQ(quorvanta::gstrFavorites[1], "new");
}

TEST_F(Files, FullDiskLeavesTheOldFileAndARetryAfterMakingRoomSaves) {
    if (::mount("none", files.directory.c_str(), "tmpfs", 0, "size=16k") != 0)
        GTEST_SKIP() << "mounting a small disk is not permitted here";
    files.create("Quorvanta.txt", tests::wholeFile());
    files.create("filler", std::string(1 << 16, 'x'));
    quorvanta::gstrFavorites[1] = "new";
    boxes.answers = {toolkit::Abort};
    save();
    EXPECT_EQ(files.content("Quorvanta.txt"), tests::wholeFile());
    EXPECT_TRUE(boxes.prompts.at(0).starts_with("An error has occured: 61\r\n"));

    struct MakesRoom : tests::ErrorBoxes {
        std::string filler;
        int messageBox(const toolkit::MessageBox&) override {
            fs::remove(filler);
            return toolkit::Retry;
        }
    } room;
    room.filler = files.path("filler");
    save();
    EXPECT_NE(files.content("Quorvanta.txt").find("\r\n1.new\r\n"), std::string::npos);
    ::umount2(files.directory.c_str(), MNT_DETACH);
}

} // namespace
