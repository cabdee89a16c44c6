#pragma once

#include <string>

// Start-up of the program: the folder tree, the single-instance guard, the teams,
// the purge of past days, the hidden screens and the main menu or the welcome page.
void SubMain();
// Makes every screen known by name.
void RegisterScreens();
// Forgets every screen and shared value, as when the process starts anew; for the script
// driver and tests, which start the program several times in one process.
void ResetProgramState();

void BuildFolderTree();
void BuildProgramFolders();
void BuildDocumentFolders();
void CheckPrevInstance();
// What a run that died left half done: the rest of its journal is done, and its temporary
// files go. Only the one program that holds the folder may do it.
void FinishInterruptedWork();
void InitTables();
void InitScreens();
void CheckYearFolders();
void DeletePreviousYear();
void PurgeDayFiles();
void PurgeMeetings();
