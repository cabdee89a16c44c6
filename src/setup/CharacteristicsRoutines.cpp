#include "setup/CharacteristicsRoutines.h"

#include <cmath>

#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "setup/ScreenLinks.h"
#include "setup/frmSetup.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"

using namespace platform;

std::vector<std::string> CharName{""};
std::vector<std::int16_t> CharType{0};
std::vector<std::int16_t> CharPhase{0};
std::vector<std::int16_t> CharDependency{0};
std::vector<std::int16_t> CharLead{0};
std::int16_t MilestoneCount = 0;

void ResetCharacteristics() {
    CharName.assign(1, "");
    CharType.assign(1, 0);
    CharPhase.assign(1, 0);
    CharDependency.assign(1, 0);
    CharLead.assign(1, 0);
    MilestoneCount = 0;
}

namespace {

// An element of one of the arrays; a position outside it is the platform's
// "Subscript out of range", as it would be for any array of the program.
template <typename T>
T& Slot(std::vector<T>& array, int position) {
    if (position < 0 || position >= static_cast<int>(array.size()))
        Raise(err::SubscriptOutOfRange, "milestone " + std::to_string(position));
    return array[static_cast<size_t>(position)];
}

// The array with positions 0 to `upper`: kept contents, or all new.
template <typename T>
void ResizeKeeping(std::vector<T>& array, int upper) {
    if (upper < 0) Raise(err::SubscriptOutOfRange, "milestones");
    array.resize(static_cast<size_t>(upper) + 1);
}

template <typename T>
void ResizeEmpty(std::vector<T>& array, int upper) {
    if (upper < 0) Raise(err::SubscriptOutOfRange, "milestones");
    array.assign(static_cast<size_t>(upper) + 1, T{});
}

void ResizeAttributesKeeping(int upper) {
    ResizeKeeping(CharType, upper);
    ResizeKeeping(CharPhase, upper);
    ResizeKeeping(CharDependency, upper);
    ResizeKeeping(CharLead, upper);
}

ListControl* MilestoneSelection() {
    return ListOnScreen("frmMain", "lstMilestoneSelection");
}

void SaveAndReload(frmSetup& form) {
    SaveCharacteristics(form);
    LoadCharacteristics(form);
}

}  // namespace

void LoadCharacteristics(frmSetup& form) {
    form.CharacteristicsExist = false;
    MilestoneCount = 0;
    if (!FindFile(kCharacteristicsFile)) {
        form.tabSetup.SetTabEnabled(frmSetup::kAttributesTab, false);
    } else {
        form.tabSetup.SetTabEnabled(frmSetup::kAttributesTab, true);
        ClearCombo(form.cboMilestones);
        ListControl* selection = MilestoneSelection();
        if (selection) selection->Clear();
        form.CharacteristicsExist = true;
        OpenForInput(kCharacteristicsFile);
        const int file = MainFileNo;
        while (!Eof(file)) {
            // The count is a 16-bit number: one milestone past its range is Overflow.
            const std::int16_t position = CInt(MilestoneCount + 1.0);
            ResizeKeeping(CharName, position);
            ResizeAttributesKeeping(position);
            CharName[static_cast<size_t>(position)] = InputString(file);
            CharType[static_cast<size_t>(position)] = InputInt16(file);
            CharPhase[static_cast<size_t>(position)] = InputInt16(file);
            CharDependency[static_cast<size_t>(position)] = InputInt16(file);
            CharLead[static_cast<size_t>(position)] = InputInt16(file);
            form.cboMilestones.AddItem(CharName[static_cast<size_t>(position)]);
            if (selection) selection->AddItem(CharName[static_cast<size_t>(position)]);
            MilestoneCount = position;
        }
        CloseAll();
    }
    const bool any = form.cboMilestones.ListCount() > 0;
    form.tabSetup.SetTabEnabled(frmSetup::kAttributesTab, any);
    form.mnuToggle.SetEnabled(any);
    if (any) LoadMilestoneGrid(form);
}

void SaveCharacteristics(frmSetup& form) {
    // Every line is made before the old file goes, so that a list the arrays cannot
    // follow fails with the file still in place.
    std::vector<std::vector<Field>> lines;
    for (int i = 0; i < form.cboMilestones.ListCount(); ++i) {
        lines.push_back({Text(form.cboMilestones.List(i)), double(Slot(CharType, i + 1)),
                         double(Slot(CharPhase, i + 1)), double(Slot(CharDependency, i + 1)),
                         double(Slot(CharLead, i + 1))});
    }
    OpenForRewrite(kCharacteristicsFile);
    const int file = MainFileNo;
    for (const auto& line : lines) WriteFields(file, line);
    CloseAll();
}

