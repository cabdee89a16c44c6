#include "projects/CreationWizard.h"

#include <string>

#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Numbers.h"
#include "platform/Records.h"
#include "platform/Ui.h"
#include "projects/MilestonePlacement.h"
#include "projects/ProjectFiles.h"
#include "projects/ProjectNumbers.h"
#include "projects/ProjectRecord.h"
#include "projects/TeamSchedule.h"
#include "projects/TeamSnapshot.h"
#include "projects/frmMain.h"
#include "schedule/SchedulerRoutines.h"
#include "schedule/Teams.h"
#include "schedule/Workdays.h"
#include "setup/CharacteristicsRoutines.h"
#include "setup/ScreenLinks.h"
#include "setup/SetupHooks.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

constexpr const char* kSameAsAccount = "Same as Account";
constexpr const char* kToggleClear = "Toggle / Clear";
constexpr const char* kNoProposal = "Proposal Number";
const char* const kPhaseNames[4] = {"", "Pre-Construction", "Construction", "Post Construction"};

std::string CityLine(const std::string& city, const std::string& state, const std::string& zip) {
    return city + ", " + state + " " + zip;
}

// Header values 1 to 19 as the screen holds them.
ProjectHeader HeaderOnScreen(frmMain& form) {
    ProjectHeader h;
    h.projectNo = form.lblProjectNo.Caption();
    h.title = form.cboProjectTitle.Text();
    h.account = form.lblAccount.Caption();
    // A number left from an earlier proposal does not belong to a project without one.
    h.proposalNo = form.lblPropNo[1].Visible() ? form.lblPropNo[1].Caption() : kNoProposal;
    std::string* billing[] = {&h.billingName,     &h.billingAddress1, &h.billingAddress2,
                              &h.billingCity,     &h.billingState,    &h.billingZip,
                              &h.billingTelephone};
    std::string* site[] = {&h.siteName,  &h.siteAddress1, &h.siteAddress2, &h.siteCity,
                           &h.siteState, &h.siteZip,      &h.siteTelephone};
    for (int i = 1; i <= 7; ++i) {
        *billing[i - 1] = form.lblCustomerInfo[i].Caption();
        *site[i - 1] = form.txtCustomerInfo[i].Text();
    }
    h.milestoneCount = static_cast<std::int16_t>(form.lstMilestoneSelection.SelCount());
    return h;
}

std::string TeamName(const frmMain& form, const std::string& team) {
    const int n = CInt(Val(team));
    return form.lstTeam.List(n - 1);
}

void BackToMenu(frmMain& form) {
    form.Hide();
    ShowMainMenuFromSetup();
}

}  // namespace

void ResetControls(frmMain& form) {
    for (Control* c : form.Controls()) {
        const std::string& tag = c->Tag();
        if (tag == "Hide" || tag == "Instruction")
            c->SetVisible(false);
        else if (tag == "Button")
            c->SetEnabled(false);
    }
}

