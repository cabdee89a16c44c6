#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/DateTime.h"
#include "projects/ProjectFiles.h"

// The project tables: every file of ConstructionProjects read into memory when the project
// control screen opens. Rescheduling and completing change the tables and write the day files
// at once; a project file follows only when the screen is left (SaveChangedProjects).

// Shared state; projects are numbered from 1, as the rows of the project grid.
extern std::int32_t ProjectCount;
// File names found in ConstructionProjects, 1 to ProjectCount + 1; the last is empty.
extern std::vector<std::string> ProjectFileNames;
extern std::vector<ProjectHeader> ProjectHeaders;              // 1 to ProjectCount
extern std::vector<std::vector<Milestone>> ProjectMilestones;  // [project][milestone]
extern std::int16_t MaxMilestones;        // largest milestone count read so far
extern std::vector<bool> ProjectChanged;  // 1 to ProjectCount

void ResetProjectTables();  // as a new process has them

// Milestone `milestone` (from 1) of project `project`. Every project has room for the largest
// count read, as one table did: a number past the project's own count gives an empty milestone.
Milestone& MilestoneOf(int project, int milestone);
ProjectHeader& HeaderOf(int project);
// The milestone's text in the day files: "<ProjectNo>-<MilestoneName>".
std::string EventText(int project, int milestone);

// Lists ConstructionProjects\*.txt into ProjectFileNames; returns files + 1, or 0 (and
// clears ProjectsLoaded) when there is none. Resets MaxMilestones.
std::int32_t FindProjectFiles();
// Reads project file `p` of ProjectFileNames into row `p` of the tables; the caller has
// sized them. Throws the platform's run-time failure for a damaged file.
void ReadProjectFile(int project);
// Rewrites every project marked changed from the tables, then clears ProjectsLoaded, so that
// the next visit reads everything again.
void SaveChangedProjects();

// A number held as text, read as the platform's integer conversion reads it: rounded half to
// even, "Type mismatch" for text that is no number, "Overflow" past 16 bits.
std::int16_t TextToInteger(const std::string& text);
