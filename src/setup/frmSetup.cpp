#include "setup/frmSetup.h"

#include "platform/Dialogs.h"
#include "platform/Pictures.h"
#include "platform/Ui.h"
#include "schedule/Teams.h"
#include "setup/AssignmentRoutines.h"
#include "setup/BusinessRoutines.h"
#include "setup/CharacteristicsRoutines.h"
#include "setup/PhoneOptionRoutines.h"
#include "setup/SettingsRoutines.h"
#include "setup/SetupHooks.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

constexpr const char* kTab = "tabSetup";
constexpr const char* kInnerTab = "SSTab1";

// Places a control: its container (a frame, or a tab control and its page) and its box in
// twips, relative to the container as the platform's forms have it.
void Place(Control& control, const std::string& container, int page, int left, int top, int width,
           int height) {
    control.SetContainer(container, page);
    control.Move(left, top, width, height);
}

void Place(Control& control, const std::string& frame, int left, int top, int width, int height) {
    Place(control, frame, -1, left, top, width, height);
}

}  // namespace

frmSetup::frmSetup() : Form(kName) {
    LayOut();
    RegisterHandlers();
}

void frmSetup::LayOut() {
    SetCaption("Set Up Your Scheduler");
    SetSize(10575, 8700);

    tabSetup.Move(120, 120, 10215, 7095);
    tabSetup.SetTabs(7);
    const char* tabCaptions[] = {"Business Info", "Logo",       "Operations", "Assignments",
                                 "Milestones",    "Attributes", "Help"};
    for (int i = 0; i < 7; ++i) tabSetup.SetTabCaption(i, tabCaptions[i]);

    cmdQuit.SetCaption("Save Changes - Return to Main &Menu");
    cmdQuit.Move(3420, 7380, 3615, 495);

    for (int i = 0; i < Image1.Count(); ++i) {
        Place(Image1[i], kTab, i, 9600, 6540, 375, 375);
        Image1[i].SetPicture(pictures::kNextPage);
        Image1[i].SetToolTipText("Next Page");
        Place(lblNextTab[i], kTab, i, 8280, 6585, 1215, 285);
        lblNextTab[i].SetCaption("Next Page");
        lblNextTab[i].SetAlignment(1);
    }

    mnuToggle.SetCaption("&Toggle Grid");

    // ---- Business Info
    Place(lblBusinessHeading, kTab, kBusinessTab, 240, 540, 6735, 285);
    lblBusinessHeading.SetCaption("Your Company Information, as it heads every Document");
    lblBusinessHeading.SetFontBold(true);
    const char* boxLabels[] = {"Company Name", "Address 1", "Address 2", "City",           "State",
                               "Zip Code",     "Telephone", "FAX",       "Additional Info"};
    const char* boxTips[] = {"Your Company Name Here",
                             "Your Company Street Address here",
                             "A Secondary Address can be entered here",
                             "The City in which your Company is Located",
                             "The State in which your Company is Located",
                             "Your Company's Zip Code Here",
                             "Your Company Telco No Here",
                             "Your Company FAX No Here",
                             "Example : ABN - 123456789"};
    for (int i = 0; i < 9; ++i) {
        const int top = 960 + i * 480;
        Place(lblAddress[i], kTab, kBusinessTab, 240, top + 30, 1815, 285);
        lblAddress[i].SetCaption(boxLabels[i]);
        lblAddress[i].SetAlignment(1);
        Place(txtBusiness[i], kTab, kBusinessTab, 2160, top, 4815, 315);
        txtBusiness[i].SetToolTipText(boxTips[i]);
    }
    // The design shows the USA style; the load decides.
    txtBusiness[3].SetWidth(2880);
    txtBusiness[4].SetWidth(495);
    txtBusiness[4].SetMaxLength(2);
    txtBusiness[5].SetWidth(1455);
    Place(lblPostal, kTab, kBusinessTab, 2760, 960 + 4 * 480 + 30, 2700, 285);
    lblPostal.SetCaption("(2 Letter Abbreviation)");
    Place(cmdAddress, kTab, kBusinessTab, 7320, 960, 2535, 495);
    cmdAddress.SetCaption(kUsaStyle);
    cmdAddress.SetToolTipText("Change the Style of Address");
    Place(Image4, kTab, kBusinessTab, 7320, 1680, 480, 480);
    Image4.SetPicture(pictures::kClear);
    Image4.SetToolTipText("Clear All business Data");
    Place(lblClearBusiness, kTab, kBusinessTab, 7920, 1770, 1935, 285);
    lblClearBusiness.SetCaption("Clear Business Data");
    Place(Image5, kTab, kBusinessTab, 7320, 2280, 480, 480);
    Image5.SetPicture(pictures::kReload);
    Image5.SetToolTipText("Reload Business Data");
    Place(lblReloadBusiness, kTab, kBusinessTab, 7920, 2370, 1935, 285);
    lblReloadBusiness.SetCaption("Reload Business Data");

    // ---- Logo
    Place(lblOriginalLogo, kTab, kLogoTab, 240, 540, 2415, 285);
    lblOriginalLogo.SetCaption("Your Logo");
    Place(Image2, kTab, kLogoTab, 240, 900, 1440, 1440);
    Image2.SetStretch(true);
    Place(lblAdjustedLogo, kTab, kLogoTab, 3000, 540, 2415, 285);
    lblAdjustedLogo.SetCaption("Logo as Printed");
    Place(Image3, kTab, kLogoTab, 3000, 900, 1440, 1440);
    Image3.SetStretch(true);
    // The printed logo may grow to 1800 twips each way, below and to the right of its corner.
    Place(UpDown3, kTab, kLogoTab, 4920, 900, 255, 495);
    Place(lblLogoHeight, kTab, kLogoTab, 5235, 1020, 1215, 255);
    lblLogoHeight.SetCaption("Height");
    Place(UpDown2, kTab, kLogoTab, 3000, 2820, 255, 495);
    Place(lblLogoWidth, kTab, kLogoTab, 3315, 2940, 1215, 255);
    lblLogoWidth.SetCaption("Width");
    for (UpDown* spinner : {&UpDown2, &UpDown3}) {
        spinner->SetMin(360);
        spinner->SetMax(1800);
        spinner->SetIncrement(50);
        spinner->SetValue(1440);
    }
    Place(lblSizeLimit, kTab, kLogoTab, 3000, 3420, 3855, 285);
    lblSizeLimit.SetCaption("Size is limited based to the space on the form.");
    const char* logoCaptions[] = {
        "Find",         "&Store", "&Clear", "Make Square (Height)", "Make Square (Width)",
        "Print Sample", "Restore"};
    for (int i = 0; i < cmdLogo.Count(); ++i) {
        Place(cmdLogo[i], kTab, kLogoTab, 7200, 540 + i * 540, 2535, 435);
        cmdLogo[i].SetCaption(logoCaptions[i]);
    }
    cmdLogo[1].SetEnabled(false);
    Place(lblLogoHelp, kTab, kLogoTab, 240, 4500, 9135, 855);
    lblLogoHelp.SetCaption(
        "Copy the picture of your Logo into the program's folder first, then Find it there. Do "
        "not use a\r\n"
        "LOGO from a Network Device or a removable device. An error will\r\n"
        "occur if the network device or removable device is unavailable.");

    // ---- Operations
    Place(SSTab1, kTab, kOperationsTab, 240, 540, 9135, 5775);
    SSTab1.SetTabs(4);
    const char* pageCaptions[] = {"Work Days", " Phone Connection", "Printing", "Assistance"};
    for (int i = 0; i < 4; ++i) SSTab1.SetTabCaption(i, pageCaptions[i]);

    // Work Days
    Place(fraStartHour, kInnerTab, kWorkDaysPage, 240, 540, 3015, 1335);
    fraStartHour.SetCaption("The Work Day Begins at");
    Place(ck8, "fraStartHour", 240, 360, 2535, 315);
    ck8.SetCaption("08:00 am");
    Place(ck7, "fraStartHour", 240, 780, 2535, 315);
    ck7.SetCaption("07:00 am");
    Place(fraWorkDays, kInnerTab, kWorkDaysPage, 3480, 540, 3615, 2175);
    fraWorkDays.SetCaption("Allow Scheduling These Days");
    Place(optMF, "fraWorkDays", 240, 360, 3135, 315);
    optMF.SetCaption("Monday thru Friday");
    Place(optMS, "fraWorkDays", 240, 780, 3135, 315);
    optMS.SetCaption("Monday thru Saturday");
    Place(optSF, "fraWorkDays", 240, 1200, 3135, 315);
    optSF.SetCaption("Sunday thru Friday");
    Place(optSS, "fraWorkDays", 240, 1620, 3135, 315);
    optSS.SetCaption("Sunday thru Saturday");
    Place(ckDays, kInnerTab, kWorkDaysPage, 240, 2940, 6855, 315);
    ckDays.SetCaption("Check if Milesstones are typically in Days");

    // Phone Connection
    Place(ckPhone, kInnerTab, kPhonePage, 240, 600, 4815, 315);
    ckPhone.SetCaption("A Phone is Connected to the Computer");
    Place(ckCallerID, kInnerTab, kPhonePage, 240, 1080, 4815, 315);
    ckCallerID.SetCaption("Using Caller ID");
    Place(lblCallid, kInnerTab, kPhonePage, 600, 1440, 6015, 285);
    lblCallid.SetCaption("Incoming calls can be recorded from the Main Menu");
    Place(lblModemPort, kInnerTab, kPhonePage, 240, 2010, 2415, 285);
    lblModemPort.SetCaption("Modem Comm Port");
    Place(txtModemPort, kInnerTab, kPhonePage, 2700, 1980, 735, 315);
    txtModemPort.SetLocked(true);

    // Printing
    Place(lblBorders, kInnerTab, kPrintingPage, 240, 630, 2535, 285);
    lblBorders.SetCaption("Border and Frame Color");
    Place(txtBorders, kInnerTab, kPrintingPage, 2880, 600, 1215, 315);
    txtBorders.SetLocked(true);
    Place(lblData, kInnerTab, kPrintingPage, 240, 1110, 2535, 285);
    lblData.SetCaption("Text Color");
    Place(txtData, kInnerTab, kPrintingPage, 2880, 1080, 1215, 315);
    txtData.SetLocked(true);
    Place(lblFontHeading, kInnerTab, kPrintingPage, 240, 1590, 2535, 285);
    lblFontHeading.SetCaption("Printer Font");
    Place(lblFont, kInnerTab, kPrintingPage, 2880, 1575, 2055, 315);
    lblFont.SetBorderStyle(true);
    lblFont.SetCaption("Arial");
    const char* changeTips[] = {"Save Modified Assignment Name", "Change the Border Color",
                                "Change the Text Color", "Change the Printer Font"};
    Place(cmdChange[1], kInnerTab, kPrintingPage, 5160, 570, 1215, 375);
    Place(cmdChange[2], kInnerTab, kPrintingPage, 5160, 1050, 1215, 375);
    Place(cmdChange[3], kInnerTab, kPrintingPage, 5160, 1545, 1215, 375);
    for (int i = 1; i <= 3; ++i) {
        cmdChange[i].SetCaption("Change");
        cmdChange[i].SetToolTipText(changeTips[i]);
    }
    Place(ckColor, kInnerTab, kPrintingPage, 240, 2100, 3015, 315);
    ckColor.SetCaption("Print in Color");
    Place(lblCopies, kInnerTab, kPrintingPage, 240, 2610, 2535, 285);
    lblCopies.SetCaption("Number of Copies");
    Place(cboCopies, kInnerTab, kPrintingPage, 2880, 2580, 735, 315);
    cboCopies.SetStyle(ComboBox::DropDownList);

    // Assistance
    Place(ckPrompts, kInnerTab, kAssistancePage, 240, 600, 4815, 315);
    ckPrompts.SetCaption("Show Prompts and Confirmations");
    Place(ckAlarms, kInnerTab, kAssistancePage, 240, 1080, 4815, 315);
    ckAlarms.SetCaption("Sound Alarm on Errors");

    // ---- Assignments
    Place(lblAssignmentsHelp, kTab, kAssignmentsTab, 240, 540, 6975, 495);
    lblAssignmentsHelp.SetCaption(
        "Create up to 40 Work Assignments, an Assignment can be\r\n"
        "an Individual, a Team, a Truck Route, a Territory, etc.");
    Place(cboAssignments, kTab, kAssignmentsTab, 240, 1140, 4215, 4695);
    cboAssignments.SetStyle(ComboBox::SimpleCombo);
    Place(cmdAddNew, kTab, kAssignmentsTab, 4620, 1140, 2895, 495);
    cmdAddNew.SetCaption("&Create a New Assignment");
    Place(cmdSave, kTab, kAssignmentsTab, 4620, 1740, 2895, 495);
    cmdSave.SetCaption("&Save this New Assignment ");
    Place(cmdChange[4], kTab, kAssignmentsTab, 4620, 2340, 2895, 495);
    cmdChange[4].SetCaption("Change the &Selected Assignment");
    cmdChange[4].SetToolTipText(changeTips[0]);
    cmdChange[4].SetEnabled(false);
    Place(cmdDelete, kTab, kAssignmentsTab, 4620, 2940, 2895, 495);
    cmdDelete.SetCaption("&Delete the selected Assignment");
    cmdDelete.SetEnabled(false);
    // The rename that takes an empty name too, for a team kept without a name.
    Place(cmdChange[0], kTab, kAssignmentsTab, 4620, 3540, 2895, 495);
    cmdChange[0].SetCaption("&Rename Selected (Blank Allowed)");
    cmdChange[0].SetToolTipText("Save the Text in the Box, even Empty, as the Selected Name");
    Place(fraContacts, kTab, kAssignmentsTab, 7680, 540, 2415, 5415);
    fraContacts.SetCaption("Sub-Contractors");
    fraContacts.SetVisible(false);
    Place(lblDragHelp, "fraContacts", 120, 300, 2175, 735);
    lblDragHelp.SetCaption("Drag and Drop to add a Sub-Contractor\r\nto your Assignments List");
    Place(lstContacts, "fraContacts", 120, 1080, 2175, 4155);
    lstContacts.SetDragEnabled(true);

    // ---- Milestones
    Place(lblMilestonesHelp, kTab, kMilestonesTab, 240, 540, 4215, 285);
    lblMilestonesHelp.SetCaption("Milestones, in the order they occur");
    Place(cboMilestones, kTab, kMilestonesTab, 240, 900, 4215, 2655);
    cboMilestones.SetStyle(ComboBox::SimpleCombo);
    Place(updnMilestone, kTab, kMilestonesTab, 4500, 900, 255, 615);
    updnMilestone.SetToolTipText("Move the Selected Milestone");
    updnMilestone.SetMin(-32768);
    updnMilestone.SetMax(32767);
    Place(cmdAddMilestone, kTab, kMilestonesTab, 4980, 900, 2295, 435);
    cmdAddMilestone.SetCaption("Add to List");
    Place(cmdDeleteMilestone, kTab, kMilestonesTab, 4980, 1410, 2295, 435);
    cmdDeleteMilestone.SetCaption("Delete from List");
    Place(cmdClear, kTab, kMilestonesTab, 4980, 1920, 2295, 435);
    cmdClear.SetCaption("Clear Milestone List");
    Place(cmdSaveMilestones, kTab, kMilestonesTab, 4980, 2430, 2295, 435);
    cmdSaveMilestones.SetCaption("Save Positions");
    Place(Command1, kTab, kMilestonesTab, 4980, 2940, 2295, 435);
    Command1.SetCaption("Toggle Grid");
    Place(cmdBuildAttributes, kTab, kMilestonesTab, 7440, 900, 2535, 975);
    cmdBuildAttributes.SetCaption("Milestone List Complete Create Attributes for each Milestone");
    Place(fgMilestones, kTab, kMilestonesTab, 240, 3720, 9255, 2655);
    fgMilestones.SetFixedCols(0);
    fgMilestones.SetRows(1);
    fgMilestones.SetFormatString(
        "Milestone                              |Performed By                |Dependency          "
        "              |^Days");
    const int gridWidths[] = {3375, 2295, 2775, 615};
    for (int c = 0; c < 4; ++c) fgMilestones.SetColWidth(c, gridWidths[c]);

    // ---- Attributes
    Place(lblTitled, kTab, kAttributesTab, 240, 570, 3015, 285);
    lblTitled.SetCaption("Set Attributes for Milestone Titled:");
    Place(txtMilestone, kTab, kAttributesTab, 3300, 540, 6135, 315);
    txtMilestone.SetLocked(true);
    Place(fraPerformedBy, kTab, kAttributesTab, 240, 1020, 4695, 2175);
    fraPerformedBy.SetCaption("which is Performed by");
    Place(optAdmin, "fraPerformedBy", 120, 300, 4455, 285);
    optAdmin.SetCaption("Administrative Personnel");
    Place(lblAdminHelp, "fraPerformedBy", 420, 600, 4155, 255);
    lblAdminHelp.SetCaption("(Administrative is an Office To-Do List)");
    Place(optTech, "fraPerformedBy", 120, 960, 4455, 285);
    optTech.SetCaption("Technical Personnel");
    Place(lblTechHelp, "fraPerformedBy", 420, 1260, 4155, 795);
    lblTechHelp.SetCaption(
        "(Technical requires skilled labor and is scheduled in Hours or Days, can occur in the "
        "Office/Shop or on-site)");
    Place(fraAccomplished, kTab, kAttributesTab, 5160, 1020, 4695, 1455);
    fraAccomplished.SetCaption("and must be Accomplished");
    Place(optbCon, "fraAccomplished", 120, 300, 4455, 285);
    optbCon.SetCaption("before Construction commences");
    Place(optdCon, "fraAccomplished", 120, 660, 4455, 285);
    optdCon.SetCaption("during Construction");
    Place(optaCon, "fraAccomplished", 120, 1020, 4455, 285);
    optaCon.SetCaption("after Construction completes ");
    Place(fraDependencies, kTab, kAttributesTab, 240, 3300, 4695, 2415);
    fraDependencies.SetCaption("and is Dependent upon Completion of");
    fraDependencies.SetVisible(false);
    Place(lstDependencies, "fraDependencies", 120, 300, 3255, 1575);
    Place(cmdResetDepend, "fraDependencies", 3480, 300, 1095, 375);
    cmdResetDepend.SetCaption("Reset");
    cmdResetDepend.SetToolTipText("Cancels the Dependency");
    Place(lblSkipDependency, "fraDependencies", 120, 1995, 4455, 255);
    lblSkipDependency.SetCaption("(Skip if none required)");
    Place(lblDependency, kTab, kAttributesTab, 240, 5790, 4695, 255);
    lblDependency.SetCaption("before Commencing");
    lblDependency.SetVisible(false);
    Place(fraLeadTime, kTab, kAttributesTab, 5160, 2580, 4695, 2415);
    fraLeadTime.SetCaption("Interval (in Days)");
    fraLeadTime.SetVisible(false);
    Place(lblIntervalHelp, "fraLeadTime", 120, 300, 4455, 735);
    lblIntervalHelp.SetCaption(
        "Enter the number of days from Completion of the Dependent Milestone, before this "
        "Milestone can Begin");
    Place(txtDays, "fraLeadTime", 120, 1140, 615, 315);
    txtDays.SetText("0");
    Place(UpDnDays, "fraLeadTime", 735, 1140, 255, 315);
    UpDnDays.SetMin(0);
    UpDnDays.SetMax(90);
    UpDnDays.SetIncrement(1);
    Place(lblReset, "fraLeadTime", 1200, 1170, 900, 255);
    lblReset.SetCaption("RESET");
    lblReset.SetToolTipText("Resets Interval Day Counter");
    Place(lblIntervalNote, "fraLeadTime", 120, 1620, 4455, 495);
    lblIntervalNote.SetCaption("The interval can be modified as a Project is Scheduled");
    Place(cmdCharContinue, kTab, kAttributesTab, 5160, 5160, 4695, 555);
    cmdCharContinue.SetCaption("&Accept Settings and Display Next Milestone");

    // ---- Help
    const char* helpTexts[] = {
        "Milestones are events within a Project you wish to Track.",
        "Do not Create Milestones for events that occur before Securing a Contract",
        "List the Milestones in the order they occur, then give each its Attributes: who "
        "performs it, when it falls, which Milestone it waits for and how many days.",
        "Save Changes - Return to Main Menu stores everything set on these pages."};
    for (int i = 0; i < lblHelp.Count(); ++i) {
        Place(lblHelp[i], kTab, kHelpTab, 240, 600 + i * 600, 9135, 495);
        lblHelp[i].SetCaption(helpTexts[i]);
    }
}

