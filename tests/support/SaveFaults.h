// A save of the data file with a fault at one of the system's calls. Each system's test puts itself
// in the place of the calls that its platform makes, and lets them fail as `fault` says.
#pragma once

#include "frame/MainCode_ZW.h"
#include "tests/support/RealFiles.h"

#include <gtest/gtest.h>

#include <set>

namespace tests {

using Names = std::set<std::string, std::less<>>;

struct Fault {
    int position = 0; // of the call that meets the fault, counted from 1; 0 for no fault
    int error = 0;    // of that call; 0 to be killed there
    Names refused;    // calls that always fail, and don't count
    int calls = 0;
    bool unforced = false; // what was written last is not forced to the disk
    bool renamed = false;  // nor are the names changed since
};
inline Fault fault;

inline const std::string kFile = "Quorvanta.txt", kBackup = "Quorvanta.bak",
                         kSpare = kFile + ".spare", kLabel = " WriteLottoFile";

// The call that asks whether a file can be deleted, where a system has one.
inline constexpr const char* kDeleting = "faccessat";

struct Start {
    std::string name;
    Names files = {}, refused = {};
};

// A directory as the start has it, new values to be saved, and a save under a fault.
struct Trial : RealFilesPlatform {
    StoredValues old, fresh;

    explicit Trial(const Start& start) {
        fault = {.refused = start.refused};
        for (const auto& name : start.files)
            files.create(name, wholeFile());
        chooseValues();
    }
    void chooseValues() {
        old = fresh = read();
        std::get<0>(fresh)[1] = "7;8;9;";
        std::get<6>(fresh) = "1/2/2003";
    }
    // False if the work was over before the fault's position.
    bool save(int position = 0, int error = 0, bool displayGone = false) {
        stored() = fresh;
        fault.position = position;
        fault.error = error;
        displayGone ? saveWithoutDisplay() : quorvanta::cQuorvantaLite().WriteLottoFile();
        fault.position = 0;
        toolkit::install(&boxes);
        return fault.calls >= position;
    }
    static void saveWithoutDisplay() {
        EXPECT_THROW(quorvanta::EndRunWithoutDisplay(), ProcessEnded);
    }
    static StoredValues read() {
        forgetStored();
        quorvanta::cQuorvantaLite().ReadLottoFile();
        return stored();
    }
    bool isOldOrFresh() const {
        const auto values = read();
        return values == old || values == fresh;
    }
};

// Has a child save, and be killed at each call in turn, until one comes to its end. The child gets
// the trial and the position, and gives 0 at its end.
template <class Child>
void saveKilledAtEachCall(const Start& start, Child child) {
    int position = 0;
    for (int status = 1; status != 0;) {
        SCOPED_TRACE(start.name + ", call " + std::to_string(++position));
        Trial trial(start);
        status = child(trial, position);
        EXPECT_TRUE(status == 0 ? trial.read() == trial.fresh : trial.isOldOrFresh());
        trial.save();
        EXPECT_FALSE(fault.renamed) << "a power cut would bring the old names back";
        EXPECT_EQ(trial.read(), trial.fresh);
        EXPECT_TRUE(trial.boxes.boxes.empty());
    }
    EXPECT_GT(position, 10);
}

// Saves with a fault at each call in turn, until one has no call to meet. An answer of 0: the
// display has gone, and nobody can be asked.
inline void saveFailingAtEachCall(const Start& start, int answer, int error,
                                  const std::string& number) {
    // Then the save goes on behind the old content, once the user has ignored that.
    const bool undeletable = start.refused.contains(kDeleting);
    int position = 0;
    for (bool reached = true; reached;) {
        SCOPED_TRACE(start.name + ", call " + std::to_string(++position) + ", error " + number +
                     ", answer " + std::to_string(answer));
        Trial trial(start);
        trial.boxes.last = undeletable ? static_cast<int>(toolkit::Ignore) : answer;
        if (undeletable)
            trial.boxes.answers = {toolkit::Ignore, answer};
        reached = trial.save(position, error, answer == 0);
        const auto reports = trial.boxes.takeReports();
        EXPECT_TRUE(answer != 0 || reports.empty());
        for (const auto& it : reports)
            EXPECT_TRUE(it == number + kLabel || it == "75" + kLabel ||
                        (undeletable && it == "70" + kLabel))
                << it;
        EXPECT_TRUE(trial.isOldOrFresh());
        if (undeletable) {
            EXPECT_TRUE(trial.files.content(kFile).starts_with(wholeFile()));
        } else if ((reports.empty() && answer != 0) || answer == toolkit::Retry) {
            EXPECT_EQ(trial.read(), trial.fresh);
        }
    }
    EXPECT_GT(position, 5);
}

} // namespace tests