void StoreCharacteristics(frmSetup& form) {
    const int position = form.AttributeMilestone - 1;
    if (form.optAdmin.Value()) Slot(CharType, position) = 1;
    if (form.optTech.Value()) Slot(CharType, position) = 2;
    if (form.optbCon.Value()) Slot(CharPhase, position) = 1;
    if (form.optdCon.Value()) Slot(CharPhase, position) = 2;
    if (form.optaCon.Value()) Slot(CharPhase, position) = 3;
}

void LoadButtons(frmSetup& form) {
    const int position = form.AttributeMilestone;
    if (Slot(CharType, position) == 2)
        form.optTech.SetValue(true);
    else
        form.optAdmin.SetValue(true);
    switch (Slot(CharPhase, position)) {
        case 1:
            form.optbCon.SetValue(true);
            break;
        case 2:
            form.optdCon.SetValue(true);
            break;
        case 3:
            form.optaCon.SetValue(true);
            break;
        default:
            break;
    }
    form.fraLeadTime.SetVisible(false);
    if (Slot(CharLead, position) > 0) {
        form.fraLeadTime.SetVisible(true);
        form.ShowIntervalDays(Slot(CharLead, position));
    }
}

void DemensionCharacteristics() {
    ResizeEmpty(CharType, MilestoneCount);
    ResizeEmpty(CharPhase, MilestoneCount);
    ResizeEmpty(CharDependency, MilestoneCount);
    ResizeEmpty(CharLead, MilestoneCount);
}

void LoadMilestoneGrid(frmSetup& form) {
    Grid& grid = form.fgMilestones;
    grid.SetRows(MilestoneCount + 1);
    grid.SetFormatString(
        "Milestone                              |Performed By                |Dependency          "
        "              |^Days");
    for (int i = 1; i <= MilestoneCount; ++i) {
        grid.SetTextMatrix(i, 0, Slot(CharName, i));
        grid.SetTextMatrix(i, 1, Slot(CharType, i) == 1 ? "Administrative" : "Technical");
        const int dependency = Slot(CharDependency, i);
        grid.SetTextMatrix(i, 2, dependency == 0 ? "None" : Slot(CharName, dependency));
        grid.SetTextMatrix(i, 3, std::to_string(Slot(CharLead, i)));
    }
}

void AddMilestone(frmSetup& form) {
    ComboBox& list = form.cboMilestones;
    const std::string name = list.Text();
    if (name.empty()) {
        MsgBox("Enter a New Milestone in the Box to the Left", vbExclamation);
        return;
    }
    for (int i = 0; i < list.ListCount(); ++i) {
        if (list.List(i) == name) {
            list.SetText("");
            list.SetFocus();
            return;
        }
    }
    MilestoneCount = CInt(MilestoneCount + 1.0);
    ResizeKeeping(CharName, MilestoneCount);
    list.AddItem(name);
    CharName[static_cast<size_t>(MilestoneCount)] = name;
    list.SetText("");
    ResizeAttributesKeeping(MilestoneCount);
    if (list.ListCount() >= 1) {
        list.SetText("");
        SaveAndReload(form);
        list.SetFocus();
    } else {
        AlarmBeep();
    }
}

void DeleteMilestone(frmSetup& form) {
    ComboBox& list = form.cboMilestones;
    const std::string name = list.Text();
    // The entry to remove: the one selected, or else the one whose name was typed.
    int entry = -1;
    if (list.ListIndex() >= 0 && list.List(list.ListIndex()) == name) {
        entry = list.ListIndex();
    } else {
        for (int i = 0; i < list.ListCount() && entry < 0; ++i)
            if (list.List(i) == name) entry = i;
    }
    if (name.empty() || MilestoneCount < 1 || entry < 0) {
        MsgBox("Select a Milestone from the List to the Left", vbExclamation);
        AlarmBeep();
        list.SetFocus();
        return;
    }
    const int answer = MsgBox(
        "If you Delete a Milestone, ALL Attributes are Deleted\r\n"
        "You must proceed to ATTRIBUTES and Rebuild Them\r\n"
        "Milestones can be ignored in any Project Schedule\r\n"
        "Press OK to continue to Delete",
        vbOKCancel + vbExclamation + vbDefaultButton2, "Delete Warning");
    if (answer != vbOK) return;
    list.RemoveItem(entry);
    --MilestoneCount;
    ResizeEmpty(CharName, MilestoneCount);
    DemensionCharacteristics();
    for (int i = 0; i < list.ListCount(); ++i) Slot(CharName, i + 1) = list.List(i);
    if (list.ListCount() > 0) {
        SaveAndReload(form);
        list.SetFocus();
    } else {
        // The file keeps the last milestone: an empty list is never written.
        AlarmBeep();
    }
}