void frmSetup::RegisterHandlers() {
    On("Form.Load", [this](EventArgs&) { Form_Load(); });
    On("Form.Activate", [this](EventArgs&) { Form_Activate(); });
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
    On("tabSetup.Click", [this](EventArgs& e) { tabSetup_Click(e.previousTab); });
    On("Image1.Click", [this](EventArgs&) { Image1_Click(); });
    On("lblNextTab.Click", [this](EventArgs&) { Image1_Click(); });
    On("cmdQuit.Click", [this](EventArgs&) { cmdQuit_Click(); });

    On("cmdAddress.Click", [this](EventArgs&) { cmdAddress_Click(); });
    On("Image4.Click", [this](EventArgs&) { Image4_Click(); });
    On("lblClearBusiness.Click", [this](EventArgs&) { Image4_Click(); });
    On("Image5.Click", [this](EventArgs&) { Image5_Click(); });
    On("lblReloadBusiness.Click", [this](EventArgs&) { Image5_Click(); });

    On("cmdLogo.Click", [this](EventArgs& e) { cmdLogo_Click(e.index); });
    On("UpDown2.UpClick", [this](EventArgs&) { UpDown2_UpClick(); });
    On("UpDown2.DownClick", [this](EventArgs&) { UpDown2_DownClick(); });
    On("UpDown3.UpClick", [this](EventArgs&) { UpDown3_UpClick(); });
    On("UpDown3.DownClick", [this](EventArgs&) { UpDown3_DownClick(); });

    On("ck8.Click", [this](EventArgs&) { ck8_Click(); });
    On("ck7.Click", [this](EventArgs&) { ck7_Click(); });
    On("optMF.Click", [this](EventArgs&) { optMF_Click(); });
    On("optMS.Click", [this](EventArgs&) { optMS_Click(); });
    On("optSF.Click", [this](EventArgs&) { optSF_Click(); });
    On("optSS.Click", [this](EventArgs&) { optSS_Click(); });
    On("ckDays.Click", [this](EventArgs&) { ckDays_Click(); });
    On("ckPrompts.Click", [this](EventArgs&) { ckPrompts_Click(); });
    On("ckAlarms.Click", [this](EventArgs&) { ckAlarms_Click(); });
    On("ckCallerID.Click", [this](EventArgs&) { ckCallerID_Click(); });
    On("ckColor.Click", [this](EventArgs&) { ckColor_Click(); });
    On("cboCopies.Click", [this](EventArgs&) { cboCopies_Click(); });
    On("cmdChange.Click", [this](EventArgs& e) { cmdChange_Click(e.index); });

    On("cmdAddNew.Click", [this](EventArgs&) { cmdAddNew_Click(); });
    On("cmdSave.Click", [this](EventArgs&) { cmdSave_Click(); });
    On("cmdDelete.Click", [this](EventArgs&) { cmdDelete_Click(); });
    On("cboAssignments.Click", [this](EventArgs&) { cboAssignments_Click(); });
    On("cboAssignments.DragDrop", [this](EventArgs& e) { cboAssignments_DragDrop(e); });
    On("lstContacts.DblClick", [this](EventArgs&) { lstContacts_DblClick(); });

    On("cmdAddMilestone.Click", [this](EventArgs&) { cmdAddMilestone_Click(); });
    On("cmdDeleteMilestone.Click", [this](EventArgs&) { cmdDeleteMilestone_Click(); });
    On("cmdClear.Click", [this](EventArgs&) { cmdClear_Click(); });
    On("updnMilestone.UpClick", [this](EventArgs&) { updnMilestone_UpClick(); });
    On("updnMilestone.DownClick", [this](EventArgs&) { updnMilestone_DownClick(); });
    On("cmdSaveMilestones.Click", [this](EventArgs&) { cmdSaveMilestones_Click(); });
    On("cmdBuildAttributes.Click", [this](EventArgs&) { cmdBuildAttributes_Click(); });
    On("mnuToggle.Click", [this](EventArgs&) { mnuToggle_Click(); });
    On("Command1.Click", [this](EventArgs&) { Command1_Click(); });

    On("cmdCharContinue.Click", [this](EventArgs&) { cmdCharContinue_Click(); });
    On("lstDependencies.Click", [this](EventArgs&) { lstDependencies_Click(); });
    On("cmdResetDepend.Click", [this](EventArgs&) { cmdResetDepend_Click(); });
    On("UpDnDays.UpClick", [this](EventArgs&) { UpDnDays_UpClick(); });
    On("UpDnDays.DownClick", [this](EventArgs&) { UpDnDays_DownClick(); });
    On("lblReset.Click", [this](EventArgs&) { lblReset_Click(); });
}

