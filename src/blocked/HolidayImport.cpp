#include "blocked/HolidayImport.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "blocked/ICalendarFormat.h"
#include "blocked/frmBlock.h"
#include "platform/Dialogs.h"
#include "platform/Ui.h"
#include "schedule/Teams.h"
#include "schedule/Workdays.h"

using namespace platform;

namespace {

constexpr const char* kTitle = "Import Holidays";
constexpr const char* kCalendarFilter = "iCalendar Files (*.ics)|*.ics|All Files (*.*)|*.*";
constexpr const char* kHolidayReason = "Holiday";
// A year of holidays is a few kilobytes; anything near this is no holiday calendar.
constexpr std::uintmax_t kLargestFile = 4u << 20;

std::string At(int line) {
    return "line " + std::to_string(line) + ": ";
}

bool IsWorkday(DateTime day) {
    return NextWorkday(day, 0) == day;
}

// The whole days an event covers, from its start, by DTEND, DURATION or its start alone.
bool EventDays(const CalendarComponent& event, DateTime& start, int& days, std::string& problem) {
    const CalendarProperty* dtstart = event.Find("DTSTART");
    if (!dtstart) {
        problem = At(event.line) + "an event without a start (DTSTART)";
        return false;
    }
    CalendarTime begin;
    if (!ParseCalendarTime(*dtstart, begin)) {
        problem = At(dtstart->line) + "DTSTART is not a date: " + Utf8ToAnsi(dtstart->value);
        return false;
    }
    start = begin.when.DateOnly();
    days = 1;
    CalendarTime end = begin;
    if (const CalendarProperty* dtend = event.Find("DTEND")) {
        if (!ParseCalendarTime(*dtend, end) || end.hasTime != begin.hasTime) {
            problem =
                At(dtend->line) + "DTEND is not a date like DTSTART: " + Utf8ToAnsi(dtend->value);
            return false;
        }
    } else if (const CalendarProperty* duration = event.Find("DURATION")) {
        long long seconds = 0;
        if (!ParseDurationValue(duration->value, seconds)) {
            problem =
                At(duration->line) + "DURATION is not a duration: " + Utf8ToAnsi(duration->value);
            return false;
        }
        end.when = DateTime(begin.when.Serial() + static_cast<double>(seconds) / 86400.0);
    } else {
        return true;
    }
    if (end.when < begin.when) {
        problem = At(event.line) + "an event that ends before it starts";
        return false;
    }
    const DateTime lastDay = end.when.DateOnly();
    // A date end is the first day after the event; a time end counts the day it falls in.
    days = lastDay.DayNumber() - start.DayNumber() + (begin.hasTime && end.when > lastDay ? 1 : 0);
    days = std::max(days, 1);
    return true;
}

// The start dates of an event: once, or every year by a plain yearly rule. False when the
// event repeats in a way not followed here.
bool Occurrences(const CalendarComponent& event, DateTime start, DateTime last,
                 std::vector<DateTime>& starts) {
    const CalendarProperty* rule = event.Find("RRULE");
    if (!rule) {
        starts.push_back(start);
        return true;
    }
    int interval = 1, count = 0;
    DateTime until = last;
    bool yearly = false;
    std::istringstream parts(rule->value);
    for (std::string part; std::getline(parts, part, ';');) {
        const auto eq = part.find('=');
        if (eq == std::string::npos) return false;
        const std::string key = part.substr(0, eq), value = part.substr(eq + 1);
        auto number = [&](int& out) {
            if (value.empty() || value.size() > 4 ||
                value.find_first_not_of("0123456789") != std::string::npos)
                return false;
            out = std::stoi(value);
            return out >= 1;
        };
        if (key == "FREQ") {
            yearly = value == "YEARLY";
        } else if (key == "INTERVAL") {
            if (!number(interval)) return false;
        } else if (key == "COUNT") {
            if (!number(count)) return false;
        } else if (key == "UNTIL") {
            bool utc = false;
            DateTime when;
            if (ParseDateValue(value, when)) {
                until = std::min(until, when);
            } else if (ParseDateTimeValue(value, when, utc)) {
                until = std::min(until, when.DateOnly());
            } else {
                return false;
            }
        } else if (key == "BYMONTH") {
            if (value != std::to_string(start.Month())) return false;
        } else if (key == "BYMONTHDAY") {
            if (value != std::to_string(start.Day())) return false;
        } else if (key != "WKST") {
            return false;
        }
    }
    if (!yearly) return false;
    int made = 0;
    for (int year = start.Year(); year <= last.Year(); year += interval) {
        if (count && made >= count) break;
        // 29 February comes only in leap years.
        if (start.Day() > DaysInMonth(year, start.Month())) continue;
        const DateTime day = DateTime::FromYmd(year, start.Month(), start.Day());
        if (day > until) break;
        starts.push_back(day);
        ++made;
    }
    return true;
}

std::vector<DateTime> ExcludedDates(const CalendarComponent& event) {
    std::vector<DateTime> excluded;
    for (const CalendarProperty& p : event.properties) {
        if (p.name != "EXDATE") continue;
        std::istringstream values(p.value);
        for (std::string value; std::getline(values, value, ',');) {
            DateTime day;
            if (ParseDateValue(value.substr(0, 8), day)) excluded.push_back(day);
        }
    }
    return excluded;
}

void CollectEvents(const CalendarComponent& component, std::vector<const CalendarComponent*>& out) {
    for (const CalendarComponent& child : component.components) {
        if (child.name == "VEVENT") out.push_back(&child);
    }
}

bool ReadUserFile(const std::string& path, std::string& bytes, std::string& problem) {
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path, ec)) {
        problem = "it is not a file";
        return false;
    }
    if (std::filesystem::file_size(path, ec) > kLargestFile || ec) {
        problem = "it is too large for a holiday calendar";
        return false;
    }
    std::ifstream in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    if (!in) {
        problem = "it cannot be read";
        return false;
    }
    bytes = content.str();
    return true;
}

}  // namespace

