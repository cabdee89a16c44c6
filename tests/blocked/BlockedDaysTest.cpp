#include "BlockFixture.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"

using namespace platform;

namespace {

const DateTime kFriday = DateTime::FromYmd(2026, 6, 19);  // day 170
const DateTime kMonday = DateTime::FromYmd(2026, 6, 22);  // day 173

}  // namespace

TEST_F(BlockTest, TwoWorkdaysFromAFridayAreFridayAndMondayInTwelveBareLines) {
    frmBlock& form = Open();
    Request(form, kFriday, 1, 2);
    ASSERT_EQ(folder.Ui().Boxes().size(), 1u);
    EXPECT_EQ(folder.Ui().Boxes()[0].title, "Action Selection");
    EXPECT_EQ(folder.Ui().Boxes()[0].prompt,
              "You have Selected to\r\nPrevent Work Scheduling\r\nof 2 Consecutive "
              "WORKDAYS\r\nStarting on 6/19/2026\r\nfor Crew B");
    EXPECT_EQ(folder.Read("2026/Team#2/170.txt"), BlockedBytes("Vacation"));
    EXPECT_EQ(folder.Read("2026/Team#2/173.txt"), BlockedBytes("Vacation"));
    EXPECT_FALSE(folder.Exists("2026/Team#2/171.txt"));
    EXPECT_FALSE(folder.Exists("2026/Team#2/172.txt"));
    EXPECT_FALSE(folder.Exists("2026/Team#1/170.txt"));
    EXPECT_EQ(form.Calender.Value(), DateTime::FromYmd(2026, 6, 23));
    EXPECT_EQ(OpenFileCount(), 0);
}

TEST_F(BlockTest, PlacementAndTheDayViewSeeABlockedDayAsBusyAndARestoredOneAsFree) {
    frmBlock& form = Open();
    Request(form, kFriday, 0, 1, "Sick Day");
    CurrentTeam = "1";
    std::int16_t conflict = 0;
    CheckDayFree(kFriday, conflict);
    EXPECT_EQ(conflict, -1);
    for (int slot = 1; slot <= 12; ++slot) EXPECT_EQ(DaySlots[slot], "Sick Day");

    // Placing two days from Thursday passes over the blocked Friday to Monday and Tuesday.
    DateTime date = DateTime::FromYmd(2026, 6, 18);
    const int scanned = ScanCount();
    conflict = 0;
    CheckConsecutiveDays(date, 2, conflict);
    EXPECT_EQ(conflict, 0);
    EXPECT_EQ(date, DateTime::FromYmd(2026, 6, 23));
    EXPECT_EQ(ScanCount(), scanned + 1);

    form.optAction[1].SetValue(true);
    Request(form, kFriday, 0, 1);
    EXPECT_EQ(folder.Read("2026/Team#1/170.txt"), BlockedBytes("No Event Scheduled"));
    conflict = 0;
    CheckDayFree(kFriday, conflict);
    EXPECT_EQ(conflict, 0);
}

TEST_F(BlockTest, TheSameReasonPassesTheCheckAndAnotherIsRefusedAtTheFirstSlot) {
    folder.Write("2026/Team#1/170.txt", BlockedBytes("Holiday"));
    frmBlock& form = Open();
    Request(form, kFriday, 0, 1, "Holiday");
    EXPECT_EQ(folder.Ui().Boxes().size(), 1u);
    EXPECT_EQ(folder.Read("2026/Team#1/170.txt"), BlockedBytes("Holiday"));

    Request(form, kFriday, 0, 1, "Vacation");
    ASSERT_EQ(folder.Ui().Boxes().size(), 3u);
    const auto& refusal = folder.Ui().Boxes()[2];
    EXPECT_EQ(refusal.title, "Can't Block or UnBlock This Time");
    EXPECT_EQ(refusal.buttons, vbCritical);
    EXPECT_EQ(refusal.prompt,
              "An Event Exists at 06:00 on 6/19/2026\r\nUse the Reschedule Routine to\r\nDelete or "
              "Rechedule this Attention\r\nThis Request will be aborted.");
    EXPECT_EQ(folder.Read("2026/Team#1/170.txt"), BlockedBytes("Holiday"));
    // The screen starts over on the default date.
    EXPECT_EQ(form.Calender.Value(), DateTime::FromYmd(2026, 6, 15));
    EXPECT_EQ(form.lstReason.Text(), "Vacation");
    EXPECT_EQ(form.txtTimeReq.Text(), "1");
}

