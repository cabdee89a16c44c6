#include "control/frmProjectControl.h"

#include "control/CompletionRoutines.h"
#include "control/InvoiceRoutines.h"
#include "control/ProjectListExport.h"
#include "control/ProjectListRoutines.h"
#include "control/ProjectReports.h"
#include "control/ProjectTables.h"
#include "control/RescheduleRoutines.h"
#include "platform/Files.h"
#include "platform/Printer.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "schedule/SchedulerRoutines.h"
#include "setup/ScreenLinks.h"
#include "setup/SetupHooks.h"
#include "store/BasicDiskRoutines.h"
#include "store/Journal.h"
#include "store/SharedState.h"
#include "telephony/DialerLink.h"

using namespace platform;

namespace {

// Places a control in its container, in twips relative to that container.
void Place(Control& control, const std::string& container, int left, int top, int width,
           int height) {
    control.SetContainer(container);
    control.Move(left, top, width, height);
}

void SetMainMenuEntry(int index, bool enabled) {
    if (Control* c =
            ControlOnScreen("frmStartup", "optProgramRoutine(" + std::to_string(index) + ")"))
        c->SetEnabled(enabled);
}

constexpr int kPanelLeft = 120, kPanelTop = 120, kPanelWidth = 11040, kPanelHeight = 6900;

}  // namespace

std::string TeamListEntry(int team) {
    if (ListControl* list = ListOnScreen("frmMain", "lstTeam")) {
        if (Forms::Get("frmMain").IsLoaded())
            return team >= 1 && team <= list->ListCount() ? list->List(team - 1) : std::string();
    }
    return team >= 1 && team < static_cast<int>(TeamNames.size())
               ? TeamNames[static_cast<size_t>(team)]
               : std::string();
}

frmProjectControl::frmProjectControl() : Form(kName) {
    LayOut();
    RegisterHandlers();
}

