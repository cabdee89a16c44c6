#include "setup/AssignmentRoutines.h"

#include <vector>

#include "contacts/VendorRecord.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/RecordLayout.h"
#include "platform/Records.h"
#include "platform/Ui.h"
#include "schedule/Teams.h"
#include "setup/ScreenLinks.h"
#include "setup/frmSetup.h"
#include "store/BasicDiskRoutines.h"
#include "store/Journal.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

std::string CurrentYear() {
    return std::to_string(Today().Year());
}

std::string TeamFolder(const std::string& year, int team) {
    return "\\" + year + "\\Team#" + std::to_string(team);
}

int FindExact(const ComboBox& list, const std::string& text) {
    for (int i = 0; i < list.ListCount(); ++i)
        if (list.List(i) == text) return i;
    return -1;
}

// Writes the names of cboAssignments to `path` and into TeamNames.
void WriteAssignments(frmSetup& form, const std::string& path) {
    OpenForRewrite(path);
    const int file = MainFileNo;
    for (int i = 0; i < form.cboAssignments.ListCount(); ++i) {
        const std::string& name = form.cboAssignments.List(i);
        WriteFields(file, {Text(name)});
        if (static_cast<int>(TeamNames.size()) <= i) TeamNames.resize(static_cast<size_t>(i) + 1);
        TeamNames[static_cast<size_t>(i)] = name;
    }
    CloseAll();
}

// The deleted team's folder of the current year goes, and the folders above it move one
// number down.
std::vector<JournalStep> PurgeFolderSteps(frmSetup& form) {
    const std::string year = CurrentYear();
    const std::string deleted = TeamFolder(year, form.DeletedTeam);
    std::vector<JournalStep> steps = {{JournalStepKind::Delete, deleted + "\\*.*", ""},
                                      {JournalStepKind::RemoveFolder, deleted, "", true}};
    const int remaining = form.cboAssignments.ListCount();
    if (remaining == 0) return steps;
    // The count is already one lower than the folders: the highest folder keeps its number.
    for (int k = form.DeletedTeam + 1; k <= remaining; ++k) {
        if (FolderExists(DataPath(TeamFolder(year, k))))
            steps.push_back(
                {JournalStepKind::MoveFolder, TeamFolder(year, k), TeamFolder(year, k - 1)});
    }
    return steps;
}

}  // namespace

void SaveAssignments(frmSetup& form) {
    WriteAssignments(form, kAssignmentsFile);
}

void LoadTeamLists(frmSetup& form) {
    ClearCombo(form.cboAssignments);
    ListControl* mainTeams = ListOnScreen("frmMain", "lstTeam");
    ListControl* blockedTeams = ListOnScreen("frmBlock", "lstAssignto");
    if (mainTeams) mainTeams->Clear();
    if (blockedTeams) blockedTeams->Clear();
    for (int n = 1; n <= TeamCount(); ++n) {
        const std::string& name = TeamNames[static_cast<size_t>(n)];
        form.cboAssignments.AddItem(name);
        if (mainTeams) mainTeams->AddItem(name);
        if (blockedTeams) blockedTeams->AddItem(name);
    }
    if (blockedTeams) blockedTeams->AddItem("All Assignments");
    MakeYearTree(CurrentYear());
}

void LoadTeamLists() {
    LoadTeamLists(Screen<frmSetup>());
}

void MakeNewTeamFolder(frmSetup& form) {
    MakeFolder(TeamFolder(CurrentYear(), form.cboAssignments.ListCount()));
}

void PurgeFolder(frmSetup& form) {
    RunJournal(PurgeFolderSteps(form));
}

void LoadSubContractors(frmSetup& form) {
    form.lstContacts.Clear();
    using contacts::kVendorFile;
    using contacts::kVendorRecord;
    if (!FindFile(kVendorFile)) return;
    const int length = static_cast<int>(kVendorRecord.Length());
    const int records = CountRecords(kVendorFile, length);
    OpenRandom(kVendorFile, length);
    const int file = MainFileNo;
    for (int i = 1; i <= records; ++i) {
        const Record vendor = GetRecord(file, i, kVendorRecord);
        if (vendor.Trimmed("Category") == "Sub-Contractor") {
            form.lstContacts.AddItem(vendor.Trimmed("Name"));
            form.fraContacts.SetVisible(true);
        }
    }
    CloseAll();
}

void SaveNewAssignment(frmSetup& form) {
    ComboBox& list = form.cboAssignments;
    if (!form.DroppedAssignment) {
        const std::string name = list.Text();
        if (name.empty()) return;
        if (list.ListCount() == kMostAssignments) {
            AlarmBeep();
            list.SetFocus();
            return;
        }
        if (FindExact(list, name) >= 0) {
            list.SetText("");
            form.cmdSave.SetFocus();
            return;
        }
        list.AddItem(name);
        list.SetText("");
    }
    SaveAssignments(form);
    LoadAssignments();
    LoadTeamLists(form);
    MakeNewTeamFolder(form);
    form.cmdAddNew.SetFocus();
    form.DroppedAssignment = false;
}

void RenameAssignment(frmSetup& form, bool requireText) {
    ComboBox& list = form.cboAssignments;
    const std::string name = list.Text();
    if (requireText && name.empty()) return;
    if (form.SelectedAssignment < 0 || form.SelectedAssignment >= list.ListCount()) return;
    // Same position, so the team keeps its folder and its schedule.
    list.SetList(form.SelectedAssignment, name);
    SaveAssignments(form);
    LoadAssignments();
    list.SetText("");
    form.cmdSave.SetEnabled(true);
    form.cmdChange[4].SetEnabled(false);
    form.cmdDelete.SetEnabled(false);
}

void DeleteAssignment(frmSetup& form) {
    ComboBox& list = form.cboAssignments;
    const int entry = FindExact(list, list.Text());
    if (entry < 0) {
        list.SetFocus();
        return;
    }
    list.RemoveItem(entry);
    form.DeletedTeam = entry + 1;
    // The names and the folders change together: the new names are written aside first, and
    // a crash before the last folder has moved is finished at the next start.
    WriteAssignments(form, StagingName(kAssignmentsFile));
    std::vector<JournalStep> steps = {
        {JournalStepKind::Replace, StagingName(kAssignmentsFile), kAssignmentsFile}};
    for (const JournalStep& step : PurgeFolderSteps(form)) steps.push_back(step);
    RunJournal(steps);
    LoadAssignments();
    LoadTeamLists(form);
    list.SetFocus();
}

void DropSubContractor(frmSetup& form, const std::string& name) {
    ComboBox& list = form.cboAssignments;
    if (name.empty() || FindExact(list, name) >= 0) return;
    list.AddItem(name);
    list.SetText(name);
    form.DroppedAssignment = true;
    SaveNewAssignment(form);
}
