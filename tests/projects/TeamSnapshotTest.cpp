#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "WizardFixture.h"
#include "platform/FileLinks.h"
#include "projects/CreationWizard.h"
#include "projects/MilestonePlacement.h"
#include "projects/TeamSchedule.h"
#include "projects/TeamSnapshot.h"
#include "schedule/Teams.h"
#include "store/BasicDiskRoutines.h"

using namespace platform;
namespace fs = std::filesystem;

namespace {

class Snapshot : public WizardTest {
  protected:
    fs::path At(const std::string& relative) const { return folder.Path() / relative; }
    bool Shared(const std::string& a, const std::string& b) const {
        return fs::equivalent(At(a), At(b));
    }
    std::vector<std::string> Names(const std::string& relative) const {
        std::vector<std::string> names;
        for (const auto& e : fs::directory_iterator(At(relative)))
            names.push_back(e.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
};

using FileNames = std::vector<std::string>;

}  // namespace

TEST_F(Snapshot, TheBackupTreeHoldsExactlyTheWorkingDayFilesAndTheRestorePutsThemBack) {
    Start();
    folder.Write("2026/Team#1/170.txt", DayWith({{3, "Pj1-1-Roof"}}));
    folder.Write("2026/Team#1/171.txt", DayWith({{4, "Vacation"}}));
    folder.Write("2026/Team#1/notes.tmp", "not a day");
    folder.Write("2027/Team#2/5.txt", DayWith({{1, "Early"}}));
    folder.Write("Backup/2026/Team#1/300.txt", "left from an earlier run");
    folder.Write("Backup/2026/Team#1/old.tmp", "left from an earlier run");

    SnapshotTeamFiles();
    EXPECT_EQ(Names("Backup/2026/Team#1"), (FileNames{"170.txt", "171.txt"}));
    EXPECT_EQ(Names("Backup/2027/Team#2"), (FileNames{"5.txt"}));
    EXPECT_TRUE(Names("Backup/2028/Team#1").empty());
    EXPECT_EQ(folder.Read("Backup/2026/Team#1/170.txt"), DayWith({{3, "Pj1-1-Roof"}}));
    EXPECT_TRUE(Shared("2026/Team#1/170.txt", "Backup/2026/Team#1/170.txt"));

    // The run changes a day, adds one and loses one.
    CurrentTeam = "1";
    ReadDay(DateTime::FromYmd(2026, 6, 19), "1");
    DaySlots[5] = "Pj166-1-Framing";
    WriteDay(DateTime::FromYmd(2026, 6, 19), "1");
    WriteDay(DateTime::FromYmd(2026, 6, 22), "1");
    fs::remove(At("2026/Team#1/171.txt"));
    EXPECT_EQ(folder.Read("Backup/2026/Team#1/170.txt"), DayWith({{3, "Pj1-1-Roof"}}));

    RestoreTeamFiles();
    EXPECT_EQ(Names("2026/Team#1"), (FileNames{"170.txt", "171.txt"}));
    EXPECT_EQ(folder.Read("2026/Team#1/170.txt"), DayWith({{3, "Pj1-1-Roof"}}));
    EXPECT_EQ(folder.Read("2026/Team#1/171.txt"), DayWith({{4, "Vacation"}}));
    EXPECT_EQ(folder.Read("2027/Team#2/5.txt"), DayWith({{1, "Early"}}));
    EXPECT_EQ(Names("Backup/2026/Team#1"), (FileNames{"170.txt", "171.txt"}));

    // A second snapshot keeps what is shared and links only what changed.
    WriteDay(DateTime::FromYmd(2026, 6, 19), "1");
    EXPECT_EQ(MirrorFolder(DataPath("\\2026\\Team#1"), DataPath("\\Backup\\2026\\Team#1"), "*.txt"),
              1);

    // Deleting by tree: the Backup first, then the working days.
    DeleteTeamFiles(false);
    EXPECT_TRUE(Names("Backup/2026/Team#1").empty());
    EXPECT_EQ(Names("2026/Team#1").size(), 2u);
    DeleteTeamFiles(true);
    EXPECT_TRUE(Names("2026/Team#1").empty());
}

// Unchanged day files are shared with the snapshot by hard links. That is safe only while
// every routine that writes a day file writes a new file and renames it into place.
TEST_F(Snapshot, EveryWriterOfADayFileLeavesAHardLinkedTwinUnchanged) {
    frmMain& form = Open(3);
    const DateTime day = DateTime::FromYmd(2026, 6, 19);  // day 170, a Friday
    const std::string live = "2026/Team#1/170.txt";
    const std::string twin = "Backup/2026/Team#1/170.txt";
    const std::string before = DayWith({{3, "Pj9-1-Framing"}, {4, "Pj9-1-Framing"}});
    folder.Write("Other.txt", "other");
    CurrentTeam = "1";

    const std::pair<const char*, std::function<void()>> writers[] = {
        {"WriteDay",
         [&] {
             ReadDay(day, "1");
             DaySlots[1] = "Early";
             WriteDay(day, "1");
         }},
        {"WriteDays",
         [&] {
             DateTime d = day;
             WriteDays(d, 1, "Pj9-2-Roof");
         }},
        {"CopyDataFile", [&] { CopyDataFile("/Other.txt", "/2026/Team#1/170.txt"); }},
        {"FileCopy", [&] { FileCopy(DataPath("/Other.txt"), DataPath("/2026/Team#1/170.txt")); }},
        {"OpenForOutput",
         [&] {
             OpenForOutput("/2026/Team#1/170.txt");
             PrintLine(MainFileNo, "Holiday");
             CloseAll();
         }},
        {"OpenForAppend",
         [&] {
             OpenForAppend("/2026/Team#1/170.txt");
             PrintLine(MainFileNo, "Holiday");
             CloseAll();
         }},
        {"RemoveScheduledSlots",
         [&] {
             form.lblProjectNo.SetCaption("Pj9-1");
             SizeMilestoneArrays(1);
             MsName[1] = "Framing";
             MsType[1] = 2;
             MsMode[1] = "Hours";
             MsDate[1] = day;
             form.CurrentMilestone = 2;
             RemoveScheduledSlots(form);
         }},
        {"clearing the day of a team",
         [&] {
             MenuRoutine = 3;
             CurrentDate = day;
             Answer(vbYes);
             Answer(vbYes);
             ClearScheduleDay(form);
         }},
        {"clearing a milestone's hours",
         [&] {
             MenuRoutine = 1;
             ReadDay(day, "1");
             form.SlotSelection = "Pj9-1-Framing";
             CurrentDate = day;
             Answer(vbYes);
             ClearScheduleDay(form);
             MenuRoutine = 3;
         }},
        {"RestoreTeamFiles, then a write of the day it linked",
         [&] {
             fs::remove(At(live));
             RestoreTeamFiles();
             ReadDay(day, "1");
             DaySlots[1] = "Early";
             WriteDay(day, "1");
         }},
        {"SnapshotTeamFiles, then a write of the day it kept",
         [&] {
             SnapshotTeamFiles();
             WriteDay(day, "1");
         }},
    };
    for (const auto& [name, write] : writers) {
        SCOPED_TRACE(name);
        fs::remove(At(live));
        fs::remove(At(twin));
        folder.Write(live, before);
        fs::create_hard_link(At(live), At(twin));
        const std::string twinBefore = folder.Read(twin);
        write();
        EXPECT_EQ(folder.Read(twin), twinBefore);
        EXPECT_EQ(OpenFileCount(), 0);
    }
}

TEST_F(Snapshot, AProjectAbandonedAtTheSummaryLeavesEveryTeamsDaysAsTheyWere) {
    folder.Write("2026/Team#2/169.txt", DayWith({{1, "Early call"}}));
    folder.Write("2026/Team#1/200.txt", DayWith({{5, "Pj100-1-Roof"}}));
    frmMain& form = Open();
    form.cmdContinue.Click();
    form.cmdContinue.Click();  // the permit today
    form.cmdContinue.Click();  // framing: the grid
    form.fgHours.UserClick(6, 1);
    form.cmdContinue.Click();
    form.tgTime.Click();
    form.lstTeam.SetListIndex(1);
    form.cmdContinue.Click();
    ASSERT_EQ(form.CreationMode, 5);
    EXPECT_NE(Day(2, 169), DayWith({{1, "Early call"}}));

    folder.Ui().ClearLog();
    Answer(vbNo);
    form.cmdExit.Click();
    EXPECT_EQ(LastBox(),
              "Complete or Delete New Project: Click Yes to Schedule this Project\r\nClick No to "
              "Delete this Project");
    EXPECT_EQ(Names("2026/Team#1"), (FileNames{"200.txt"}));
    EXPECT_EQ(Names("2026/Team#2"), (FileNames{"169.txt"}));
    EXPECT_EQ(Day(2, 169), DayWith({{1, "Early call"}}));
    EXPECT_EQ(Day(1, 200), DayWith({{5, "Pj100-1-Roof"}}));
    EXPECT_FALSE(folder.Exists("ConstructionProjects/Pj166-1.txt"));
    EXPECT_FALSE(folder.Exists("ProjectRecords.txt"));
    EXPECT_EQ(folder.Read("PjCounter.txt"), "\"166\",1\r\n");
    EXPECT_TRUE(Screen<frmStartup>().Visible());

    // The number was not used up.
    MenuRoutine = 1;
    Screen<frmMain>().Show();
    EXPECT_EQ(Screen<frmMain>().lblProjectNo.Caption(), "Pj166-1");
}

TEST_F(Snapshot, ClosingTheWindowInTheMiddleOfACreationPutsTheDaysBack) {
    frmMain& form = Open();
    form.cmdContinue.Click();
    form.cmdContinue.Click();
    form.tgTime.Click();
    form.cmdContinue.Click();  // framing, one day on Crew A
    EXPECT_FALSE(Day(1, 166).empty());
    Dispatch([&] { form.UserClose(); });
    EXPECT_TRUE(ProgramHasEnded());
    EXPECT_EQ(Day(1, 166), "");
    // The file of the project under creation stays until the next run replaces it.
    EXPECT_TRUE(folder.Exists("ProjectTempFile.txt"));
}
