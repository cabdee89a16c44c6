#include "workorders/frmSlip.h"

#include <string>

#include "platform/Numbers.h"
#include "platform/Pictures.h"
#include "platform/Records.h"
#include "platform/Ui.h"
#include "projects/ProjectRecord.h"
#include "projects/TeamSchedule.h"
#include "setup/SetupHooks.h"
#include "store/SharedState.h"
#include "telephony/DialerLink.h"
#include "workorders/SlipFile.h"

using namespace platform;

namespace {

const char* const kLookupFiles[3] = {projects::kSlipsFile, projects::kMeetingsFile,
                                     projects::kProjectRecordsFile};
constexpr int kProjectRecords = 3;

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

// The record belongs to the cell: its key occurs in the cell's text, and for a project the
// milestone too. The comparison is case-sensitive, and a blank key occurs in every text.
bool BelongsToCell(const Record& slip, const std::string& cellText) {
    if (!Contains(cellText, slip.Trimmed("ProjectNo"))) return false;
    return LookupFile != kProjectRecords || Contains(cellText, slip.Trimmed("Milestone"));
}

}  // namespace

frmSlip::frmSlip() : Form(kName) {
    SetCaption("Service Attention Slip");
    SetSize(9840, 5160);

    lblServiceSlip.SetFontSize(12);
    lblServiceSlip.SetFontBold(true);
    lblServiceSlip.SetAlignment(2);
    lblServiceSlip.Move(240, 180, 9240, 375);

    // The customer on the left, the visit on the right.
    Label* const customer[8] = {&lblName,  &lblStreet, &lblApt,       &lblCity,
                                &lblState, &lblZip,    &lblTelephone, &lblAccount};
    const char* const customerHeadings[8] = {"Name",  "Street", "Apt/Suite", "City",
                                             "State", "Zip",    "Telephone", "Account"};
    Label* const visit[5] = {&lblDate, &lblTime, &lblDuration, &lblProblem, &lblAssignto};
    const char* const visitHeadings[5] = {"Date", "Time", "Duration", "Problem", "Assigned to"};
    for (int i = 0; i < 8; ++i) {
        const int top = 780 + i * 420;
        lblHeading[i].SetCaption(customerHeadings[i]);
        lblHeading[i].Move(240, top + 30, 1095, 285);
        customer[i]->SetBorderStyle(true);
        customer[i]->Move(1440, top, 3375, 315);
    }
    for (int i = 0; i < 5; ++i) {
        const int top = 780 + i * 420;
        lblHeading[8 + i].SetCaption(visitHeadings[i]);
        lblHeading[8 + i].Move(5040, top + 30, 1095, 285);
        visit[i]->SetBorderStyle(true);
        visit[i]->Move(6240, top, 3240, 315);
    }

    fraDial.SetCaption(" Call Customer");
    fraDial.Move(5040, 2940, 2160, 1095);
    imgDialer.SetContainer("fraDial");
    imgDialer.SetPicture(pictures::kDial);
    imgDialer.SetToolTipText("Click to Dial");
    imgDialer.Move(840, 360, 480, 480);

    cmdAttn.SetCaption("&Close");
    cmdAttn.SetCancel(true);
    cmdAttn.Move(7920, 3540, 1560, 495);

    On("Form.Activate", [this](EventArgs&) { Form_Activate(); });
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
    On("cmdAttn.Click", [this](EventArgs&) { cmdAttn_Click(); });
    On("imgDialer.Click", [this](EventArgs&) { imgDialer_Click(); });
}

void frmSlip::Form_Activate() {
    // The dial picture is offered only with a modem to dial through.
    imgDialer.SetVisible(PhoneConnected);
    lblServiceSlip.SetCaption(SelectedSlotText);
    ReadCallSlip();
}

// Closed by its title bar, the slip ends the program as every screen does.
void frmSlip::Form_QueryUnload(EventArgs& e) {
    if (e.unloadMode == 0) ExitProgramFromSetup();
}

void frmSlip::cmdAttn_Click() {
    Hide();
}

void frmSlip::imgDialer_Click() {
    ShowDialer(lblName.Caption(), lblTelephone.Caption());
}

void frmSlip::ReadCallSlip() {
    ClearSlip();
    if (LookupFile < 1 || LookupFile > 3) return;
    for (const Record& slip : workorders::ReadSlipRecords(kLookupFiles[LookupFile - 1])) {
        if (BelongsToCell(slip, SelectedSlotText)) {
            LoadRecData(slip);
            break;
        }
    }
    if (lblName.Caption().empty()) {
        MsgBox("No Data Available");
        cmdAttn_Click();
    }
}

void frmSlip::LoadRecData(const Record& slip) {
    lblName.SetCaption(slip.Trimmed("SiteName"));
    lblStreet.SetCaption(slip.Trimmed("SiteAddress1"));
    lblCity.SetCaption(slip.Trimmed("SiteCity"));
    lblApt.SetCaption(slip.Trimmed("SiteAddress2"));
    lblState.SetCaption(slip.Trimmed("SiteState"));
    lblZip.SetCaption(slip.Trimmed("SiteZip"));
    lblTelephone.SetCaption(slip.Trimmed("SiteTelephone"));
    lblAccount.SetCaption(slip.Trimmed("Account"));
    lblDuration.SetCaption(slip.Text("Time") + " " + slip.Text("Mode"));
    // A start slot that is no number leaves the time of the cleared slip.
    if (IsNumeric(slip.Text("StartSlot"))) lblTime.SetCaption(workorders::SlipHourLabel(slip));
    lblDate.SetCaption(slip.Text("Date"));
    lblProblem.SetCaption(slip.Trimmed("Milestone"));
    lblAssignto.SetCaption("\\Team#");
}

void frmSlip::ClearSlip() {
    for (Label* label : {&lblName, &lblStreet, &lblApt, &lblCity, &lblState, &lblZip, &lblTelephone,
                         &lblAccount, &lblDuration, &lblTime, &lblDate, &lblProblem, &lblAssignto})
        label->SetCaption("");
}
