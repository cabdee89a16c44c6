#include "control/ProjectTables.h"

#include <cmath>

#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"

using namespace platform;

std::int32_t ProjectCount = 0;
std::vector<std::string> ProjectFileNames;
std::vector<ProjectHeader> ProjectHeaders;
std::vector<std::vector<Milestone>> ProjectMilestones;
std::int16_t MaxMilestones = 0;
std::vector<bool> ProjectChanged;

void ResetProjectTables() {
    ProjectCount = 0;
    ProjectFileNames.clear();
    ProjectHeaders.clear();
    ProjectMilestones.clear();
    MaxMilestones = 0;
    ProjectChanged.clear();
}

Milestone& MilestoneOf(int project, int milestone) {
    if (project < 1 || project >= static_cast<int>(ProjectMilestones.size()))
        Raise(err::SubscriptOutOfRange, "ProjectMilestones");
    auto& row = ProjectMilestones[static_cast<size_t>(project)];
    if (milestone < 0 || milestone >= static_cast<int>(row.size()))
        Raise(err::SubscriptOutOfRange, "ProjectMilestones");
    return row[static_cast<size_t>(milestone)];
}

ProjectHeader& HeaderOf(int project) {
    if (project < 1 || project >= static_cast<int>(ProjectHeaders.size()))
        Raise(err::SubscriptOutOfRange, "ProjectHeaders");
    return ProjectHeaders[static_cast<size_t>(project)];
}

std::string EventText(int project, int milestone) {
    return HeaderOf(project).projectNo + "-" + MilestoneOf(project, milestone).name;
}

std::int32_t FindProjectFiles() {
    MaxMilestones = 0;
    ProjectFileNames.assign(1, std::string());
    for (const std::string& name : Dir(DataPath(std::string(kProjectFolder) + "*.txt")))
        ProjectFileNames.push_back(name);
    if (ProjectFileNames.size() == 1) {
        ProjectsLoaded = false;
        return 0;
    }
    // The listing ends with the empty name that closed it.
    ProjectFileNames.push_back(std::string());
    return static_cast<std::int32_t>(ProjectFileNames.size()) - 1;
}

void ReadProjectFile(int project) {
    const std::string& name = ProjectFileNames.at(static_cast<size_t>(project));
    OpenForInput(kProjectFolder + name);
    ProjectHeader& header = ProjectHeaders.at(static_cast<size_t>(project));
    InputHeaderValues(MainFileNo, header);
    if (header.milestoneCount > MaxMilestones) MaxMilestones = header.milestoneCount;
    auto& milestones = ProjectMilestones.at(static_cast<size_t>(project));
    milestones.assign(1, Milestone{});
    for (int m = 1; m <= header.milestoneCount; ++m) {
        milestones.emplace_back();
        InputMilestoneValues(MainFileNo, milestones.back());
    }
}

void SaveChangedProjects() {
    if (!ProjectsLoaded) return;
    FindProjectFiles();
    for (int p = 1; p <= ProjectCount; ++p) {
        if (!ProjectChanged.at(static_cast<size_t>(p))) continue;
        const std::string name = p < static_cast<int>(ProjectFileNames.size())
                                     ? ProjectFileNames[static_cast<size_t>(p)]
                                     : std::string();
        // The name has its ".txt" already: this delete finds nothing, and closes all files.
        DeleteFile(kProjectFolder + name + "txt");
        OpenForOutput(kProjectFolder + name);
        WriteHeaderValues(MainFileNo, HeaderOf(p));
        for (int m = 1; m <= HeaderOf(p).milestoneCount; ++m)
            WriteMilestoneValues(MainFileNo, MilestoneOf(p, m));
        CloseAll();
        ProjectChanged[static_cast<size_t>(p)] = false;
    }
    ProjectsLoaded = false;
}

std::int16_t TextToInteger(const std::string& text) {
    if (!IsNumeric(text)) Raise(err::TypeMismatch, text);
    const double rounded = std::nearbyint(Val(text));
    if (rounded < -32768 || rounded > 32767) Raise(6, text);  // Overflow
    return static_cast<std::int16_t>(rounded);
}