void EnterScreen(frmMain& form) {
    // The day shown belongs to a team from the start.
    if (CurrentTeam.empty()) CurrentTeam = "1";
    ResetControls(form);

    form.SlotSelection = kNoSlotSelected;
    SetCalendarDate(form, NextWorkday(DefaultStartDate(), 0));
    CurrentDate = form.MonthView1.Value();

    if (MenuRoutine == 1) {
        form.cmdStartOver.SetVisible(true);
        form.cmdRedoEvent.SetVisible(true);
        form.cmdRedoEvent.SetEnabled(false);
        form.lblPrintSched.SetVisible(false);
        form.tgTime.SetEnabled(true);
    } else if (MenuRoutine == 3) {
        form.lblPrintSched.SetVisible(true);
        form.cmdStartOver.SetVisible(false);
        form.cmdRedoEvent.SetVisible(false);
        form.cmdClear.SetEnabled(true);
    }
    form.cmdView.SetEnabled(false);

    for (Frame* frame :
         {&form.fraProjectInfo, &form.fraBasicInst, &form.fraConEvents, &form.fraDependent,
          &form.fraTeam, &form.fraTime, &form.fraLocation, &form.fraSchedule})
        frame->SetVisible(false);
    form.mnuWindows.SetEnabled(false);
    form.lblDate.SetCaption(ShortDate(Today()));

    if (MenuRoutine == 1) {
        SnapshotTeamFiles();
        MakeProjectNo();
        for (int i = 1; i <= 7; ++i) form.txtCustomerInfo[i].SetText("");
        form.Label4[2].SetVisible(true);
        if (form.optSelect[0].Value())
            SetHoursEntry(form);
        else
            SetDaysEntry(form);
        form.fraTime.SetVisible(true);
        form.fraProjectInfo.SetVisible(true);
        form.fraBasicInst.SetVisible(true);
        form.lblProjectNo.SetCaption(CurrentProjectNo);
        form.CreationMode = 0;
        form.cmdSetJobSite.SetFocus();
        form.CurrentMilestone = 1;
        SizeMilestoneArrays(1);
        MsTeam[1] = "1";
        MsDate[1] = CurrentDate;
        ListBox& list = form.lstMilestoneSelection;
        for (int i = 0; i < list.ListCount(); ++i) list.SetSelected(i, true);
        if (list.ListCount() > 0) list.SetListIndex(0);
        form.cmdContinue.SetEnabled(true);
    } else if (MenuRoutine == 3) {
        form.fraTime.SetVisible(true);
        form.Label4[2].SetVisible(false);
        form.mnuWindows.SetEnabled(true);
        form.mnuTeamCal.SetEnabled(true);
        form.fraSchedule.SetVisible(true);
        ShowCalendarFrame(form);
        form.cmdContinue.SetEnabled(false);
        form.cmdHourly.SetEnabled(true);
        form.fraTeam.SetVisible(true);
        form.fra8or12HourSchedule.SetVisible(true);
    }

    ListBox& teams = form.lstTeam;
    teams.Clear();
    for (int n = 1; n <= TeamCount(); ++n) teams.AddItem(TeamNames[static_cast<size_t>(n)]);
    teams.AddItem("All Teams");
    form.UpDnTeam.SetMax(TeamCount());
    // A new project starts on the first team, as its first milestone does; the team schedule
    // waits for the user's choice.
    if (MenuRoutine == 1 && TeamCount() > 0) teams.SetListIndex(0);
    const int team = CInt(Val(CurrentTeam));
    if (team < 1 || team > TeamCount()) CurrentTeam = "1";
    form.cmdHourly_Click();
    for (int i = 1; i <= 7; ++i) form.txtCustomerInfo[i].SetText(form.lblCustomerInfo[i].Caption());
    form.cmdSetJobSite.SetCaption(kToggleClear);
}

void ToggleJobSite(frmMain& form) {
    if (form.cmdSetJobSite.Caption() == kToggleClear) {
        for (int i = 1; i <= 7; ++i) form.txtCustomerInfo[i].SetText("");
        form.txtCustomerInfo[1].SetFocus();
        form.cmdSetJobSite.SetCaption(kSameAsAccount);
    } else {
        for (int i = 1; i <= 7; ++i)
            form.txtCustomerInfo[i].SetText(form.lblCustomerInfo[i].Caption());
        form.cmdSetJobSite.SetCaption(kToggleClear);
    }
}

void ContinueFromProjectData(frmMain& form) {
    form.mnuWindows.SetEnabled(true);
    form.fraTime.SetEnabled(true);
    form.fraLocation.SetEnabled(true);
    if (form.lstMilestoneSelection.SelCount() == 0) {
        MsgBox("You cannot Create a Project\r\nwithout Selecting Milestones", vbOKOnly,
               "No Milestones Selected");
        return;
    }
    if (form.cboProjectTitle.Text().empty()) {
        MsgBox("Enter a Title for this Project", vbOKOnly, "No Title");
        form.cboProjectTitle.SetFocus();
        return;
    }
    EnterScheduling(form);
}