void frmProjectControl::LayOut() {
    SetCaption("Construction Project Control");
    SetSize(11400, 8280);

    for (Frame* panel : {&fraProjects, &fraCompleteMS, &fraProjectSummary, &fraMSCal})
        panel->Move(kPanelLeft, kPanelTop, kPanelWidth, kPanelHeight);

    // The project list.
    fraProjects.SetCaption("Construction Projects");
    Place(fgProjects, "fraProjects", 120, 300, 10800, 6000);
    fgProjects.SetFixedCols(0);
    fgProjects.SetFormatString("^Project|Project Name|^Account No|Customer Name|^Telephone");
    const int projectWidths[] = {1300, 3400, 1500, 3100, 1400};
    for (int c = 0; c < 5; ++c) fgProjects.SetColWidth(c, projectWidths[c]);
    Place(lblProjectsHint, "fraProjects", 120, 6420, 10800, 300);
    lblProjectsHint.SetCaption(
        "Right click a Project for its Routines, Double click it for its Summary");

    // Milestones past their date.
    fraCompleteMS.SetCaption("Milestones Past Completion Date");
    Place(fgCompleted, "fraCompleteMS", 120, 300, 10800, 5700);
    fgCompleted.SetFixedCols(0);
    fgCompleted.SetFormatString("^Project No|Project Name|Milestone|^Date");
    const int completedWidths[] = {1500, 3800, 3800, 1500};
    for (int c = 0; c < 4; ++c) fgCompleted.SetColWidth(c, completedWidths[c]);
    Place(cmdCompleteAll, "fraCompleteMS", 120, 6240, 1800, 495);
    cmdCompleteAll.SetCaption("CompleteAll");
    cmdCompleteAll.SetToolTipText("Mark all these Milestones as Completed");
    Place(cmdPrintPastCompletion, "fraCompleteMS", 2040, 6240, 1800, 495);
    cmdPrintPastCompletion.SetCaption("&Print");
    Place(cmdGotoProjects, "fraCompleteMS", 3960, 6240, 1800, 495);
    cmdGotoProjects.SetCaption("&Projects");

    // The summary of one project.
    fraProjectSummary.SetCaption("Project Summary");
    const char* const captions[] = {"Project No", "Project Title", "Account No", "Total Days",
                                    "Customer"};
    const int captionBoxes[][2] = {{120, 300}, {3360, 300}, {120, 600}, {3360, 600}, {120, 900}};
    for (int i = 0; i < 5; ++i) {
        Place(lblPJSCaption[i], "fraProjectSummary", captionBoxes[i][0], captionBoxes[i][1], 1200,
              255);
        lblPJSCaption[i].SetCaption(captions[i]);
    }
    Place(lblPJSProNo, "fraProjectSummary", 1380, 300, 1860, 255);
    Place(lblPJSProTitle, "fraProjectSummary", 4620, 300, 2760, 255);
    Place(lblAcctNo, "fraProjectSummary", 1380, 600, 1860, 255);
    Place(lblProDays, "fraProjectSummary", 4620, 600, 1200, 255);
    Place(lblCustomer, "fraProjectSummary", 1380, 900, 6000, 1020);
    lblCustomer.SetToolTipText("Right click to call the Customer");
    for (Label* value : {&lblPJSProNo, &lblPJSProTitle, &lblAcctNo, &lblProDays})
        value->SetFontBold(true);
    Place(fraProposal, "fraProjectSummary", 7560, 240, 3360, 660);
    fraProposal.SetCaption("Proposal");
    Place(lblProposal, "fraProposal", 120, 300, 3120, 255);
    Place(fgMilestones, "fraProjectSummary", 120, 2040, 10800, 4140);
    fgMilestones.SetFixedCols(0);
    fgMilestones.SetFormatString("No|Title|Status|^Start Date|^Completd Date");
    const int milestoneWidths[] = {500, 4600, 1800, 1700, 1900};
    for (int c = 0; c < 5; ++c) fgMilestones.SetColWidth(c, milestoneWidths[c]);
    Place(cmdPJSHide, "fraProjectSummary", 120, 6300, 1560, 435);
    cmdPJSHide.SetCaption("&Hide");
    Place(cmdPrint, "fraProjectSummary", 1800, 6300, 1560, 435);
    cmdPrint.SetCaption("&Print");

    // The details of one milestone, over the summary.
    fraMSDetails.SetCaption("Milestone Summary");
    fraMSDetails.Move(1800, 1320, 7680, 4320);
    fraMSDetails.SetVisible(false);
    const char* const details[] = {"Milestone",     "Assigned to",
                                   "Project Phase", "Scheduled Date/Time",
                                   "Time Allotted", "Dependent on Milestone",
                                   "Status",        "Location"};
    for (int i = 0; i < 8; ++i) {
        Place(lblMSDetails[i], "fraMSDetails", 240, 360 + i * 420, 2400, 300);
        lblMSDetails[i].SetCaption(details[i]);
        lblMSDetails[i].SetAlignment(1);
        Place(lblMSInfo[i], "fraMSDetails", 2760, 360 + i * 420, 4680, 300);
        lblMSInfo[i].SetFontBold(true);
    }
    Place(cmdMSDetailsHide, "fraMSDetails", 5880, 3780, 1560, 435);
    cmdMSDetailsHide.SetCaption("&Close");

    // The calendar of rescheduling and completing.
    fraMSCal.SetCaption("Milestone Calendar");
    Place(lblAction[0], "fraMSCal", 240, 300, 5160, 375);
    lblAction[0].SetCaption("Complete Miletone Event");
    Place(lblAction[1], "fraMSCal", 240, 300, 5160, 375);
    lblAction[1].SetCaption("Reschedule Miletone Event");
    for (int i = 0; i < 2; ++i) {
        lblAction[i].SetFontBold(true);
        lblAction[i].SetFontSize(12);
    }
    Place(MSCal, "fraMSCal", 240, 780, 5160, 3060);
    Place(lblMilestone, "fraMSCal", 240, 3960, 5160, 300);
    Place(lblSelectDate, "fraMSCal", 240, 4320, 5160, 300);
    Place(fraReschedule, "fraMSCal", 240, 4680, 5160, 1200);
    fraReschedule.SetCaption("Reschedule");
    Place(Label1[0], "fraReschedule", 120, 300, 4920, 780);
    Label1[0].SetCaption(
        "Click the Calendar to select the new date for this Milestone. Milestones that depend on "
        "it follow.");
    Place(fraComplete, "fraMSCal", 240, 4680, 5160, 1200);
    fraComplete.SetCaption("Complete");
    Place(Label1[1], "fraComplete", 120, 300, 4920, 780);
    Label1[1].SetCaption("Click the Calendar to select the date this Milestone was completed");
    Place(Label1[2], "fraMSCal", 5640, 780, 5160, 900);
    Label1[2].SetCaption(
        "This Milestone is an Administrative Function No time slot allocation is required.");
    Label1[2].SetVisible(false);
    Place(fraTime, "fraMSCal", 5640, 300, 5160, 5580);
    fraTime.SetCaption("Starting Time");
    Place(fgPJHours, "fraTime", 120, 300, 4920, 4560);
    fgPJHours.SetRows(13);
    fgPJHours.SetFormatString("^     Time|^ Event");
    fgPJHours.SetColWidth(0, 1100);
    fgPJHours.SetColWidth(1, 3700);
    for (int i = 0; i < 2; ++i) Place(cmdReschedule[i], "fraTime", 120 + i * 1680, 4980, 1560, 435);
    cmdReschedule[0].SetCaption("Reschedule");
    cmdReschedule[0].SetToolTipText("Event will be rescheduled this date");
    cmdReschedule[1].SetCaption("Cancel");
    cmdReschedule[1].SetToolTipText("Event will NOT be rescheduled");
    Place(cmdCalButtons[0], "fraMSCal", 240, 6180, 1560, 435);
    cmdCalButtons[0].SetCaption("&Hide");

    cmdMenu.Move(9600, 7140, 1560, 435);
    cmdMenu.SetCaption("&Menu");
    imgDialer.Move(240, 7080, 480, 480);
    imgDialer.SetToolTipText("Call the selected Customer");
    imgDialer.SetVisible(false);

    mnuRoutines.SetCaption("&Routines");
    mnuPastDue.SetCaption("&Past Due Milestones");
    mnuClearAll.SetCaption("&Delete All Projects");
    mnuPrintAll.SetCaption("Print &All Projects");
    mnuSaveList.SetCaption("&Save Project List as CSV...");
    for (Menu* m : {&mnuPastDue, &mnuClearAll, &mnuPrintAll, &mnuSaveList})
        m->SetContainer("mnuRoutines");
    mnuProjectS.SetCaption("Project");
    mnuProjectS.SetVisible(false);
    mnuProjectSummary.SetCaption("Project &Summary");
    mnuCompleteProject.SetCaption("&Complete Project");
    mnuPrint.SetCaption("&Print Project");
    mnuDeleteProject.SetCaption("&Delete Project");
    for (Menu* m : {&mnuProjectSummary, &mnuCompleteProject, &mnuPrint, &mnuDeleteProject})
        m->SetContainer("mnuProjectS");
    mnuMilestones.SetCaption("Milestone");
    mnuMilestones.SetVisible(false);
    mnuDetails.SetCaption("Milestone &Details");
    mnuRescheduleMilestone.SetCaption("&Reschedule Milestone");
    mnuComplete.SetCaption("&Complete Milestone");
    for (Menu* m : {&mnuDetails, &mnuRescheduleMilestone, &mnuComplete})
        m->SetContainer("mnuMilestones");
    mnuHelp.SetCaption("&Help");
}