bool ReadHolidays(std::string_view bytes, DateTime first, DateTime last, HolidayFile& file,
                  std::string& problem) {
    file = HolidayFile{};
    std::vector<CalendarComponent> calendars;
    if (!ReadCalendar(bytes, calendars, problem)) return false;
    std::vector<const CalendarComponent*> events;
    for (const CalendarComponent& calendar : calendars) CollectEvents(calendar, events);
    for (const CalendarComponent* event : events) {
        DateTime start;
        int days = 0;
        if (!EventDays(*event, start, days, problem)) return false;
        const CalendarProperty* status = event->Find("STATUS");
        std::vector<DateTime> starts;
        if ((status && status->value == "CANCELLED") || !Occurrences(*event, start, last, starts)) {
            ++file.leftOut;
            continue;
        }
        const std::vector<DateTime> excluded = ExcludedDates(*event);
        const CalendarProperty* summary = event->Find("SUMMARY");
        bool any = false;
        for (DateTime from : starts) {
            if (std::find(excluded.begin(), excluded.end(), from) != excluded.end()) continue;
            HolidayRequest holiday;
            holiday.summary = summary ? Utf8ToAnsi(UnescapeText(summary->value)) : std::string();
            const DateTime to = std::min(from.AddDays(days - 1), last);
            for (DateTime day = std::max(from, first); day <= to; day = day.AddDays(1)) {
                if (!IsWorkday(day)) continue;
                if (holiday.workdays++ == 0) holiday.firstWorkday = day;
            }
            if (holiday.workdays == 0) continue;
            any = true;
            const bool known = std::any_of(
                file.holidays.begin(), file.holidays.end(), [&](const HolidayRequest& h) {
                    return h.firstWorkday == holiday.firstWorkday && h.workdays == holiday.workdays;
                });
            if (!known) file.holidays.push_back(std::move(holiday));
        }
        if (!any) ++file.leftOut;
    }
    std::stable_sort(file.holidays.begin(), file.holidays.end(),
                     [](const HolidayRequest& a, const HolidayRequest& b) {
                         return a.firstWorkday < b.firstWorkday;
                     });
    return true;
}

void ImportHolidays(frmBlock& form) {
    const std::string path = ChooseOpenFile(kCalendarFilter, kTitle);
    if (path.empty()) return;
    const std::string name = std::filesystem::path(path).filename().string();
    std::string bytes, problem;
    HolidayFile file;
    const DateTime first = Today();
    const DateTime last = form.Calender.MaxDate();
    if (!ReadUserFile(path, bytes, problem) || !ReadHolidays(bytes, first, last, file, problem)) {
        MsgBox(
            "The file " + name + " cannot be imported:\r\n" + problem + "\r\nNo day was blocked.",
            vbExclamation, kTitle);
        return;
    }
    const int count = static_cast<int>(file.holidays.size());
    if (count == 0) {
        MsgBox("The file " + name + " holds no holiday on a workday from " + ShortDate(first) +
                   " to " + ShortDate(last) + ".\r\nNo day was blocked.",
               vbInformation, kTitle);
        return;
    }
    const std::string question = "The file " + name + " holds " + std::to_string(count) +
                                 (count == 1 ? " holiday" : " holidays") + " on workdays from " +
                                 ShortDate(file.holidays.front().firstWorkday) + " to " +
                                 ShortDate(file.holidays.back().firstWorkday) + ".\r\nBlock " +
                                 (count == 1 ? "it" : "them") + " as \"" + kHolidayReason +
                                 "\" for All Assignments?";
    if (MsgBox(question, vbYesNo + vbQuestion, kTitle) != vbYes) return;

    int blockedDays = 0, refused = 0;
    for (const HolidayRequest& holiday : file.holidays) {
        // The request as the screen would hold it, for every team in turn.
        form.optAction[0].SetValue(true);
        form.lstReason.SetListIndex(1);
        form.BlockRequestReason = kHolidayReason;
        form.BlockRequestDays = static_cast<std::int16_t>(holiday.workdays);
        form.BlockStartDate = holiday.firstWorkday;
        for (int team = 1; team <= TeamCount(); ++team) {
            form.FindTeam(std::to_string(team));
            if (form.BlockOk == 1)
                blockedDays += holiday.workdays;
            else
                ++refused;
        }
    }
    std::string result = std::to_string(count) + (count == 1 ? " holiday" : " holidays") +
                         " imported from " + name + ".\r\n" + std::to_string(blockedDays) +
                         " team days blocked as \"" + kHolidayReason + "\".";
    if (refused)
        result += "\r\n" + std::to_string(refused) + " refused for events already scheduled.";
    if (file.leftOut)
        result += "\r\n" + std::to_string(file.leftOut) +
                  " left out: past, not on a workday, beyond two years or repeating in a way "
                  "this program does not follow.";
    MsgBox(result, vbInformation, kTitle);
    if (form.fraBlockedDays.Visible()) form.cmdSearch_Click();
}
