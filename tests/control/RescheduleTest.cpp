#include "control/RescheduleRoutines.h"

#include "ControlFixture.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "schedule/SchedulerRoutines.h"

using namespace platform;
using testing_support::FreeDayBytes;

namespace control_tests {
namespace {

// Framing (team 1, two days from Wednesday 17 June), Inspection (team 2, two hours from 09:00
// on Monday 22 June, three days after Framing), Cleanup (team 1, one day, no dependency).
std::vector<MilestoneLine> Job() {
    MilestoneLine framing{"Framing", 2, "2026-06-17", 2, 0, 0, "1", "On Site", "3", "2", "Days"};
    MilestoneLine inspection{"Inspection", 2,         "2026-06-22", 2,   1,      3,
                             "2",          "On Site", "4",          "2", "Hours"};
    MilestoneLine cleanup{"Cleanup", 2, "2026-06-24", 3, 0, 0, "1", "On Site", "3", "1", "Days"};
    return {framing, inspection, cleanup};
}

class Rescheduling : public ControlTest {
  protected:
    void SetUp() override {
        ControlTest::SetUp();
        folder.Write("ConstructionProjects/Pj160-1.txt", ProjectBytes("Pj160-1", "Deck", Job()));
        folder.Write("2026/Team#1/168.txt", BlockDay("Pj160-1-Framing"));
        folder.Write("2026/Team#1/169.txt", BlockDay("Pj160-1-Framing"));
        folder.Write("2026/Team#2/173.txt", HoursDay(4, 2, "Pj160-1-Inspection"));
        folder.Write("2026/Team#1/175.txt", BlockDay("Pj160-1-Cleanup"));
    }

    frmProjectControl& Reschedule(int milestone) {
        auto& f = Open();
        SelectMilestone(f, 1, milestone);
        Do([&] { f.mnuRescheduleMilestone.Raise("Click"); });
        return f;
    }

