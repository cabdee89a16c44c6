#include "control/CompletionRoutines.h"

#include "ControlFixture.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "schedule/SchedulerRoutines.h"

using namespace platform;
using testing_support::FreeDayBytes;

namespace control_tests {
namespace {

// Two milestones on team 1, one on team 2, one in the past and one administrative.
std::vector<MilestoneLine> Job() {
    MilestoneLine permit{"Permit", 1, "2026-06-10", 1, 0, 0, "", "Office", "", "", ""};
    MilestoneLine demolition{"Demolition", 2,         "2026-06-12", 2,   0,     0,
                             "1",          "On Site", "3",          "1", "Days"};
    MilestoneLine framing{"Frame", 2, "2026-06-17", 2, 0, 0, "1", "On Site", "3", "2", "Days"};
    MilestoneLine wiring{"Wiring", 2, "2026-06-22", 2, 3, 3, "2", "On Site", "4", "2", "Hours"};
    return {permit, demolition, framing, wiring};
}

// One 297-byte record of ProjectRecords.txt for a project number.
std::string Record(const std::string& projectNo, const std::string& milestone) {
    std::string r(297, ' ');
    r.replace(10, projectNo.size(), projectNo);
    r.replace(42, milestone.size(), milestone);
    return r;
}

class Completing : public ControlTest {
  protected:
    void SetUp() override {
        ControlTest::SetUp();
        folder.Write("ConstructionProjects/Pj160-1.txt", ProjectBytes("Pj160-1", "Deck", Job()));
        // The past day is kept by the purge of a start on this very day only if it is today
        // or later; the entry of 12 June is therefore looked at on a file of its own.
        folder.Write("2026/Team#1/168.txt", BlockDay("Pj160-1-Frame", "Pj160-1-Frame Inspection"));
        folder.Write("2026/Team#1/169.txt", BlockDay("Pj160-1-Frame"));
        folder.Write("2026/Team#2/173.txt", HoursDay(4, 2, "Pj160-1-Wiring"));
        folder.Write("2026/Team#2/174.txt", HoursDay(4, 2, "Pj999-1-Wiring"));
    }
    std::string Saved() const { return folder.Read("ConstructionProjects/Pj160-1.txt"); }
};

TEST_F(Completing, AMilestoneCompletedEarlyFreesItsSlotsAndTakesTodaysDate) {
    auto& f = Open();
    SelectMilestone(f, 1, 3);
    Do([&] { f.mnuComplete.Raise("Click"); });
    EXPECT_TRUE(f.fraMSCal.Visible());
    EXPECT_TRUE(f.fraComplete.Visible());
    EXPECT_TRUE(f.lblAction[0].Visible());
    Do([&] { f.MSCal.UserPick(DateTime::FromYmd(2026, 6, 15)); });
    // Every slot holding the project and the name is freed, "Frame Inspection" with it.
    EXPECT_EQ(Day(1, 168), FreeDayBytes());
    EXPECT_EQ(Day(1, 169), FreeDayBytes());
    EXPECT_EQ(f.fgMilestones.TextMatrix(3, 2), "Completed");
    EXPECT_EQ(f.fgMilestones.TextMatrix(3, 4), "6/15/2026");
    EXPECT_TRUE(f.fraMSCal.Visible());  // open until Hide
    Do([&] { f.cmdCalButtons[0].Click(); });
    EXPECT_TRUE(f.fraProjects.Visible());
    Do([&] { f.cmdMenu.Click(); });
    auto job = Job();
    job[2].date = "2026-06-15";
    job[2].status = "Completed";
    job[2].completion = "6/15/2026";
    EXPECT_EQ(Saved(), ProjectBytes("Pj160-1", "Deck", job));
}

TEST_F(Completing, AFutureCompletionDateBeepsAndPostsNothing) {
    auto& f = Open();
    SelectMilestone(f, 1, 3);
    Do([&] { f.mnuComplete.Raise("Click"); });
    Do([&] { f.MSCal.UserPick(DateTime::FromYmd(2026, 6, 16)); });
    EXPECT_EQ(folder.Ui().Beeps(), 1);
    EXPECT_EQ(f.MSCal.Value(), DateTime::FromYmd(2026, 6, 15));
    EXPECT_EQ(f.fgMilestones.TextMatrix(3, 2), "Scheduled");
    EXPECT_FALSE(ProjectChanged.at(1));
}

TEST_F(Completing, CompletedMilestonesCannotBeMovedOrCompletedAgain) {
    auto job = Job();
    job[2].status = "Completed";
    folder.Write("ConstructionProjects/Pj160-1.txt", ProjectBytes("Pj160-1", "Deck", job));
    auto& f = Open();
    SelectMilestone(f, 1, 3);
    EXPECT_FALSE(f.mnuRescheduleMilestone.Enabled());
    EXPECT_FALSE(f.mnuComplete.Enabled());
    EXPECT_EQ(f.lblMilestone.Caption(), "Frame");
    Do([&] { f.fgMilestones.UserClick(4, 1, 2); });
    EXPECT_TRUE(f.mnuComplete.Enabled());
    EXPECT_EQ(CurrentTeam, "2 ");
}

TEST_F(Completing, CompleteAllPostsThePastDueMilestonesAndReloads) {
    auto& f = Open();
    ASSERT_EQ(f.fgCompleted.Rows(), 4);
    folder.Ui().QueueAnswer(vbYes);
    Do([&] { f.cmdCompleteAll.Click(); });
    EXPECT_EQ(folder.Ui().Boxes()[0].title, "Complete All Milestones");
    EXPECT_EQ(folder.Ui().Boxes()[0].prompt, "This will mark all milestones as Completed");
    auto job = Job();
    for (int i : {0, 1}) {
        job[i].status = "Completed";
        job[i].completion = "6/15/2026";  // the date itself stays
    }
    EXPECT_EQ(Saved(), ProjectBytes("Pj160-1", "Deck", job));
    EXPECT_TRUE(ProjectsLoaded);
    EXPECT_EQ(f.fgCompleted.Rows(), 2);
    EXPECT_TRUE(f.fraProjects.Visible());
}

TEST_F(Completing, DeletingAProjectFreesBothTeamsFromTodayAndKeepsItsRecords) {
    const std::string records = Record("Pj160-1", "Demolition") + Record("Pj160-1", "Frame") +
                                Record("Pj160-1", "Wiring") + Record("Pj150-2", "Roof");
    folder.Write("ProjectRecords.txt", records);
    folder.Write("Backup/ProjectRecords.txt", records);
    auto& f = Open();
    Do([&] { f.cmdGotoProjects.Click(); });
    folder.Ui().QueueAnswer(vbYes);
    Do([&] { f.fgProjects.UserClick(1, 0, 2); });
    Do([&] { f.mnuDeleteProject.Raise("Click"); });
    ASSERT_EQ(folder.Ui().Boxes().size(), 1u);
    EXPECT_EQ(folder.Ui().Boxes()[0].title, "Project Deletion");
    EXPECT_EQ(folder.Ui().Boxes()[0].prompt,
              "Click YES to Delete Project Pj160-1\r\nClick  NO to exit Project Deletion");
    EXPECT_EQ(Day(1, 168), FreeDayBytes());
    EXPECT_EQ(Day(1, 169), FreeDayBytes());
    EXPECT_EQ(Day(2, 173), FreeDayBytes());
    EXPECT_EQ(Day(2, 174), HoursDay(4, 2, "Pj999-1-Wiring"));
    EXPECT_FALSE(folder.Exists("ConstructionProjects/Pj160-1.txt"));
    // Every record stays, and the file's Backup copy is gone until the exit backup.
    EXPECT_EQ(folder.Read("ProjectRecords.txt"), records);
    EXPECT_FALSE(folder.Exists("Backup/ProjectRecords.txt"));
    EXPECT_FALSE(ProjectsLoaded);
    EXPECT_EQ(f.fgProjects.TextMatrix(1, 0), "");
}

TEST_F(Completing, DeletingAllProjectsAsksTwiceAndReturnsToTheMenu) {
    folder.Write("ConstructionProjects/Pj161-1.txt",
                 ProjectBytes("Pj161-1", "Fence", {{"Posts", 2, "2026-06-23", 2, 0, 0, "2"}}));
    folder.Write("2026/Team#2/174.txt", BlockDay("Pj161-1-Posts"));
    folder.Write("ProjectRecords.txt", "");
    auto& f = Open();
    folder.Ui().QueueAnswer(vbYes);
    folder.Ui().QueueAnswer(vbYes);
    Do([&] { f.mnuClearAll.Raise("Click"); });
    ASSERT_EQ(folder.Ui().Boxes().size(), 2u);
    EXPECT_EQ(folder.Ui().Boxes()[0].title, "Delete All Projects");
    EXPECT_EQ(folder.Ui().Boxes()[1].title, "Verify Delete");
    EXPECT_TRUE(Dir(folder.Path().string() + "/ConstructionProjects/*.txt").empty());
    EXPECT_EQ(Day(2, 174), FreeDayBytes());
    EXPECT_EQ(Day(1, 168), FreeDayBytes());
    // No record left: the record file goes too.
    EXPECT_FALSE(folder.Exists("ProjectRecords.txt"));
    auto& menu = Screen<frmStartup>();
    EXPECT_TRUE(menu.Visible());
    EXPECT_FALSE(menu.optProgramRoutine[9].Enabled());
}

TEST_F(Completing, AnsweringNoLeavesEverything) {
    auto& f = Open();
    folder.Ui().QueueAnswer(vbNo);
    Do([&] { f.mnuDeleteProject.Raise("Click"); });
    folder.Ui().QueueAnswer(vbNo);
    Do([&] { f.mnuCompleteProject.Raise("Click"); });
    folder.Ui().QueueAnswer(vbYes);
    folder.Ui().QueueAnswer(vbNo);
    Do([&] { f.mnuClearAll.Raise("Click"); });
    EXPECT_EQ(folder.Ui().Boxes().size(), 4u);
    EXPECT_TRUE(folder.Exists("ConstructionProjects/Pj160-1.txt"));
    EXPECT_EQ(Day(1, 168), BlockDay("Pj160-1-Frame", "Pj160-1-Frame Inspection"));
}

}  // namespace
}  // namespace control_tests
