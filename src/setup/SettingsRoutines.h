#pragma once

#include <string>

class frmSetup;

// The operating settings: the construction settings file named after the program
// (start hour, working week, milestones in days) and Prompts.txt (prompts, alarms).

// "/" + the program's file name + "Settings.txt".
std::string SettingsFilePath();

// Reads the settings file, or takes the defaults 8, 5 and days; sets the controls and
// frmMain's default unit. An unknown week code is repaired to 5.
void LoadConstructionSettings(frmSetup& form);
void SaveConstructionSettings(frmSetup& form);
// Reads Prompts.txt, or takes both flags on; ticks the two boxes to match.
void LoadPrompts(frmSetup& form);
void SavePrompts();

// Everything the screen holds, written when the user leaves it.
void SaveSetupData(frmSetup& form);

// True once set-up has been completed: the settings file, MyBusinessData.txt,
// Assignto.txt and Characteristics.txt all exist (tested in this order).
bool CheckRequiredFiles();
