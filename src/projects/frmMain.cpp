#include "projects/frmMain.h"

#include <utility>

#include "platform/Form.h"
#include "platform/Numbers.h"
#include "platform/Records.h"
#include "platform/Ui.h"
#include "projects/CreationWizard.h"
#include "projects/MilestonePlacement.h"
#include "projects/TeamSchedule.h"
#include "projects/TeamSnapshot.h"
#include "projects/WorkSchedule.h"
#include "schedule/SchedulerRoutines.h"
#include "setup/SetupHooks.h"
#include "store/SharedState.h"
#include "telephony/DialerLink.h"

using namespace platform;

namespace {

// Places a control in its container (a frame) and its box in twips, relative to it.
void Place(Control& control, const std::string& container, int left, int top, int width,
           int height) {
    control.SetContainer(container);
    control.Move(left, top, width, height);
}

// Tags read by ResetControls: each stage starts with these hidden or disabled.
constexpr const char* kHide = "Hide";
constexpr const char* kInstruction = "Instruction";
constexpr const char* kButton = "Button";

constexpr int kKeyQuote = 34;

}  // namespace

frmMain::frmMain() : Form(kName) {
    LayOut();
    RegisterHandlers();
}

void frmMain::LayOut() {
    SetCaption("Construction Project Scheduler");
    SetSize(12180, 7980);
    LayOutProjectData();
    LayOutScheduling();
    LayOutSummary();
    LayOutExtras();

    const int row = 6600;
    cmdContinue.SetCaption("&Continue");
    cmdContinue.SetDefault(true);
    cmdContinue.Move(120, row, 1335, 495);
    cmdRedoEvent.SetCaption("&Redo Event");
    cmdRedoEvent.SetToolTipText("Choose the time of this Milestone again");
    cmdRedoEvent.Move(1560, row, 1335, 495);
    cmdClear.SetCaption("C&lear");
    cmdClear.Move(3000, row, 1335, 495);
    cmdView.SetCaption("&View Day");
    cmdView.SetToolTipText("Show the Work Schedule of this Day");
    cmdView.Move(4440, row, 1335, 495);
    lblPrintSched.SetCaption("Print Schedule");
    lblPrintSched.SetAlignment(2);
    lblPrintSched.SetBorderStyle(true);
    lblPrintSched.Move(5820, row + 60, 1455, 375);
    cmdStartOver.SetCaption("&Start Over");
    cmdStartOver.Move(7320, row, 1335, 495);
    cmdHelp.SetCaption("&Help");
    cmdHelp.Move(8760, row, 1335, 495);
    cmdExit.SetCaption("E&xit to Menu");
    cmdExit.SetCancel(true);
    cmdExit.Move(10200, row, 1695, 495);
    cmdDelete.SetCaption("Delete All Schedules");
    cmdDelete.SetVisible(false);  // clears every team's days without a question
    cmdDelete.Move(120, row + 600, 1335, 375);
    for (CommandButton* b : {&cmdContinue, &cmdRedoEvent, &cmdClear, &cmdView}) b->SetTag(kButton);

    mnuWindows.SetCaption("&Windows");
    mnuTeamCal.SetCaption("Team &Calendar");
    mnuTeamCal.SetContainer("mnuWindows");
    mnuHelp.SetCaption("&Help");
}

