#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/DateTime.h"
#include "projects/ProjectFiles.h"

class frmMain;

// The milestones of the project under creation, placed one after the other. Parallel
// arrays indexed from 1 to MilestoneCount that mirror the milestone lines of the project
// file; element 0 exists and is not used.
extern std::vector<std::string> MsName;
extern std::vector<std::int16_t> MsType;  // 1 administrative, 2 technical
extern std::vector<platform::DateTime> MsDate;
extern std::vector<std::int16_t> MsPhase;
extern std::vector<std::int16_t> MsDependency;  // index into these arrays, 0 none
extern std::vector<std::int16_t> MsLead;
extern std::vector<std::string> MsTeam;
extern std::vector<std::string> MsLocation;
extern std::vector<std::string> MsStartSlot;
extern std::vector<std::string> MsTime;
extern std::vector<std::string> MsMode;
extern std::vector<std::string> MsStatus;
extern std::vector<std::string> MsCompletion;

[[noreturn]] void RaiseSubscriptOutOfRange();
// Every array sized for `count` milestones, emptied.
void SizeMilestoneArrays(int count);
// Element `index` of one of the arrays; an index outside it is "Subscript out of range".
template <typename T>
T& MsAt(std::vector<T>& array, long index) {
    if (index < 0 || index >= static_cast<long>(array.size())) RaiseSubscriptOutOfRange();
    return array[static_cast<size_t>(index)];
}

// The selected templates of lstMilestoneSelection, in list order. A dependency counts back
// by all templates left out before the milestone, not before the dependency.
void BuildMilestoneArrays(frmMain& form);
// Hours or days, the team and the dependency shown for CurrentMilestone.
void Milestones(frmMain& form);
// What the kind of CurrentMilestone lets the user choose.
void ShowMilestoneControls(frmMain& form);
// cmdContinue in a scheduling stage: places CurrentMilestone and moves to the next.
void PlaceMilestone(frmMain& form);
// The date proposed for CurrentMilestone from its dependency and lead days, when it has
// both: `days` is the duration of the milestone just placed. Moves the calendar there.
void ProposeDate(frmMain& form, platform::DateTime previousDate, int days);
// The date itself: the dependency's date plus `days`, onto a workday, or that much later
// by the lead days counted in calendar days.
platform::DateTime ProposedDate(platform::DateTime dependencyDate, int days, int lead);

// The milestone line of the project file for milestone `index`.
Milestone MilestoneLineOf(long index);
// Fills the arrays from the lines of a project file.
void LoadMilestoneArrays(const std::vector<Milestone>& lines);

// Hours or days as the entry of the duration.
void SetHoursEntry(frmMain& form);
void SetDaysEntry(frmMain& form);
