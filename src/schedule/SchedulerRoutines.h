#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/DateTime.h"

// Team day files: one file a team and day, twelve hourly slots a line each,
// below <year>\Team#<team>\<day of year>.txt.

constexpr const char* kFreeSlot = "No Event Scheduled";

// The open day; slots 1 to 12 are used, except by ReadDayRaw which fills 0 to 11.
extern std::array<std::string, 13> DaySlots;
extern std::string DayFilePath;  // full path of the day built last
extern std::string DayOfYearText;
// Labels of the twelve slots, 1 to 12; there is no noon slot.
extern const std::array<std::string, 13> HourLabels;

void ResetDayState();  // the open day as a new process has it

std::string HourLabelShown(int slot);  // "08:00am", "01:00pm"
int WorkingSlot(int position);         // slot of working hour 1 to 8, from StartHour

void BuildDayPath(platform::DateTime date, const std::string& team);
void ClearDaySlots();
void ShowDaySlots();
void ReadDay(platform::DateTime date, const std::string& team);
void WriteDay(platform::DateTime date, const std::string& team);
void ReadDayRaw();
void CheckDayFree(platform::DateTime date, std::int16_t& conflict);
void WriteDays(platform::DateTime& date, int count, const std::string& text);
// Looks for `count` consecutive workdays whose working block is free for CurrentTeam, from
// `date` on, and leaves `date` on the last day looked at. Busy days are counted in ScanCount
// over the whole run of the program, never per search; only a search whose first busy day
// brings the count to 60 sets `conflict` to -1.
void CheckConsecutiveDays(platform::DateTime& date, int count, std::int16_t& conflict);
std::int16_t ScanCount();
