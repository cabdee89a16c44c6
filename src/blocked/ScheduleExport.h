#pragma once

#include <string>
#include <vector>

#include "platform/DateTime.h"

class frmBlock;

// A team's schedule, or all teams', as an iCalendar file that a phone's calendar can
// subscribe to: one event a blocked day, and one a milestone's hours on each of its days.

struct ScheduleEvent {
    int team = 0;
    platform::DateTime day;
    bool allDay = false;  // a blocked day
    int firstSlot = 0;    // 1 to 12
    int slots = 0;        // adjacent slots of the same text
    std::string text;     // the slot text
};

// The events in the day files of teams `firstTeam` to `lastTeam` from `first` to `last`,
// team by team in date order.
std::vector<ScheduleEvent> CollectScheduleEvents(int firstTeam, int lastTeam,
                                                 platform::DateTime first, platform::DateTime last);
// The calendar file of these events; `stamp` is the time of the export.
std::string ScheduleCalendar(const std::vector<ScheduleEvent>& events,
                             const std::string& calendarName, bool namesTeams,
                             platform::DateTime stamp);

// The export as the user starts it: the team of lstAssignto, the search dates, the file.
void ExportSchedule(frmBlock& form);
