#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/DateTime.h"

// State shared by the screens and modules for the life of the process.

// Teams: entry 0 is "populated" or "empty", entries 1.. the names from Assignto.txt.
// The index is the team number.
extern std::vector<std::string> TeamNames;
// "Sunday" to "Saturday", indexed 1 to 7 (entry 0 unused).
extern std::array<std::string, 8> DayNames;
// The main-menu routine in use, 1 to 10.
extern std::int16_t MenuRoutine;

// Operating settings.
extern std::uint8_t StartHour;  // 7 or 8
extern std::uint8_t WorkWeek;   // 5, 61, 62 or 7
extern bool DaysDefault;
extern bool ShowPrompts;
extern bool SoundAlarms;

// The contractor's own data, the nine texts of MyBusinessData.txt.
extern std::array<std::string, 9> BusinessData;
extern bool PrintInColor;
extern std::uint8_t PrintCopies;

// Modem flags.
extern std::int16_t ModemPort;
extern bool PhoneConnected;
extern bool CallerIDEnabled;

// The day worked on.
extern platform::DateTime CurrentDate;
extern std::string CurrentTeam;
extern std::string CurrentYearText;
extern int TodayDayNumber;

// True while the project tables hold what is on disk.
extern bool ProjectsLoaded;

// Every value above as a new process starts with it.
void ResetSharedState();

// The beep beside a refused input, when the user wants it.
void AlarmBeep();