void EnterScheduling(frmMain& form) {
    form.fraProjectInfo.SetVisible(false);
    form.fraBasicInst.SetVisible(false);
    form.fraSummary.SetVisible(false);
    form.fraSchedule.SetVisible(true);
    ShowCalendarFrame(form);
    form.fraConEvents.SetVisible(true);
    form.cmdRedoEvent.SetEnabled(true);
    BuildMilestoneArrays(form);
    WriteProjectHeader(HeaderOnScreen(form));
    ShowMilestoneControls(form);
    const int type = MsAt(MsType, 1);
    if (type >= 1 && type <= 3) form.CreationMode = static_cast<std::int16_t>(type);
    Milestones(form);
}

void ShowProjectSummary(frmMain& form) {
    ResetControls(form);
    form.cmdSave.SetEnabled(true);
    form.fraSummary.SetVisible(true);
    Grid& grid = form.fgSummary;
    grid.SetRows(MilestoneCount + 1);

    OpenForInput(kProjectTempFile);
    const int file = MainFileNo;
    ProjectHeader h;
    InputHeaderValues(file, h);
    form.lblSummaryProject.SetCaption(h.projectNo + "   " + h.title);
    form.lblBilling.SetCaption(h.billingName + "\r\n" + h.billingAddress1 + "\r\n" +
                               CityLine(h.billingCity, h.billingState, h.billingZip));
    form.lblSite.SetCaption(h.siteName + "\r\n" + h.siteAddress1 + "\r\n" +
                            CityLine(h.siteCity, h.siteState, h.siteZip));

    DateTime firstDate, conStart, postStart, lastDate;
    bool conFound = false, postFound = false;
    // Lines lost to a failed search for days are not there to read.
    for (int i = 1; i <= MilestoneCount && !Eof(file); ++i) {
        Milestone m;
        InputMilestoneValues(file, m);
        if (i == 1) firstDate = m.date;
        if (!conFound) {
            conFound = m.phase == 2;
            conStart = conFound ? m.date : firstDate;
        }
        if (!postFound) {
            postFound = m.phase == 3;
            postStart = postFound ? m.date : conStart;
        }
        lastDate = m.date;
        if (i < grid.Rows()) {
            grid.SetTextMatrix(i, 0, m.name);
            grid.SetTextMatrix(i, 1, m.phase >= 1 && m.phase <= 3 ? kPhaseNames[m.phase] : "");
            grid.SetTextMatrix(i, 2, ShortDate(m.date));
            grid.SetTextMatrix(i, 3, m.type == 1 ? "Administrative" : TeamName(form, m.team));
        }
    }
    CloseAll();
    if (!postFound) postStart = conStart;

    const long total = DateDiff("d", firstDate, lastDate);
    const long conDays = DateDiff("d", conStart, postStart);
    form.txtDaysTotal.SetText(std::to_string(total == 0 ? 1 : total));
    form.txtPreDays.SetText(std::to_string(DateDiff("d", firstDate, conStart)));
    form.txtConDays.SetText(std::to_string(conDays == 0 ? 1 : conDays));
    form.CreationMode = 5;
}

void SaveProject(frmMain& form) {
    MakeFolder("/ConstructionProjects");
    const std::string projectFile = ProjectFilePath(form.lblProjectNo.Caption());
    // The project file, the counter and the record file change together: each is written
    // aside first, and a crash once they are all there is finished at the next start.
    const std::string records = projects::kProjectRecordsFile;
    for (const std::string& staged :
         {StagingName(projectFile), StagingName(kPjCounterFile), StagingName(records)})
        DeleteFile(staged);
    CopyDataFile(kProjectTempFile, StagingName(projectFile));
    // The number is used up only now.
    NextProjectNo();
    SavePjCounter(StagingName(kPjCounterFile));

    const ProjectFile saved = LoadProjectFile(StagingName(projectFile));
    LoadMilestoneArrays(saved.milestones);
    if (FileExists(DataPath(records))) CopyDataFile(records, StagingName(records));
    for (int m = 1; m <= saved.header.milestoneCount; ++m) {
        form.CurrentMilestone = m;
        if (MsAt(MsType, m) == 2)
            AddProjectRecord(StagingName(records),
                             BuildProjectRecord(saved.header, MilestoneLineOf(m), m));
    }
    CloseAll();
    RunJournal({{JournalStepKind::Replace, StagingName(projectFile), projectFile},
                {JournalStepKind::Delete, "/Backup" + std::string(kProjectTempFile), ""},
                {JournalStepKind::Delete, kProjectTempFile, ""},
                {JournalStepKind::Replace, StagingName(kPjCounterFile), kPjCounterFile},
                {JournalStepKind::Replace, StagingName(records), records}});
    MakeProjectNo();

    for (const char* entry : {"optProgramRoutine(9)", "optProgramRoutine(3)"})
        if (Control* c = ControlOnScreen("frmStartup", entry)) c->SetEnabled(true);
    ProjectsLoaded = false;
    form.CreationMode = 0;
    BackToMenu(form);
}

