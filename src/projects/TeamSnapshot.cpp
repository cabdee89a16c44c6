#include "projects/TeamSnapshot.h"

#include <string>

#include "platform/FileLinks.h"
#include "platform/FileSafety.h"
#include "platform/Files.h"
#include "platform/Ui.h"
#include "schedule/Teams.h"
#include "store/BasicDiskRoutines.h"
#include "store/Journal.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

constexpr int kYears = 3;

int FirstYear() {
    return CurrentYearText.empty() ? Today().Year() : std::stoi(CurrentYearText);
}

std::string TeamFolder(int year, int team) {
    return "\\" + std::to_string(year) + "\\Team#" + std::to_string(team);
}

// Makes each team folder of `to` hold exactly the day files of the same folder of `from`.
void MirrorTeamFolders(const std::string& from, const std::string& to) {
    for (int year = FirstYear(); year < FirstYear() + kYears; ++year)
        for (int team = 1; team <= TeamCount(); ++team)
            MirrorFolder(DataPath(from + TeamFolder(year, team)),
                         DataPath(to + TeamFolder(year, team)), "*.txt");
}

}  // namespace

void DeleteTeamFiles(bool live) {
    const std::string root = live ? "" : "\\Backup";
    for (int year = FirstYear(); year < FirstYear() + kYears; ++year)
        for (int team = 1; team <= TeamCount(); ++team) {
            const std::string folder = root + TeamFolder(year, team);
            if (FolderExists(DataPath(folder))) DeleteFile(folder + "\\*.*");
        }
}

// The two copies below keep the end result of deleting the target's files and copying the
// source's over: a file already shared with its source is simply kept.
void SnapshotTeamFiles() {
    CloseAll();
    MirrorTeamFolders("", "\\Backup");
    FlushAllFiles();
}

void RestoreTeamFiles(std::vector<JournalStep> first, const std::function<void()>& prepare) {
    CloseAll();
    // A restore cut short is finished at the next start: no team is left half way back.
    for (int year = FirstYear(); year < FirstYear() + kYears; ++year)
        for (int team = 1; team <= TeamCount(); ++team)
            first.push_back({JournalStepKind::MirrorDays, "\\Backup" + TeamFolder(year, team),
                             TeamFolder(year, team)});
    RunJournal(first, prepare);
}
