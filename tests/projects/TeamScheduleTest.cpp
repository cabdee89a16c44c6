#include "WizardFixture.h"

#include <filesystem>
#include <functional>

#include "platform/RuntimeError.h"
#include "projects/TeamSchedule.h"
#include "projects/WorkSchedule.h"
#include "workorders/frmSlip.h"

using namespace platform;

namespace {

// A record of the record files, spelled out field by field.
std::string RecordBytes(const std::string& projectNo, const std::string& team,
                        const std::string& mode, const std::string& time, const std::string& date,
                        const std::string& slot, const std::string& milestone) {
    auto pad = [](std::string text, size_t length) {
        text.resize(length, ' ');
        return text;
    };
    return pad("", 10) + pad(projectNo, 10) + pad(team, 2) + pad(mode, 6) + pad(time, 2) +
           pad(date, 10) + pad(slot, 2) + pad(milestone, 30) + pad("Scheduled", 20) + pad("", 40) +
           pad("$1.00", 10) + pad("A1001", 20) + pad("Smith Cottage", 30) + pad("40 Lake Rd", 35) +
           pad("", 25) + pad("Lakeside", 20) + pad("IL", 2) + pad("62702", 10) +
           pad("217-555-0199", 13);
}

class TeamSchedule : public WizardTest {};

}  // namespace

TEST_F(TeamSchedule, TheScheduleRoutineShowsATeamsDayAndTheMonthOfItsLoad) {
    std::string blocked;
    for (int i = 0; i < 12; ++i) blocked += "Vacation\r\n";
    folder.Write("2026/Team#1/168.txt", blocked);  // Wednesday 17 June
    folder.Write("2026/Team#1/169.txt", DayWith({{3, "Pj1-1-Roof"}, {4, "Pj1-1-Roof"}}));
    folder.Write("2026/Team#1/160.txt", blocked);  // in the past: not read
    frmMain& form = Open(3);
    EXPECT_TRUE(form.fraTeam.Visible());
    EXPECT_TRUE(form.fraTime.Visible());
    EXPECT_TRUE(form.fra8or12HourSchedule.Visible());
    EXPECT_FALSE(form.cmdContinue.Enabled());
    EXPECT_TRUE(form.lblPrintSched.Visible());
    EXPECT_FALSE(form.cmdStartOver.Visible());
    ASSERT_EQ(form.lstTeam.ListCount(), 3);
    EXPECT_EQ(form.lstTeam.List(2), "All Teams");
    EXPECT_EQ(CurrentTeam, "1");

    form.MonthView1.UserPick(DateTime::FromYmd(2026, 6, 17));
    // June 2026 begins on a Monday: day d lies in box d.
    EXPECT_EQ(form.txtCurrentDate.Text(), "2026 June");
    EXPECT_EQ(form.Text1[17].Text(), "12");
    EXPECT_EQ(form.Text1[18].Text(), "2");
    EXPECT_EQ(form.Text1[18].ForeColor(), Rgb(255, 0, 0));
    EXPECT_EQ(form.Text1[9].Text(), "9");
    EXPECT_EQ(form.Text1[0].Text(), "");
    // A busy day shows its hours on the grid, with the day view and the clearing offered.
    EXPECT_TRUE(form.fraHours.Visible());
    EXPECT_FALSE(form.fraCalendar.Visible());
    EXPECT_TRUE(form.cmdView.Enabled());
    EXPECT_EQ(form.fgHours.TextMatrix(1, 1), "Vacation");

    // A click on a box of the month goes to its day; one in the past is refused.
    form.Text1[19].Raise("Click");
    EXPECT_EQ(form.MonthView1.Value(), DateTime::FromYmd(2026, 6, 19));
    form.Text1[3].Raise("Click");
    EXPECT_EQ(LastBox(), "Invalid date: Date cannot be before Today");
    EXPECT_EQ(form.MonthView1.Value(), DateTime::FromYmd(2026, 6, 15));

    // The team spinner goes round the real teams only.
    form.UpDnTeam.UserDown();
    EXPECT_EQ(form.lstTeam.ListIndex(), 1);
    EXPECT_EQ(CurrentTeam, "2");
    form.UpDnTeam.UserUp();
    EXPECT_EQ(form.lstTeam.ListIndex(), 0);
}