void frmProjectControl::RegisterHandlers() {
    On("Form.Load", [this](EventArgs&) { Form_Load(); });
    On("Form.Activate", [this](EventArgs&) { Form_Activate(); });
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
    On("fgProjects.MouseUp", [this](EventArgs& e) { fgProjects_MouseUp(e.button); });
    On("fgProjects.DblClick", [this](EventArgs&) { fgProjects_DblClick(); });
    On("fgMilestones.MouseUp", [this](EventArgs& e) { fgMilestones_MouseUp(e.button); });
    On("fgMilestones.DblClick", [this](EventArgs&) { fgMilestones_DblClick(); });
    On("fgPJHours.Click", [this](EventArgs&) { fgPJHours_Click(); });
    On("MSCal.DateClick", [this](EventArgs&) { MSCal_DateClick(); });
    On("mnuProjectSummary.Click", [this](EventArgs&) { mnuProjectSummary_Click(); });
    On("mnuPastDue.Click", [this](EventArgs&) { mnuPastDue_Click(); });
    On("mnuMilestones.Click", [this](EventArgs&) { mnuMilestones_Click(); });
    On("mnuDetails.Click", [this](EventArgs&) { mnuDetails_Click(); });
    On("mnuRescheduleMilestone.Click", [this](EventArgs&) { mnuRescheduleMilestone_Click(); });
    On("mnuComplete.Click", [this](EventArgs&) { mnuComplete_Click(); });
    On("mnuCompleteProject.Click", [this](EventArgs&) { mnuCompleteProject_Click(); });
    On("mnuDeleteProject.Click", [this](EventArgs&) { mnuDeleteProject_Click(); });
    On("mnuClearAll.Click", [this](EventArgs&) { mnuClearAll_Click(); });
    On("mnuPrint.Click", [this](EventArgs&) { mnuPrint_Click(); });
    On("cmdPrint.Click", [this](EventArgs&) { mnuPrint_Click(); });
    On("mnuPrintAll.Click", [this](EventArgs&) { mnuPrintAll_Click(); });
    On("mnuSaveList.Click", [this](EventArgs&) { mnuSaveList_Click(); });
    On("mnuHelp.Click", [this](EventArgs&) { mnuHelp_Click(); });
    On("cmdPJSHide.Click", [this](EventArgs&) { cmdPJSHide_Click(); });
    On("cmdGotoProjects.Click", [this](EventArgs&) { cmdPJSHide_Click(); });
    On("cmdMSDetailsHide.Click", [this](EventArgs&) { cmdMSDetailsHide_Click(); });
    On("cmdCompleteAll.Click", [this](EventArgs&) { cmdCompleteAll_Click(); });
    On("cmdPrintPastCompletion.Click", [this](EventArgs&) { cmdPrintPastCompletion_Click(); });
    On("cmdReschedule.Click", [this](EventArgs& e) { cmdReschedule_Click(e.index); });
    On("cmdCalButtons.Click", [this](EventArgs& e) { cmdCalButtons_Click(e.index); });
    On("cmdMenu.Click", [this](EventArgs&) { cmdMenu_Click(); });
    On("imgDialer.Click", [this](EventArgs&) { imgDialer_Click(); });
    On("lblCustomer.MouseUp", [this](EventArgs& e) { lblCustomer_MouseUp(e.button); });
}