// ---- The screen as a whole

void frmSetup::Form_Load() {
    // A first walk offers administrative work before construction.
    optAdmin.SetValue(true);
    optbCon.SetValue(true);

    LoadBusinessData(*this);
    LoadPrompts(*this);
    LoadConstructionSettings(*this);
    LoadCharacteristics(*this);
    LoadPrintColors(*this);
    FillCopies(*this);
    LoadLogoSettings(*this);
    if (FindFile("/CompanyLogo.txt")) LoadLogo(*this);
    StartPhoneOptions(*this);
    tabSetup.SetTab(kBusinessTab);
    // The style chosen by the business data is set the other way round; this puts it right.
    cmdAddress_Click();
}

void frmSetup::Form_Activate() {
    tabSetup.SetTab(kBusinessTab);
    txtBusiness[0].SetFocus();
    if (FindFile("/VendorData.txt")) LoadSubContractors(*this);
}

void frmSetup::Form_QueryUnload(EventArgs& e) {
    // Leaving other than by cmdQuit ends the program; what was not saved is lost.
    if (e.unloadMode == 0) ExitProgramFromSetup();
}

void frmSetup::tabSetup_Click(int previousTab) {
    (void)previousTab;
    switch (tabSetup.CurrentTab()) {
        case kAssignmentsTab:
            cmdSave.SetEnabled(true);
            cmdChange[4].SetEnabled(false);
            cmdDelete.SetEnabled(false);
            cboAssignments.SetFocus();
            break;
        case kMilestonesTab:
            mnuToggle.SetEnabled(true);
            cboMilestones.SetFocus();
            break;
        case kAttributesTab:
            EnterAttributesTab(*this);
            break;
        default:
            break;
    }
}

