#pragma once

#include <cstdint>
#include <string>

#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"

// The set-up screen: business data, logo, operating settings, assignments (teams) and the
// milestone templates. Loaded hidden at every start; its load puts all settings into the
// shared state before the main menu comes up. Other screens read some of its controls
// (the address style on cmdAddress, the print colours, the logo, the modem port).
class frmSetup : public platform::Form {
  public:
    static constexpr const char* kName = "frmSetup";

    // Pages of tabSetup and of the inner SSTab1.
    enum SetupTab {
        kBusinessTab = 0,
        kLogoTab = 1,
        kOperationsTab = 2,
        kAssignmentsTab = 3,
        kMilestonesTab = 4,
        kAttributesTab = 5,
        kHelpTab = 6
    };
    enum OperationsPage {
        kWorkDaysPage = 0,
        kPhonePage = 1,
        kPrintingPage = 2,
        kAssistancePage = 3
    };

    frmSetup();

    // ---- Whole screen
    platform::Tab tabSetup{*this, "tabSetup"};
    platform::CommandButton cmdQuit{*this, "cmdQuit"};
    platform::ControlArray<platform::Image, 7> Image1{*this, "Image1"};  // the arrow of each tab
    platform::ControlArray<platform::Label, 7> lblNextTab{*this, "lblNextTab"};
    platform::Menu mnuToggle{*this, "mnuToggle"};

    // ---- Business Info
    platform::Label lblBusinessHeading{*this, "lblBusinessHeading"};
    platform::ControlArray<platform::Label, 9> lblAddress{*this, "lblAddress"};
    platform::ControlArray<platform::TextBox, 9> txtBusiness{*this, "txtBusiness"};
    platform::Label lblPostal{*this, "lblPostal"};
    platform::CommandButton cmdAddress{*this, "cmdAddress"};
    platform::Image Image4{*this, "Image4"};
    platform::Label lblClearBusiness{*this, "lblClearBusiness"};
    platform::Image Image5{*this, "Image5"};
    platform::Label lblReloadBusiness{*this, "lblReloadBusiness"};

    // ---- Logo
    platform::Label lblOriginalLogo{*this, "lblOriginalLogo"};
    platform::Image Image2{*this, "Image2"};
    platform::Label lblAdjustedLogo{*this, "lblAdjustedLogo"};
    platform::Image Image3{*this, "Image3"};
    platform::UpDown UpDown2{*this, "UpDown2"};
    platform::Label lblLogoWidth{*this, "lblLogoWidth"};
    platform::UpDown UpDown3{*this, "UpDown3"};
    platform::Label lblLogoHeight{*this, "lblLogoHeight"};
    platform::Label lblSizeLimit{*this, "lblSizeLimit"};
    platform::ControlArray<platform::CommandButton, 7> cmdLogo{*this, "cmdLogo"};
    platform::Label lblLogoHelp{*this, "lblLogoHelp"};

    // ---- Operations, with its inner tabs
    platform::Tab SSTab1{*this, "SSTab1"};
    // Work Days
    platform::Frame fraStartHour{*this, "fraStartHour"};
    platform::OptionButton ck8{*this, "ck8"};
    platform::OptionButton ck7{*this, "ck7"};
    platform::Frame fraWorkDays{*this, "fraWorkDays"};
    platform::OptionButton optMF{*this, "optMF"};
    platform::OptionButton optMS{*this, "optMS"};
    platform::OptionButton optSF{*this, "optSF"};
    platform::OptionButton optSS{*this, "optSS"};
    platform::CheckBox ckDays{*this, "ckDays"};
    // Phone Connection
    platform::CheckBox ckPhone{*this, "ckPhone"};
    platform::CheckBox ckCallerID{*this, "ckCallerID"};
    platform::Label lblCallid{*this, "lblCallid"};
    platform::Label lblModemPort{*this, "lblModemPort"};
    platform::TextBox txtModemPort{*this, "txtModemPort"};
    // Printing
    platform::Label lblBorders{*this, "lblBorders"};
    platform::TextBox txtBorders{*this, "txtBorders"};
    platform::Label lblData{*this, "lblData"};
    platform::TextBox txtData{*this, "txtData"};
    platform::Label lblFontHeading{*this, "lblFontHeading"};
    platform::Label lblFont{*this, "lblFont"};
    // 1 and 2 the print colours, 3 the font (this page); 0 and 4 rename an assignment.
    platform::ControlArray<platform::CommandButton, 5> cmdChange{*this, "cmdChange"};
    platform::CheckBox ckColor{*this, "ckColor"};
    platform::Label lblCopies{*this, "lblCopies"};
    platform::ComboBox cboCopies{*this, "cboCopies"};
    // Assistance
    platform::CheckBox ckPrompts{*this, "ckPrompts"};
    platform::CheckBox ckAlarms{*this, "ckAlarms"};

