#pragma once

#include <string>

// The teams and their folders in each year.

// Reads Assignto.txt into TeamNames; entry 0 tells whether there was a file.
void LoadAssignments();
// Makes \<year> and a Team#<n> folder for each team, where missing.
void MakeYearTree(const std::string& year);
// Makes \Backup\<year> and its team folders for this year and the next two.
void BuildBackupYearFolders();
int TeamCount();  // the upper bound of TeamNames
