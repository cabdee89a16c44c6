#pragma once

#include <string>

class frmProjectControl;

// The end of milestones and projects: taking a milestone out of the day files, posting it as
// completed, and deleting a project.

// Frees the milestone's slots in the day files of CurrentTeam, from its date on, for as many
// workdays as it lasts. Past milestones and administrative ones are left alone.
void ClearjDayEvents(frmProjectControl& form, int project, int milestone);
// Posts the milestone as completed on the calendar's date, freeing its slots from its old date.
void CompleteMilestone(frmProjectControl& form, int project, int milestone);
// Frees the project's slots from today on and removes its file; ProjectRecords.txt is
// rewritten with every record it held.
void DeleteProject(frmProjectControl& form, int project, const std::string& projectNo);
// Posts every past-due milestone of every project as completed today.
void CompleteAllPastDue();
