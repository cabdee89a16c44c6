#pragma once

#include <cstdint>
#include <string>

#include "platform/DateTime.h"

class frmMain;

// The day of one team by the hour on frmMain's grid, the calendar beside it and the month
// of the team's load. Routine 1 picks the hours of a milestone here; routine 3 looks at a
// team's day and clears it.

constexpr const char* kNoSlotSelected = "No Slot Selected";

// What the slip screen is told about the slot clicked in the team schedule.
extern std::string SelectedSlotText;
extern std::uint8_t LookupFile;  // 1 Slips.txt, 2 Meetings.txt, 3 ProjectRecords.txt
extern std::string SlipTeam;     // the team's name

// The calendar onto a workday of the working week, and the day shown for it.
void ShowCalendarDate(frmMain& form, platform::DateTime date);
// The calendar's change: the day labels, the month of the team, and the day if it is busy.
void CalendarChanged(frmMain& form);
// Sets the calendar's date without the change event: that event answers the user's clicks
// (and the spinner, which runs it on purpose), not dates the program proposes.
void SetCalendarDate(frmMain& form, platform::DateTime date);
// One step of the calendar's spinner.
void StepCalendar(frmMain& form, bool up);
// The team chosen in lstTeam becomes CurrentTeam.
void ChooseTeam(frmMain& form);
// The team list one step on, round from the first team to the last.
void StepTeam(frmMain& form, bool up);
// The team's day on the grid; with anything on it the grid stays, otherwise the calendar.
void ShowDayIfBusy(frmMain& form);
// The calendar in the place it shares with the hourly grid.
void ShowCalendarFrame(frmMain& form);
void ShowHourlyDay(frmMain& form);

// The month of the calendar in the 42 boxes, each day from today on showing the hours
// taken instead of its number.
void FillTeamCalendar(frmMain& form);
void PickMonthBox(frmMain& form, int index);

// A click on a row of the grid.
void ClickHourRow(frmMain& form);
// Whether `hours` rows from `row` on are free; says so when one is not.
void CheckforSlots(frmMain& form, int row, int hours, bool& free);
// The rows holding SlotSelection become free again.
void ClearSelection(frmMain& form);
// Column 1 of the grid into DaySlots.
void WriteSlots(frmMain& form);
void ClearScheduleDay(frmMain& form);
