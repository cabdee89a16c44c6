#pragma once

#include <array>
#include <functional>
#include <string>

#include "projects/ProjectFiles.h"

class frmMain;

// The work schedule of one team's day: twelve rows, each with the customer behind its slot,
// from the record files and the project files. The printouts use the same rows.

// One row as the printed schedule needs it.
struct ScheduleRow {
    std::string telephone;
    std::string name;
    std::string street;
    std::string cityLine;   // city, state and zip
    std::string reference;  // the project or slip number
    std::string extra;      // a second address line
    std::string problem;    // the milestone or what was reported
};
extern std::array<ScheduleRow, 12> PrintRows;

// Goes through the projects as the project control screen holds them in its tables, loading
// them first; `visit` returns false to stop. Returns false when no project is loaded. The
// program's start-up sets it; without it the project files are read here.
using ProjectVisitor = std::function<bool(const ProjectHeader&, const Milestone&)>;
extern std::function<bool(const ProjectVisitor&)> VisitProjectsHook;

// Prints the work schedule from the print panel. The program's start-up sets it; without it
// the print button says that printing is not available.
extern std::function<void(frmMain&)> PrintWorkSchedulesHook;

// Fills txtHourSlot, the tags of Label2 and PrintRows for the calendar's date and
// CurrentTeam. A milestone stands in ProjectRecords.txt and in its project file, so it is
// found, and counted, twice; the count of rows done ends the routine early.
void BuildWorkSchedule(frmMain& form);
// True when the calendar's date lies 1 to `lead` days after `date`.
bool CheckLeadDays(platform::DateTime calendarDate, platform::DateTime date, int lead);