void frmSetup::Image1_Click() {
    int next = tabSetup.CurrentTab() + 1;
    if (next > kHelpTab) next = kBusinessTab;
    // The arrows never enter the Attributes tab.
    if (next == kAttributesTab) next = kBusinessTab;
    tabSetup.SetTab(next);
}

void frmSetup::cmdQuit_Click() {
    BuildBackupYearFolders();
    SaveSetupData(*this);
    if (CheckRequiredFiles()) {
        Hide();
        ShowMainMenuFromSetup();
    } else {
        MsgBox("You Have Not Created All Required Files", vbExclamation);
        tabSetup.SetTab(kBusinessTab);
    }
}

// ---- Business Info

void frmSetup::cmdAddress_Click() {
    FlipAddressStyle(*this);
}
void frmSetup::Image4_Click() {
    ClearBusinessData(*this);
}
void frmSetup::Image5_Click() {
    LoadBusinessData(*this);
}

// ---- Logo

void frmSetup::cmdLogo_Click(int index) {
    LogoAction(*this, index);
}
void frmSetup::UpDown2_UpClick() {
    StepLogoWidth(*this, true);
}
void frmSetup::UpDown2_DownClick() {
    StepLogoWidth(*this, false);
}
void frmSetup::UpDown3_UpClick() {
    StepLogoHeight(*this, true);
}
void frmSetup::UpDown3_DownClick() {
    StepLogoHeight(*this, false);
}

