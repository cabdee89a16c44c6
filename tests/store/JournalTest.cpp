#include <gtest/gtest.h>

#include <functional>

#include "platform/FileSafety.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "store/BasicDiskRoutines.h"
#include "store/Journal.h"
#include "support/TestFolder.h"

using namespace platform;
using testing_support::TestFolder;

namespace {

// The team names and folders of a deletion of team 2 of 3, as the set-up screen writes them.
std::vector<JournalStep> DeleteTeamTwo() {
    return {{JournalStepKind::Replace, "\\Assignto.txt.~new", "\\Assignto.txt"},
            {JournalStepKind::Delete, "\\2026\\Team#2\\*.*", ""},
            {JournalStepKind::RemoveFolder, "\\2026\\Team#2", "", true},
            {JournalStepKind::MoveFolder, "\\2026\\Team#3", "\\2026\\Team#2"}};
}

void MakeThreeTeams(const TestFolder& folder) {
    folder.Write("Assignto.txt", "\"A\"\r\n\"B\"\r\n\"C\"\r\n");
    folder.Write("Assignto.txt.~new", "\"A\"\r\n\"C\"\r\n");
    folder.Write("2026/Team#1/200.txt", "one");
    folder.Write("2026/Team#2/200.txt", "two");
    folder.Write("2026/Team#3/200.txt", "three");
}

void ExpectTeamTwoDeleted(const TestFolder& folder) {
    EXPECT_EQ(folder.Read("Assignto.txt"), "\"A\"\r\n\"C\"\r\n");
    EXPECT_FALSE(folder.Exists("Assignto.txt.~new"));
    EXPECT_EQ(folder.Read("2026/Team#1/200.txt"), "one");
    EXPECT_EQ(folder.Read("2026/Team#2/200.txt"), "three");
    EXPECT_FALSE(folder.Exists("2026/Team#3"));
    EXPECT_FALSE(folder.Exists("Unfinished.jnl"));
}

// Runs `action` on a new folder made by `make` once for each of its writes to the disk,
// dying at that write: a process that died writes nothing more, also where the action's end
// lets no failure through. `check` sees each folder after its run, told whether the run died.
// Stops after the run that reaches its end; returns the number of runs.
long CrashAtEveryWrite(const std::function<void(const TestFolder&)>& make,
                       const std::function<void()>& action,
                       const std::function<void(const TestFolder&, bool)>& check) {
    static long stop;
    static long seen;
    for (stop = 1;; ++stop) {
        SCOPED_TRACE("crash at write " + std::to_string(stop));
        TestFolder folder;
        make(folder);
        seen = 0;
        SetWriteStepHook([] {
            if (++seen >= stop) throw std::runtime_error("crash");
        });
        try {
            action();
        } catch (const std::runtime_error&) {
        }
        SetWriteStepHook(nullptr);
        AbandonAll();
        const bool died = seen >= stop;
        check(folder, died);
        if (!died) return stop;
    }
}

// An action whose writes are not known before it runs: a day file rewritten, one deleted,
// records written in place, a new year folder with a new day file. The watcher keeps each
// file's old state before its first change.
void ChangeTheDays() {
    KeepOldFiles action;
    int file = FreeFile();
    Open(file, DataPath("\\2026\\Team#1\\200.txt"), OpenMode::Output);
    PrintLine(file, "moved");
    Close(file);
    DeleteFile("\\2026\\Team#2\\200.txt");
    file = FreeFile();
    Open(file, DataPath("\\ProjectRecords.txt"), OpenMode::Random, 4);
    PutRecord(file, 1, "new!");
    Close(file);
    MakeFolder("\\2027");
    MakeFolder("\\2027\\Team#1");
    file = FreeFile();
    Open(file, DataPath("\\2027\\Team#1\\5.txt"), OpenMode::Output);
    PrintLine(file, "new");
    Close(file);
}

}  // namespace

TEST(Journal, StepsRunToTheEndAndTheJournalGoes) {
    TestFolder folder;
    MakeThreeTeams(folder);
    RunJournal(DeleteTeamTwo());
    ExpectTeamTwoDeleted(folder);
    EXPECT_FALSE(FinishJournal());
}

TEST(Journal, AStartFinishesWhatACrashLeftAtAnyWrite) {
    // Before the journal is in place nothing has changed; after it, the next start ends where
    // the run without a crash ends.
    const long runs = CrashAtEveryWrite(
        MakeThreeTeams, [] { RunJournal(DeleteTeamTwo()); },
        [](const TestFolder& folder, bool died) {
            if (died) FinishJournal();
            const bool unchanged = folder.Read("Assignto.txt") == "\"A\"\r\n\"B\"\r\n\"C\"\r\n" &&
                                   folder.Read("2026/Team#2/200.txt") == "two" &&
                                   folder.Read("2026/Team#3/200.txt") == "three";
            if (!unchanged) ExpectTeamTwoDeleted(folder);
            EXPECT_FALSE(folder.Exists("Unfinished.jnl"));
        });
    EXPECT_GT(runs, 8);
}

