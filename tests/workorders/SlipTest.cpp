// The slip screen opened from a booked cell of the team schedule, and Slips.txt damaged in
// the ways files get damaged.
#include "projects/WizardFixture.h"

#include <filesystem>
#include <functional>

#include "platform/RuntimeError.h"
#include "projects/TeamSchedule.h"
#include "workorders/SlipBytes.h"
#include "workorders/SlipFile.h"
#include "workorders/frmSlip.h"

using namespace platform;

namespace {

class SlipScreen : public WizardTest {
  protected:
    // The schedule of team 1 on Wednesday 17 June with one cell booked, and that cell clicked.
    frmSlip& ClickBooked(const std::string& cellText) {
        folder.Write("2026/Team#1/168.txt", DayWith({{3, cellText}}));
        frmMain& form = Open(3);
        form.MonthView1.UserPick(DateTime::FromYmd(2026, 6, 17));
        form.fgHours.UserClick(3, 1);
        return Screen<frmSlip>();
    }
};

}  // namespace

TEST_F(SlipScreen, ABookedSlipShowsItsRecord) {
    Slip other;
    other.key = "SA1001";
    other.name = "Someone Else";
    Slip booked;
    booked.key = "SA1002";
    folder.Write("Slips.txt", SlipBytes(other) + SlipBytes(booked));
    const std::string before = folder.Read("Slips.txt");
    frmSlip& slip = ClickBooked("SA1002 Leaking faucet");

    EXPECT_TRUE(slip.Visible());
    EXPECT_EQ(LookupFile, 1);
    EXPECT_EQ(SlipTeam, "Crew A");
    EXPECT_EQ(slip.Caption(), "Service Attention Slip");
    EXPECT_EQ(slip.lblServiceSlip.Caption(), "SA1002 Leaking faucet");
    EXPECT_EQ(slip.lblName.Caption(), "Jane Doe");
    EXPECT_EQ(slip.lblStreet.Caption(), "9 Elm St");
    EXPECT_EQ(slip.lblApt.Caption(), "Unit 4");
    EXPECT_EQ(slip.lblCity.Caption(), "Springfield");
    EXPECT_EQ(slip.lblState.Caption(), "IL");
    EXPECT_EQ(slip.lblZip.Caption(), "62704");
    EXPECT_EQ(slip.lblTelephone.Caption(), "217-555-0142");
    EXPECT_EQ(slip.lblAccount.Caption(), "A2002");
    // Amount and unit as stored, blanks kept; the date untrimmed as well.
    EXPECT_EQ(slip.lblDuration.Caption(), "2  Hours ");
    EXPECT_EQ(slip.lblDate.Caption(), "6/17/2026 ");
    EXPECT_EQ(slip.lblTime.Caption(), "08:00");
    EXPECT_EQ(slip.lblProblem.Caption(), "Leaking faucet");
    EXPECT_EQ(slip.lblAssignto.Caption(), "\\Team#");
    EXPECT_EQ(OpenFileCount(), 0);
    EXPECT_EQ(folder.Read("Slips.txt"), before);

    slip.cmdAttn.Click();
    EXPECT_FALSE(slip.Visible());
}

TEST_F(SlipScreen, TheFirstMatchWinsAndABlankKeyMatchesEveryCell) {
    Slip blank;
    blank.key = "";
    blank.name = "First In File";
    blank.time = "  ";
    Slip exact;
    exact.key = "4711";
    folder.Write("Slips.txt", SlipBytes(blank) + SlipBytes(exact));
    frmSlip& slip = ClickBooked("4711 Gutter");
    EXPECT_EQ(slip.lblName.Caption(), "First In File");
    // A blank Time keeps the time of the cleared slip.
    EXPECT_EQ(slip.lblTime.Caption(), "");
}

