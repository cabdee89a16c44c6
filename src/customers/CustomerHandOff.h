#pragma once

#include <array>
#include <string>

// What the customer screens hand to project creation (frmMain) and to the work order: the
// seven lines of the customer's block, the account number and, for a project that begins
// as a proposal, the proposal number. They go onto frmMain's controls by name; they are
// also kept here, where a screen that the program does not hold yet will find them.
struct AccountHandOff {
    std::array<std::string, 8> siteInfo;     // txtCustomerInfo(1) to (7); 0 is not used
    std::array<std::string, 8> billingInfo;  // lblCustomerInfo(1) to (7)
    std::string account;                     // lblAccount
    bool fromProposal = false;               // lblPropNo(0) and (1) shown
    std::string proposalNo;                  // caption of lblPropNo(1)
    bool zipKept = false;                    // line 6 stays as frmMain holds it
};

// The last account handed on.
extern AccountHandOff HandedOffAccount;

constexpr const char* kProjectScreen = "frmMain";
constexpr const char* kWorkOrderScreen = "frmWorkOrder";

// Keeps the hand-off and puts it on frmMain, loading that screen first as reading one of its
// controls would. The proposal marks change only when the hand-off says whether it began
// as a proposal.
void HandOnAccount(const AccountHandOff& handOff, bool setProposalMark = true);
// Hides frmMain's "Selected from Proposal Number" and its number.
void HideProposalMark();
// Shows a screen of a routine; when the program does not hold it, says so and returns false.
bool ShowRoutineScreen(const std::string& screen, const std::string& routine);
