#pragma once

#include <string>

class frmProjectControl;

// The project list and the views of one project on the control screen.

// Reads every project file into the tables and fills the project list and the past-due list.
void LoadProjects(frmProjectControl& form);
// Empties the project list down to one blank row.
void ClearProjectGrid(frmProjectControl& form);
// Fills fgMilestones with the milestones of the project selected in fgProjects.
void LoadProjectMilestones(frmProjectControl& form);
// "Total Days": calendar days from the first to the last milestone's date, plus the lead days
// of the last milestone.
long ComputeProjectDays(frmProjectControl& form);
// The milestones, then the summary labels of the selected project.
void LoadProjectSummary(frmProjectControl& form);
// Fills the labels of the milestone details for the selected milestone.
void ShowMilestoneDetails(frmProjectControl& form);
// The day just read into the hour grid of the calendar panel.
void CopyHoursToPJHours(frmProjectControl& form);
