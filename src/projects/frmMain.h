#pragma once

#include <cstdint>
#include <string>

#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"

// The project screen. In routine 1 of the main menu it is the wizard that turns a customer
// or a proposal into a scheduled project: project data, milestone by milestone scheduling,
// and a summary to save or delete. In routine 3 it is the team schedule: one team's day by
// the hour and a month of its load. The customer screens put the billing block, the account
// and the proposal mark on this screen by name before they show it.
class frmMain : public platform::Form {
  public:
    static constexpr const char* kName = "frmMain";
    frmMain();

    // ---- Stage 1: project data
    platform::Frame fraProjectInfo{*this, "fraProjectInfo"};
    platform::Label lblProjectNoCaption{*this, "lblProjectNoCaption"};
    platform::Label lblProjectNo{*this, "lblProjectNo"};
    platform::Label lblTitleCaption{*this, "lblTitleCaption"};
    platform::ComboBox cboProjectTitle{*this, "cboProjectTitle"};
    platform::Label lblAccountCaption{*this, "lblAccountCaption"};
    platform::Label lblAccount{*this, "lblAccount"};
    platform::ControlArray<platform::Label, 2> lblPropNo{*this, "lblPropNo"};
    platform::Label lblBillingCaption{*this, "lblBillingCaption"};
    platform::Label lblSiteCaption{*this, "lblSiteCaption"};
    platform::ControlArray<platform::Label, 8> lblInfoCaption{*this, "lblInfoCaption"};
    platform::ControlArray<platform::Label, 8> lblCustomerInfo{*this, "lblCustomerInfo"};
    platform::ControlArray<platform::TextBox, 8> txtCustomerInfo{*this, "txtCustomerInfo"};
    platform::CommandButton cmdSetJobSite{*this, "cmdSetJobSite"};
    platform::Image imgDialer{*this, "imgDialer"};
    platform::Label lblMilestonesCaption{*this, "lblMilestonesCaption"};
    platform::ListBox lstMilestoneSelection{*this, "lstMilestoneSelection"};
    platform::Frame fraBasicInst{*this, "fraBasicInst"};
    platform::ControlArray<platform::Label, 7> lblBasicInst{*this, "lblBasicInst"};

    // ---- Stage 2: scheduling, and the team schedule of routine 3
    platform::Frame fraConEvents{*this, "fraConEvents"};
    platform::Label lblConEventsCaption{*this, "lblConEventsCaption"};
    platform::TextBox txtConEvents{*this, "txtConEvents"};
    platform::ControlArray<platform::Label, 2> lblConstructionInstructions{
        *this, "lblConstructionInstructions"};
    platform::Frame fraDependent{*this, "fraDependent"};
    platform::Label lblDependentCaption{*this, "lblDependentCaption"};
    platform::TextBox txtDependentEvent{*this, "txtDependentEvent"};
    platform::Label lblLeadCaption{*this, "lblLeadCaption"};
    platform::TextBox txtConEventsDays{*this, "txtConEventsDays"};
    platform::Frame fraTeam{*this, "fraTeam"};
    platform::ListBox lstTeam{*this, "lstTeam"};
    platform::UpDown UpDnTeam{*this, "UpDnTeam"};
    platform::TextBox txtCurrentTeam{*this, "txtCurrentTeam"};
    platform::Frame fraTime{*this, "fraTime"};
    platform::TextBox txtTime{*this, "txtTime"};
    platform::UpDown UpDnTime{*this, "UpDnTime"};
    platform::Label lblMode{*this, "lblMode"};
    platform::CommandButton tgTime{*this, "tgTime"};
    platform::ControlArray<platform::OptionButton, 2> optSelect{*this, "optSelect"};
    platform::Frame fraLocation{*this, "fraLocation"};
    platform::OptionButton optSite{*this, "optSite"};
    platform::OptionButton optOffice{*this, "optOffice"};
    // The day of a team by the hour, and the calendar on top of it in the same place.
    platform::Frame fraSchedule{*this, "fraSchedule"};
    platform::Frame fraHours{*this, "fraHours"};
    platform::Grid fgHours{*this, "fgHours"};
    platform::Label lblDateTime{*this, "lblDateTime"};
    platform::CommandButton cmdShowCal{*this, "cmdShowCal"};
    platform::Frame fraCalendar{*this, "fraCalendar"};
    platform::MonthView MonthView1{*this, "MonthView1"};
    platform::UpDown UpDown1{*this, "UpDown1"};
    platform::Label lblDate{*this, "lblDate"};
    platform::Label lblDay{*this, "lblDay"};
    platform::Label Label3{*this, "Label3"};
    platform::ControlArray<platform::Label, 3> Label4{*this, "Label4"};
    platform::CommandButton cmdHourly{*this, "cmdHourly"};