void frmProjectControl::Form_Load() {
    LoadProjects(*this);
    if (!ProjectsLoaded) {
        SetMainMenuEntry(9, false);
        SetMainMenuEntry(3, false);
    }
    for (int row = 1; row <= 12; ++row) fgPJHours.SetTextMatrix(row, 0, HourLabelShown(row));
    imgDialer.SetVisible(PhoneConnected);
}

void frmProjectControl::Form_Activate() {
    if (!ProjectsLoaded) LoadProjects(*this);
    HidePanels();
    MSCal.SetValue(Today());
    if (fgCompleted.Rows() >= 3)
        fraCompleteMS.SetVisible(true);
    else
        fraProjects.SetVisible(true);
}

void frmProjectControl::Form_QueryUnload(EventArgs& e) {
    if (ProjectsLoaded) SaveChangedProjects();
    if (e.unloadMode == 0) ExitProgramFromSetup();
}

void frmProjectControl::ShowPanel(int panel) {
    HidePanels();
    Frame* panels[] = {&fraMSCal, &fraProjects, &fraCompleteMS, &fraProjectSummary};
    if (panel >= 1 && panel <= 4) panels[panel - 1]->SetVisible(true);
}

void frmProjectControl::HidePanels() {
    for (Frame* panel : {&fraMSCal, &fraProjects, &fraCompleteMS, &fraProjectSummary})
        panel->SetVisible(false);
}

void frmProjectControl::ShowCalendar(const std::string& mode) {
    fraMSCal.SetVisible(true);
    const bool reschedule = mode == "Reschedule";
    fraReschedule.SetVisible(reschedule);
    fraComplete.SetVisible(!reschedule);
    lblAction[1].SetVisible(reschedule);
    lblAction[0].SetVisible(!reschedule);
    fraTime.SetVisible(false);
    if (reschedule) {
        const std::string date = fgMilestones.TextMatrix(fgMilestones.Row(), 3);
        DateTime value;
        if (!ParseDate(date, value)) platform::Raise(err::TypeMismatch, "MSCal");
        MSCal.SetValue(value);
        lblMilestone.SetCaption(lblMilestone.Caption() + " scheduled for " + date);
        CalendarMode = 2;
    } else {
        Label1[2].SetVisible(false);
        CalendarMode = 1;
        MSCal.SetValue(Today());
    }
}