TEST_F(SlipScreen, MeetingsAndProjectsAreFoundInTheirOwnFiles) {
    Slip meeting;
    meeting.key = "Mtg12";
    meeting.name = "Board Room";
    folder.Write("Meetings.txt", SlipBytes(meeting));
    frmSlip& slip = ClickBooked("Mtg12 planning");
    EXPECT_EQ(LookupFile, 2);
    EXPECT_EQ(slip.lblName.Caption(), "Board Room");
    slip.cmdAttn.Click();

    // A project record needs its milestone in the cell as well as its number; the search is
    // case-sensitive.
    Slip roofOther, roof;
    roofOther.key = roof.key = "Pj160-1";
    roofOther.problem = "Framing";
    roofOther.name = "Wrong Milestone";
    roof.problem = "Roof";
    roof.name = "Smith Cottage";
    folder.Write("ProjectRecords.txt", SlipBytes(roofOther) + SlipBytes(roof));
    std::filesystem::remove(folder.Path() / "Meetings.txt");
    frmSlip& project = ClickBooked("Pj160-1-Roof");
    EXPECT_EQ(LookupFile, 3);
    EXPECT_EQ(project.lblName.Caption(), "Smith Cottage");
    project.cmdAttn.Click();

    ClickBooked("Pj160-1-roof");
    EXPECT_EQ(LastBox(), "Norvax Construction Scheduler: No Data Available");
    EXPECT_FALSE(Screen<frmSlip>().Visible());
}

TEST_F(SlipScreen, ACellThatFitsNoRecordSaysSoAndCloses) {
    Slip slip;
    slip.key = "SA9";
    folder.Write("Slips.txt", SlipBytes(slip));
    frmSlip& form = ClickBooked("SA1 Furnace");
    EXPECT_EQ(LastBox(), "Norvax Construction Scheduler: No Data Available");
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(form.lblName.Caption(), "");
}

// Slips.txt as another program may leave it. Each case is read as the file layer reads it, or
// stops with the run-time failure; the file stays as it was and no file stays open.
TEST_F(SlipScreen, ADamagedSlipFileIsReadOrStopsWithoutWriting) {
    Slip good;
    good.key = "SA5";
    struct Case {
        const char* what;
        std::function<void()> arrange;
        int error;         // the run-time failure, 0 for none
        const char* name;  // what lblName shows then
        const char* time;  // and lblTime
    };
    auto with = [&](auto change) {
        Slip s = good;
        change(s);
        return SlipBytes(s);
    };
    const Case cases[] = {
        {"cut short in the record",
         [&] { folder.Write("Slips.txt", SlipBytes(good).substr(0, 200)); }, 0, "", ""},
        {"a whole record and a cut one",
         [&] { folder.Write("Slips.txt", SlipBytes(good) + SlipBytes(good).substr(0, 100)); }, 0,
         "Jane Doe", "08:00"},
        {"nan time", [&] { folder.Write("Slips.txt", with([](Slip& s) { s.time = "na"; })); }, 0,
         "Jane Doe", ""},
        {"time past the day",
         [&] { folder.Write("Slips.txt", with([](Slip& s) { s.time = "99"; })); },
         err::SubscriptOutOfRange, "", ""},
        {"negative time", [&] { folder.Write("Slips.txt", with([](Slip& s) { s.time = "-1"; })); },
         err::SubscriptOutOfRange, "", ""},
        {"NUL bytes", [&] { folder.Write("Slips.txt", std::string(297 * 2, '\0')); }, 0, "", ""},
        // Trimming takes zero bytes at the end of a text as it takes blanks.
        {"NUL bytes in the key",
         [&] { folder.Write("Slips.txt", with([](Slip& s) { s.key = std::string("SA\0", 3); })); },
         0, "Jane Doe", "08:00"},
        {"a folder in its place",
         [&] {
             std::filesystem::remove(folder.Path() / "Slips.txt");
             folder.MakeDirs("Slips.txt");
         },
         -1, "", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        std::filesystem::remove_all(folder.Path() / "Slips.txt");
        folder.Write("Slips.txt", SlipBytes(good));
        frmSlip& slip = ClickBooked("SA5 Boiler");
        slip.cmdAttn.Click();
        c.arrange();
        const bool isFile = std::filesystem::is_regular_file(folder.Path() / "Slips.txt");
        const std::string before = isFile ? folder.Read("Slips.txt") : std::string();
        SelectedSlotText = "SA5 Boiler";
        LookupFile = 1;
        int error = 0;
        try {
            slip.ReadCallSlip();
        } catch (const RuntimeError& e) {
            error = e.Number();
        }
        if (c.error == -1) {
            EXPECT_NE(error, 0);
        } else {
            EXPECT_EQ(error, c.error);
        }
        EXPECT_EQ(OpenFileCount(), 0);
        if (error == 0) {
            EXPECT_EQ(slip.lblName.Caption(), c.name);
            EXPECT_EQ(slip.lblTime.Caption(), c.time);
        }
        if (isFile) {
            EXPECT_EQ(folder.Read("Slips.txt"), before);
        }
    }
}
