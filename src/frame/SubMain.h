#pragma once

#include <string>

// Start-up of the program: the folder tree, the single-instance guard, the teams,
// the purge of past days, the hidden screens and the main menu or the welcome page.
void SubMain();
// Makes every screen known by name.
void RegisterScreens();

void BuildFolderTree();
void BuildProgramFolders();
void BuildDocumentFolders();
void CheckPrevInstance();
void InitTables();
void InitScreens();
void CheckYearFolders();
void DeletePreviousYear();
void PurgeDayFiles();
void PurgeMeetings();