// The empty row of a list without projects leads nowhere.
bool frmProjectControl::ProjectRowChosen() const {
    return ProjectsLoaded && fgProjects.Row() >= 1 && fgProjects.Row() <= ProjectCount;
}

void frmProjectControl::fgProjects_MouseUp(int button) {
    if (button != 2 || !ProjectRowChosen()) return;
    SelProject = fgProjects.Row();
    PopupMenu(mnuProjectS);
    LoadProjectSummary(*this);
}

void frmProjectControl::fgProjects_DblClick() {
    if (!ProjectRowChosen()) return;
    SelProject = fgProjects.Row();
    LoadProjectSummary(*this);
    mnuProjectSummary_Click();
}

void frmProjectControl::fgMilestones_MouseUp(int button) {
    if (button != 2) return;
    SelMilestone = fgMilestones.Row();
    CurrentTeam = MilestoneOf(SelProject, SelMilestone).team + " ";
    const bool open = fgMilestones.TextMatrix(SelMilestone, 2) != "Completed";
    mnuRescheduleMilestone.SetEnabled(open);
    mnuComplete.SetEnabled(open);
    // Opening the menu raises its own click first.
    mnuMilestones_Click();
    PopupMenu(mnuMilestones);
}

void frmProjectControl::fgMilestones_DblClick() {
    SelMilestone = fgMilestones.Row();
    mnuDetails_Click();
}

void frmProjectControl::fgPJHours_Click() {
    StartHourClicked(*this);
}

void frmProjectControl::MSCal_DateClick() {
    // A move with its cascade, or a completion, changes many day files: a crash half way
    // leaves them all as they were before the click.
    KeepOldFiles kept;
    if (CalendarMode == 2) {
        RescheduleDateClicked(*this);
    } else if (CalendarMode == 1) {
        CascadeWanted = true;
        if (MSCal.Value() > Today()) {
            AlarmBeep();
            MSCal.SetValue(Today());
        } else {
            CompleteMilestone(*this, SelProject, SelMilestone);
        }
    }
}

void frmProjectControl::mnuProjectSummary_Click() {
    ShowPanel(4);
    cmdPJSHide.SetFocus();
}

void frmProjectControl::mnuPastDue_Click() {
    HidePanels();
    fraCompleteMS.SetVisible(true);
}

void frmProjectControl::mnuMilestones_Click() {
    lblMilestone.SetCaption(MilestoneOf(SelProject, SelMilestone).name);
}

void frmProjectControl::mnuDetails_Click() {
    ShowMilestoneDetails(*this);
}

void frmProjectControl::mnuRescheduleMilestone_Click() {
    fraMSDetails.SetVisible(false);
    ShowCalendar("Reschedule");
    const Milestone& ms = MilestoneOf(SelProject, SelMilestone);
    if (ms.type == 1) {
        Label1[2].SetVisible(true);
        fraTime.SetVisible(false);
        return;
    }
    Label1[2].SetVisible(false);
    if (ms.mode == "Hours") {
        fraTime.SetVisible(true);
        ReadDay(MSCal.Value(), CurrentTeam);
        CopyHoursToPJHours(*this);
    }
}

void frmProjectControl::mnuComplete_Click() {
    ShowCalendar("Complete");
}

void frmProjectControl::mnuCompleteProject_Click() {
    SelProject = fgProjects.Row();
    const std::string projectNo = fgProjects.TextMatrix(SelProject, 0);
    if (MsgBox("Click YES to complete all Project Milestones\r\nClick  NO to exit Project "
               "Completion",
               vbYesNo + vbQuestion, "Project Completion") == vbNo)
        return;
    for (int n = 1; n <= HeaderOf(SelProject).milestoneCount; ++n)
        CompleteMilestone(*this, SelProject, n);
    try {
        if (MsgBox("Would you like to Print a Project Summary?", vbYesNo + vbQuestion,
                   "Project Summary") == vbYes)
            PrintOneProject(*this, SelProject);
        if (FileExists(DataPath("\\NorvaxInvoicer.exe")) &&
            MsgBox("Would you like to Create an Invoice Record?", vbYesNo + vbQuestion,
                   "Invoice Record") == vbYes)
            CreateInvoiceRecord(SelProject);
        if (FindFile(ProjectFilePath(projectNo))) DeleteFile(ProjectFilePath(projectNo));
    } catch (const RuntimeError&) {
        // The handler's own error trap: a print or invoice failure leaves it at once, and the
        // project keeps its file.
        AbandonAll();
        return;
    }
    ProjectsLoaded = false;
    Form_Activate();
}