void frmMain::LayOutProjectData() {
    const std::string info = "fraProjectInfo";
    fraProjectInfo.SetCaption("Project Information");
    fraProjectInfo.Move(120, 120, 7560, 5160);
    fraProjectInfo.SetTag(kHide);

    Place(lblProjectNoCaption, info, 240, 360, 1455, 285);
    lblProjectNoCaption.SetCaption("Project No.");
    Place(lblProjectNo, info, 1800, 330, 1695, 315);
    lblProjectNo.SetBorderStyle(true);
    lblProjectNo.SetFontBold(true);
    Place(lblTitleCaption, info, 3720, 360, 975, 285);
    lblTitleCaption.SetCaption("Title");
    Place(cboProjectTitle, info, 4440, 330, 2895, 315);
    for (const char* title : {"New Installation", "Major Repair", "Add-on"})
        cboProjectTitle.AddItem(title);
    cboProjectTitle.SetText("New Installation");

    Place(lblAccountCaption, info, 240, 780, 1455, 285);
    lblAccountCaption.SetCaption("Account No.");
    Place(lblAccount, info, 1800, 750, 1695, 315);
    lblAccount.SetBorderStyle(true);
    Place(lblPropNo[0], info, 3720, 780, 2415, 285);
    lblPropNo[0].SetCaption("Selected from Proposal Number");
    Place(lblPropNo[1], info, 6180, 750, 1155, 315);
    lblPropNo[1].SetCaption("Proposal Number");
    lblPropNo[1].SetBorderStyle(true);

    Place(lblBillingCaption, info, 1440, 1200, 2775, 285);
    lblBillingCaption.SetCaption("Billing (Account)");
    lblBillingCaption.SetFontBold(true);
    Place(lblSiteCaption, info, 4320, 1200, 2295, 285);
    lblSiteCaption.SetCaption("Job Site");
    lblSiteCaption.SetFontBold(true);
    const char* lines[] = {"",     "Name",  "Address 1", "Address 2",
                           "City", "State", "Zip",       "Telephone"};
    for (int i = 1; i <= 7; ++i) {
        const int top = 1500 + (i - 1) * 390;
        Place(lblInfoCaption[i], info, 240, top + 30, 1095, 285);
        lblInfoCaption[i].SetCaption(lines[i]);
        Place(lblCustomerInfo[i], info, 1440, top, 2775, 315);
        lblCustomerInfo[i].SetBorderStyle(true);
        Place(txtCustomerInfo[i], info, 4320, top, 3015, 315);
    }
    lblInfoCaption[0].SetVisible(false);
    lblCustomerInfo[0].SetVisible(false);
    txtCustomerInfo[0].SetVisible(false);
    txtCustomerInfo[5].SetMaxLength(2);
    Place(cmdSetJobSite, info, 4320, 4260, 1815, 375);
    cmdSetJobSite.SetCaption("Toggle / Clear");
    cmdSetJobSite.SetToolTipText("Clear the Job Site, or make it the same as the Account");
    Place(imgDialer, info, 1440, 4260, 480, 375);
    imgDialer.SetCaption("Dial");
    imgDialer.SetToolTipText("Click to Dial");

    fraBasicInst.SetCaption("Create a Project");
    fraBasicInst.Move(7800, 120, 4215, 5160);
    fraBasicInst.SetTag(kHide);
    Place(lblMilestonesCaption, "fraBasicInst", 240, 300, 3735, 285);
    lblMilestonesCaption.SetCaption("Milestones of this Project (click to leave one out)");
    Place(lstMilestoneSelection, "fraBasicInst", 240, 600, 3735, 2100);
    lstMilestoneSelection.SetMultiSelect(true);
    const char* steps[] = {"Enter a Title and check the Job Site, then Continue.",
                           "Each Milestone is then scheduled in turn:",
                           "Step 1 - Assign this Event to a Team",
                           "Step 2 - Select Start Date for this Milestone.",
                           "Step 3 - Select time Duration (Hours or Days)",
                           "Step 4 - Select Work Location",
                           "Click Continue."};
    for (int i = 0; i < lblBasicInst.Count(); ++i) {
        Place(lblBasicInst[i], "fraBasicInst", 240, 2820 + i * 315, 3735, 285);
        lblBasicInst[i].SetCaption(steps[i]);
    }
}

