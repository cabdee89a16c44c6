#pragma once

class frmProjectControl;

// The projects of the project list as a CSV file for a spreadsheet, one row a project with
// its billing and site data and the span of its milestones, saved where the user chooses.
// The project files are only read.
void SaveProjectList(frmProjectControl& form);
