#include <gtest/gtest.h>

#include "frame/SubMain.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Records.h"
#include "platform/Ui.h"
#include "store/SharedState.h"
#include "support/TestFolder.h"

using namespace platform;
using testing_support::TestFolder;

namespace {

void Start() {
    ResetProgramState();
    RegisterScreens();
    Dispatch([] { SubMain(); });
}

void WriteRequiredFiles(TestFolder& folder, const std::string& teams) {
    folder.Write("NorvaxConstructionSchedulerSettings.txt", "8\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n");
    folder.Write("MyBusinessData.txt", "\"Acme\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
    folder.Write("Assignto.txt", teams);
}

std::string MeetingRecord(const std::string& date) {
    RecordWriter w;
    w.Text("", 10);
    w.Text("Pj1-1", 10);
    w.Text("1", 2);
    w.Text("Hours", 6);
    w.Text("1", 2);
    w.Text(date, 10);
    w.Text("", 297 - 40);
    return w.Bytes();
}

}  // namespace

TEST(Startup, AFirstRunBuildsTheTreeAndLeadsToTheWelcomePage) {
    TestFolder folder(DateTime::FromYmdHms(2026, 3, 2, 9, 0, 0));
    Start();
    for (const char* f : {"2026", "Templates", "NIActiveAccounts", "Backup",
                          "Backup/NIActiveAccounts", "Backup/NIActiveAccountsBACK", "AuxFiles",
                          "NorvaxConstructionScheduler", "NorvaxInvoicer/IncompleteInvoices",
                          "Backup/ConstructionProjects", "Backup/NorvaxConstructionScheduler",
                          "ConstructionProjects", "Documents/Projects", "Documents/Contracts",
                          "Documents/Work Orders", "Backup/2026", "Backup/2027", "Backup/2028"})
        EXPECT_TRUE(folder.Exists(f)) << f;
    EXPECT_FALSE(folder.Exists("2027"));  // day 61: next year not yet
    EXPECT_TRUE(Dir(AppFolder() + "/2026/*", true).empty());
    EXPECT_EQ(folder.Read("PurgedDate.txt"), "60\r\n");
    EXPECT_TRUE(Forms::Get("frmWelcome").Visible());
    EXPECT_FALSE(Forms::Get("frmStartup").Visible());
    EXPECT_TRUE(Forms::Get("frmSetup").IsLoaded());
    EXPECT_FALSE(ProgramHasEnded());
    EXPECT_EQ(CurrentYearText, "2026");
}

TEST(Startup, ASecondInstanceSaysSoAndStopsAfterTheFolders) {
    TestFolder folder;
    folder.Ui().SetOtherInstanceRunning(true);
    Start();
    ASSERT_EQ(folder.Ui().Boxes().size(), 1u);
    EXPECT_EQ(folder.Ui().Boxes()[0].prompt,
              "Norvax Construction Scheduler is already Running!\r\nLook for it on the Task Bar");
    EXPECT_TRUE(ProgramHasEnded());
    EXPECT_TRUE(folder.Exists("Documents"));
    EXPECT_FALSE(folder.Exists("PurgedDate.txt"));
    EXPECT_FALSE(folder.Exists("Backup/2026"));
}

TEST(Startup, ThePreviousYearGoesAfterDay120AndTheNextYearComes) {
    TestFolder folder(DateTime::FromYmdHms(2026, 4, 30, 9, 0, 0));  // day 120
    WriteRequiredFiles(folder, "\"Crew A\"\r\n\"Crew B\"\r\n");
    folder.Write("2025/Team#1/300.txt", "x");
    folder.Write("Backup/2025/Team#2/300.txt", "x");
    Start();
    EXPECT_TRUE(folder.Exists("2025/Team#1/300.txt"));
    EXPECT_FALSE(folder.Exists("2027"));
    folder.SetNow(DateTime::FromYmdHms(2026, 5, 1, 9, 0, 0));
    Start();
    EXPECT_FALSE(folder.Exists("2025"));
    EXPECT_FALSE(folder.Exists("Backup/2025"));
    EXPECT_TRUE(folder.Exists("2027/Team#2"));
    EXPECT_TRUE(folder.Exists("2026/Team#1"));
    EXPECT_FALSE(ProgramHasEnded());
}

TEST(Startup, AYearHoldingADeletedTeamsFolderFailsEveryStart) {
    TestFolder folder(DateTime::FromYmdHms(2026, 6, 1, 9, 0, 0));
    WriteRequiredFiles(folder, "\"Crew A\"\r\n");
    folder.MakeDirs("2025/Team#1");
    folder.MakeDirs("2025/Team#2");  // a team deleted earlier
    for (int i = 0; i < 2; ++i) {
        folder.Ui().ClearLog();
        Start();
        EXPECT_TRUE(ProgramHasEnded());
        ASSERT_FALSE(folder.Ui().Boxes().empty());
        EXPECT_NE(folder.Ui().Boxes().back().prompt.find("Path/File access error"),
                  std::string::npos);
        EXPECT_FALSE(folder.Exists("PurgedDate.txt"));  // nothing after the failure
    }
}

TEST(Startup, PurgeDeletesPastDaysOfThisYearOnly) {
    TestFolder folder(DateTime::FromYmdHms(2026, 2, 3, 9, 0, 0));  // day 34
    WriteRequiredFiles(folder, "\"Crew A\"\r\n");
    folder.Write("PurgedDate.txt", "30\r\n");
    for (int day : {29, 30, 33, 34})
        folder.Write("2026/Team#1/" + std::to_string(day) + ".txt", "x");
    folder.Write("Backup/2026/Team#1/31.txt", "x");
    Start();
    EXPECT_TRUE(folder.Exists("2026/Team#1/29.txt"));  // before the last purge
    EXPECT_FALSE(folder.Exists("2026/Team#1/30.txt"));
    EXPECT_FALSE(folder.Exists("2026/Team#1/33.txt"));
    EXPECT_TRUE(folder.Exists("2026/Team#1/34.txt"));  // today stays
    EXPECT_TRUE(folder.Exists("Backup/2026/Team#1/31.txt"));
    EXPECT_EQ(folder.Read("PurgedDate.txt"), "33\r\n");
}

TEST(Startup, APurgeOnTheSecondOfJanuaryAfterNewYearsEveDeletesNothing) {
    TestFolder folder(DateTime::FromYmdHms(2027, 1, 2, 9, 0, 0));
    WriteRequiredFiles(folder, "\"Crew A\"\r\n");
    folder.Write("PurgedDate.txt", "364\r\n");
    folder.Write("2027/Team#1/1.txt", "x");
    Start();
    EXPECT_TRUE(folder.Exists("2027/Team#1/1.txt"));
    EXPECT_EQ(folder.Read("PurgedDate.txt"), "1\r\n");
}

TEST(Startup, PastMeetingsArePurgedAndTheBackupCopyGoes) {
    TestFolder folder(DateTime::FromYmdHms(2026, 6, 15, 9, 0, 0));
    WriteRequiredFiles(folder, "\"Crew A\"\r\n");
    folder.Write("Meetings.txt", MeetingRecord("6/14/2026") + MeetingRecord("6/15/2026") +
                                     MeetingRecord("1/2/2027"));
    folder.Write("Backup/Meetings.txt", "old");
    Start();
    EXPECT_EQ(folder.Read("Meetings.txt"), MeetingRecord("6/15/2026") + MeetingRecord("1/2/2027"));
    EXPECT_FALSE(folder.Exists("Backup/Meetings.txt"));
}

TEST(Startup, EveryCustomerGetsItsSixAuxiliaryFolders) {
    TestFolder folder;
    RecordWriter w;
    w.Text("A100  ", 20);
    w.Text("", 308);
    folder.Write("CustomerData.txt", w.Bytes());
    Start();
    EXPECT_TRUE(folder.Exists("AuxFiles/A100/AuxFile0"));
    EXPECT_TRUE(folder.Exists("AuxFiles/A100/AuxFile5"));
}

TEST(Startup, ACutShortSettingsFileIsTheRunTimeFailure) {
    TestFolder folder;
    WriteRequiredFiles(folder, "\"Crew A\"\r\n");
    folder.Write("NorvaxConstructionSchedulerSettings.txt", "8\r\n");
    Start();
    EXPECT_TRUE(ProgramHasEnded());
    ASSERT_FALSE(folder.Ui().Boxes().empty());
    EXPECT_NE(folder.Ui().Boxes().back().prompt.find("Input past end of file"), std::string::npos);
    EXPECT_FALSE(Forms::Get("frmStartup").Visible());
}

TEST(Startup, TheTeamFoldersItMakesAreKnownWithoutListingTheirYearAgain) {
    TestFolder folder(DateTime::FromYmdHms(2026, 6, 15, 9, 0, 0));
    std::string teams;
    for (int n = 1; n <= 100; ++n) teams += "\"Crew " + std::to_string(n) + "\"\r\n";
    WriteRequiredFiles(folder, teams);
    const long before = FolderScans();
    Start();
    EXPECT_FALSE(ProgramHasEnded());
    EXPECT_TRUE(folder.Exists("2027/Team#100"));
    EXPECT_TRUE(folder.Exists("Backup/2028/Team#100"));
    // The purge looks once into each team's own folder; the year folders that receive a
    // new team folder after another are not listed again each time. Start-up grows with
    // the teams in a straight line.
    EXPECT_LT(FolderScans() - before, 100 + 40);
}
