#pragma once

class frmProjectControl;

// The printouts of the project control screen: the status and event report of one project or
// of all, and the report of the milestones past their date.

// The header of the project report, at the top of each of its pages.
void PrintProjectHeader(int project);
// The project report of one project, its header and a row a milestone, on the pages begun.
void PrintProject(int project);
// The printer dialogue, the one project and the end of the document. A cancel or a printing
// failure is the platform's run-time failure, left to the caller.
void PrintOneProject(frmProjectControl& form, int project);
// The project of the selected row; a cancel or failure ends it without a word.
void PrintSelectedProject(frmProjectControl& form);
// One document a project, in table order, after one printer dialogue.
void PrintAllProjects(frmProjectControl& form);
// "Milestones Past Competion Report" of the past-due list, portrait.
void PrintPastCompletion(frmProjectControl& form);
