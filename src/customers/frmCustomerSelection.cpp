#include "customers/frmCustomerSelection.h"

#include <cmath>

#include "customers/CustomerHandOff.h"
#include "customers/Placing.h"
#include "customers/frmCustomer.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Records.h"
#include "platform/Ui.h"
#include "setup/SetupHooks.h"
#include "store/BasicDiskRoutines.h"

using namespace platform;

namespace {

constexpr const char* kNoFrame = "";
constexpr const char* kProposalFolder = "\\NorvaxProposals\\";
constexpr const char* kGridFormat =
    "^Proposal No|^Created on       |<Customer Information                        |^        "
    "Amount    ";
enum ProposalValue {
    kProposalNo = 0,
    kProposalAmount,
    kProposalDate,
    kProposalAccount,
    kProposalName
};
constexpr int kExtraValues = 7;  // of a proposal without "FP"; read and not used

// A proposal numbered with "FP" has no extra values and no companion files.
bool HasCompanions(const frmCustomerSelection::Proposal& proposal) {
    return proposal.values[kProposalNo].find("FP") == std::string::npos;
}

// An amount in the currency format; a text that is no number stays as it is.
std::string AsCurrency(const std::string& value) {
    if (!IsNumeric(value)) return value;
    const double amount = Val(value);
    return std::isfinite(amount) ? FormatCurrency(amount) : value;
}

// A date as written between number signs shows as a short date.
std::string AsDate(const std::string& value) {
    DateTime date;
    if (value.size() > 2 && value.front() == '#' && value.back() == '#' &&
        ParseDate(value.substr(1, value.size() - 2), date))
        return ShortDate(date);
    return value;
}

}  // namespace

frmCustomerSelection::frmCustomerSelection() : Form(kName) {
    LayOut();
    RegisterHandlers();
}

void frmCustomerSelection::LayOut() {
    SetCaption("Select the Customer for a New Project");
    SetSize(9840, 7680);

    Place(fraInstructions[0], kNoFrame, 120, 120, 9360, 3120, "Where does the Customer come from?");
    Place(lblInstructions[0], "fraInstructions(0)", 240, 360, 8880, 735,
          "Choose the Customer of the new Project from your Customer List, or from a Proposal "
          "written earlier.");
    Place(cmdStartup[0], "fraInstructions(0)", 240, 1320, 4320, 615,
          "Select Customer from Customer List");
    Place(cmdStartup[1], "fraInstructions(0)", 4800, 1320, 4320, 615,
          "Select Customer from Existing Proposal");

    Place(fraProjectInfo, kNoFrame, 120, 120, 5640, 3120, "Customer Information");
    const char* captions[] = {"Account", "Name", "Address",   "Address", "City",
                              "State",   "Zip",  "Telephone", "Cell #"};
    for (int i = 0; i < 9; ++i) {
        Place(lblInfoCaption[i], "fraProjectInfo", 120, 300 + i * 300, 1200, 255, captions[i]);
        lblInfoCaption[i].SetAlignment(1);
        Place(lblCustomerInfo[i], "fraProjectInfo", 1380, 300 + i * 300, 4140, 255);
    }
    lblCustomerInfo[0].SetVisible(false);
    Place(lblAccount, "fraProjectInfo", 1380, 300, 4140, 255);
    lblAccount.SetFontBold(true);
    Place(fraInstructions[1], kNoFrame, 5880, 120, 3600, 3120, "Next Step");
    Place(lblInstructions[1], "fraInstructions(1)", 120, 360, 3360, 1500,
          "Click Create to begin the Project for this Customer, or Select a Different Customer.");

    Place(fraProposals, kNoFrame, 120, 3360, 9360, 3120, "Proposals");
    fraProposals.SetVisible(false);
    Place(lblProposalHelp, "fraProposals", 120, 300, 6000, 255,
          "Left Click on a Proposal to Select it");
    Place(fgProposals, "fraProposals", 120, 600, 9120, 1920);
    fgProposals.SetToolTipText("Left Click on a Proposal to Select it");
    fgProposals.SetFixedCols(0);
    fgProposals.SetFormatString(kGridFormat);
    const int widths[] = {1500, 1500, 4320, 1500};
    for (int c = 0; c < 4; ++c) fgProposals.SetColWidth(c, widths[c]);
    Place(cmdCancelselectProposal, "fraProposals", 7200, 2580, 2040, 435, "Cancel");

    Place(cmdCreation[0], kNoFrame, 120, 6600, 3000, 495, "Return to Menu");
    Place(cmdCreation[1], kNoFrame, 3360, 6600, 3000, 495, "&Create");
    cmdCreation[1].SetEnabled(false);
    Place(cmdCreation[2], kNoFrame, 6600, 6600, 2880, 495, "Select a Different Customer");
}

void frmCustomerSelection::RegisterHandlers() {
    On("Form.Load", [this](EventArgs&) { Form_Load(); });
    On("Form.Activate", [this](EventArgs&) { Form_Activate(); });
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
    On("cmdStartup.Click", [this](EventArgs& e) { cmdStartup_Click(e.index); });
    On("fgProposals.Click", [this](EventArgs&) { fgProposals_Click(); });
    On("cmdCancelselectProposal.Click", [this](EventArgs&) { cmdCancelselectProposal_Click(); });
    On("cmdCreation.Click", [this](EventArgs& e) { cmdCreation_Click(e.index); });
}