void ClearMilestones(frmSetup& form) {
    if (MsgBox("This will Clear All Milestones", vbOKCancel + vbQuestion + vbDefaultButton2,
               "Clear Milestones") != vbOK)
        return;
    ClearCombo(form.cboMilestones);
    form.CharacteristicsExist = false;
    MilestoneCount = 0;
    DemensionCharacteristics();
    form.tabSetup.SetTabEnabled(frmSetup::kAttributesTab, false);
    form.cboMilestones.SetFocus();
}

void MoveMilestone(frmSetup& form, bool down) {
    ComboBox& list = form.cboMilestones;
    const int from = list.ListIndex();
    if (down) {
        if (from < 0 || from >= list.ListCount() - 1) return;
    } else {
        if (from < 1) return;
    }
    const int to = down ? from + 1 : from - 1;
    const std::string name = list.List(from);
    list.RemoveItem(from);
    list.AddItem(name, to);
    list.SetListIndex(to);
}

void SaveMilestonePositions(frmSetup& form) {
    if (form.cboMilestones.ListCount() > 0) {
        SaveAndReload(form);
        form.cboMilestones.SetListIndex(0);
    } else {
        AlarmBeep();
    }
}

void EnterAttributesTab(frmSetup& form) {
    MilestoneCount = CInt(form.cboMilestones.ListCount());
    if (MilestoneCount < 1) {
        MsgBox("You need to Create Milestones\r\nBefore Assigning Attributes", vbExclamation);
        form.tabSetup.SetTab(frmSetup::kMilestonesTab);
    }
    form.WalkStarted = false;
    if (!form.CharacteristicsExist) DemensionCharacteristics();
    form.VerifyOnContinue = false;
    ContinueAttributeWalk(form);
}

void ContinueAttributeWalk(frmSetup& form) {
    if (form.VerifyOnContinue) {
        const int answer = MsgBox("Review your Selections\r\nIf correct, press YES",
                                  vbYesNo + vbQuestion, "Verify Attributes");
        if (answer != vbYes) return;
    }
    if (!form.WalkStarted) {
        form.WalkStarted = true;
        form.NextMilestone = 0;
        form.VerifyOnContinue = true;
    }
    if (form.NextMilestone == MilestoneCount) {
        form.AttributeMilestone = CInt(MilestoneCount + 1.0);
        StoreCharacteristics(form);
        MsgBox("The Milestone Characteristics have been Created", vbInformation);
        LoadMilestoneGrid(form);
        form.tabSetup.SetTab(frmSetup::kHelpTab);
        return;
    }
    const int shown = form.NextMilestone;
    form.AttributeMilestone = CInt(shown + 1.0);
    form.ShowIntervalDays(0);
    if (shown > 0) StoreCharacteristics(form);
    if (form.CharacteristicsExist) LoadButtons(form);

    // Only an earlier milestone can be waited for. The list is filled with a byte counter.
    if (shown > 254) Raise(err::Overflow, "milestones");
    form.lstDependencies.Clear();
    for (int i = 1; i <= shown; ++i) form.lstDependencies.AddItem(Slot(CharName, i));

    // The entry shown is the one after the previous milestone's dependency; selecting it
    // runs the list's click, which stores it for this milestone.
    if (Slot(CharDependency, form.AttributeMilestone) >= 1) {
        const int entry = Slot(CharDependency, form.AttributeMilestone - 1);
        if (entry >= 0 && entry < form.lstDependencies.ListCount())
            form.lstDependencies.SetListIndex(entry);
    }

    form.txtMilestone.SetText(Slot(CharName, shown + 1));
    if (shown > 0) {
        form.fraDependencies.SetVisible(true);
        form.lblDependency.SetVisible(true);
    }
    DoEvents();
    form.NextMilestone = CInt(shown + 1.0);
}

void ChooseDependency(frmSetup& form) {
    const int entry = form.lstDependencies.ListIndex();
    Slot(CharDependency, form.AttributeMilestone) = static_cast<std::int16_t>(entry + 1);
    form.fraLeadTime.SetVisible(false);
    if (entry >= 0 && form.lstDependencies.Selected(entry)) form.fraLeadTime.SetVisible(true);
}

void ResetDependency(frmSetup& form) {
    Slot(CharDependency, form.AttributeMilestone) = 0;
    form.fraLeadTime.SetVisible(false);
    form.lstDependencies.SetListIndex(-1);
}

void StoreLeadDays(frmSetup& form) {
    form.ShowIntervalDays(form.UpDnDays.Value());
    Slot(CharLead, form.AttributeMilestone) = static_cast<std::int16_t>(form.UpDnDays.Value());
}
