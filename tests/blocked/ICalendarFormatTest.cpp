// The iCalendar format against the examples of RFC 5545.
#include <gtest/gtest.h>

#include "blocked/ICalendarFormat.h"

using platform::DateTime;

namespace {

std::vector<CalendarComponent> Read(const std::string& bytes) {
    std::vector<CalendarComponent> calendars;
    std::string problem;
    EXPECT_TRUE(ReadCalendar(bytes, calendars, problem)) << problem;
    return calendars;
}

}  // namespace

TEST(ICalendarFormat, FoldedLinesUnfoldAsTheStandardShows) {
    // RFC 5545, 3.1: a long description folded twice, the second time before a blank.
    const auto lines = UnfoldLines(
        "DESCRIPTION:This is a lo\r\n ng description\r\n  that exists on a long line.\r\nX:1");
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].second,
              "DESCRIPTION:This is a long description that exists on a long line.");
    EXPECT_EQ(lines[0].first, 1);
    EXPECT_EQ(lines[1].first, 4);
    // A tab folds as well, and bare LF line ends are read too.
    EXPECT_EQ(UnfoldLines("A:1\n\t2\n")[0].second, "A:12");
}

TEST(ICalendarFormat, LongLinesFoldAtSeventyFiveOctetsWithoutCuttingACharacter) {
    std::string line = "DESCRIPTION:";
    for (int i = 0; i < 40; ++i) line += "Caf\xC3\xA9 ";  // "Café ", é in two octets
    const std::string folded = FoldLine(line);
    size_t start = 0;
    while (start < folded.size()) {
        const size_t end = folded.find("\r\n", start);
        ASSERT_NE(end, std::string::npos);
        EXPECT_LE(end - start, 75u);
        // No physical line starts inside a character (a continuation octet after the blank).
        if (start > 0) {
            EXPECT_NE(static_cast<unsigned char>(folded[start + 1]) & 0xC0, 0x80);
        }
        start = end + 2;
    }
    EXPECT_EQ(UnfoldLines(folded)[0].second, line);
    EXPECT_EQ(FoldLine("VERSION:2.0"), "VERSION:2.0\r\n");
}

TEST(ICalendarFormat, TextIsEscapedAndUnescapedAsTheStandardShows) {
    // RFC 5545, 3.3.11.
    EXPECT_EQ(UnescapeText("Project XYZ Final Review\\nConference Room - 3B\\nCome Prepared."),
              "Project XYZ Final Review\nConference Room - 3B\nCome Prepared.");
    EXPECT_EQ(EscapeText("Hours; 8, paid\\unpaid\r\nnext"), "Hours\\; 8\\, paid\\\\unpaid\\nnext");
    EXPECT_EQ(UnescapeText(EscapeText("a;b,c\\d\ne")), "a;b,c\\d\ne");
    EXPECT_EQ(UnescapeText("A\\Nb\\"), "A\nb\\");
}