void frmProjectControl::mnuDeleteProject_Click() {
    SelProject = fgProjects.Row();
    const std::string projectNo = fgProjects.TextMatrix(SelProject, 0);
    if (MsgBox(
            "Click YES to Delete Project " + projectNo + "\r\nClick  NO to exit Project Deletion",
            vbYesNo + vbQuestion, "Project Deletion") == vbNo)
        return;
    {
        KeepOldFiles kept;
        DeleteProject(*this, SelProject, projectNo);
    }
    LoadProjects(*this);
    Form_Activate();
}

void frmProjectControl::mnuClearAll_Click() {
    if (MsgBox("This Routine Deletes all Projects\r\nClick Yes to Continue", vbYesNo + vbQuestion,
               "Delete All Projects") == vbNo)
        return;
    if (MsgBox("Are you Sure?\r\nClick Yes to Continue", vbYesNo + vbQuestion, "Verify Delete") ==
        vbNo)
        return;
    {
        KeepOldFiles kept;
        for (int row = 1; row <= fgProjects.Rows() - 1; ++row)
            DeleteProject(*this, row, fgProjects.TextMatrix(row, 0));
    }
    ClearProjectGrid(*this);
    ProjectsLoaded = false;
    Form_Activate();
    SetMainMenuEntry(9, false);
    SetMainMenuEntry(3, false);
    cmdMenu_Click();
}

void frmProjectControl::mnuPrint_Click() {
    if (MsgBox("This Routine Prints the Selected Project\r\nClick Yes to Continue",
               vbYesNo + vbQuestion, "Print Project") == vbYes)
        PrintSelectedProject(*this);
}

void frmProjectControl::mnuPrintAll_Click() {
    if (MsgBox("This Routine Prints all Projects\r\nClick Yes to Continue", vbYesNo + vbQuestion,
               "Print All Projects") == vbYes)
        PrintAllProjects(*this);
}

void frmProjectControl::mnuSaveList_Click() {
    SaveProjectList(*this);
}

void frmProjectControl::mnuHelp_Click() {
    OpenManualFromSetup();
}

void frmProjectControl::cmdPJSHide_Click() {
    ShowPanel(2);
}

void frmProjectControl::cmdMSDetailsHide_Click() {
    fraMSDetails.SetVisible(false);
}

void frmProjectControl::cmdCompleteAll_Click() {
    if (MsgBox("This will mark all milestones as Completed", vbYesNo + vbQuestion,
               "Complete All Milestones") == vbNo)
        return;
    CompleteAllPastDue();
    SaveChangedProjects();
    Form_Activate();
}

void frmProjectControl::cmdPrintPastCompletion_Click() {
    PrintPastCompletion(*this);
}

void frmProjectControl::cmdReschedule_Click(int index) {
    if (index == 0) {
        KeepOldFiles kept;
        ConfirmHourlyReschedule(*this);
    }
    ShowPanel(2);
}

void frmProjectControl::cmdCalButtons_Click(int index) {
    if (index == 0) ShowPanel(2);
}

void frmProjectControl::cmdMenu_Click() {
    SaveChangedProjects();
    Unload();
    ShowMainMenuFromSetup();
}

void frmProjectControl::imgDialer_Click() {
    const int row = fgProjects.Row();
    ShowDialer(fgProjects.TextMatrix(row, 3), fgProjects.TextMatrix(row, 4));
}

void frmProjectControl::lblCustomer_MouseUp(int button) {
    if (button != 2) return;
    const ProjectHeader& h = HeaderOf(SelProject);
    ShowDialer(h.billingName, h.billingTelephone);
}
