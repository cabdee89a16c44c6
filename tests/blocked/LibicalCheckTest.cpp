// The exported calendar read by libical, a widely used iCalendar library, with its check of
// the standard's rules for each component: nothing may be reported.
#include <gtest/gtest.h>
#include <libical/ical.h>

#include "BlockFixture.h"
#include "blocked/ScheduleExport.h"

using namespace platform;

namespace {

// Every problem libical attaches to the parsed calendar as X-LIC-ERROR properties.
std::vector<std::string> Problems(icalcomponent* component) {
    std::vector<std::string> problems;
    for (icalproperty* p = icalcomponent_get_first_property(component, ICAL_XLICERROR_PROPERTY); p;
         p = icalcomponent_get_next_property(component, ICAL_XLICERROR_PROPERTY))
        problems.push_back(icalproperty_get_xlicerror(p));
    for (icalcomponent* c = icalcomponent_get_first_component(component, ICAL_ANY_COMPONENT); c;
         c = icalcomponent_get_next_component(component, ICAL_ANY_COMPONENT)) {
        auto inner = Problems(c);
        problems.insert(problems.end(), inner.begin(), inner.end());
    }
    return problems;
}

}  // namespace

TEST_F(BlockTest, LibicalReadsTheExportWithoutComplaint) {
    folder.Write("2026/Team#1/169.txt", DayWith("Pj160-1-Framing; roof, \\ \xE9", 3, 10));
    folder.Write("2026/Team#1/170.txt", DayWith("Pj161-2-Site visit", 1, 2));
    folder.Write("2026/Team#1/173.txt", BlockedBytes("Holiday"));
    folder.Write("2026/Team#2/174.txt", BlockedBytes("Sick Day"));
    const auto events =
        CollectScheduleEvents(1, 3, DateTime::FromYmd(2026, 6, 15), DateTime::FromYmd(2026, 7, 15));
    const std::string bytes = ScheduleCalendar(events, "All Assignments Schedule", true,
                                               DateTime::FromYmdHms(2026, 6, 15, 9, 0, 0));

    icalcomponent* calendar = icalparser_parse_string(bytes.c_str());
    ASSERT_NE(calendar, nullptr);
    EXPECT_EQ(icalcomponent_isa(calendar), ICAL_VCALENDAR_COMPONENT);
    EXPECT_EQ(icalrestriction_check(calendar), 1);
    EXPECT_EQ(Problems(calendar), std::vector<std::string>{});
    EXPECT_EQ(icalcomponent_count_components(calendar, ICAL_VEVENT_COMPONENT), 4);
    icalcomponent* first = icalcomponent_get_first_component(calendar, ICAL_VEVENT_COMPONENT);
    EXPECT_STREQ(icalcomponent_get_summary(first), "Crew A: Pj160-1 Framing; roof, \\ \xC3\xA9");
    const icaltimetype start = icalcomponent_get_dtstart(first);
    EXPECT_EQ(start.hour, 8);
    EXPECT_EQ(icalcomponent_get_dtend(first).hour, 17);
    icalcomponent_free(calendar);
}