TEST_F(TeamSchedule, ClicksOnTheGridOfTheScheduleRoutine) {
    std::string blocked;
    for (int i = 0; i < 12; ++i) blocked += "Holiday\r\n";
    folder.Write("2026/Team#1/168.txt", blocked);
    folder.Write("2026/Team#1/169.txt", DayWith({{3, "Pj1-1-Roof"}}));
    frmMain& form = Open(3);
    form.MonthView1.UserPick(DateTime::FromYmd(2026, 6, 18));
    const int beeps = folder.Ui().Beeps();
    form.fgHours.UserClick(1, 1);  // a free row
    EXPECT_EQ(folder.Ui().Beeps(), beeps + 1);

    // A project's slot with its record file opens the slip screen on that record.
    folder.Write("ProjectRecords.txt",
                 RecordBytes("Pj1-1", "1", "Hours", "1", "6/18/2026", "3", "Roof"));
    form.fgHours.UserClick(3, 1);
    frmSlip& slip = Screen<frmSlip>();
    EXPECT_TRUE(slip.Visible());
    EXPECT_EQ(slip.lblName.Caption(), "Smith Cottage");
    slip.cmdAttn.Click();
    EXPECT_EQ(SelectedSlotText, "Pj1-1-Roof");
    EXPECT_EQ(LookupFile, 3);
    EXPECT_EQ(SlipTeam, "Crew A");

    // A blocked day has no record behind it: the hourly entry answers.
    form.MonthView1.UserPick(DateTime::FromYmd(2026, 6, 17));
    form.fgHours.UserClick(4, 1);
    EXPECT_EQ(LastBox(), "Selection Error: Event already Scheduled Here");

    // Clearing the day asks twice.
    Answer(vbYes);
    Answer(vbYes);
    form.cmdClear.Click();
    EXPECT_EQ(folder.Ui().Boxes()[folder.Ui().Boxes().size() - 2].prompt,
              "This will Clear all Events for 6/17/2026 for Crew A");
    EXPECT_EQ(Day(1, 168), DayWith({}));
    EXPECT_EQ(form.fgHours.TextMatrix(1, 1), "No Event Scheduled");

    // The print panel prints the day and closes.
    form.lblPrintSched.Raise("Click");
    EXPECT_TRUE(form.fraPrint.Visible());
    form.cmdInvoiceContinue.Click();
    EXPECT_FALSE(form.fraPrint.Visible());
}

TEST_F(TeamSchedule, PickingTheHoursOfAMilestone) {
    folder.Write("2026/Team#1/166.txt", DayWith({{5, "Pj1-1-Roof"}}));
    frmMain& form = Open();
    form.cmdContinue.Click();
    form.cmdContinue.Click();  // the permit
    form.UpDnTime.UserUp();    // two hours
    form.cmdContinue.Click();
    form.fgHours.UserClick(12, 1);
    EXPECT_EQ(LastBox(), "Selection Error: Hours Requested exceed Hours Remaining this Date");
    form.UpDnTime.UserUp();  // three hours over the busy row
    form.fgHours.UserClick(3, 1);
    EXPECT_EQ(LastBox(), "Selection Error: Event already Scheduled Here");
    for (int r = 1; r <= 12; ++r)
        EXPECT_EQ(form.fgHours.TextMatrix(r, 1), r == 5 ? "Pj1-1-Roof" : "No Event Scheduled");
    // Continue without a time.
    form.SlotSelection = kNoSlotSelected;
    form.cmdContinue.Click();
    EXPECT_EQ(LastBox(), "Select a Time: A Time Must be Selected");

    form.fgHours.UserClick(6, 1);
    EXPECT_EQ(form.fgHours.TextMatrix(8, 1), "Pj166-1-Framing");
    const int beeps = folder.Ui().Beeps();
    form.fgHours.UserClick(10, 1);  // a second block on the same day
    EXPECT_EQ(folder.Ui().Beeps(), beeps + 1);
    EXPECT_EQ(form.fgHours.TextMatrix(10, 1), "No Event Scheduled");

    // Redo: the choice goes, nothing is written.
    form.cmdRedoEvent.Click();
    EXPECT_EQ(form.fgHours.TextMatrix(6, 1), "No Event Scheduled");
    EXPECT_EQ(form.txtTime.Text(), "1");
    EXPECT_EQ(Day(1, 166), DayWith({{5, "Pj1-1-Roof"}}));
}

