#include "BlockFixture.h"
#include "blocked/HolidayImport.h"
#include "platform/Ui.h"

using namespace platform;

namespace {

const DateTime kToday = DateTime::FromYmd(2026, 6, 15);
const DateTime kLast = DateTime::FromYmd(2028, 6, 14);

std::string Calendar(const std::string& events) {
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Test//Holidays//EN\r\n" + events +
           "END:VCALENDAR\r\n";
}

std::string Event(const std::string& properties) {
    return "BEGIN:VEVENT\r\nUID:x@example.com\r\nDTSTAMP:20260101T000000Z\r\n" + properties +
           "END:VEVENT\r\n";
}

std::vector<std::string> Listed(const HolidayFile& file) {
    std::vector<std::string> out;
    for (const auto& h : file.holidays)
        out.push_back(ShortDate(h.firstWorkday) + " x" + std::to_string(h.workdays) + " " +
                      h.summary);
    return out;
}

}  // namespace

TEST_F(BlockTest, HolidaysCountOnlyTheirWorkdaysWithinTheCalendarsTwoYears) {
    HolidayFile file;
    std::string problem;
    const std::string bytes = Calendar(
        Event("DTSTART;VALUE=DATE:20261225\r\nSUMMARY:Christmas Day\r\n") +
        Event("DTSTART;VALUE=DATE:20260704\r\nSUMMARY:Independence Day\r\n") +  // Saturday
        Event("DTSTART;VALUE=DATE:20260101\r\nSUMMARY:New Year\\'s Day\r\n") +  // past
        Event("DTSTART;VALUE=DATE:20261126\r\nDTEND;VALUE=DATE:20261128\r\nSUMMARY:"
              "Thanksgiving\r\n") +
        Event("DTSTART;VALUE=DATE:20260612\r\nDTEND;VALUE=DATE:20260617\r\nSUMMARY:Fair\r\n") +
        Event("DTSTART:20260907T000000\r\nDURATION:PT23H\r\nSUMMARY:Labor Day\r\n") +
        Event("DTSTART;VALUE=DATE:20261225\r\nSUMMARY:Christmas again\r\n") +
        Event("DTSTART;VALUE=DATE:20261231\r\nDURATION:P1D\r\nSUMMARY:New Year's Eve\r\n") +
        Event("DTSTART;VALUE=DATE:20300101\r\nSUMMARY:Too far\r\n") +
        Event("DTSTART;VALUE=DATE:20260803\r\nSTATUS:CANCELLED\r\nSUMMARY:Called off\r\n"));
    ASSERT_TRUE(ReadHolidays(bytes, kToday, kLast, file, problem)) << problem;
    EXPECT_EQ(Listed(file),
              (std::vector<std::string>{"6/15/2026 x2 Fair", "9/7/2026 x1 Labor Day",
                                        "11/26/2026 x2 Thanksgiving", "12/25/2026 x1 Christmas Day",
                                        "12/31/2026 x1 New Year's Eve"}));
    EXPECT_EQ(file.leftOut, 4);
}

TEST_F(BlockTest, YearlyHolidaysRepeatByAPlainRuleAndOtherRulesAreLeftOut) {
    HolidayFile file;
    std::string problem;
    const std::string bytes = Calendar(
        Event("DTSTART;VALUE=DATE:20101111\r\nRRULE:FREQ=YEARLY;BYMONTH=11;BYMONTHDAY=11\r\n"
              "EXDATE;VALUE=DATE:20271111\r\nSUMMARY:Veterans Day\r\n") +
        Event("DTSTART;VALUE=DATE:20001126\r\nRRULE:FREQ=YEARLY;BYMONTH=11;BYDAY=4TH\r\n"
              "SUMMARY:Thanksgiving\r\n") +
        Event("DTSTART;VALUE=DATE:20240229\r\nRRULE:FREQ=YEARLY\r\nSUMMARY:Leap\r\n") +
        Event("DTSTART;VALUE=DATE:20200101\r\nRRULE:FREQ=YEARLY;COUNT=3\r\nSUMMARY:Ended\r\n") +
        Event("DTSTART;VALUE=DATE:20260817\r\nRRULE:FREQ=YEARLY;UNTIL=20270101\r\n"
              "SUMMARY:Once more\r\n"));
    ASSERT_TRUE(ReadHolidays(bytes, kToday, kLast, file, problem)) << problem;
    EXPECT_EQ(Listed(file),
              (std::vector<std::string>{"8/17/2026 x1 Once more", "11/11/2026 x1 Veterans Day",
                                        "2/29/2028 x1 Leap"}));
    EXPECT_EQ(file.leftOut, 2);  // the weekday rule, and the rule that ended in 2022
}