// ---- Operations

void frmSetup::ck8_Click() {
    StartHour = 8;
}
void frmSetup::ck7_Click() {
    StartHour = 7;
}
void frmSetup::optMF_Click() {
    WorkWeek = 5;
}
void frmSetup::optMS_Click() {
    WorkWeek = 61;
}
void frmSetup::optSF_Click() {
    WorkWeek = 62;
}
void frmSetup::optSS_Click() {
    WorkWeek = 7;
}
void frmSetup::ckDays_Click() {
    DaysDefault = ckDays.Value() == 1;
}
void frmSetup::ckPrompts_Click() {
    ShowPrompts = ckPrompts.Value() == 1;
}
void frmSetup::ckAlarms_Click() {
    SoundAlarms = ckAlarms.Value() == 1;
}
void frmSetup::ckCallerID_Click() {
    lblCallid.SetVisible(ckCallerID.Value() == 1);
}
void frmSetup::ckColor_Click() {
    PrintInColor = ckColor.Value() == 1;
}

void frmSetup::cboCopies_Click() {
    if (cboCopies.ListIndex() < 0) return;
    PrintCopies = static_cast<std::uint8_t>(cboCopies.ListIndex() + 1);
    SharedDialog().Copies = PrintCopies;
}

void frmSetup::cmdChange_Click(int index) {
    if (index == 0 || index == 4)
        RenameAssignment(*this, index == 4);
    else
        ChangePrintSetting(*this, index);
}

