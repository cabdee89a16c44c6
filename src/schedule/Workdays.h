#pragma once

#include <string>

#include "platform/DateTime.h"

// The working week: which days of the week take events, and moving dates onto them.

// Moves the date onto a workday of WorkWeek, in place, and returns it.
platform::DateTime NextWorkday(platform::DateTime& date);
platform::DateTime NextWorkday(const platform::DateTime& date, int);  // by value
// The first date offered for a new event: tomorrow from 20:00 on, otherwise today.
platform::DateTime DefaultStartDate();
// A calendar moved into a year: the past is not shown, a later year gets its folders.
void CheckYear(int& year);

// Which week the set-up screen's option buttons show.
struct WeekOptions {
    bool mondayToSaturday = false;  // optMS
    bool sundayToFriday = false;    // optSF
    bool allWeek = false;           // optSS
};
WeekOptions WeekOptionsOf(int weekCode);

// One step of the date spinner up or down from `value`; messages as the screen shows them.
platform::DateTime SpinDateUp(platform::DateTime value, platform::DateTime maxDate,
                              WeekOptions week);
platform::DateTime SpinDateDown(platform::DateTime value, WeekOptions week);