    // ---- Stage 3: summary
    platform::Frame fraSummary{*this, "fraSummary"};
    platform::Label lblSummaryProject{*this, "lblSummaryProject"};
    platform::Label lblBilling{*this, "lblBilling"};
    platform::Label lblSite{*this, "lblSite"};
    platform::Grid fgSummary{*this, "fgSummary"};
    platform::ControlArray<platform::Label, 3> lblTotalsCaption{*this, "lblTotalsCaption"};
    platform::TextBox txtDaysTotal{*this, "txtDaysTotal"};
    platform::TextBox txtPreDays{*this, "txtPreDays"};
    platform::TextBox txtConDays{*this, "txtConDays"};
    platform::CommandButton cmdSave{*this, "cmdSave"};
    platform::CommandButton cmdKillProj{*this, "cmdKillProj"};

    // ---- Shown on request
    platform::Frame fraTeamCal{*this, "fraTeamCal"};
    platform::TextBox txtCurrentDate{*this, "txtCurrentDate"};
    platform::ControlArray<platform::Label, 7> lblWeekday{*this, "lblWeekday"};
    platform::ControlArray<platform::TextBox, 42> Text1{*this, "Text1"};
    platform::CommandButton cmdHide{*this, "cmdHide"};
    platform::Frame fraDay{*this, "fraDay"};
    platform::ControlArray<platform::Label, 12> Label2{*this, "Label2"};
    platform::ControlArray<platform::TextBox, 12> txtHourSlot{*this, "txtHourSlot"};
    platform::CommandButton cmdHideSchedule{*this, "cmdHideSchedule"};
    platform::Frame fra8or12HourSchedule{*this, "fra8or12HourSchedule"};
    platform::ControlArray<platform::OptionButton, 2> optWorkSchedule{*this, "optWorkSchedule"};
    platform::Frame fraPrint{*this, "fraPrint"};
    platform::Label lblPrintHelp{*this, "lblPrintHelp"};
    platform::CommandButton cmdInvoiceContinue{*this, "cmdInvoiceContinue"};
    platform::CommandButton cmdClosePrint{*this, "cmdClosePrint"};
    platform::Frame fraHelp{*this, "fraHelp"};
    platform::Label lblHelpText{*this, "lblHelpText"};

    // ---- Buttons below the stages
    platform::CommandButton cmdContinue{*this, "cmdContinue"};
    platform::CommandButton cmdRedoEvent{*this, "cmdRedoEvent"};
    platform::CommandButton cmdClear{*this, "cmdClear"};
    platform::CommandButton cmdView{*this, "cmdView"};
    platform::Label lblPrintSched{*this, "lblPrintSched"};
    platform::CommandButton cmdStartOver{*this, "cmdStartOver"};
    platform::CommandButton cmdDelete{*this, "cmdDelete"};
    platform::CommandButton cmdHelp{*this, "cmdHelp"};
    platform::CommandButton cmdExit{*this, "cmdExit"};

    platform::Menu mnuWindows{*this, "mnuWindows"};
    platform::Menu mnuTeamCal{*this, "mnuTeamCal"};
    platform::Menu mnuHelp{*this, "mnuHelp"};

    // ---- State of the screen
    std::int16_t CreationMode = 0;  // 0 project data; 1, 2, 3 scheduling; 5 summary
    std::int32_t CurrentMilestone = 1;
    std::string SlotSelection = "No Slot Selected";
    // While the program itself sets the calendar's date, its change event stays quiet.
    bool CalendarSetByProgram = false;

    // ---- Handlers
    void Form_Load();
    void Form_Activate();
    void Form_Deactivate();
    void Form_QueryUnload(platform::EventArgs& e);

    void cmdSetJobSite_Click();
    void imgDialer_Click();
    void cmdContinue_Click();
    void cmdRedoEvent_Click();
    void cmdExit_Click();
    void cmdStartOver_Click();
    void cmdKillProj_Click();
    void cmdDelete_Click();
    void cmdSave_Click();

    void optSelect_Click(int index);
    void tgTime_Click();
    void UpDnTime_Change();
    void txtTime_KeyPress(platform::EventArgs& e);
    void txtTime_Change();
    void lstTeam_Click();
    void UpDnTeam_UpClick();
    void UpDnTeam_DownClick();
    void MonthView1_SelChange();
    void MonthView1_DateClick();
    void UpDown1_UpClick();
    void UpDown1_DownClick();
    void cmdHourly_Click();
    void cmdShowCal_Click();
    void fgHours_Click();
    void cmdClear_Click();
    void cmdView_Click();
    void cmdHideSchedule_Click();
    void Label2_Click(int index);
    void Text1_Click(int index);
    void mnuTeamCal_Click();
    void cmdHide_Click();
    void mnuHelp_Click();
    void cmdHelp_Click();
    void lblPrintSched_Click();
    void cmdInvoiceContinue_Click();
    void cmdClosePrint_Click();
    void KeepQuotesOut(platform::EventArgs& e);

  private:
    void LayOut();
    void LayOutProjectData();
    void LayOutScheduling();
    void LayOutSummary();
    void LayOutExtras();
    void RegisterHandlers();

    // A screen came up over this one while it was on display (a slip, the dialler): when it
    // closes, the user goes on where they were rather than entering the screen anew.
    bool coveredWhileShown_ = false;
};