TEST(Journal, AnActionWhoseFilesAreKeptIsUndoneByTheStartAfterACrash) {
    auto make = [](const TestFolder& folder) {
        folder.Write("2026/Team#1/200.txt", "one");
        folder.Write("2026/Team#2/200.txt", "two");
        folder.Write("ProjectRecords.txt", "old!kept");
    };
    const long runs =
        CrashAtEveryWrite(make, ChangeTheDays, [](const TestFolder& folder, bool died) {
            if (died) {
                FinishJournal();
                RemoveLeftoverTemporaries(folder.Path().string());
            }
            // Past the end of the journal a crash leaves the action done: all files as after.
            if (folder.Read("2026/Team#1/200.txt") == "one") {
                EXPECT_EQ(folder.Read("2026/Team#2/200.txt"), "two");
                EXPECT_EQ(folder.Read("ProjectRecords.txt"), "old!kept");
                EXPECT_FALSE(folder.Exists("2027"));
            } else {
                EXPECT_EQ(folder.Read("2026/Team#1/200.txt"), "moved\r\n");
                EXPECT_FALSE(folder.Exists("2026/Team#2/200.txt"));
                EXPECT_EQ(folder.Read("ProjectRecords.txt"), "new!kept");
                EXPECT_EQ(folder.Read("2027/Team#1/5.txt"), "new\r\n");
            }
            EXPECT_FALSE(folder.Exists("Unfinished.jnl"));
            EXPECT_FALSE(folder.Exists("2026/Team#1/200.txt.~old"));
        });
    EXPECT_GT(runs, 10);
}

TEST(Journal, MalformedJournalsNeitherStopTheStartNorLeaveTheFolder) {
    struct Case {
        const char* name;
        std::string bytes;
    };
    const Case cases[] = {
        {"cut short", "replace\t0\t\\Assignto.txt.~new"},
        {"wrong field count", "move\t0\t\\2026\\Team#3\r\nreplace\t0\r\n"},
        {"nan", "nan\tnan\tnan\tnan\r\n"},
        {"huge numbers", "move\t99999999999999999999\t\\2026\\Team#3\t\\2026\\Team#9\r\n"},
        {"NUL bytes", std::string("delete\t0\t\\2026\\Team#1\\*.*\0x\t\r\n", 30)},
        {"climbing out",
         "delete\t0\t\\..\\..\\Victim.txt\t\r\nrmdir\t0\t\\..\\outside\t\r\n"
         "mkdir\t0\t\\..\\made\t\r\n"},
        {"undo line cut short",
         "undo\t0\t\t\r\nreplace\t0\t\\2026\\Team#3\\200.txt\t\\2026\\Team#1\\200.txt\r\n"},
        {"a folder in its place", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        TestFolder folder;
        folder.Write("2026/Team#1/200.txt", "one");
        folder.Write("2026/Team#3/200.txt", "three");
        folder.Write("../Victim.txt", "keep");
        if (std::string(c.name) == "a folder in its place")
            folder.MakeDirs("Unfinished.jnl");
        else
            folder.Write("Unfinished.jnl", c.bytes);
        try {
            FinishJournal();
        } catch (const RuntimeError&) {
            // A folder where the journal belongs is the platform's error, as any data file.
        }
        CloseAll();
        EXPECT_TRUE(folder.Exists("../Victim.txt"));
        EXPECT_FALSE(folder.Exists("../made"));
        EXPECT_EQ(folder.Read("2026/Team#1/200.txt"), "one");
        EXPECT_EQ(folder.Exists("Unfinished.jnl"), std::string(c.name) == "a folder in its place");
        EXPECT_TRUE(folder.Exists("2026/Team#3/200.txt") || folder.Exists("2026/Team#9/200.txt"));
        std::filesystem::remove(folder.Path() / "../Victim.txt");
    }
}

TEST(Journal, LeftoverTemporariesAreKnownByTheirNames) {
    EXPECT_TRUE(IsLeftoverTemporary("Assignto.txt.~12345"));
    EXPECT_TRUE(IsLeftoverTemporary("Phone.txt.~copy"));
    EXPECT_TRUE(IsLeftoverTemporary("Assignto.txt.~new"));
    EXPECT_TRUE(IsLeftoverTemporary("Assignto.txt.~old"));
    EXPECT_FALSE(IsLeftoverTemporary("Assignto.txt"));
    EXPECT_FALSE(IsLeftoverTemporary("Notes.~draft"));
    EXPECT_FALSE(IsLeftoverTemporary(".~123"));
    EXPECT_FALSE(IsLeftoverTemporary("Plan.txt.~"));
    TestFolder folder;
    folder.Write("Assignto.txt.~4242", "half");
    folder.Write("Backup/Phone.txt.~copy", "half");
    folder.Write("2026/Team#1/200.txt.~99", "half");
    folder.Write("2026/Team#1/200.txt", "whole");
    EXPECT_EQ(RemoveLeftoverTemporaries(folder.Path().string()), 3);
    EXPECT_EQ(folder.Read("2026/Team#1/200.txt"), "whole");
    EXPECT_FALSE(folder.Exists("Backup/Phone.txt.~copy"));
}