TEST(ICalendarFormat, TheStandardsEventExampleReadsWithItsProperties) {
    // RFC 5545, 3.6.1, with a parameter list of quoted values (3.2.11) added.
    const auto calendars = Read(
        "BEGIN:VCALENDAR\r\n"
        "PRODID:-//xyz Corp//NONSGML PDA Calendar Version 1.0//EN\r\n"
        "VERSION:2.0\r\n"
        "BEGIN:VEVENT\r\n"
        "DTSTAMP:19960704T120000Z\r\n"
        "UID:uid1@example.com\r\n"
        "ORGANIZER:mailto:jsmith@example.com\r\n"
        "DTSTART:19960918T143000Z\r\n"
        "DTEND:19960920T220000Z\r\n"
        "STATUS:CONFIRMED\r\n"
        "CATEGORIES:CONFERENCE\r\n"
        "SUMMARY:Networld+Interop Conference\r\n"
        "DESCRIPTION:Networld+Interop Conference\r\n"
        "  and Exhibit\\nAtlanta World Congress Center\\n\r\n"
        " Atlanta\\, Georgia\r\n"
        "ATTENDEE;MEMBER=\"mailto:projectA@example.com\",\"mailto:projectB@example.com\";\r\n"
        " RSVP=TRUE:mailto:janedoe@example.com\r\n"
        "END:VEVENT\r\n"
        "END:VCALENDAR\r\n");
    ASSERT_EQ(calendars.size(), 1u);
    ASSERT_EQ(calendars[0].components.size(), 1u);
    const CalendarComponent& event = calendars[0].components[0];
    EXPECT_EQ(event.name, "VEVENT");
    ASSERT_NE(event.Find("DESCRIPTION"), nullptr);
    EXPECT_EQ(UnescapeText(event.Find("DESCRIPTION")->value),
              "Networld+Interop Conference and Exhibit\nAtlanta World Congress Center\nAtlanta, "
              "Georgia");
    EXPECT_EQ(event.Find("ORGANIZER")->value, "mailto:jsmith@example.com");
    const CalendarProperty* attendee = event.Find("ATTENDEE");
    ASSERT_NE(attendee, nullptr);
    EXPECT_EQ(attendee->Parameter("MEMBER"),
              "mailto:projectA@example.com,mailto:projectB@example.com");
    EXPECT_EQ(attendee->Parameter("RSVP"), "TRUE");
    EXPECT_EQ(attendee->value, "mailto:janedoe@example.com");
    CalendarTime start;
    ASSERT_TRUE(ParseCalendarTime(*event.Find("DTSTART"), start));
    EXPECT_TRUE(start.hasTime && start.utc);
    EXPECT_EQ(start.when, DateTime::FromYmdHms(1996, 9, 18, 14, 30, 0));
}

TEST(ICalendarFormat, DatesTimesAndDurationsReadAsTheStandardWritesThem) {
    DateTime when;
    bool utc = false;
    EXPECT_TRUE(ParseDateValue("19970714", when));
    EXPECT_EQ(when, DateTime::FromYmd(1997, 7, 14));
    EXPECT_TRUE(ParseDateTimeValue("19980118T230000", when, utc));
    EXPECT_FALSE(utc);
    EXPECT_TRUE(ParseDateTimeValue("19980119T070000Z", when, utc));
    EXPECT_TRUE(utc);
    EXPECT_EQ(when, DateTime::FromYmdHms(1998, 1, 19, 7, 0, 0));
    for (const char* bad :
         {"19970230", "1997071", "199707140", "19971314", "nan", "+1997071", "99999999"})
        EXPECT_FALSE(ParseDateValue(bad, when)) << bad;
    for (const char* bad :
         {"19980118T250000", "19980118 230000", "19980118T2300", "19980118T230000z"})
        EXPECT_FALSE(ParseDateTimeValue(bad, when, utc)) << bad;

    CalendarProperty date{"DTSTART", {{"VALUE", "DATE"}}, "19971102", 1};
    CalendarTime time;
    EXPECT_TRUE(ParseCalendarTime(date, time));
    EXPECT_FALSE(time.hasTime);
    CalendarProperty zoned{"DTSTART", {{"TZID", "America/New_York"}}, "19970902T090000", 1};
    EXPECT_TRUE(ParseCalendarTime(zoned, time));
    EXPECT_TRUE(time.hasTime);
    CalendarProperty period{"DTSTART", {{"VALUE", "PERIOD"}}, "19970902T090000", 1};
    EXPECT_FALSE(ParseCalendarTime(period, time));

    long long seconds = 0;
    EXPECT_TRUE(ParseDurationValue("P15DT5H0M20S", seconds));
    EXPECT_EQ(seconds, 15 * 86400 + 5 * 3600 + 20);
    EXPECT_TRUE(ParseDurationValue("P7W", seconds));
    EXPECT_EQ(seconds, 7 * 7 * 86400);
    EXPECT_TRUE(ParseDurationValue("-PT15M", seconds));
    EXPECT_EQ(seconds, -900);
    for (const char* bad : {"P", "PT", "P1H", "PT1D", "1D", "P99999999999D", "PTT1H"})
        EXPECT_FALSE(ParseDurationValue(bad, seconds)) << bad;

    EXPECT_EQ(FormatDateValue(DateTime::FromYmd(2026, 7, 3)), "20260703");
    EXPECT_EQ(FormatDateTimeValue(DateTime::FromYmdHms(2026, 7, 3, 8, 5, 9), false),
              "20260703T080509");
    EXPECT_EQ(FormatDateTimeValue(DateTime::FromYmdHms(2026, 7, 3, 17, 0, 0), true),
              "20260703T170000Z");
}

