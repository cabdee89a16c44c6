#include "BlockFixture.h"
#include "blocked/ICalendarFormat.h"
#include "blocked/ScheduleExport.h"
#include "platform/Ui.h"

using namespace platform;

namespace {

const DateTime kStamp = DateTime::FromYmdHms(2026, 6, 15, 9, 0, 0);

struct ReadBack {
    std::string summary, start, end, description;
};

std::vector<ReadBack> Events(const std::string& bytes) {
    std::vector<CalendarComponent> calendars;
    std::string problem;
    EXPECT_TRUE(ReadCalendar(bytes, calendars, problem)) << problem;
    std::vector<ReadBack> out;
    if (calendars.size() != 1) return out;
    for (const CalendarComponent& event : calendars[0].components) {
        for (const char* required : {"UID", "DTSTAMP", "DTSTART", "DTEND", "SUMMARY"})
            EXPECT_NE(event.Find(required), nullptr) << required;
        out.push_back({UnescapeText(event.Find("SUMMARY")->value), event.Find("DTSTART")->value,
                       event.Find("DTEND")->value, UnescapeText(event.Find("DESCRIPTION")->value)});
    }
    return out;
}

}  // namespace

TEST_F(BlockTest, AScheduleExportsOneEventABlockedDayAndOneAMilestonesHoursADay) {
    folder.Write("2026/Team#1/169.txt", DayWith("Pj160-1-Framing", 3, 10));
    folder.Write("2026/Team#1/170.txt", DayWith("Pj161-2-Site visit, roof", 6, 7));
    folder.Write("2026/Team#1/173.txt", BlockedBytes("Holiday"));
    folder.Write("2026/Team#1/174.txt", DayWith("", 1, 12));  // empty slots are free
    folder.Write("2026/Team#2/169.txt", BlockedBytes("Vacation"));
    folder.Write(
        "ConstructionProjects/Pj160-1.txt",
        "\"Pj160-1\",\"Kitchen\",\"A100\",\"Proposal Number\",\"John Smith\",\"1 Elm "
        "St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0101\",\"John Smith\",\"9 Oak "
        "Rd\",\"\",\"Shelbyville\",\"IL\",\"62565\",\"217-555-0199\",0\r\n");
    const auto events =
        CollectScheduleEvents(1, 1, DateTime::FromYmd(2026, 6, 15), DateTime::FromYmd(2026, 7, 15));
    ASSERT_EQ(events.size(), 3u);
    const std::string bytes = ScheduleCalendar(events, "Crew A Schedule", false, kStamp);

    // Every line ends in CR LF and holds at most 75 octets.
    for (size_t start = 0, end; start < bytes.size(); start = end + 2) {
        end = bytes.find("\r\n", start);
        ASSERT_NE(end, std::string::npos);
        EXPECT_LE(end - start, 75u);
        EXPECT_EQ(bytes.substr(start, end - start).find('\n'), std::string::npos);
    }
    EXPECT_EQ(bytes.rfind("BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:", 0), 0u);
    EXPECT_NE(bytes.find("\r\nDTSTAMP:20260615T090000Z\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("\r\nDTSTART;VALUE=DATE:20260622\r\nDTEND;VALUE=DATE:20260623\r\n"),
              std::string::npos);

    const auto read = Events(bytes);
    ASSERT_EQ(read.size(), 3u);
    EXPECT_EQ(read[0].summary, "Pj160-1 Framing");
    EXPECT_EQ(read[0].start, "20260618T080000");
    EXPECT_EQ(read[0].end, "20260618T170000");
    // The project file adds its title, the customer and the site.
    EXPECT_EQ(read[0].description,
              "Assignment: Crew A\nProject: Pj160-1 Kitchen\nMilestone: Framing\nCustomer: John "
              "Smith\nTelephone: 217-555-0101\nHours: 8");
    EXPECT_NE(bytes.find("\r\nLOCATION:9 Oak Rd\\, Shelbyville IL 62565\r\n"), std::string::npos);
    // Without its file (a project already deleted) the event keeps what the day file says.
    EXPECT_EQ(read[1].description,
              "Assignment: Crew A\nProject: Pj161-2\nMilestone: Site visit, roof\nHours: 2");
    // Across the missing noon hour: 11:00 to 2:00pm, two hours of work.
    EXPECT_EQ(read[1].summary, "Pj161-2 Site visit, roof");
    EXPECT_EQ(read[1].start, "20260619T110000");
    EXPECT_EQ(read[1].end, "20260619T140000");
    EXPECT_EQ(read[2].summary, "Holiday");
    EXPECT_EQ(read[2].start, "20260622");
}

TEST_F(BlockTest, AllTeamsExportTeamByTeamWithTheTeamInEachTitle) {
    folder.Write("Assignto.txt", "\"Crew A\"\r\n\"\xC9quipe B\"\r\n");
    LoadAssignments();
    folder.Write("2026/Team#2/169.txt", BlockedBytes("Vacation"));
    folder.Write("2026/Team#1/170.txt", BlockedBytes("Sick Day"));
    folder.MakeDirs("Documents");
    frmBlock& form = Open();
    form.lstAssignto.SetListIndex(2);
    const std::string target = AppFolder() + "/Documents/everyone";
    QueuedDialogs().QueueFile(target);
    form.mnuExportSchedule.Raise("Click");
    EXPECT_EQ(QueuedDialogs().Shown().back(), "save -> " + target);
    EXPECT_EQ(folder.Ui().Boxes().back().prompt,
              "The schedule of All Assignments from 6/15/2026 to 7/15/2026 was saved in "
              "everyone.ics with 2 events.");
    const auto read = Events(folder.Read("Documents/everyone.ics"));
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].summary, "Crew A: Sick Day");
    EXPECT_EQ(read[1].summary, "\xC3\x89quipe B: Vacation");  // UTF-8 in the file
    EXPECT_FALSE(folder.Exists("Documents/everyone.ics.part"));
}

TEST_F(BlockTest, ACancelledExportWritesNothingAndAnUnwritablePlaceIsSaid) {
    frmBlock& form = Open();
    form.mnuExportSchedule.Raise("Click");
    EXPECT_TRUE(folder.Ui().Boxes().empty());
    QueuedDialogs().QueueFile(AppFolder() + "/No such folder/crew.ics");
    form.mnuExportSchedule.Raise("Click");
    EXPECT_EQ(folder.Ui().Boxes().back().prompt, "The calendar could not be written to crew.ics.");
}