    // ---- Assignments
    platform::Label lblAssignmentsHelp{*this, "lblAssignmentsHelp"};
    platform::ComboBox cboAssignments{*this, "cboAssignments"};
    platform::CommandButton cmdAddNew{*this, "cmdAddNew"};
    platform::CommandButton cmdSave{*this, "cmdSave"};
    platform::CommandButton cmdDelete{*this, "cmdDelete"};
    platform::Frame fraContacts{*this, "fraContacts"};
    platform::ListBox lstContacts{*this, "lstContacts"};
    platform::Label lblDragHelp{*this, "lblDragHelp"};

    // ---- Milestones
    platform::Label lblMilestonesHelp{*this, "lblMilestonesHelp"};
    platform::ComboBox cboMilestones{*this, "cboMilestones"};
    platform::UpDown updnMilestone{*this, "updnMilestone"};
    platform::CommandButton cmdAddMilestone{*this, "cmdAddMilestone"};
    platform::CommandButton cmdDeleteMilestone{*this, "cmdDeleteMilestone"};
    platform::CommandButton cmdClear{*this, "cmdClear"};
    platform::CommandButton cmdSaveMilestones{*this, "cmdSaveMilestones"};
    platform::CommandButton cmdBuildAttributes{*this, "cmdBuildAttributes"};
    platform::CommandButton Command1{*this, "Command1"};
    platform::Grid fgMilestones{*this, "fgMilestones"};

    // ---- Attributes
    platform::Label lblTitled{*this, "lblTitled"};
    platform::TextBox txtMilestone{*this, "txtMilestone"};
    platform::Frame fraPerformedBy{*this, "fraPerformedBy"};
    platform::OptionButton optAdmin{*this, "optAdmin"};
    platform::Label lblAdminHelp{*this, "lblAdminHelp"};
    platform::OptionButton optTech{*this, "optTech"};
    platform::Label lblTechHelp{*this, "lblTechHelp"};
    platform::Frame fraAccomplished{*this, "fraAccomplished"};
    platform::OptionButton optbCon{*this, "optbCon"};
    platform::OptionButton optdCon{*this, "optdCon"};
    platform::OptionButton optaCon{*this, "optaCon"};
    platform::Frame fraDependencies{*this, "fraDependencies"};
    platform::ListBox lstDependencies{*this, "lstDependencies"};
    platform::CommandButton cmdResetDepend{*this, "cmdResetDepend"};
    platform::Label lblSkipDependency{*this, "lblSkipDependency"};
    platform::Label lblDependency{*this, "lblDependency"};
    platform::Frame fraLeadTime{*this, "fraLeadTime"};
    platform::Label lblIntervalHelp{*this, "lblIntervalHelp"};
    platform::TextBox txtDays{*this, "txtDays"};
    platform::UpDown UpDnDays{*this, "UpDnDays"};
    platform::Label lblReset{*this, "lblReset"};
    platform::Label lblIntervalNote{*this, "lblIntervalNote"};
    platform::CommandButton cmdCharContinue{*this, "cmdCharContinue"};

    // ---- Help
    platform::ControlArray<platform::Label, 4> lblHelp{*this, "lblHelp"};

    // ---- State of the screen
    // Milestone walk.
    bool CharacteristicsExist = false;
    bool WalkStarted = false;
    bool VerifyOnContinue = false;
    std::int16_t AttributeMilestone = 0;
    std::int16_t NextMilestone = 0;
    // Assignments.
    int SelectedAssignment = -1;
    bool DroppedAssignment = false;
    int DeletedTeam = 0;

    // ---- Handlers
    void Form_Load();
    void Form_Activate();
    void Form_QueryUnload(platform::EventArgs& e);
    void tabSetup_Click(int previousTab);
    void Image1_Click();
    void cmdQuit_Click();

    void cmdAddress_Click();
    void Image4_Click();
    void Image5_Click();

    void cmdLogo_Click(int index);
    void UpDown2_UpClick();
    void UpDown2_DownClick();
    void UpDown3_UpClick();
    void UpDown3_DownClick();

    void ck8_Click();
    void ck7_Click();
    void optMF_Click();
    void optMS_Click();
    void optSF_Click();
    void optSS_Click();
    void ckDays_Click();
    void ckPrompts_Click();
    void ckAlarms_Click();
    void ckCallerID_Click();
    void ckColor_Click();
    void cboCopies_Click();
    void cmdChange_Click(int index);

    void cmdAddNew_Click();
    void cmdSave_Click();
    void cmdDelete_Click();
    void cboAssignments_Click();
    void cboAssignments_DragDrop(platform::EventArgs& e);
    void lstContacts_DblClick();

    void cmdAddMilestone_Click();
    void cmdDeleteMilestone_Click();
    void cmdClear_Click();
    void updnMilestone_UpClick();
    void updnMilestone_DownClick();
    void cmdSaveMilestones_Click();
    void cmdBuildAttributes_Click();
    void mnuToggle_Click();
    void Command1_Click();

    void cmdCharContinue_Click();
    void lstDependencies_Click();
    void cmdResetDepend_Click();
    void UpDnDays_UpClick();
    void UpDnDays_DownClick();
    void lblReset_Click();

    // The interval spinner and its text box move together.
    void ShowIntervalDays(int days);

  private:
    void LayOut();
    void RegisterHandlers();
};
