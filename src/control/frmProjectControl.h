#pragma once

#include <cstdint>
#include <string>

#include "platform/ControlArray.h"
#include "platform/DateTime.h"
#include "platform/Form.h"

// "Construction Project Control": the projects that exist, their milestones, and what is done
// to them after creation: moving, completing, deleting, invoicing and printing.
class frmProjectControl : public platform::Form {
  public:
    static constexpr const char* kName = "frmProjectControl";
    frmProjectControl();

    // Panel 2: the project list.
    platform::Frame fraProjects{*this, "fraProjects"};
    platform::Grid fgProjects{*this, "fgProjects"};
    platform::Label lblProjectsHint{*this, "lblProjectsHint"};

    // Panel 3: milestones past their date.
    platform::Frame fraCompleteMS{*this, "fraCompleteMS"};
    platform::Grid fgCompleted{*this, "fgCompleted"};
    platform::CommandButton cmdCompleteAll{*this, "cmdCompleteAll"};
    platform::CommandButton cmdPrintPastCompletion{*this, "cmdPrintPastCompletion"};
    platform::CommandButton cmdGotoProjects{*this, "cmdGotoProjects"};

    // Panel 4: the summary of one project, with its milestones.
    platform::Frame fraProjectSummary{*this, "fraProjectSummary"};
    platform::ControlArray<platform::Label, 5> lblPJSCaption{*this, "lblPJSCaption"};
    platform::Label lblPJSProNo{*this, "lblPJSProNo"};
    platform::Label lblPJSProTitle{*this, "lblPJSProTitle"};
    platform::Label lblAcctNo{*this, "lblAcctNo"};
    platform::Label lblProDays{*this, "lblProDays"};
    platform::Label lblCustomer{*this, "lblCustomer"};
    platform::Frame fraProposal{*this, "fraProposal"};
    platform::Label lblProposal{*this, "lblProposal"};
    platform::Grid fgMilestones{*this, "fgMilestones"};
    platform::CommandButton cmdPJSHide{*this, "cmdPJSHide"};
    platform::CommandButton cmdPrint{*this, "cmdPrint"};

    // Over the summary: the details of one milestone.
    platform::Frame fraMSDetails{*this, "fraMSDetails"};
    platform::ControlArray<platform::Label, 8> lblMSDetails{*this, "lblMSDetails"};
    platform::ControlArray<platform::Label, 8> lblMSInfo{*this, "lblMSInfo"};
    platform::CommandButton cmdMSDetailsHide{*this, "cmdMSDetailsHide"};

    // Panel 1: the calendar of rescheduling and completing.
    platform::Frame fraMSCal{*this, "fraMSCal"};
    platform::MonthView MSCal{*this, "MSCal"};
    platform::ControlArray<platform::Label, 2> lblAction{*this, "lblAction"};
    platform::Label lblMilestone{*this, "lblMilestone"};
    platform::Label lblSelectDate{*this, "lblSelectDate"};
    platform::Frame fraReschedule{*this, "fraReschedule"};
    platform::Frame fraComplete{*this, "fraComplete"};
    platform::ControlArray<platform::Label, 3> Label1{*this, "Label1"};
    platform::Frame fraTime{*this, "fraTime"};
    platform::Grid fgPJHours{*this, "fgPJHours"};
    platform::ControlArray<platform::CommandButton, 2> cmdReschedule{*this, "cmdReschedule"};
    platform::ControlArray<platform::CommandButton, 1> cmdCalButtons{*this, "cmdCalButtons"};

    platform::CommandButton cmdMenu{*this, "cmdMenu"};
    platform::Image imgDialer{*this, "imgDialer"};

    platform::Menu mnuRoutines{*this, "mnuRoutines"};
    platform::Menu mnuPastDue{*this, "mnuPastDue"};
    platform::Menu mnuClearAll{*this, "mnuClearAll"};
    platform::Menu mnuPrintAll{*this, "mnuPrintAll"};
    platform::Menu mnuSaveList{*this, "mnuSaveList"};
    platform::Menu mnuProjectS{*this, "mnuProjectS"};
    platform::Menu mnuProjectSummary{*this, "mnuProjectSummary"};
    platform::Menu mnuCompleteProject{*this, "mnuCompleteProject"};
    platform::Menu mnuPrint{*this, "mnuPrint"};
    platform::Menu mnuDeleteProject{*this, "mnuDeleteProject"};
    platform::Menu mnuMilestones{*this, "mnuMilestones"};
    platform::Menu mnuDetails{*this, "mnuDetails"};
    platform::Menu mnuRescheduleMilestone{*this, "mnuRescheduleMilestone"};
    platform::Menu mnuComplete{*this, "mnuComplete"};
    platform::Menu mnuHelp{*this, "mnuHelp"};

    // Screen state.
    std::int32_t SelProject = 1;    // row of fgProjects worked on
    std::int32_t SelMilestone = 1;  // row of fgMilestones: the milestone's number
    std::int16_t CalendarMode = 0;  // 1 complete, 2 reschedule
    bool CascadeWanted = false;
    platform::DateTime FirstMilestoneDate;
    platform::DateTime LastMilestoneDate;

    void Form_Load();
    void Form_Activate();
    void Form_QueryUnload(platform::EventArgs& e);
    void fgProjects_MouseUp(int button);
    void fgProjects_DblClick();
    void fgMilestones_MouseUp(int button);
    void fgMilestones_DblClick();
    void fgPJHours_Click();
    void MSCal_DateClick();
    void mnuProjectSummary_Click();
    void mnuPastDue_Click();
    void mnuMilestones_Click();
    void mnuDetails_Click();
    void mnuRescheduleMilestone_Click();
    void mnuComplete_Click();
    void mnuCompleteProject_Click();
    void mnuDeleteProject_Click();
    void mnuClearAll_Click();
    void mnuPrint_Click();
    void mnuPrintAll_Click();
    void mnuSaveList_Click();
    void mnuHelp_Click();
    void cmdPJSHide_Click();
    void cmdMSDetailsHide_Click();
    void cmdCompleteAll_Click();
    void cmdPrintPastCompletion_Click();
    void cmdReschedule_Click(int index);
    void cmdCalButtons_Click(int index);
    void cmdMenu_Click();
    void imgDialer_Click();
    void lblCustomer_MouseUp(int button);

    // Panels 1 to 4: the calendar, the list, the past-due milestones, the summary.
    void ShowPanel(int panel);
    void HidePanels();
    // "Reschedule" or "Complete".
    void ShowCalendar(const std::string& mode);

  private:
    bool ProjectRowChosen() const;
    void LayOut();
    void RegisterHandlers();
};

// Team n as the team list of the scheduling screen shows it (its entry n - 1).
std::string TeamListEntry(int team);