TEST_F(TeamSchedule, TheDayViewFindsAMilestoneInTheRecordsAndAgainInItsProjectFile) {
    // Framing by days on 17 and 18 June, with a lead of two days; the record file holds it,
    // and a later move in the project file put a second milestone at 05:00pm.
    folder.Write("ProjectRecords.txt",
                 RecordBytes("Pj160-1", "1", "Days", "2", "6/17/2026", "3", "Framing"));
    folder.Write(
        "ConstructionProjects/Pj160-1.txt",
        "\"Pj160-1\",\"Add-on\",\"A1001\",\"Proposal Number\",\"Mary\",\"\",\"\",\"\",\"\",\"\","
        "\"\",\"Smith Cottage\",\"40 Lake "
        "Rd\",\"\",\"Lakeside\",\"IL\",\"62702\",\"217-555-0199\",2"
        "\r\n\"Framing\",2,#2026-06-17#,2,0,2,\"1\",\"On Site\",\"3\",\"2\",\"Days\",\"Scheduled\","
        "\"Not Completed \"\r\n\"Trim\",2,#2026-06-18#,2,1,0,\"1\",\"On Site\",\"11\",\"1\","
        "\"Hours\",\"Scheduled\",\"Not Completed \"\r\n");
    std::string framing[12];
    for (int i = 0; i < 12; ++i)
        framing[i] = i >= 2 && i <= 9 ? "Pj160-1-Framing" : "No Event Scheduled";
    framing[10] = "Pj160-1-Trim";
    folder.Write("2026/Team#1/169.txt", testing_support::DayFileBytes(framing));
    frmMain& form = Open(3);
    form.MonthView1.UserPick(DateTime::FromYmd(2026, 6, 18));
    ASSERT_TRUE(form.cmdView.Enabled());
    form.cmdView.Click();
    EXPECT_TRUE(form.fraDay.Visible());
    EXPECT_EQ(form.fraDay.Caption(), "Work Schedule for Crew A 6/18/2026");
    const std::string trim = "Smith Cottage\r\n40 Lake Rd\r\nLakeside,IL\r\n217-555-0199\r\nTrim";
    // The record of 17 June is not of this day; the project file's framing is, within its lead.
    EXPECT_EQ(form.txtHourSlot[2].Text(),
              "Smith Cottage\r\n40 Lake Rd\r\nLakeside,IL\r\n217-555-0199\r\nFraming");
    EXPECT_EQ(form.txtHourSlot[2].ForeColor(), 65280);
    EXPECT_EQ(form.txtHourSlot[9].Tag(), "Smith Cottage");
    EXPECT_EQ(form.txtHourSlot[10].Text(), trim);
    EXPECT_EQ(form.Label2[10].Tag(), "217-555-0199");
    EXPECT_EQ(form.txtHourSlot[11].Text(), "\r\n\r\n         No Event Scheduled");
    EXPECT_EQ(PrintRows[10].problem, "Trim");
    EXPECT_EQ(PrintRows[10].cityLine, "Lakeside, IL 62702");
    EXPECT_EQ(PrintRows[10].reference, "Pj160-1");

    // A cleared day still shows what the record file says: clearing touches the day alone.
    form.MonthView1.UserPick(DateTime::FromYmd(2026, 6, 17));
    form.cmdView.Click();  // hide
    form.cmdView.Click();
    EXPECT_EQ(form.txtHourSlot[5].Text(),
              "Smith Cottage\r\n40 Lake Rd\r\nLakeside,IL\r\n217-555-0199\r\nFraming");
}

TEST(TeamScheduleLeadDays, AMilestoneShowsOnTheDaysWithinItsLeadAndNotAfter) {
    const DateTime start = DateTime::FromYmd(2026, 6, 17);
    EXPECT_TRUE(CheckLeadDays(start.AddDays(1), start, 2));
    EXPECT_TRUE(CheckLeadDays(start.AddDays(2), start, 2));
    EXPECT_FALSE(CheckLeadDays(start.AddDays(3), start, 2));
    EXPECT_FALSE(CheckLeadDays(start, start, 2));
    EXPECT_FALSE(CheckLeadDays(start.AddDays(1), start, 0));
}

// Every malformed record file of the day view: the run-time failure, or a row left out, and
// never a file written.
TEST_F(TeamSchedule, MalformedRecordFiles) {
    const std::string good = RecordBytes("Pj1-1", "1", "Hours", "1", "6/17/2026", "4", "Roof");
    struct Case {
        const char* what;
        std::string bytes;
        int error;      // 0: no failure
        bool rowShown;  // slot 4 shows the record
    };
    const Case cases[] = {
        {"cut short", good + good.substr(0, 200), 0, true},
        {"wrong length", good.substr(1) + good, err::TypeMismatch, false},
        {"nan start slot", RecordBytes("Pj1-1", "1", "Hours", "1", "6/17/2026", "na", "Roof"), 0,
         false},
        {"huge start slot", RecordBytes("Pj1-1", "1", "Hours", "99", "6/17/2026", "99", "Roof"), 0,
         false},
        {"huge hours", RecordBytes("Pj1-1", "1", "Hours", "99", "6/17/2026", "4", "Roof"), 0, true},
        {"bad date", RecordBytes("Pj1-1", "1", "Hours", "1", "6/47/2026", "4", "Roof"),
         err::TypeMismatch, false},
        {"NUL bytes", std::string(297, '\0'), err::TypeMismatch, false},
    };
    frmMain& form = Open(3);
    form.MonthView1.UserPick(DateTime::FromYmd(2026, 6, 17));
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        folder.Write("Slips.txt", c.bytes);
        int error = 0;
        try {
            BuildWorkSchedule(form);
        } catch (const RuntimeError& e) {
            error = e.Number();
        }
        EXPECT_EQ(error, c.error);
        EXPECT_EQ(OpenFileCount(), 0);
        if (c.error == 0) {
            EXPECT_EQ(form.txtHourSlot[3].Tag() == "Smith Cottage", c.rowShown);
        }
        EXPECT_EQ(folder.Read("Slips.txt"), c.bytes);
    }
    std::filesystem::remove(folder.Path() / "Slips.txt");
    folder.MakeDirs("Slips.txt");
    BuildWorkSchedule(form);
    EXPECT_EQ(form.txtHourSlot[3].Tag(), "");
}
