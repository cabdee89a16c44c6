#include "customers/CustomerHandOff.h"

#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/Ui.h"
#include "setup/ScreenLinks.h"

using namespace platform;

AccountHandOff HandedOffAccount;

namespace {

// The text a control shows: a box's text, a label's caption.
void SetShownText(Control* control, const std::string& text) {
    if (!control) return;
    switch (control->Type()) {
        case ControlType::TextBox:
            static_cast<TextBox*>(control)->SetText(text);
            break;
        case ControlType::ComboBox:
            static_cast<ComboBox*>(control)->SetText(text);
            break;
        default:
            control->SetCaption(text);
            break;
    }
}

// frmMain's control, the screen loaded as the platform loads it when a control is touched.
Control* ProjectControl(const std::string& name) {
    if (!Forms::Known(kProjectScreen)) return nullptr;
    Forms::Get(kProjectScreen).Load();
    return ControlOnScreen(kProjectScreen, name);
}

void SetProposalMark(bool shown, const std::string& proposalNo) {
    for (int i = 0; i < 2; ++i)
        if (Control* mark = ProjectControl("lblPropNo(" + std::to_string(i) + ")"))
            mark->SetVisible(shown);
    if (shown) SetShownText(ProjectControl("lblPropNo(1)"), proposalNo);
}

}  // namespace

void HandOnAccount(const AccountHandOff& handOff, bool setProposalMark) {
    const std::string keptZip[] = {HandedOffAccount.siteInfo[6], HandedOffAccount.billingInfo[6]};
    HandedOffAccount = handOff;
    if (handOff.zipKept) {
        HandedOffAccount.siteInfo[6] = keptZip[0];
        HandedOffAccount.billingInfo[6] = keptZip[1];
    }
    for (int i = 1; i <= 7; ++i) {
        if (i == 6 && handOff.zipKept) continue;
        const std::string index = "(" + std::to_string(i) + ")";
        SetShownText(ProjectControl("txtCustomerInfo" + index),
                     handOff.siteInfo[static_cast<size_t>(i)]);
        SetShownText(ProjectControl("lblCustomerInfo" + index),
                     handOff.billingInfo[static_cast<size_t>(i)]);
    }
    SetShownText(ProjectControl("lblAccount"), handOff.account);
    if (setProposalMark) SetProposalMark(handOff.fromProposal, handOff.proposalNo);
}

void HideProposalMark() {
    HandedOffAccount.fromProposal = false;
    HandedOffAccount.proposalNo.clear();
    SetProposalMark(false, "");
}

bool ShowRoutineScreen(const std::string& screen, const std::string& routine) {
    if (!Forms::Known(screen)) {
        MsgBox("\"" + routine + "\" is not available in this version of the program.",
               vbInformation, "Routine Not Available");
        return false;
    }
    Forms::Get(screen).Show();
    return true;
}