TEST_F(BlockTest, AHolidayFileThatCannotBeReadIsRefusedAndBlocksNothing) {
    const struct {
        const char* what;
        std::string bytes;
        std::string problem;
    } cases[] = {
        {"cut short", Calendar("").substr(0, 40),
         "the file ends inside VCALENDAR, begun on line 1"},
        {"no start", Calendar(Event("SUMMARY:Nothing\r\n")),
         "line 4: an event without a start (DTSTART)"},
        {"nan", Calendar(Event("DTSTART;VALUE=DATE:nan\r\n")),
         "line 7: DTSTART is not a date: nan"},
        {"huge", Calendar(Event("DTSTART;VALUE=DATE:99999999999999\r\n")),
         "line 7: DTSTART is not a date: 99999999999999"},
        {"huge duration",
         Calendar(Event("DTSTART;VALUE=DATE:20260703\r\nDURATION:P9999999999D\r\n")),
         "line 8: DURATION is not a duration: P9999999999D"},
        {"end before start",
         Calendar(Event("DTSTART;VALUE=DATE:20260703\r\nDTEND;VALUE=DATE:20260701\r\n")),
         "line 4: an event that ends before it starts"},
        {"end of another kind",
         Calendar(Event("DTSTART;VALUE=DATE:20260703\r\nDTEND:20260704T000000\r\n")),
         "line 8: DTEND is not a date like DTSTART: 20260704T000000"},
        {"NUL bytes", std::string("BEGIN:VCALENDAR\r\n\0\0\0", 20), "it is not a text file"},
    };
    for (const auto& c : cases) {
        HolidayFile file;
        std::string problem;
        EXPECT_FALSE(ReadHolidays(c.bytes, kToday, kLast, file, problem)) << c.what;
        EXPECT_EQ(problem, c.problem) << c.what;
    }

    // Through the screen: the message, and no day file anywhere. A folder in the file's place
    // is refused the same way.
    frmBlock& form = Open();
    folder.Write("Broken.ics", cases[2].bytes);
    folder.MakeDirs("Folder.ics");
    for (const char* name : {"Broken.ics", "Folder.ics"}) {
        QueuedDialogs().QueueFile(AppFolder() + "/" + name);
        form.mnuImportHolidays.Raise("Click");
    }
    ASSERT_EQ(folder.Ui().Boxes().size(), 2u);
    EXPECT_EQ(folder.Ui().Boxes()[0].title, "Import Holidays");
    EXPECT_EQ(folder.Ui().Boxes()[0].prompt,
              "The file Broken.ics cannot be imported:\r\nline 7: DTSTART is not a date: "
              "nan\r\nNo day was blocked.");
    EXPECT_EQ(folder.Ui().Boxes()[1].prompt,
              "The file Folder.ics cannot be imported:\r\nit is not a file\r\nNo day was blocked.");
    for (const char* team : {"2026/Team#1", "2026/Team#2", "2026/Team#3"})
        EXPECT_TRUE(std::filesystem::is_empty(folder.Path() / team)) << team;
}

TEST_F(BlockTest, ImportedHolidaysGoThroughTheReserveRoutineForEveryTeam) {
    folder.Write("2026/Team#2/184.txt", DayWith("Pj160-1-Framing", 3, 10));
    folder.Write("2026/Team#3/184.txt", BlockedBytes("Holiday"));
    folder.Write("Holidays.ics",
                 Calendar(Event("DTSTART;VALUE=DATE:20260703\r\nSUMMARY:Independence Day\r\n") +
                          Event("DTSTART;VALUE=DATE:20261126\r\nDTEND;VALUE=DATE:20261128\r\n"
                                "SUMMARY:Thanksgiving\r\n")));
    frmBlock& form = Open();
    QueuedDialogs().QueueFile(AppFolder() + "/Holidays.ics");
    folder.Ui().QueueAnswer(vbYes);
    form.mnuImportHolidays.Raise("Click");
    EXPECT_EQ(Messages(),
              (std::vector<std::string>{"Import Holidays", "Can't Block or UnBlock This Time",
                                        "Import Holidays"}));
    EXPECT_EQ(folder.Ui().Boxes()[0].prompt,
              "The file Holidays.ics holds 2 holidays on workdays from 7/3/2026 to "
              "11/26/2026.\r\nBlock them as \"Holiday\" for All Assignments?");
    EXPECT_EQ(folder.Ui().Boxes()[2].prompt,
              "2 holidays imported from Holidays.ics.\r\n8 team days blocked as "
              "\"Holiday\".\r\n1 refused for events already scheduled.");
    EXPECT_EQ(folder.Read("2026/Team#1/184.txt"), BlockedBytes("Holiday"));
    EXPECT_EQ(folder.Read("2026/Team#2/184.txt"), DayWith("Pj160-1-Framing", 3, 10));
    EXPECT_EQ(folder.Read("2026/Team#3/184.txt"), BlockedBytes("Holiday"));
    for (const char* team : {"Team#1", "Team#2", "Team#3"}) {
        EXPECT_EQ(folder.Read(std::string("2026/") + team + "/330.txt"), BlockedBytes("Holiday"));
        EXPECT_EQ(folder.Read(std::string("2026/") + team + "/331.txt"), BlockedBytes("Holiday"));
    }
}

TEST_F(BlockTest, AnImportAnsweredNoOrCancelledBlocksNothing) {
    folder.Write("Holidays.ics", Calendar(Event("DTSTART;VALUE=DATE:20260703\r\n")));
    frmBlock& form = Open();
    form.mnuImportHolidays.Raise("Click");  // the dialogue is cancelled
    QueuedDialogs().QueueFile(AppFolder() + "/Holidays.ics");
    folder.Ui().QueueAnswer(vbNo);
    form.mnuImportHolidays.Raise("Click");
    EXPECT_EQ(Messages(), std::vector<std::string>{"Import Holidays"});
    EXPECT_FALSE(folder.Exists("2026/Team#1/184.txt"));
    // A file of weekend holidays only says so.
    folder.Write("Weekend.ics", Calendar(Event("DTSTART;VALUE=DATE:20260704\r\n")));
    QueuedDialogs().QueueFile(AppFolder() + "/Weekend.ics");
    form.mnuImportHolidays.Raise("Click");
    EXPECT_EQ(folder.Ui().Boxes().back().prompt,
              "The file Weekend.ics holds no holiday on a workday from 6/15/2026 to "
              "6/14/2028.\r\nNo day was blocked.");
}