// ---- Assignments

void frmSetup::cmdAddNew_Click() {
    cboAssignments.SetListIndex(-1);
    cboAssignments.SetText("");
    cboAssignments.SetFocus();
}

void frmSetup::cmdSave_Click() {
    SaveNewAssignment(*this);
}
void frmSetup::cmdDelete_Click() {
    DeleteAssignment(*this);
}

void frmSetup::cboAssignments_Click() {
    cmdChange[4].SetEnabled(true);
    cmdDelete.SetEnabled(true);
    SelectedAssignment = cboAssignments.ListIndex();
}

void frmSetup::cboAssignments_DragDrop(EventArgs& e) {
    // Only a sub-contractor dragged from the list beside it can be dropped here.
    if (e.source != &lstContacts) return;
    DropSubContractor(*this, lstContacts.Text());
}

// Where dragging is not at hand, a double click adds the sub-contractor the same way.
void frmSetup::lstContacts_DblClick() {
    DropSubContractor(*this, lstContacts.Text());
}

// ---- Milestones

void frmSetup::cmdAddMilestone_Click() {
    AddMilestone(*this);
}
void frmSetup::cmdDeleteMilestone_Click() {
    DeleteMilestone(*this);
}
void frmSetup::cmdClear_Click() {
    ClearMilestones(*this);
}
void frmSetup::updnMilestone_UpClick() {
    MoveMilestone(*this, false);
}
void frmSetup::updnMilestone_DownClick() {
    MoveMilestone(*this, true);
}
void frmSetup::cmdSaveMilestones_Click() {
    SaveMilestonePositions(*this);
}

void frmSetup::cmdBuildAttributes_Click() {
    if (cboMilestones.ListCount() == 0) return;
    tabSetup.SetTabEnabled(kAttributesTab, true);
    tabSetup.SetTab(kAttributesTab);
}

void frmSetup::mnuToggle_Click() {
    if (tabSetup.CurrentTab() == kMilestonesTab) fgMilestones.SetVisible(!fgMilestones.Visible());
}

void frmSetup::Command1_Click() {
    mnuToggle_Click();
}

// ---- Attributes

void frmSetup::cmdCharContinue_Click() {
    ContinueAttributeWalk(*this);
}
void frmSetup::lstDependencies_Click() {
    ChooseDependency(*this);
}
void frmSetup::cmdResetDepend_Click() {
    ResetDependency(*this);
}
void frmSetup::UpDnDays_UpClick() {
    StoreLeadDays(*this);
}
void frmSetup::UpDnDays_DownClick() {
    StoreLeadDays(*this);
}
void frmSetup::lblReset_Click() {
    ShowIntervalDays(0);
}

void frmSetup::ShowIntervalDays(int days) {
    UpDnDays.SetValue(days);
    txtDays.SetText(std::to_string(days));
}