void frmMain::LayOutScheduling() {
    fraConEvents.SetCaption("Milestone");
    fraConEvents.Move(120, 120, 5760, 1200);
    Place(lblConEventsCaption, "fraConEvents", 240, 300, 1215, 285);
    lblConEventsCaption.SetCaption("Scheduling");
    Place(txtConEvents, "fraConEvents", 1440, 270, 4095, 315);
    txtConEvents.SetLocked(true);
    Place(lblConstructionInstructions[0], "fraConEvents", 240, 660, 5295, 255);
    lblConstructionInstructions[0].SetCaption(
        "Choose the Team, the Date, the Time and the Location, then Continue.");
    Place(lblConstructionInstructions[1], "fraConEvents", 240, 900, 5295, 255);
    lblConstructionInstructions[1].SetCaption(
        "An Administrative Milestone needs only a Date. Select it, then Continue.");
    lblConstructionInstructions[1].SetTag(kInstruction);

    fraDependent.SetCaption("Dependent upon");
    fraDependent.Move(120, 1440, 5760, 840);
    Place(lblDependentCaption, "fraDependent", 240, 330, 1095, 285);
    lblDependentCaption.SetCaption("Milestone");
    Place(txtDependentEvent, "fraDependent", 1320, 300, 2895, 315);
    txtDependentEvent.SetLocked(true);
    Place(lblLeadCaption, "fraDependent", 4320, 330, 855, 285);
    lblLeadCaption.SetCaption("Lead Days");
    Place(txtConEventsDays, "fraDependent", 5160, 300, 435, 315);
    txtConEventsDays.SetLocked(true);

    fraTeam.SetCaption("Assign to");
    fraTeam.Move(120, 2400, 2760, 2880);
    Place(lstTeam, "fraTeam", 120, 300, 2175, 2055);
    Place(UpDnTeam, "fraTeam", 2340, 300, 300, 615);
    Place(txtCurrentTeam, "fraTeam", 120, 2460, 2520, 315);
    txtCurrentTeam.SetLocked(true);

    fraLocation.SetCaption("Work Location");
    fraLocation.Move(3000, 2400, 2880, 1080);
    Place(optSite, "fraLocation", 240, 300, 2415, 315);
    optSite.SetCaption("On Site");
    Place(optOffice, "fraLocation", 240, 660, 2415, 315);
    optOffice.SetCaption("Office/Shop");

    fraTime.SetCaption("Time Required");
    fraTime.Move(120, 5400, 5760, 1080);
    Place(txtTime, "fraTime", 240, 300, 615, 315);
    txtTime.SetText("1");
    txtTime.SetMaxLength(2);
    Place(UpDnTime, "fraTime", 855, 300, 255, 315);
    UpDnTime.SetMin(1);
    UpDnTime.SetMax(12);
    UpDnTime.SetValue(1);
    Place(lblMode, "fraTime", 1200, 330, 855, 285);
    lblMode.SetCaption("Hours");
    Place(tgTime, "fraTime", 240, 660, 1815, 315);
    tgTime.SetCaption("Hours / Days");
    tgTime.SetToolTipText("Change between Hours and Days");
    Place(optSelect[0], "fraTime", 2280, 270, 3255, 315);
    optSelect[0].SetCaption("Set Hours as Default");
    Place(optSelect[1], "fraTime", 2280, 630, 3255, 315);
    optSelect[1].SetCaption("Set Days as Default");

    // The hourly grid and the calendar share one place; the calendar lies on top.
    fraSchedule.Move(6000, 120, 6015, 6360);
    fraSchedule.SetTag(kHide);
    Place(fraHours, "fraSchedule", 0, 0, 6015, 6360);
    fraHours.SetCaption("Schedule of the Day");
    Place(fgHours, "fraHours", 120, 300, 5775, 4695);
    fgHours.SetRows(13);
    fgHours.SetCols(2);
    fgHours.SetFormatString("^Time      |<Event                                              ");
    fgHours.SetColWidth(0, 1095);
    fgHours.SetColWidth(1, 4455);
    for (int r = 1; r <= 12; ++r) {
        fgHours.SetTextMatrix(r, 0, HourLabelShown(r));
        fgHours.SetTextMatrix(r, 1, kFreeSlot);
    }
    Place(lblDateTime, "fraHours", 120, 5115, 3735, 285);
    lblDateTime.SetFontBold(true);
    Place(cmdShowCal, "fraHours", 4080, 5040, 1815, 435);
    cmdShowCal.SetCaption("Show &Calendar");

    Place(fraCalendar, "fraSchedule", 0, 0, 6015, 6360);
    fraCalendar.SetCaption("Select a Date");
    Place(MonthView1, "fraCalendar", 120, 300, 4335, 3135);
    MonthView1.SetToolTipText("Click a Date");
    Place(UpDown1, "fraCalendar", 4560, 300, 300, 615);
    UpDown1.SetToolTipText("Next or previous Workday");
    Place(lblDay, "fraCalendar", 120, 3540, 2055, 285);
    lblDay.SetFontBold(true);
    Place(lblDate, "fraCalendar", 2280, 3540, 2175, 285);
    lblDate.SetFontBold(true);
    Place(Label3, "fraCalendar", 120, 3900, 4335, 285);
    Place(Label4[0], "fraCalendar", 120, 4260, 5655, 285);
    Label4[0].SetCaption("Click a Date, or step by Workdays with the arrows.");
    Place(Label4[1], "fraCalendar", 120, 4560, 5655, 285);
    Label4[1].SetCaption("Hourly shows the Day of the selected Team.");
    Place(Label4[2], "fraCalendar", 120, 4860, 5655, 285);
    Label4[2].SetCaption("Non-Workdays will not be Selected");
    Label4[2].SetTag(kInstruction);
    Place(cmdHourly, "fraCalendar", 4080, 5400, 1815, 435);
    cmdHourly.SetCaption("&Hourly");
    cmdHourly.SetTag(kButton);

    for (Frame* f : {&fraConEvents, &fraDependent, &fraTeam, &fraLocation, &fraTime, &fraSchedule})
        f->SetTag(kHide);
}

