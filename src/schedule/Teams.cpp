#include "schedule/Teams.h"

#include "platform/Files.h"
#include "platform/Ui.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"

using namespace platform;

int TeamCount() {
    return static_cast<int>(TeamNames.size()) - 1;
}

void LoadAssignments() {
    TeamNames.assign(1, "empty");
    if (!FindFile("\\Assignto.txt")) return;
    TeamNames[0] = "populated";
    OpenForInput("\\Assignto.txt");
    while (!Eof(MainFileNo)) TeamNames.push_back(InputString(MainFileNo));
    CloseAll();
}

void MakeYearTree(const std::string& year) {
    MakeFolder("\\" + year);
    for (int n = 1; n <= TeamCount(); ++n) MakeFolder("\\" + year + "\\Team#" + std::to_string(n));
}

void BuildBackupYearFolders() {
    const int year = Today().Year();
    for (int i = 0; i <= 2; ++i) MakeFolder("\\Backup\\" + std::to_string(year + i) + "\\");
    for (int i = 0; i <= 2; ++i)
        for (int n = 1; n <= TeamCount(); ++n)
            MakeFolder("\\Backup\\" + std::to_string(year + i) + "\\Team#" + std::to_string(n));
}