TEST_F(BlockTest, ARefusedRequestHasAlreadyRemovedTheFilesOfItsPassingDays) {
    folder.Write("2026/Team#1/170.txt", DayWith("", 0, 0));
    folder.Write("2026/Team#1/173.txt", DayWith("Pj160-1-Framing", 11, 11));
    frmBlock& form = Open();
    Request(form, kFriday, 0, 2);
    EXPECT_FALSE(folder.Exists("2026/Team#1/170.txt"));
    EXPECT_EQ(folder.Read("2026/Team#1/173.txt"), DayWith("Pj160-1-Framing", 11, 11));
    // Blocking looks at all twelve slots: the 05:00pm event stands in the way.
    EXPECT_NE(folder.Ui().Boxes().back().prompt.find("at 05:00 on 6/22/2026"), std::string::npos);
}

TEST_F(BlockTest, AllAssignmentsWithAConflictOnTeamTwoOfThreeBlocksTeamsOneAndThree) {
    folder.Write("2026/Team#2/173.txt", DayWith("Pj160-1-Framing", 4, 4));
    frmBlock& form = Open();
    Request(form, kFriday, 3, 2, "Holiday");
    EXPECT_EQ(Messages(),
              (std::vector<std::string>{"Action Selection", "Can't Block or UnBlock This Time"}));
    for (const char* team : {"Team#1", "Team#3"}) {
        EXPECT_EQ(folder.Read(std::string("2026/") + team + "/170.txt"), BlockedBytes("Holiday"));
        EXPECT_EQ(folder.Read(std::string("2026/") + team + "/173.txt"), BlockedBytes("Holiday"));
    }
    EXPECT_FALSE(folder.Exists("2026/Team#2/170.txt"));
    EXPECT_EQ(folder.Read("2026/Team#2/173.txt"), DayWith("Pj160-1-Framing", 4, 4));
}

TEST_F(BlockTest, RestoringFreesADayWithAMilestoneWithoutAWord) {
    folder.Write("2026/Team#1/170.txt", DayWith("Pj160-1-Framing", 3, 10));
    frmBlock& form = Open();
    form.optAction[1].SetValue(true);
    EXPECT_EQ(form.lstReason.Text(), "No Event Scheduled");
    EXPECT_FALSE(form.lstReason.Enabled());
    Request(form, kFriday, 0, 1);
    EXPECT_EQ(Messages(), std::vector<std::string>{"Action Selection"});
    EXPECT_EQ(folder.Read("2026/Team#1/170.txt"), BlockedBytes("No Event Scheduled"));
}

TEST_F(BlockTest, AnsweringNoWritesNothingAndStartsTheScreenOver) {
    frmBlock& form = Open();
    form.txtTimeReq.SetText("3");
    form.Calender.UserPick(kFriday);
    folder.Ui().QueueAnswer(vbNo);
    form.cmdAccept.Click();
    EXPECT_FALSE(folder.Exists("2026/Team#1/170.txt"));
    EXPECT_EQ(form.txtTimeReq.Text(), "1");
    EXPECT_EQ(form.Calender.Value(), DateTime::FromYmd(2026, 6, 15));
}

TEST_F(BlockTest, TheDayCountGrowsByClickOrSpinnerAndStopsAtThirty) {
    frmBlock& form = Open();
    form.txtTimeReq.Raise("Click");
    EXPECT_EQ(form.txtTimeReq.Text(), "2");
    form.sldTimeReq.UserUp();
    EXPECT_EQ(form.txtTimeReq.Text(), "3");
    form.txtTimeReq.SetText("30");
    form.txtTimeReq.Raise("Click");
    EXPECT_EQ(form.txtTimeReq.Text(), "30");
    EXPECT_EQ(form.DaysRequested(), 30);
}

TEST_F(BlockTest, TheCalendarMovesOntoWorkdaysAndBuildsTheFoldersOfALaterYear) {
    frmBlock& form = Open();
    form.Calender.UserPick(DateTime::FromYmd(2026, 6, 20));  // a Saturday
    EXPECT_EQ(form.Calender.Value(), kMonday);
    EXPECT_EQ(form.BlockFolderPrefix, AppFolder() + "\\2026\\Team#");
    form.Calender.UserPick(DateTime::FromYmd(2027, 1, 4));
    EXPECT_TRUE(folder.Exists("2027/Team#3"));
    EXPECT_EQ(form.BlockFolderPrefix, AppFolder() + "\\2027\\Team#");
    // Two days across the new year go on in the next year's folder.
    Request(form, DateTime::FromYmd(2026, 12, 31), 0, 2);
    EXPECT_TRUE(folder.Exists("2026/Team#1/365.txt"));
    EXPECT_TRUE(folder.Exists("2027/Team#1/1.txt"));
}