void frmMain::LayOutSummary() {
    const std::string summary = "fraSummary";
    fraSummary.SetCaption("Project Summary");
    fraSummary.Move(120, 120, 11895, 6360);
    fraSummary.SetTag(kHide);
    Place(lblSummaryProject, summary, 240, 330, 7215, 315);
    lblSummaryProject.SetFontBold(true);
    Place(lblBilling, summary, 240, 720, 3855, 855);
    Place(lblSite, summary, 4320, 720, 3855, 855);
    Place(fgSummary, summary, 240, 1680, 11415, 3615);
    fgSummary.SetCols(4);
    fgSummary.SetFormatString(
        "<Milestone                          |<Phase               "
        "|^Start Date   |<Assignto                    ");
    const char* totals[] = {"Total Days", "Pre-Construction Days", "Construction Days"};
    TextBox* boxes[] = {&txtDaysTotal, &txtPreDays, &txtConDays};
    for (int i = 0; i < 3; ++i) {
        Place(lblTotalsCaption[i], summary, 240 + i * 2880, 5520, 1935, 285);
        lblTotalsCaption[i].SetCaption(totals[i]);
        Place(*boxes[i], summary, 2160 + i * 2880, 5490, 615, 315);
        boxes[i]->SetLocked(true);
    }
    Place(cmdSave, summary, 8880, 330, 2775, 495);
    cmdSave.SetCaption("&Save and Schedule this Project");
    cmdSave.SetTag(kButton);
    Place(cmdKillProj, summary, 8880, 960, 2775, 495);
    cmdKillProj.SetCaption("&Delete this Project");
}

