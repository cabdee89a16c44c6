#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"

// The first screen of project creation: the customer comes from the account book or from a
// proposal of the proposal program, and its block goes on to frmMain. Proposals are read,
// never written.
class frmCustomerSelection : public platform::Form {
  public:
    static constexpr const char* kName = "frmCustomerSelection";
    frmCustomerSelection();

    // What one proposal file holds, as far as this screen reads it.
    struct Proposal {
        // ProposalNo, ProposalAmount, ProposalDate, ProposalAccount, ProposalName, the two
        // address lines, city, state, zip and telephone, as read.
        std::array<std::string, 11> values;
        std::string body;        // ProposalBody\<file>, every line with CR LF
        std::string financials;  // the first line of Proposalfinancials\<file>
    };

    // ---- Choosing the source
    platform::ControlArray<platform::Frame, 2> fraInstructions{*this, "fraInstructions"};
    platform::ControlArray<platform::Label, 2> lblInstructions{*this, "lblInstructions"};
    platform::ControlArray<platform::CommandButton, 2> cmdStartup{*this, "cmdStartup"};

    // ---- The customer chosen (index 0 of the arrays is not used for data)
    platform::Frame fraProjectInfo{*this, "fraProjectInfo"};
    platform::ControlArray<platform::Label, 9> lblInfoCaption{*this, "lblInfoCaption"};
    platform::ControlArray<platform::Label, 9> lblCustomerInfo{*this, "lblCustomerInfo"};
    platform::Label lblAccount{*this, "lblAccount"};

    // ---- The proposals
    platform::Frame fraProposals{*this, "fraProposals"};
    platform::Label lblProposalHelp{*this, "lblProposalHelp"};
    platform::Grid fgProposals{*this, "fgProposals"};
    platform::CommandButton cmdCancelselectProposal{*this, "cmdCancelselectProposal"};

    // 0 back to the menu, 1 create, 2 another customer.
    platform::ControlArray<platform::CommandButton, 3> cmdCreation{*this, "cmdCreation"};

    // ---- State of the screen
    std::vector<std::string> ProposalFiles;  // from 1; entry 0 is not used
    std::vector<Proposal> Proposals;         // from 1, beside ProposalFiles
    std::int16_t SelectedProposal = 0;
    bool FromProposal = false;

    // ---- Handlers
    void Form_Load();
    void Form_Activate();
    void Form_QueryUnload(platform::EventArgs& e);
    void cmdStartup_Click(int index);
    void fgProposals_Click();
    void cmdCancelselectProposal_Click();
    void cmdCreation_Click(int index);

    // Reads every proposal into memory and fills the grid.
    void LoadProposals();
    void ClearCustomerInfo();
    // On: the instructions for choosing a source; off: the customer chosen and its buttons.
    void ShowSelectionState(bool choosing);

  private:
    void LayOut();
    void RegisterHandlers();
};
