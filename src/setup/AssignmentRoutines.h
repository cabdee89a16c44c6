#pragma once

#include <string>

class frmSetup;

// The assignments (teams). A team's number is its position in Assignto.txt, and the team
// owns the folder Team#<n> of each year.

constexpr const char* kAssignmentsFile = "\\Assignto.txt";
constexpr int kMostAssignments = 40;  // for names typed in; a dropped name is not counted

// Writes cboAssignments to Assignto.txt and into TeamNames from element 0 on (the caller
// reads the file back with LoadAssignments).
void SaveAssignments(frmSetup& form);
// Refills cboAssignments, frmMain's lstTeam and frmBlock's lstAssignto from TeamNames
// ("All Assignments" ends the last), then makes the folders of the current year.
void LoadTeamLists(frmSetup& form);
// The same on the program's set-up screen.
void LoadTeamLists();
// Makes the current year's folder of the team just added.
void MakeNewTeamFolder(frmSetup& form);
// Removes the folder of DeletedTeam in the current year and closes the gap.
void PurgeFolder(frmSetup& form);
// Fills lstContacts with the sub-contractors of VendorData.txt.
void LoadSubContractors(frmSetup& form);

// What the buttons of the Assignments tab do.
void SaveNewAssignment(frmSetup& form);
void RenameAssignment(frmSetup& form, bool requireText);
void DeleteAssignment(frmSetup& form);
void DropSubContractor(frmSetup& form, const std::string& name);