    std::string Saved() const { return folder.Read("ConstructionProjects/Pj160-1.txt"); }
};

TEST_F(Rescheduling, MovingLaterAsksNothingAndTheDependantsFollow) {
    auto& f = Reschedule(1);
    EXPECT_EQ(f.lblMilestone.Caption(), "Framing scheduled for 6/17/2026");
    EXPECT_EQ(f.MSCal.Value(), DateTime::FromYmd(2026, 6, 17));
    Do([&] { f.MSCal.UserPick(DateTime::FromYmd(2026, 6, 24)); });
    EXPECT_TRUE(folder.Ui().Boxes().empty());
    // The old days are free, the new ones written over what stood there.
    EXPECT_EQ(Day(1, 168), FreeDayBytes());
    EXPECT_EQ(Day(1, 169), FreeDayBytes());
    EXPECT_EQ(Day(1, 175), BlockDay("Pj160-1-Framing"));
    EXPECT_EQ(Day(1, 176), BlockDay("Pj160-1-Framing"));
    // Inspection: 24 June + 3 days is a Saturday, so Monday 29 June, from its old start hour.
    EXPECT_EQ(Day(2, 173), FreeDayBytes());
    EXPECT_EQ(Day(2, 180), HoursDay(4, 2, "Pj160-1-Inspection"));
    EXPECT_FALSE(f.fraMSCal.Visible());
    EXPECT_EQ(f.fgMilestones.TextMatrix(2, 3), "6/29/2026");
    EXPECT_EQ(f.fgMilestones.TextMatrix(2, 4), "Not Completed");
    EXPECT_EQ(f.SelMilestone, 3);  // the cascade leaves the last milestone it reached

    Do([&] { f.cmdMenu.Click(); });
    auto job = Job();
    job[0].date = "2026-06-24";
    job[0].startSlot = "1";  // the row the hour grid stands on
    job[1].date = "2026-06-29";
    job[1].startSlot = "1";
    EXPECT_EQ(Saved(), ProjectBytes("Pj160-1", "Deck", job));
}

TEST_F(Rescheduling, MovingEarlierAndAnsweringNoMovesOnlyTheMilestone) {
    auto& f = Reschedule(1);
    folder.Ui().QueueAnswer(vbNo);
    Do([&] { f.MSCal.UserPick(DateTime::FromYmd(2026, 6, 16)); });
    ASSERT_EQ(folder.Ui().Boxes().size(), 1u);
    EXPECT_EQ(folder.Ui().Boxes()[0].title, "Rescheduling Option");
    EXPECT_EQ(folder.Ui().Boxes()[0].prompt,
              "Your Date Selection is prior to the Milestones's Current Scheduled Date\r\n"
              "You may Reschedule all subsequent Milestones or leave them as Scheduled\r\n"
              "   Click Yes to Reschedule subsequent Milestones");
    EXPECT_EQ(Day(1, 167), BlockDay("Pj160-1-Framing"));
    EXPECT_EQ(Day(1, 168), BlockDay("Pj160-1-Framing"));
    EXPECT_EQ(Day(1, 169), FreeDayBytes());
    EXPECT_EQ(Day(2, 173), HoursDay(4, 2, "Pj160-1-Inspection"));
    Do([&] { f.cmdMenu.Click(); });
    auto job = Job();
    job[0].date = "2026-06-16";
    job[0].startSlot = "1";
    EXPECT_EQ(Saved(), ProjectBytes("Pj160-1", "Deck", job));
}

TEST_F(Rescheduling, APastDateIsRefusedWithABeepAlone) {
    auto& f = Reschedule(1);
    Do([&] { f.MSCal.UserPick(DateTime::FromYmd(2026, 6, 12)); });
    EXPECT_TRUE(folder.Ui().Boxes().empty());
    EXPECT_EQ(f.MSCal.Value(), DateTime::FromYmd(2026, 6, 15));
    EXPECT_EQ(Day(1, 168), BlockDay("Pj160-1-Framing"));
}

TEST_F(Rescheduling, DaysAreWrittenOverAVacationInTheWorkingBlockOnly) {
    std::string vacation[12];
    for (auto& s : vacation) s = "Vacation";
    folder.Write("2026/Team#1/180.txt", testing_support::DayFileBytes(vacation));
    auto& f = Reschedule(1);
    Do([&] { f.MSCal.UserPick(DateTime::FromYmd(2026, 6, 29)); });
    std::string expected[12];
    for (int i = 0; i < 12; ++i) expected[i] = i >= 2 && i <= 9 ? "Pj160-1-Framing" : "Vacation";
    EXPECT_EQ(Day(1, 180), testing_support::DayFileBytes(expected));
}

TEST_F(Rescheduling, ASaturdayIsPostedAsClickedWhileTheDaysStartOnMonday) {
    auto& f = Reschedule(1);
    Do([&] { f.MSCal.UserPick(DateTime::FromYmd(2026, 6, 27)); });
    EXPECT_EQ(f.fgMilestones.TextMatrix(1, 3), "6/27/2026");
    EXPECT_EQ(Day(1, 178), "missing");
    EXPECT_EQ(Day(1, 180), BlockDay("Pj160-1-Framing"));
    EXPECT_EQ(Day(1, 181), BlockDay("Pj160-1-Framing"));
}

TEST_F(Rescheduling, AnHourlyMoveKeepsOnlyThisMilestoneInTheNewDay) {
    folder.Write("2026/Team#2/174.txt", HoursDay(8, 1, "Pj150-1-Wiring"));
    auto& f = Reschedule(2);
    EXPECT_TRUE(f.fraTime.Visible());
    Do([&] { f.MSCal.UserPick(DateTime::FromYmd(2026, 6, 23)); });
    EXPECT_EQ(f.lblSelectDate.Caption(), "6/23/2026");
    EXPECT_EQ(f.fgPJHours.TextMatrix(8, 1), "Pj150-1-Wiring");
    // A start at the busy hour is refused; at 08:00 the two hours fit.
    Do([&] { f.fgPJHours.UserClick(8, 1); });
    ASSERT_EQ(folder.Ui().Boxes().size(), 1u);
    EXPECT_EQ(folder.Ui().Boxes()[0].title, "Event aready Scheduled Here");
    Do([&] { f.fgPJHours.UserClick(3, 1); });
    Do([&] { f.cmdReschedule[0].Click(); });
    EXPECT_EQ(Day(2, 174), HoursDay(3, 2, "Pj160-1-Inspection"));
    EXPECT_EQ(Day(2, 173), FreeDayBytes());
    EXPECT_TRUE(f.fraProjects.Visible());
}

TEST_F(Rescheduling, TheSameDateAtAnotherHourLeavesNoEntryOfTheMilestone) {
    auto& f = Reschedule(2);
    Do([&] { f.MSCal.UserPick(DateTime::FromYmd(2026, 6, 22)); });
    Do([&] { f.fgPJHours.UserClick(6, 1); });
    Do([&] { f.cmdReschedule[0].Click(); });
    EXPECT_EQ(Day(2, 173), FreeDayBytes());
}

TEST_F(Rescheduling, StartHoursThatDoNotFitAreRefusedWithTheirMessages) {
    auto& f = Reschedule(2);
    Do([&] { f.MSCal.UserPick(DateTime::FromYmd(2026, 6, 23)); });
    Do([&] { f.fgPJHours.UserClick(12, 1); });
    ASSERT_EQ(folder.Ui().Boxes().size(), 1u);
    EXPECT_EQ(folder.Ui().Boxes()[0].title, "Not Enough Time");
    EXPECT_EQ(folder.Ui().Boxes()[0].prompt,
              "There is not enough Time left in this day\r\n    for this Event to begin at "
              "06:00pm\r\n          2 Hours are Required");
    f.fgPJHours.SetTextMatrix(6, 1, "Pj150-1-Wiring");
    Do([&] { f.fgPJHours.UserClick(5, 1); });
    ASSERT_EQ(folder.Ui().Boxes().size(), 2u);
    EXPECT_EQ(folder.Ui().Boxes()[1].title, "Event Conflict");
}

TEST_F(Rescheduling, ACascadedHourlyBlockThatWouldPassSlot11GoesToTheNextWorkday) {
    auto job = Job();
    job[1].time = "3";
    folder.Write("ConstructionProjects/Pj160-1.txt", ProjectBytes("Pj160-1", "Deck", job));
    const std::string busy = HoursDay(4, 6, "Pj150-1-Wiring");
    folder.Write("2026/Team#2/180.txt", busy);
    auto& f = Reschedule(1);
    Do([&] { f.MSCal.UserPick(DateTime::FromYmd(2026, 6, 24)); });
    // On 29 June the first free slot is 10, and 10 + 3 is above 12: on to 30 June, where the
    // search starts again at the old start slot.
    EXPECT_EQ(Day(2, 180), busy);
    EXPECT_EQ(Day(2, 181), HoursDay(4, 3, "Pj160-1-Inspection"));
    EXPECT_EQ(f.fgMilestones.TextMatrix(2, 3), "6/30/2026");
}

TEST_F(Rescheduling, TheCascadeOnTheLastMilestoneStopsTheProgramAfterTheWrittenDays) {
    auto job = Job();
    job[2].type = 1;
    job[2].mode = job[2].time = job[2].team = "";
    folder.Write("ConstructionProjects/Pj160-1.txt", ProjectBytes("Pj160-1", "Deck", job));
    const std::string before = Saved();
    auto& f = Reschedule(3);
    folder.Ui().QueueAnswer(vbYes);
    Do([&] { f.MSCal.UserPick(DateTime::FromYmd(2026, 6, 26)); });
    EXPECT_TRUE(ProgramHasEnded());
    EXPECT_EQ(folder.Ui().Boxes().back().title, "Norvax Construction Scheduler");
    EXPECT_EQ(Saved(), before);
}

}  // namespace
}  // namespace control_tests
