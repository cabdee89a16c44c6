#pragma once

#include <cstdint>
#include <string>
#include <vector>

class frmSetup;

// The milestone templates. Five parallel arrays indexed from 1 in list order (element 0
// exists and stays 0 or empty); only the set-up screen writes them, project creation
// reads them. A dependency is a list position, not a name.
extern std::vector<std::string> CharName;
extern std::vector<std::int16_t> CharType;        // 1 administrative, 2 technical, 0 not set
extern std::vector<std::int16_t> CharPhase;       // 1 before, 2 during, 3 after construction
extern std::vector<std::int16_t> CharDependency;  // 0 none, else an earlier position
extern std::vector<std::int16_t> CharLead;        // days after the dependency, 0 to 90
// Milestones in the list after LoadCharacteristics. Project creation reuses it for the
// milestones it selected.
extern std::int16_t MilestoneCount;
// The template arrays as a new process has them: empty.
void ResetCharacteristics();

constexpr const char* kCharacteristicsFile = "\\Characteristics.txt";

// Reads Characteristics.txt into the arrays, cboMilestones, frmMain's milestone selection
// list and the grid.
void LoadCharacteristics(frmSetup& form);
// Rewrites the file: names from cboMilestones, attributes from the arrays by position.
void SaveCharacteristics(frmSetup& form);
// The option buttons of the Attributes tab into the arrays at AttributeMilestone - 1.
void StoreCharacteristics(frmSetup& form);
// The arrays at AttributeMilestone into the controls of the Attributes tab.
void LoadButtons(frmSetup& form);
// The four attribute arrays resized to MilestoneCount, all 0; CharName untouched.
void DemensionCharacteristics();
void LoadMilestoneGrid(frmSetup& form);

// What the buttons of the Milestones tab do.
void AddMilestone(frmSetup& form);
void DeleteMilestone(frmSetup& form);
void ClearMilestones(frmSetup& form);
// One place down (towards the end) or up; only the list box changes.
void MoveMilestone(frmSetup& form, bool down);
void SaveMilestonePositions(frmSetup& form);

// The Attributes walk, one milestone a press.
void EnterAttributesTab(frmSetup& form);
void ContinueAttributeWalk(frmSetup& form);
void ChooseDependency(frmSetup& form);
void ResetDependency(frmSetup& form);
void StoreLeadDays(frmSetup& form);
