#include "blocked/ScheduleExport.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>

#include "blocked/DayFileSearch.h"
#include "blocked/ICalendarFormat.h"
#include "blocked/frmBlock.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Ui.h"
#include "projects/ProjectFiles.h"
#include "schedule/SchedulerRoutines.h"
#include "schedule/Teams.h"
#include "store/BasicDiskRoutines.h"
#include "store/CsvFile.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

constexpr const char* kTitle = "Export Schedule";
constexpr const char* kCalendarFilter = "iCalendar Files (*.ics)|*.ics";
constexpr const char* kProductId = "-//Norvax//Construction Scheduler//EN";
constexpr const char* kUidDomain = "@scheduler.norvax.com";

bool IsFree(const std::string& slot) {
    return slot.empty() || slot.find("No Event") != std::string::npos;
}

bool IsBlockedDay() {
    const std::string& first = DaySlots[1];
    if (std::find(std::begin(kBlockReasons), std::end(kBlockReasons), first) ==
        std::end(kBlockReasons))
        return false;
    return std::all_of(DaySlots.begin() + 1, DaySlots.end(),
                       [&](const std::string& slot) { return slot == first; });
}

// The hour a slot begins: 06:00 to 11:00, then 13:00 to 18:00 (there is no noon slot).
int SlotHour(int slot) {
    return slot <= 6 ? 5 + slot : 6 + slot;
}

DateTime AtHour(DateTime day, int hour) {
    return DateTime::FromYmdHms(day.Year(), day.Month(), day.Day(), hour, 0, 0);
}

std::string TeamName(int team) {
    return team >= 1 && team <= TeamCount() ? TeamNames[static_cast<size_t>(team)]
                                            : "Team " + std::to_string(team);
}

// "Pj123-4-Framing": the project number holds one hyphen, the milestone follows the second.
bool SplitMilestone(const std::string& text, std::string& project, std::string& milestone) {
    if (text.rfind("Pj", 0) != 0) return false;
    const auto first = text.find('-');
    const auto second = first == std::string::npos ? first : text.find('-', first + 1);
    if (second == std::string::npos || second + 1 >= text.size()) return false;
    project = text.substr(0, second);
    milestone = text.substr(second + 1);
    return true;
}

// "Pj" + day of the year + "-" + running number: nothing else names a project file.
bool IsProjectNumber(const std::string& text) {
    const auto hyphen = text.find('-');
    auto digits = [&](size_t from, size_t to) {
        return to > from && text.find_first_not_of("0123456789", from) >= to;
    };
    return text.rfind("Pj", 0) == 0 && hyphen != std::string::npos && digits(2, hyphen) &&
           digits(hyphen + 1, text.size());
}

// The headers of the projects named in the day files, each file read once an export.
class ProjectDetails {
  public:
    const ProjectHeader* Of(const std::string& projectNo) {
        auto it = headers_.find(projectNo);
        if (it == headers_.end()) {
            std::optional<ProjectHeader> header;
            if (IsProjectNumber(projectNo) && FindFile(ProjectFilePath(projectNo)))
                header = LoadProjectFile(ProjectFilePath(projectNo)).header;
            it = headers_.emplace(projectNo, std::move(header)).first;
        }
        return it->second ? &*it->second : nullptr;
    }

  private:
    std::map<std::string, std::optional<ProjectHeader>> headers_;
};

std::string JoinNonEmpty(std::initializer_list<std::string> parts, const std::string& between) {
    std::string out;
    for (const std::string& part : parts) {
        if (part.empty()) continue;
        if (!out.empty()) out += between;
        out += part;
    }
    return out;
}

std::string SafeFileName(std::string name) {
    for (char& c : name)
        if (std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos || c < ' ') c = '-';
    return name;
}