void RemoveScheduledSlots(frmMain& form) {
    const std::string projectNo = form.lblProjectNo.Caption();
    for (long m = 1; m <= form.CurrentMilestone - 1; ++m) {
        if (MsAt(MsType, m) != 2) continue;
        const int days = MsAt(MsMode, m) == "Hours" ? 1 : CInt(Val(MsAt(MsTime, m)));
        const std::string& name = MsAt(MsName, m);
        CurrentDate = MsAt(MsDate, m);
        for (int n = 1; n <= days; ++n) {
            // The team in use, not the milestone's: other teams wait for the restore.
            ReadDay(CurrentDate, CurrentTeam);
            for (int slot = 1; slot <= 12; ++slot) {
                std::string& text = DaySlots[static_cast<size_t>(slot)];
                if (text.find(projectNo) != std::string::npos &&
                    text.find(name) != std::string::npos)
                    text = kFreeSlot;
            }
            WriteDay(CurrentDate, CurrentTeam);
            CurrentDate = CurrentDate.AddDays(1);
            NextWorkday(CurrentDate);
        }
    }
}

namespace {

// The slots of the project go, then the snapshot comes back over them: a crash anywhere in
// between is finished by the next start.
void AbandonProject(frmMain& form) {
    RestoreTeamFiles({}, [&form] { RemoveScheduledSlots(form); });
}

}  // namespace

void ExitCreation(frmMain& form) {
    if (MenuRoutine == 1 && form.CreationMode == 5) {
        if (MsgBox("Click Yes to Schedule this Project\r\nClick No to Delete this Project", vbYesNo,
                   "Complete or Delete New Project") == vbYes) {
            SaveProject(form);
        } else {
            AbandonProject(form);
        }
    } else if (MenuRoutine == 1 && form.CurrentMilestone >= 2) {
        if (MsgBox("Returning to the Menu now\r\nwill delete the Project", vbYesNo,
                   "Delete New Project") != vbYes)
            return;
        AbandonProject(form);
    }
    BackToMenu(form);
}

void StartOver(frmMain& form) {
    if (MsgBox("This will DELETE the Entire Project", vbYesNo, "Cancel Project Creation") != vbYes)
        return;
    RemoveScheduledSlots(form);
    EnterScreen(form);
}

void KillProject(frmMain& form) {
    // The project's files go together with the day files it wrote.
    RestoreTeamFiles({{JournalStepKind::Delete, kProjectTempFile, ""},
                      {JournalStepKind::Delete, ProjectFilePath(form.lblProjectNo.Caption()), ""}});
    StartOver(form);
}

void UndoSlotChoice(frmMain& form) {
    ShowMilestoneControls(form);
    ClearSelection(form);
    if (MsAt(MsType, form.CurrentMilestone) == 2) {
        form.fraTime.SetEnabled(true);
        form.fraLocation.SetEnabled(true);
        form.tgTime.SetEnabled(true);
        form.txtTime.SetText("1");
        form.UpDnTime.SetValue(1);
        form.fraTime.SetVisible(true);
    }
}

void ResetCreationState() {
    ResetProjectNumbers();
    SizeMilestoneArrays(0);
    SelectedSlotText.clear();
    LookupFile = 0;
    SlipTeam.clear();
}
