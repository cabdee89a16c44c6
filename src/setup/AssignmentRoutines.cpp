#include "setup/AssignmentRoutines.h"

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

}  // namespace

void SaveAssignments(frmSetup& form) {
    DeleteFile(kAssignmentsFile);
    OpenForOutput(kAssignmentsFile);
    const int file = MainFileNo;
    for (int i = 0; i < form.cboAssignments.ListCount(); ++i) {
        const std::string& name = form.cboAssignments.List(i);
        WriteFields(file, {Text(name)});
        if (static_cast<int>(TeamNames.size()) <= i) TeamNames.resize(static_cast<size_t>(i) + 1);
        TeamNames[static_cast<size_t>(i)] = name;
    }
    CloseAll();
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
    const std::string year = CurrentYear();
    const std::string deleted = TeamFolder(year, form.DeletedTeam);
    DeleteFile(deleted + "\\*.*");
    if (FolderExists(DataPath(deleted))) RmDir(DataPath(deleted));
    const int remaining = form.cboAssignments.ListCount();
    if (remaining == 0) return;
    // The count is already one lower than the folders: the highest folder keeps its number.
    for (int k = form.DeletedTeam + 1; k <= remaining; ++k) {
        const std::string from = DataPath(TeamFolder(year, k));
        if (FolderExists(from)) Name(from, DataPath(TeamFolder(year, k - 1)));
    }
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
    SaveAssignments(form);
    PurgeFolder(form);
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
