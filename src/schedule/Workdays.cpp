#include "schedule/Workdays.h"

#include "platform/Ui.h"
#include "schedule/Teams.h"
#include "store/SharedState.h"

using namespace platform;

namespace {
constexpr int kSunday = 1;
constexpr int kSaturday = 7;
}  // namespace

DateTime NextWorkday(DateTime& date) {
    switch (WorkWeek) {
        case 5:
            if (date.Weekday() == kSaturday) date = date.AddDays(2);
            if (date.Weekday() == kSunday) date = date.AddDays(1);
            break;
        case 61:
            if (date.Weekday() == kSunday) date = date.AddDays(1);
            break;
        case 62:
            if (date.Weekday() == kSaturday) date = date.AddDays(1);
            break;
        default:
            break;
    }
    return date;
}

DateTime NextWorkday(const DateTime& date, int) {
    DateTime copy = date;
    return NextWorkday(copy);
}

DateTime DefaultStartDate() {
    const DateTime now = Now();
    return now.Hour() > 19 ? now.DateOnly().AddDays(1) : now.DateOnly();
}

void CheckYear(int& year) {
    const int current =
        std::stoi(CurrentYearText.empty() ? std::to_string(Today().Year()) : CurrentYearText);
    if (year < current) {
        year = current;
    } else if (year > current) {
        MakeYearTree(std::to_string(year));
    }
}

WeekOptions WeekOptionsOf(int weekCode) {
    return WeekOptions{weekCode == 61, weekCode == 62, weekCode == 7};
}

DateTime SpinDateUp(DateTime value, DateTime maxDate, WeekOptions week) {
    DateTime next = value.AddDays(1);
    if (next.Weekday() == kSunday)
        next = week.sundayToFriday || week.allWeek ? value : value.AddDays(1);
    else if (next.Weekday() == kSaturday)
        next = week.mondayToSaturday || week.allWeek ? value : value.AddDays(3);
    // A step over the weekend may pass the limit as well as a plain one; the calendar
    // takes no date beyond it.
    if (next > maxDate) {
        MsgBox("Date cannot be more than Two Years", vbOKOnly, "Invalid date");
        return value;
    }
    return next;
}

DateTime SpinDateDown(DateTime value, WeekOptions week) {
    const DateTime previous = value.AddDays(-1);
    if (previous < Today()) {
        MsgBox("Date cannot be before Today", vbOKOnly, "Invalid date");
        return Today();
    }
    DateTime result = previous;
    if (previous.Weekday() == kSunday)
        result = !week.sundayToFriday && !week.allWeek ? value.AddDays(-3) : value;
    else if (previous.Weekday() == kSaturday)
        result = !week.mondayToSaturday && !week.allWeek ? value.AddDays(-2) : value;
    // Back over a weekend that began today or yesterday: the same answer as a step before
    // today, since the calendar takes no earlier date.
    if (result < Today()) {
        MsgBox("Date cannot be before Today", vbOKOnly, "Invalid date");
        return Today();
    }
    return result;
}
