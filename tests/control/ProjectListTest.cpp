#include "control/ProjectListRoutines.h"

#include "ControlFixture.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "schedule/SchedulerRoutines.h"

using namespace platform;

namespace control_tests {
namespace {

std::vector<MilestoneLine> FourMilestones() {
    MilestoneLine permit{"Permit", 1, "2026-06-10", 1, 0, 0, "", "Office", "", "", ""};
    MilestoneLine framing{"Framing", 2, "2026-06-17", 2, 0, 0, "1", "On Site", "3", "2", "Days"};
    MilestoneLine inspection{"Inspection", 2,         "2026-06-22", 2,   2,      3,
                             "2",          "On Site", "4",          "2", "Hours"};
    MilestoneLine cleanup{"Cleanup", 2, "2026-06-24", 3, 0, 0, "1", "On Site", "3", "1", "Days"};
    return {permit, framing, inspection, cleanup};
}

class ProjectList : public ControlTest {};

TEST_F(ProjectList, EveryProjectFileIsListedAndPastDueMilestonesOpenTheScreen) {
    folder.Write("ConstructionProjects/Pj160-1.txt",
                 ProjectBytes("Pj160-1", "New Installation", FourMilestones()));
    MilestoneLine today{"Survey", 1, "2026-06-15", 1, 0, 0, "", "Office", "", "", ""};
    folder.Write("ConstructionProjects/Pj161-1.txt", ProjectBytes("Pj161-1", "Add-on", {today}));
    auto& f = Open();
    ASSERT_TRUE(f.Visible());
    EXPECT_TRUE(ProjectsLoaded);
    EXPECT_EQ(ProjectCount, 2);
    EXPECT_EQ(f.fgProjects.Rows(), 3);
    EXPECT_EQ(f.fgProjects.TextMatrix(1, 0), "Pj160-1");
    EXPECT_EQ(f.fgProjects.TextMatrix(1, 1), "New Installation");
    EXPECT_EQ(f.fgProjects.TextMatrix(1, 2), "A100");
    EXPECT_EQ(f.fgProjects.TextMatrix(1, 3), "Jane Doe");
    EXPECT_EQ(f.fgProjects.TextMatrix(1, 4), "937-555-0100");
    EXPECT_EQ(f.fgProjects.TextMatrix(2, 1), "Add-on");
    // Only the milestone dated before today is past due; one empty row closes the list.
    ASSERT_EQ(f.fgCompleted.Rows(), 3);
    EXPECT_EQ(f.fgCompleted.TextMatrix(1, 2), "Permit");
    EXPECT_EQ(f.fgCompleted.TextMatrix(1, 3), "6/10/2026");
    EXPECT_EQ(f.fgCompleted.TextMatrix(2, 0), "");
    EXPECT_TRUE(f.fraCompleteMS.Visible());
    EXPECT_FALSE(f.fraProjects.Visible());
    EXPECT_TRUE(f.mnuPastDue.Enabled());
    EXPECT_TRUE(f.mnuClearAll.Enabled());
    EXPECT_EQ(f.fgPJHours.TextMatrix(7, 0), "01:00pm");
}

TEST_F(ProjectList, WithoutProjectFilesTheListIsEmptyAndTheRoutinesAreOff) {
    auto& f = Open();
    EXPECT_FALSE(ProjectsLoaded);
    EXPECT_EQ(f.fgProjects.Rows(), 2);
    EXPECT_EQ(f.fgProjects.TextMatrix(1, 0), "");
    EXPECT_FALSE(f.mnuPastDue.Enabled());
    EXPECT_FALSE(f.mnuClearAll.Enabled());
    EXPECT_FALSE(f.mnuPrintAll.Enabled());
    EXPECT_TRUE(f.fraProjects.Visible());
    // The empty row offers nothing.
    Do([&] { f.fgProjects.UserClick(1, 0, 2); });
    Do([&] { f.fgProjects.UserDoubleClick(1, 0); });
    EXPECT_FALSE(ProgramHasEnded());
    EXPECT_FALSE(f.fraProjectSummary.Visible());
}

TEST_F(ProjectList, ClosingTheWindowSavesTheChangesAndEndsTheProgram) {
    folder.Write("ConstructionProjects/Pj160-1.txt",
                 ProjectBytes("Pj160-1", "New Installation", FourMilestones()));
    auto& f = Open();
    SelectMilestone(f, 1, 4);
    Do([&] { f.mnuComplete.Raise("Click"); });
    Do([&] { f.MSCal.UserPick(DateTime::FromYmd(2026, 6, 15)); });
    Do([&] { f.UserClose(); });
    EXPECT_TRUE(ProgramHasEnded());
    EXPECT_NE(folder.Read("ConstructionProjects/Pj160-1.txt").find("\"Completed\",\"6/15/2026\""),
              std::string::npos);
}

TEST_F(ProjectList, SummaryAndDetailsShowTheProjectAndItsMilestone) {
    folder.Write("ConstructionProjects/Pj160-1.txt",
                 ProjectBytes("Pj160-1", "New Installation", FourMilestones(), "P-77"));
    auto& f = Open();
    Do([&] { f.fgProjects.UserDoubleClick(1, 1); });
    EXPECT_TRUE(f.fraProjectSummary.Visible());
    EXPECT_EQ(f.lblPJSProNo.Caption(), "Pj160-1");
    EXPECT_EQ(f.lblAcctNo.Caption(), "A100");
    // 10 June to 24 June, and the last milestone's lead of 0.
    EXPECT_EQ(f.lblProDays.Caption(), "14");
    EXPECT_TRUE(f.fraProposal.Visible());
    EXPECT_EQ(f.lblProposal.Caption(), "No. P-77");
    EXPECT_EQ(f.lblCustomer.Caption(),
              "Jane Doe\r\n5 Elm Road\r\nDayton, OH 45402\r\n937-555-0100");
    ASSERT_EQ(f.fgMilestones.Rows(), 5);
    EXPECT_EQ(f.fgMilestones.TextMatrix(3, 1), "Inspection");
    EXPECT_EQ(f.fgMilestones.TextMatrix(3, 3), "6/22/2026");
    EXPECT_EQ(f.fgMilestones.TextMatrix(3, 4), "Not Completed ");

    Do([&] { f.fgMilestones.UserDoubleClick(3, 1); });
    EXPECT_TRUE(f.fraMSDetails.Visible());
    const char* expected[] = {"Inspection", "Crew B",  "Construction", "6/22/2026 at 09:00",
                              "2 Hours",    "Framing", "Scheduled",    "On Site"};
    for (int i = 0; i < 8; ++i) EXPECT_EQ(f.lblMSInfo[i].Caption(), expected[i]) << i;
    Do([&] { f.fgMilestones.UserDoubleClick(1, 1); });
    EXPECT_EQ(f.lblMSInfo[1].Caption(), "Administrative Staff");
    EXPECT_EQ(f.lblMSInfo[4].Caption(), "No Time Established");
    EXPECT_EQ(f.lblMSInfo[5].Caption(), "has no Dependency");
}

TEST_F(ProjectList, AProjectWithoutProposalHidesTheProposalAndOneMilestoneKeepsTheLastDate) {
    folder.Write("ConstructionProjects/Pj160-1.txt",
                 ProjectBytes("Pj160-1", "New Installation", FourMilestones()));
    MilestoneLine only{"Survey", 1, "2026-06-20", 1, 0, 0, "", "Office", "", "", ""};
    folder.Write("ConstructionProjects/Pj161-1.txt", ProjectBytes("Pj161-1", "Add-on", {only}));
    auto& f = Open();
    Do([&] { f.fgProjects.UserDoubleClick(1, 1); });
    EXPECT_FALSE(f.fraProposal.Visible());
    Do([&] { f.fgProjects.UserDoubleClick(2, 1); });
    // 20 June to the 24 June of the project looked at before.
    EXPECT_EQ(f.lblProDays.Caption(), "4");
}

TEST_F(ProjectList, LeavingWithoutAChangeRewritesNothingAndForgetsTheTables) {
    // A file in a form the program would not write: a rewrite would show.
    const std::string odd =
        ProjectBytes("Pj160-1", "New Installation", FourMilestones()).insert(10, " ");
    folder.Write("ConstructionProjects/Pj160-1.txt", odd);
    auto& f = Open();
    EXPECT_EQ(f.fgProjects.TextMatrix(1, 0), "Pj160-1");
    Do([&] { f.cmdMenu.Click(); });
    EXPECT_FALSE(ProjectsLoaded);
    EXPECT_EQ(folder.Read("ConstructionProjects/Pj160-1.txt"), odd);
    EXPECT_TRUE(Screen<frmStartup>().Visible());
}

TEST_F(ProjectList, AChangeReachesTheFileOnlyWhenTheScreenIsLeft) {
    const std::string before = ProjectBytes("Pj160-1", "New Installation", FourMilestones());
    folder.Write("ConstructionProjects/Pj160-1.txt", before);
    auto& f = Open();
    SelectMilestone(f, 1, 4);
    Do([&] { f.mnuComplete.Raise("Click"); });
    Do([&] { f.MSCal.UserPick(DateTime::FromYmd(2026, 6, 15)); });
    EXPECT_EQ(folder.Read("ConstructionProjects/Pj160-1.txt"), before);
    EXPECT_EQ(Day(1, 175), testing_support::FreeDayBytes());
    Do([&] { f.cmdMenu.Click(); });
    auto milestones = FourMilestones();
    milestones[3].date = "2026-06-15";
    milestones[3].status = "Completed";
    milestones[3].completion = "6/15/2026";
    EXPECT_EQ(folder.Read("ConstructionProjects/Pj160-1.txt"),
              ProjectBytes("Pj160-1", "New Installation", milestones));
}

// Every damaged project file stops the reading with the platform's run-time failure.
TEST_F(ProjectList, DamagedProjectFilesStopTheReadWithARunTimeFailure) {
    const std::string good = ProjectBytes("Pj160-1", "New Installation", FourMilestones());
    // The header of project Pj1-1 with its milestone count as given.
    auto header = [](const std::string& count) {
        std::string h = ProjectBytes("Pj1-1", "T", {});
        return h.substr(0, h.size() - 3) + count + "\r\n";
    };
    const std::string framing = MilestoneBytes({"Framing", 2, "2026-06-17"});
    std::string nanType = framing;
    nanType.replace(nanType.find(",2,"), 3, ",nan,");
    struct Case {
        const char* what;
        std::string bytes;
    } cases[] = {
        {"cut short", good.substr(0, good.size() / 2)},
        {"header only", header("4")},
        {"count above the lines", header("3") + framing},
        {"nan as type", header("1") + nanType},
        {"huge count", header("99999999999") + framing},
        {"text as date", header("1") + MilestoneBytes({"Framing", 2, "someday"})},
        {"too few values", header("1") + "\"Framing\",2\r\n"},
        {"NUL bytes", std::string(40, '\0')},
        {"empty", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        folder.Write("ConstructionProjects/Pj1-1.txt", c.bytes);
        StartProgram();
        EXPECT_TRUE(ProgramHasEnded());
        EXPECT_FALSE(folder.Ui().Boxes().empty());
        EXPECT_EQ(folder.Read("ConstructionProjects/Pj1-1.txt"), c.bytes);
        ClearProgramEnded();
    }
    // A folder in a file's place is no project.
    folder.Write("ConstructionProjects/Pj1-1.txt", good);
    folder.MakeDirs("ConstructionProjects/Pj2-1.txt");
    auto& f = Open();
    EXPECT_FALSE(ProgramHasEnded());
    EXPECT_EQ(f.fgProjects.Rows(), 2);
    EXPECT_EQ(f.fgProjects.TextMatrix(1, 0), "Pj160-1");
}

}  // namespace
}  // namespace control_tests