TEST(ICalendarFormat, ProgramTextBecomesUtf8AndBack) {
    const std::string ansi = "Caf\xE9 \x96 M\xFCller \x80";
    const std::string utf8 = AnsiToUtf8(ansi);
    EXPECT_EQ(utf8, "Caf\xC3\xA9 \xE2\x80\x93 M\xC3\xBCller \xE2\x82\xAC");
    EXPECT_EQ(Utf8ToAnsi(utf8), ansi);
    // What the code page cannot hold, and broken sequences, become question marks.
    EXPECT_EQ(Utf8ToAnsi("\xE6\x97\xA5 \xC3 \xFF"), "? ? ?");
}

TEST(ICalendarFormat, TheWriterEndsEveryLineWithCrLfAndEscapesText) {
    CalendarWriter out;
    out.Begin("VCALENDAR");
    out.AddText("SUMMARY", "Pj1-1 Framing, roof; \xE9t\xE9");
    out.End("VCALENDAR");
    EXPECT_EQ(out.Bytes(),
              "BEGIN:VCALENDAR\r\nSUMMARY:Pj1-1 Framing\\, roof\\; \xC3\xA9t\xC3\xA9\r\n"
              "END:VCALENDAR\r\n");
}

TEST(ICalendarFormat, MalformedFilesAreRefusedWithTheLineAtFault) {
    const std::string head = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n";
    const struct {
        const char* what;
        std::string bytes;
        std::string problem;
    } cases[] = {
        {"empty", "", "it holds no calendar"},
        {"blank lines only", "\r\n\r\n", "it holds no calendar"},
        {"not a calendar", "Holidays 2026\r\nJuly 3\r\n",
         "line 1: HOLIDAYS has no \":\" before its value"},
        {"another component first", "BEGIN:VEVENT\r\nEND:VEVENT\r\n",
         "line 1: the file does not start with BEGIN:VCALENDAR"},
        {"cut short", head + "BEGIN:VEVENT\r\nDTSTART;VALUE=DATE:20260703\r\n",
         "the file ends inside VEVENT, begun on line 3"},
        {"cut inside a line", head + "BEGIN:VEVENT\r\nDTSTA",
         "line 4: DTSTA has no \":\" before its value"},
        {"wrong end", head + "BEGIN:VEVENT\r\nEND:VCALENDAR\r\n",
         "line 4: END:VCALENDAR closes no VCALENDAR that is open"},
        {"text after the end", head + "END:VCALENDAR\r\nDTSTART:20260703\r\n",
         "line 4: text after END:VCALENDAR"},
        {"parameter without value", head + "DTSTART;VALUE:20260703\r\nEND:VCALENDAR\r\n",
         "line 3: a parameter of DTSTART without a value"},
        {"open quote", head + "ATTENDEE;CN=\"Jane:mailto:j@example.com\r\nEND:VCALENDAR\r\n",
         "line 3: a quoted parameter value without its end"},
        {"NUL bytes", head + std::string("SUMMARY:a\0b\r\n", 13) + "END:VCALENDAR\r\n",
         "it is not a text file"},
        {"continuation first", " BEGIN:VCALENDAR\r\n", "line 1: a line that is not a property"},
        {"nameless begin", head + "BEGIN:\r\nEND:VCALENDAR\r\n",
         "line 3: BEGIN names no component"},
    };
    for (const auto& c : cases) {
        std::vector<CalendarComponent> calendars;
        std::string problem;
        EXPECT_FALSE(ReadCalendar(c.bytes, calendars, problem)) << c.what;
        EXPECT_EQ(problem, c.problem) << c.what;
    }
}

TEST(ICalendarFormat, ByteOrderMarkTrailingBlankLinesAndSeveralCalendarsAreRead) {
    const auto calendars = Read(
        "\xEF\xBB\xBF"
        "BEGIN:VCALENDAR\nEND:VCALENDAR\nBEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\n"
        "END:VEVENT\r\nEND:VCALENDAR\r\n\r\n");
    ASSERT_EQ(calendars.size(), 2u);
    EXPECT_EQ(calendars[1].components.size(), 1u);
}
