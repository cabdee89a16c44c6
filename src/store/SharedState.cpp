#include "store/SharedState.h"

#include "platform/Ui.h"

std::vector<std::string> TeamNames{"empty"};
std::array<std::string, 8> DayNames{"",          "Sunday",   "Monday", "Tuesday",
                                    "Wednesday", "Thursday", "Friday", "Saturday"};
std::int16_t MenuRoutine = 0;

std::uint8_t StartHour = 8;
std::uint8_t WorkWeek = 5;
bool DaysDefault = true;
bool ShowPrompts = true;
bool SoundAlarms = true;

std::array<std::string, 9> BusinessData;
bool PrintInColor = true;
std::uint8_t PrintCopies = 3;

std::int16_t ModemPort = 0;
bool PhoneConnected = false;
bool CallerIDEnabled = false;

platform::DateTime CurrentDate;
std::string CurrentTeam;
std::string CurrentYearText;
int TodayDayNumber = 0;

bool ProjectsLoaded = false;

void ResetSharedState() {
    TeamNames.assign(1, "empty");
    MenuRoutine = 0;
    StartHour = 8;
    WorkWeek = 5;
    DaysDefault = ShowPrompts = SoundAlarms = true;
    BusinessData.fill("");
    PrintInColor = true;
    PrintCopies = 3;
    ModemPort = 0;
    PhoneConnected = CallerIDEnabled = false;
    CurrentDate = platform::DateTime();
    CurrentTeam.clear();
    CurrentYearText.clear();
    TodayDayNumber = 0;
    ProjectsLoaded = false;
}

void AlarmBeep() {
    if (SoundAlarms) platform::Beep();
}