void frmCustomerSelection::Form_Load() {
    ClearCustomerInfo();
    LoadProposals();
}

void frmCustomerSelection::Form_Activate() {
    ShowSelectionState(true);
}

void frmCustomerSelection::Form_QueryUnload(EventArgs& e) {
    if (e.unloadMode == 0) ExitProgramFromSetup();
}

void frmCustomerSelection::LoadProposals() {
    const std::vector<std::string> files = Dir(DataPath(std::string(kProposalFolder) + "*.txt"));
    if (files.empty()) {
        MsgBox("No Proposals Exist");
        cmdStartup[1].SetEnabled(false);
        return;
    }
    cmdStartup[1].SetEnabled(true);
    const int count = static_cast<int>(files.size());
    ProposalFiles.assign(1, "");
    ProposalFiles.insert(ProposalFiles.end(), files.begin(), files.end());
    fgProposals.SetRows(count + 1);
    for (int r = 1; r <= count; ++r)
        for (int c = 0; c <= 3; ++c) fgProposals.SetTextMatrix(r, c, "");
    fgProposals.SetRow(1);
    Proposals.assign(static_cast<size_t>(count) + 1, Proposal{});

    for (int i = 1; i <= count; ++i) {
        Proposal& p = Proposals[static_cast<size_t>(i)];
        OpenForInput(kProposalFolder + ProposalFiles[static_cast<size_t>(i)]);
        const int file = MainFileNo;
        for (std::string& value : p.values) value = InputString(file);
        if (HasCompanions(p))
            for (int extra = 0; extra < kExtraValues; ++extra) InputString(file);
        fgProposals.SetTextMatrix(i, 0, p.values[kProposalNo]);
        fgProposals.SetTextMatrix(i, 1, AsDate(p.values[kProposalDate]));
        fgProposals.SetTextMatrix(i, 2, p.values[kProposalName]);
        fgProposals.SetTextMatrix(i, 3, AsCurrency(p.values[kProposalAmount]));
        CloseAll();
    }
    // A proposal without "FP" must have its body: a missing one is the platform's failure.
    for (int i = 1; i <= count; ++i) {
        Proposal& p = Proposals[static_cast<size_t>(i)];
        if (!HasCompanions(p)) continue;
        OpenForInput(std::string(kProposalFolder) + "ProposalBody\\" +
                     ProposalFiles[static_cast<size_t>(i)]);
        const int file = MainFileNo;
        while (!Eof(file)) p.body += LineInput(file) + "\r\n";
        CloseAll();
    }
    for (int i = 1; i <= count; ++i) {
        Proposal& p = Proposals[static_cast<size_t>(i)];
        p.financials = FormatCurrency(0);
        const std::string path = std::string(kProposalFolder) + "Proposalfinancials\\" +
                                 ProposalFiles[static_cast<size_t>(i)];
        if (!HasCompanions(p) || !FindFile(path)) continue;
        OpenForInput(path);
        if (!Eof(MainFileNo)) p.financials = LineInput(MainFileNo);
        CloseAll();
    }
}

void frmCustomerSelection::ClearCustomerInfo() {
    for (int i = 1; i <= 8; ++i) lblCustomerInfo[i].SetCaption("");
    lblAccount.SetCaption("");
}

void frmCustomerSelection::ShowSelectionState(bool choosing) {
    fraInstructions[0].SetVisible(choosing);
    fraProjectInfo.SetVisible(!choosing);
    fraInstructions[1].SetVisible(!choosing);
    cmdCreation[2].SetVisible(!choosing);
}

void frmCustomerSelection::cmdStartup_Click(int index) {
    if (index == 0) {
        platform::Screen<frmCustomer>().Show();
        FromProposal = false;
        HideProposalMark();
        Unload();
    } else {
        fraProposals.SetVisible(true);
    }
}

void frmCustomerSelection::fgProposals_Click() {
    const int row = fgProposals.Row();
    if (row < 1 || row >= static_cast<int>(Proposals.size())) return;
    SelectedProposal = static_cast<std::int16_t>(row);
    cmdCreation[1].SetEnabled(true);
    const Proposal& p = Proposals[static_cast<size_t>(row)];
    lblAccount.SetCaption(p.values[kProposalAccount]);
    for (int i = 1; i <= 7; ++i) lblCustomerInfo[i].SetCaption(p.values[kProposalName + i - 1]);
    fraProposals.SetVisible(false);
    ShowSelectionState(false);
    FromProposal = true;
}

void frmCustomerSelection::cmdCancelselectProposal_Click() {
    fraProposals.SetVisible(false);
    ShowSelectionState(true);
}

void frmCustomerSelection::cmdCreation_Click(int index) {
    switch (index) {
        case 0:
            Hide();
            ShowMainMenuFromSetup();
            break;
        case 1: {
            AccountHandOff handOff;
            for (int i = 1; i <= 7; ++i)
                handOff.siteInfo[i] = handOff.billingInfo[i] = Trim(lblCustomerInfo[i].Caption());
            handOff.account = Trim(lblAccount.Caption());
            handOff.fromProposal = FromProposal;
            if (FromProposal) handOff.proposalNo = fgProposals.TextMatrix(SelectedProposal, 0);
            HandOnAccount(handOff);
            if (ShowRoutineScreen(kProjectScreen, "Create  a New Project")) Hide();
            break;
        }
        case 2:
            ShowSelectionState(true);
            break;
        default:
            break;
    }
}