void AddEvent(CalendarWriter& out, const ScheduleEvent& event, bool namesTeams, DateTime stamp,
              ProjectDetails& projects) {
    const std::string team = TeamName(event.team);
    out.Begin("VEVENT");
    out.Add("UID", FormatDateValue(event.day) + "-T" + std::to_string(event.team) + "-S" +
                       std::to_string(event.firstSlot) + kUidDomain);
    out.Add("DTSTAMP", FormatDateTimeValue(stamp, true));
    std::string description = "Assignment: " + team;
    std::string summary = event.text;
    if (event.allDay) {
        out.Add("DTSTART;VALUE=DATE", FormatDateValue(event.day));
        out.Add("DTEND;VALUE=DATE", FormatDateValue(event.day.AddDays(1)));
    } else {
        const int last = event.firstSlot + event.slots - 1;
        out.Add("DTSTART",
                FormatDateTimeValue(AtHour(event.day, SlotHour(event.firstSlot)), false));
        out.Add("DTEND", FormatDateTimeValue(AtHour(event.day, SlotHour(last) + 1), false));
        std::string project, milestone;
        if (SplitMilestone(event.text, project, milestone)) {
            summary = project + " " + milestone;
            const ProjectHeader* header = projects.Of(project);
            description +=
                "\nProject: " + JoinNonEmpty({project, header ? header->title : ""}, " ") +
                "\nMilestone: " + milestone;
            if (header) {
                description += "\nCustomer: " + header->billingName;
                if (!header->billingTelephone.empty())
                    description += "\nTelephone: " + header->billingTelephone;
                const std::string site = JoinNonEmpty(
                    {header->siteAddress1, header->siteAddress2,
                     JoinNonEmpty({header->siteCity, header->siteState, header->siteZip}, " ")},
                    ", ");
                if (!site.empty()) out.AddText("LOCATION", site);
            }
        }
        description += "\nHours: " + std::to_string(event.slots);
    }
    out.AddText("SUMMARY", namesTeams ? team + ": " + summary : summary);
    out.AddText("DESCRIPTION", description);
    out.End("VEVENT");
}

}  // namespace

std::vector<ScheduleEvent> CollectScheduleEvents(int firstTeam, int lastTeam, DateTime first,
                                                 DateTime last) {
    std::vector<ScheduleEvent> events;
    DayFileSearch files;
    for (int team = firstTeam; team <= lastTeam; ++team) {
        const std::string teamText = std::to_string(team);
        for (DateTime day = first.DateOnly(); day <= last.DateOnly(); day = day.AddDays(1)) {
            if (!files.Find(day, team)) continue;
            ReadDay(day, teamText);
            if (IsBlockedDay()) {
                events.push_back({team, day, true, 1, 12, DaySlots[1]});
                continue;
            }
            for (int slot = 1; slot <= 12;) {
                const std::string& text = DaySlots[static_cast<size_t>(slot)];
                int end = slot + 1;
                while (end <= 12 && DaySlots[static_cast<size_t>(end)] == text) ++end;
                if (!IsFree(text)) events.push_back({team, day, false, slot, end - slot, text});
                slot = end;
            }
        }
    }
    return events;
}

std::string ScheduleCalendar(const std::vector<ScheduleEvent>& events,
                             const std::string& calendarName, bool namesTeams, DateTime stamp) {
    CalendarWriter out;
    out.Begin("VCALENDAR");
    out.Add("VERSION", "2.0");
    out.Add("PRODID", kProductId);
    out.Add("CALSCALE", "GREGORIAN");
    // A plain calendar to subscribe to: no METHOD, which would make it a scheduling message
    // whose events need an organizer.
    out.AddText("X-WR-CALNAME", calendarName);
    ProjectDetails projects;
    for (const ScheduleEvent& event : events) AddEvent(out, event, namesTeams, stamp, projects);
    out.End("VCALENDAR");
    return out.Bytes();
}

void ExportSchedule(frmBlock& form) {
    const int index = form.lstAssignto.ListIndex();
    if (index < 0) return;
    const bool allTeams = index == form.lstAssignto.ListCount() - 1;
    const std::string name = form.lstAssignto.Text();
    const DateTime first = form.DTStartSearch.Value().DateOnly();
    const DateTime last = form.DTEndSearch.Value().DateOnly();
    std::string path = ChooseSaveFile(
        kCalendarFilter, kTitle, DataPath("\\Documents\\" + SafeFileName(name) + " Schedule.ics"));
    if (path.empty()) return;
    if (std::filesystem::path(path).extension().empty()) path += ".ics";
    const auto events = CollectScheduleEvents(allTeams ? 1 : index + 1,
                                              allTeams ? TeamCount() : index + 1, first, last);
    const std::string fileName = std::filesystem::path(path).filename().string();
    if (!SaveExportFile(path, ScheduleCalendar(events, name + " Schedule", allTeams, Now()))) {
        MsgBox("The calendar could not be written to " + fileName + ".", vbExclamation, kTitle);
        return;
    }
    MsgBox("The schedule of " + name + " from " + ShortDate(first) + " to " + ShortDate(last) +
               " was saved in " + fileName + " with " + std::to_string(events.size()) +
               (events.size() == 1 ? " event." : " events."),
           vbInformation, kTitle);
}