TEST_F(BlockTest, TheDefaultDateIsTomorrowFromEightInTheEvening) {
    EXPECT_EQ(BlockDefaultDate(), DateTime::FromYmd(2026, 6, 15));
    folder.SetNow(DateTime::FromYmdHms(2026, 6, 19, 20, 0, 0));
    EXPECT_EQ(BlockDefaultDate(), DateTime::FromYmd(2026, 6, 20));
    // The screen moves the default onto a workday.
    frmBlock& form = Open();
    EXPECT_EQ(form.Calender.Value(), kMonday);
}

TEST_F(BlockTest, TheGridListsTheFourReasonsTeamByTeamInDateOrderRestoringFromBackup) {
    folder.Write("2026/Team#3/173.txt", BlockedBytes("Personal Day"));
    folder.Write("2026/Team#1/171.txt", BlockedBytes("Holiday"));  // a Saturday
    folder.Write("2026/Team#1/170.txt", BlockedBytes("Vacation"));
    folder.Write("2026/Team#2/170.txt", DayWith("Pj160-1-Framing", 1, 12));
    folder.Write("2026/Team#1/200.txt", BlockedBytes("Sick Day"));  // past the range
    folder.Write("Backup/2026/Team#2/174.txt", BlockedBytes("Sick Day"));
    frmBlock& form = Open();
    form.mnuBlocked.Raise("Click");
    EXPECT_TRUE(form.fraBlockedDays.Visible());
    std::vector<std::string> rows;
    for (int r = 1; r < form.FGBlocked.Rows(); ++r)
        rows.push_back(form.FGBlocked.TextMatrix(r, 0) + "|" + form.FGBlocked.TextMatrix(r, 1) +
                       "|" + form.FGBlocked.TextMatrix(r, 2));
    EXPECT_EQ(rows, (std::vector<std::string>{
                        "Crew A|6/19/2026|Vacation", "Crew A|6/20/2026|Holiday",
                        "Crew B|6/23/2026|Sick Day", "Crew C|6/22/2026|Personal Day", "||"}));
    EXPECT_TRUE(folder.Exists("2026/Team#2/174.txt"));
    EXPECT_EQ(form.FGBlocked.TextMatrix(0, 0), "Team");

    form.cmdClearGrid.Click();
    EXPECT_EQ(form.FGBlocked.Rows(), 2);
    EXPECT_EQ(form.FGBlocked.TextMatrix(1, 0), "");
    form.mnuBlocked.Raise("Click");
    EXPECT_FALSE(form.fraBlockedDays.Visible());
}

TEST_F(BlockTest, ASearchEndBeforeItsStartBeepsAndResetsTheRange) {
    frmBlock& form = Open();
    form.DTEndSearch.UserPick(DateTime::FromYmd(2026, 9, 1));
    form.DTStartSearch.UserPick(DateTime::FromYmd(2026, 8, 1));
    EXPECT_EQ(folder.Ui().Beeps(), 0);
    form.DTEndSearch.UserPick(DateTime::FromYmd(2026, 7, 1));
    EXPECT_EQ(folder.Ui().Beeps(), 1);
    EXPECT_EQ(form.DTStartSearch.Value(), DateTime::FromYmd(2026, 6, 15));
    EXPECT_EQ(form.DTEndSearch.Value(), DateTime::FromYmd(2026, 7, 15));
    SoundAlarms = false;
    form.DTEndSearch.UserPick(DateTime::FromYmd(2026, 6, 15));
    form.DTStartSearch.UserPick(DateTime::FromYmd(2026, 6, 16));
    form.DTEndSearch.UserPick(DateTime::FromYmd(2026, 6, 15));
    EXPECT_EQ(folder.Ui().Beeps(), 1);
}

TEST_F(BlockTest, TheScreenOpenedAgainAfterItsUnloadStillListsTheTeams) {
    frmBlock& form = Open();
    EXPECT_EQ(form.lstAssignto.ListCount(), 4);
    form.cmdExit.Click();
    Forms::Collect();
    frmBlock& again = Open();
    ASSERT_EQ(again.lstAssignto.ListCount(), 4);
    EXPECT_EQ(again.lstAssignto.List(3), "All Assignments");
    EXPECT_EQ(again.lstAssignto.ListIndex(), 0);
}

TEST_F(BlockTest, ACutShortDayInTheWayIsThePlatformsFailure) {
    folder.Write("2026/Team#1/170.txt", "Holiday\r\n");
    frmBlock& form = Open();
    try {
        Request(form, kFriday, 0, 1);
        FAIL() << "a day of one line cannot be checked";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.Number(), err::InputPastEnd);
    }
    AbandonAll();
    EXPECT_EQ(folder.Read("2026/Team#1/170.txt"), "Holiday\r\n");
}
