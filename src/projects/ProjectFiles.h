#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/DateTime.h"
#include "platform/RecordLayout.h"

// The project files: `ConstructionProjects\<ProjectNo>.txt`, and `ProjectTempFile.txt` in
// which a project under creation is built line by line. Line 1 is the header of 19 values,
// then one line of 13 values a milestone, in schedule order, in the delimited write form.

constexpr const char* kProjectTempFile = "/ProjectTempFile.txt";
constexpr const char* kProjectFolder = "\\ConstructionProjects\\";

// Line 1 of a project file: nineteen values.
struct ProjectHeader {
    std::string projectNo;            // 1
    std::string title;                // 2
    std::string account;              // 3
    std::string proposalNo;           // 4: "Proposal Number" when the project has none
    std::string billingName;          // 5
    std::string billingAddress1;      // 6
    std::string billingAddress2;      // 7
    std::string billingCity;          // 8
    std::string billingState;         // 9
    std::string billingZip;           // 10
    std::string billingTelephone;     // 11
    std::string siteName;             // 12
    std::string siteAddress1;         // 13
    std::string siteAddress2;         // 14
    std::string siteCity;             // 15
    std::string siteState;            // 16
    std::string siteZip;              // 17
    std::string siteTelephone;        // 18
    std::int16_t milestoneCount = 0;  // 19
};

// One milestone line: thirteen values.
struct Milestone {
    std::string name;             // 1
    std::int16_t type = 0;        // 2: 1 administrative, 2 technical
    platform::DateTime date;      // 3: first day
    std::int16_t phase = 0;       // 4: 1 pre-construction, 2 construction, 3 post
    std::int16_t dependency = 0;  // 5: number of the milestone waited for, 0 none
    std::int16_t lead = 0;        // 6: days after the dependency
    std::string team;             // 7: team number as text, empty for administrative
    std::string location;         // 8: "On Site", "Office/Shop" or "Office"
    std::string startSlot;        // 9: grid row of the first hour, or "3" for days
    std::string time;             // 10: hours or days
    std::string mode;             // 11: "Hours" or "Days"
    std::string status;           // 12
    std::string completion;       // 13
};

// A whole project file.
struct ProjectFile {
    ProjectHeader header;
    std::vector<Milestone> milestones;  // milestone n at index n - 1
};

// The texts the creation flow writes into values 12 and 13; the trailing blank is kept.
constexpr const char* kScheduledStatus = "Scheduled";
constexpr const char* kNotCompleted = "Not Completed ";

// One line of the file, on a file open for output or append.
void WriteHeaderValues(int fileNo, const ProjectHeader& header);
void WriteMilestoneValues(int fileNo, const Milestone& milestone);
// One line of the file, on a file open for input; a value that does not fit its kind is the
// platform's run-time failure.
void InputHeaderValues(int fileNo, ProjectHeader& header);
void InputMilestoneValues(int fileNo, Milestone& milestone);

// The header and as many milestone lines as header value 19 says; closes all files.
ProjectFile LoadProjectFile(const std::string& path);
// `\ConstructionProjects\<ProjectNo>.txt`. A number that would name a file outside that
// folder is the run-time failure "Path/File access error".
std::string ProjectFilePath(const std::string& projectNo);

// The file of the project under creation: a new header, and each milestone appended.
void WriteProjectHeader(const ProjectHeader& header);
void WriteMilestoneLine(const Milestone& milestone);

// The record of milestone `sequence` (from 1) of a project, as the creation writes it.
platform::Record BuildProjectRecord(const ProjectHeader& header, const Milestone& milestone,
                                    int sequence);
// Appends the record behind the last one of the record file at `path`.
void AddProjectRecord(const std::string& path, const platform::Record& record);
