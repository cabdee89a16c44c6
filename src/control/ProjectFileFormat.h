#pragma once

#include <cstdint>
#include <string>

#include "platform/DateTime.h"

// The lines of a project file, `ConstructionProjects\<ProjectNo>.txt`: the header of 19
// values, then one line of 13 values a milestone, in the delimited write form.

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
    std::int16_t phase = 0;       // 4
    std::int16_t dependency = 0;  // 5: number of the milestone waited for, 0 none
    std::int16_t lead = 0;        // 6: days after the dependency
    std::string team;             // 7: team number as text
    std::string location;         // 8
    std::string startSlot;        // 9
    std::string time;             // 10: hours or days
    std::string mode;             // 11: "Hours" or "Days"
    std::string status;           // 12
    std::string completion;       // 13
};

void WriteHeaderValues(int fileNo, const ProjectHeader& header);
void WriteMilestoneValues(int fileNo, const Milestone& milestone);
void InputHeaderValues(int fileNo, ProjectHeader& header);
void InputMilestoneValues(int fileNo, Milestone& milestone);
// `\ConstructionProjects\<ProjectNo>.txt`; a number that would leave the folder is the
// run-time failure "Path/File access error".
std::string ProjectFilePath(const std::string& projectNo);