void frmMain::LayOutExtras() {
    fraTeamCal.SetCaption("Hours Scheduled this Month");
    fraTeamCal.Move(6000, 120, 6015, 4560);
    fraTeamCal.SetTag(kHide);
    Place(txtCurrentDate, "fraTeamCal", 120, 300, 2295, 315);
    txtCurrentDate.SetLocked(true);
    Place(cmdHide, "fraTeamCal", 4440, 270, 1455, 375);
    cmdHide.SetCaption("Hi&de");
    const char* days[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    for (int d = 0; d < 7; ++d) {
        Place(lblWeekday[d], "fraTeamCal", 120 + d * 825, 720, 795, 255);
        lblWeekday[d].SetCaption(days[d]);
        lblWeekday[d].SetAlignment(2);
    }
    for (int i = 0; i < Text1.Count(); ++i) {
        Place(Text1[i], "fraTeamCal", 120 + (i % 7) * 825, 1020 + (i / 7) * 555, 795, 495);
        Text1[i].SetLocked(true);
        Text1[i].SetAlignment(2);
    }

    fraDay.Move(120, 120, 11895, 6360);
    fraDay.SetTag(kHide);
    for (int i = 0; i < 12; ++i) {
        const int column = i / 6;
        const int top = 300 + (i % 6) * 960;
        Place(Label2[i], "fraDay", 120 + column * 5880, top, 855, 285);
        Label2[i].SetCaption(HourLabelShown(i + 1));
        Place(txtHourSlot[i], "fraDay", 1020 + column * 5880, top, 4815, 915);
        txtHourSlot[i].SetMultiLine(true);
        txtHourSlot[i].SetLocked(true);
    }
    Place(cmdHideSchedule, "fraDay", 10320, 5880, 1455, 375);
    cmdHideSchedule.SetCaption("Hi&de");

    fra8or12HourSchedule.SetCaption("Print Schedule Option");
    fra8or12HourSchedule.Move(120, 120, 5760, 1200);
    fra8or12HourSchedule.SetTag(kHide);
    Place(optWorkSchedule[0], "fra8or12HourSchedule", 240, 300, 5295, 315);
    optWorkSchedule[0].SetCaption("Extended Schedule (12 Hours)");
    Place(optWorkSchedule[1], "fra8or12HourSchedule", 240, 660, 5295, 315);
    optWorkSchedule[1].SetCaption("Work Day Schedule (8 Hours)");
    optWorkSchedule[1].SetValue(true);

    fraPrint.SetCaption("Print the Work Schedule");
    fraPrint.Move(3000, 2400, 2880, 1560);
    fraPrint.SetTag(kHide);
    Place(lblPrintHelp, "fraPrint", 120, 300, 2640, 555);
    lblPrintHelp.SetCaption("Prints the Day of the selected Team, or of All Teams.");
    Place(cmdInvoiceContinue, "fraPrint", 120, 1020, 1215, 375);
    cmdInvoiceContinue.SetCaption("&Print");
    Place(cmdClosePrint, "fraPrint", 1440, 1020, 1215, 375);
    cmdClosePrint.SetCaption("Cancel");

    fraHelp.SetCaption("Help");
    fraHelp.Move(120, 120, 5760, 5160);
    fraHelp.SetTag(kHide);
    Place(lblHelpText, "fraHelp", 240, 300, 5295, 4695);
    lblHelpText.SetCaption(
        "A Project is scheduled Milestone by Milestone.\r\n\r\n"
        "Technical Milestones take a Team's time, in Hours or in Days. For Hours, Continue "
        "shows the Team's Day: click the starting Hour, then Continue. For Days, the Days "
        "are written from the Date on the Calendar.\r\n\r\n"
        "Administrative Milestones need only a Date.\r\n\r\n"
        "A Milestone that depends on another is proposed a Date from its Lead Days.\r\n\r\n"
        "Until the Project is saved from its Summary, leaving it puts every Team's schedule "
        "back as it was.");
}

void frmMain::RegisterHandlers() {
    On("Form.Load", [this](EventArgs&) { Form_Load(); });
    On("Form.Activate", [this](EventArgs&) { Form_Activate(); });
    On("Form.Deactivate", [this](EventArgs&) { Form_Deactivate(); });
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
    On("cmdSetJobSite.Click", [this](EventArgs&) { cmdSetJobSite_Click(); });
    On("imgDialer.Click", [this](EventArgs&) { imgDialer_Click(); });
    On("cmdContinue.Click", [this](EventArgs&) { cmdContinue_Click(); });
    On("cmdRedoEvent.Click", [this](EventArgs&) { cmdRedoEvent_Click(); });
    On("cmdExit.Click", [this](EventArgs&) { cmdExit_Click(); });
    On("cmdStartOver.Click", [this](EventArgs&) { cmdStartOver_Click(); });
    On("cmdKillProj.Click", [this](EventArgs&) { cmdKillProj_Click(); });
    On("cmdDelete.Click", [this](EventArgs&) { cmdDelete_Click(); });
    On("cmdSave.Click", [this](EventArgs&) { cmdSave_Click(); });
    On("optSelect.Click", [this](EventArgs& e) { optSelect_Click(e.index); });
    On("tgTime.Click", [this](EventArgs&) { tgTime_Click(); });
    On("UpDnTime.Change", [this](EventArgs&) { UpDnTime_Change(); });
    On("txtTime.KeyPress", [this](EventArgs& e) { txtTime_KeyPress(e); });
    On("txtTime.Change", [this](EventArgs&) { txtTime_Change(); });
    On("lstTeam.Click", [this](EventArgs&) { lstTeam_Click(); });
    On("UpDnTeam.UpClick", [this](EventArgs&) { UpDnTeam_UpClick(); });
    On("UpDnTeam.DownClick", [this](EventArgs&) { UpDnTeam_DownClick(); });
    On("MonthView1.SelChange", [this](EventArgs&) { MonthView1_SelChange(); });
    On("MonthView1.DateClick", [this](EventArgs&) { MonthView1_DateClick(); });
    On("UpDown1.UpClick", [this](EventArgs&) { UpDown1_UpClick(); });
    On("UpDown1.DownClick", [this](EventArgs&) { UpDown1_DownClick(); });
    On("cmdHourly.Click", [this](EventArgs&) { cmdHourly_Click(); });
    On("cmdShowCal.Click", [this](EventArgs&) { cmdShowCal_Click(); });
    On("fgHours.Click", [this](EventArgs&) { fgHours_Click(); });
    On("cmdClear.Click", [this](EventArgs&) { cmdClear_Click(); });
    On("cmdView.Click", [this](EventArgs&) { cmdView_Click(); });
    On("cmdHideSchedule.Click", [this](EventArgs&) { cmdHideSchedule_Click(); });
    On("Label2.Click", [this](EventArgs& e) { Label2_Click(e.index); });
    On("Text1.Click", [this](EventArgs& e) { Text1_Click(e.index); });
    On("mnuTeamCal.Click", [this](EventArgs&) { mnuTeamCal_Click(); });
    On("cmdHide.Click", [this](EventArgs&) { cmdHide_Click(); });
    On("mnuHelp.Click", [this](EventArgs&) { mnuHelp_Click(); });
    On("cmdHelp.Click", [this](EventArgs&) { cmdHelp_Click(); });
    On("lblPrintSched.Click", [this](EventArgs&) { lblPrintSched_Click(); });
    On("cmdInvoiceContinue.Click", [this](EventArgs&) { cmdInvoiceContinue_Click(); });
    On("cmdClosePrint.Click", [this](EventArgs&) { cmdClosePrint_Click(); });
    On("txtCustomerInfo.KeyPress", [this](EventArgs& e) { KeepQuotesOut(e); });
    On("cboProjectTitle.KeyPress", [this](EventArgs& e) { KeepQuotesOut(e); });
}

// ---- The screen as a whole

void frmMain::Form_Load() {
    const DateTime today = Today();
    MonthView1.SetMinDate(today);
    MonthView1.SetMaxDate(DateAdd("yyyy", 2, today));
    Label3.SetCaption("Maximum Date is " + ShortDate(MonthView1.MaxDate()));
    imgDialer.SetVisible(PhoneConnected);
    SizeMilestoneArrays(1);
}

void frmMain::Form_Activate() {
    // Back from a screen opened over this one: the day, the team and a creation in progress
    // (its snapshot of the team files, its project number) stay as they were.
    if (std::exchange(coveredWhileShown_, false)) return;
    EnterScreen(*this);
}

void frmMain::Form_Deactivate() {
    coveredWhileShown_ = Visible();
}

void frmMain::Form_QueryUnload(EventArgs& e) {
    if (e.unloadMode != 0) return;
    // Closed in the middle of a creation: every team's days as they were.
    if (MenuRoutine == 1 && CreationMode != 0) RestoreTeamFiles();
    MenuRoutine = 0;
    ExitProgramFromSetup();
}

// ---- Project data

void frmMain::cmdSetJobSite_Click() {
    ToggleJobSite(*this);
}

void frmMain::imgDialer_Click() {
    if (!ShowDialer(lblCustomerInfo[1].Caption(), lblCustomerInfo[7].Caption()))
        MsgBox("\"Dialer\" is not available in this version of the program.", vbInformation,
               "Routine Not Available");
}

void frmMain::cmdContinue_Click() {
    if (CreationMode == 0)
        ContinueFromProjectData(*this);
    else if (CreationMode >= 1 && CreationMode <= 3)
        PlaceMilestone(*this);
}

void frmMain::cmdRedoEvent_Click() {
    UndoSlotChoice(*this);
}

void frmMain::cmdExit_Click() {
    ExitCreation(*this);
}

void frmMain::cmdStartOver_Click() {
    StartOver(*this);
}

void frmMain::cmdKillProj_Click() {
    KillProject(*this);
}

void frmMain::cmdDelete_Click() {
    DeleteTeamFiles(false);
    DeleteTeamFiles(true);
}

void frmMain::cmdSave_Click() {
    SaveProject(*this);
}

void frmMain::KeepQuotesOut(EventArgs& e) {
    // A quote would end the value early in the project file.
    if (e.keyAscii == kKeyQuote) {
        AlarmBeep();
        e.keyAscii = 0;
    }
}

// ---- Scheduling

void frmMain::optSelect_Click(int index) {
    lblMode.SetCaption(index == 0 ? "Hours" : "Days");
}

void frmMain::tgTime_Click() {
    if (lblMode.Caption() == "Days")
        SetHoursEntry(*this);
    else
        SetDaysEntry(*this);
    mnuTeamCal.SetEnabled(lblMode.Caption() == "Days");
}

void frmMain::UpDnTime_Change() {
    txtTime.SetText(std::to_string(UpDnTime.Value()));
}

void frmMain::txtTime_KeyPress(EventArgs& e) {
    // A whole number of hours or days.
    if (e.keyAscii == 8 || (e.keyAscii >= '0' && e.keyAscii <= '9')) return;
    AlarmBeep();
    e.keyAscii = 0;
}

void frmMain::txtTime_Change() {
    const int typed = static_cast<int>(Val(txtTime.Text()));
    if (typed > UpDnTime.Max()) {
        txtTime.SetText(std::to_string(UpDnTime.Max()));
        return;
    }
    if (typed >= UpDnTime.Min()) UpDnTime.SetValue(typed);
}

void frmMain::lstTeam_Click() {
    ChooseTeam(*this);
}

void frmMain::UpDnTeam_UpClick() {
    StepTeam(*this, true);
}

void frmMain::UpDnTeam_DownClick() {
    StepTeam(*this, false);
}

void frmMain::MonthView1_SelChange() {
    if (!CalendarSetByProgram) CalendarChanged(*this);
}

void frmMain::MonthView1_DateClick() {
    ShowCalendarDate(*this, MonthView1.Value());
}

void frmMain::UpDown1_UpClick() {
    StepCalendar(*this, true);
}

void frmMain::UpDown1_DownClick() {
    StepCalendar(*this, false);
}

void frmMain::cmdHourly_Click() {
    ShowHourlyDay(*this);
}

void frmMain::cmdShowCal_Click() {
    ShowCalendarFrame(*this);
}

void frmMain::fgHours_Click() {
    ClickHourRow(*this);
}

void frmMain::cmdClear_Click() {
    ClearScheduleDay(*this);
}

// ---- Day view, month view, help and printing

void frmMain::cmdView_Click() {
    fraDay.SetVisible(!fraDay.Visible());
    if (!fraDay.Visible()) return;
    BuildWorkSchedule(*this);
    fraDay.SetCaption("Work Schedule for " + txtCurrentTeam.Text() + " " +
                      ShortDate(MonthView1.Value()));
}

void frmMain::cmdHideSchedule_Click() {
    fraDay.SetVisible(false);
}

void frmMain::Label2_Click(int index) {
    if (Label2[index].Tag().empty() || !PhoneConnected) return;
    ShowDialer(txtHourSlot[index].Tag(), Label2[index].Tag());
}

void frmMain::Text1_Click(int index) {
    PickMonthBox(*this, index);
}

void frmMain::mnuTeamCal_Click() {
    fraTeamCal.SetVisible(!fraTeamCal.Visible());
}

void frmMain::cmdHide_Click() {
    mnuTeamCal_Click();
}

void frmMain::mnuHelp_Click() {
    fraHelp.SetVisible(!fraHelp.Visible());
}

void frmMain::cmdHelp_Click() {
    mnuHelp_Click();
}

void frmMain::lblPrintSched_Click() {
    fraPrint.SetVisible(true);
    cmdView.SetVisible(false);
    fraCalendar.SetVisible(false);
}

void frmMain::cmdInvoiceContinue_Click() {
    if (PrintWorkSchedulesHook) {
        PrintWorkSchedulesHook(*this);
        return;
    }
    MsgBox("Printing the Work Schedule is not available in this version of the program.",
           vbInformation, "Routine Not Available");
    cmdClosePrint_Click();
}

void frmMain::cmdClosePrint_Click() {
    fraPrint.SetVisible(false);
    cmdView.SetVisible(true);
    ShowCalendarFrame(*this);
}
