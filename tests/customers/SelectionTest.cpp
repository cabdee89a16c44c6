// Choosing the customer of a new project, from the account book or from a proposal, and the
// hand-off of its block to project creation and to the work order.
#include "CustomersFixture.h"

#include "platform/RuntimeError.h"

namespace customers_tests {
namespace {

using platform::vbNo;
using platform::vbYes;

const char* const kFpProposal =
    "\"FP1023\",1234.5,#2026-03-02#,\"A100\",\"Hammer & Sons\",\"12 Oak St\",\"Suite 4\","
    "\"Springfield\",\"IL\",\"62701\",\"217-555-0199\"\r\n";
// Without "FP": seven more values, a body and financials.
const char* const kFullProposal =
    "\"1024\",\"980\",#2026-04-01#,\"\",\"Ann Lee\",\"7 Elm St\",\"\",\"Decatur\",\"IL\","
    "\"62521\",\"217-555-0123\",1,2,3,\"four\",5,6,7\r\n";

class SelectionTest : public CustomersTest {
  protected:
    frmCustomerSelection& OpenSelection() {
        auto& form = platform::Screen<frmCustomerSelection>();
        form.Show();
        return form;
    }
    void WriteProposals() {
        folder.Write("NorvaxProposals/P1.txt", kFpProposal);
        folder.Write("NorvaxProposals/P2.txt", kFullProposal);
        folder.Write("NorvaxProposals/ProposalBody/P2.txt", "Scope of work\r\nNew roof\r\n");
        folder.Write("NorvaxProposals/Proposalfinancials/P2.txt", "$980.00,30 days\r\nignored\r\n");
    }
    frmMainStandIn& ProjectScreen() { return platform::Screen<frmMainStandIn>(); }
};

// First in the file: the program as it stands holds neither screen yet.
TEST_F(SelectionTest, WithoutTheProjectScreenTheHandOffKeepsTheAccountAndSaysSo) {
    if (platform::Forms::Known("frmMain") || platform::Forms::Known("frmWorkOrder"))
        GTEST_SKIP() << "another test of this run made the screens known";
    WriteBook({Business("A1", "Alpha Roofing", "1 Elm St")});
    frmCustomer& form = Open();
    form.cmdSchedule.Click();
    EXPECT_EQ(Boxes().back().title, "Routine Not Available");
    EXPECT_EQ(Boxes().back().prompt,
              "\"Create  a New Project\" is not available in this version of the program.");
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(HandedOffAccount.account, "A1");
    EXPECT_EQ(HandedOffAccount.siteInfo[1], "Alpha Roofing");
    EXPECT_EQ(HandedOffAccount.billingInfo[2], "1 Elm St");

    MenuRoutine = 2;
    form.cmdSchedule.Click();
    EXPECT_EQ(Boxes().back().prompt,
              "\"Create a Work Order\" is not available in this version of the program.");
}

TEST_F(SelectionTest, NoProposalsLeaveOnlyTheCustomerPath) {
    frmCustomerSelection& form = OpenSelection();
    EXPECT_EQ(Boxes().back().prompt, "No Proposals Exist");
    EXPECT_FALSE(form.cmdStartup[1].Enabled());
    EXPECT_TRUE(form.cmdStartup[0].Enabled());
    EXPECT_TRUE(form.fraInstructions[0].Visible());
    EXPECT_FALSE(form.fraProjectInfo.Visible());

    platform::Forms::Reset();
    folder.MakeDirs("NorvaxProposals");
    EXPECT_FALSE(OpenSelection().cmdStartup[1].Enabled());
}

TEST_F(SelectionTest, ProposalsAreReadWithTheirCompanionsWhenTheNumberHasNoFP) {
    WriteProposals();
    // "fp" is not "FP": eighteen values and a body.
    folder.Write("NorvaxProposals/P3.txt",
                 "\"fp1025\",\"abc\",\"soon\",\"\",\"Bo Li\",\"\",\"\",\"\",\"\",\"\",\"\","
                 "1,2,3,4,5,6,7\r\n");
    folder.Write("NorvaxProposals/ProposalBody/P3.txt", "");
    frmCustomerSelection& form = OpenSelection();
    EXPECT_TRUE(Boxes().empty());
    EXPECT_TRUE(form.cmdStartup[1].Enabled());
    ASSERT_EQ(form.fgProposals.Rows(), 4);
    const std::vector<std::vector<std::string>> rows = {
        {"FP1023", "3/2/2026", "Hammer & Sons", "$1,234.50"},
        {"1024", "4/1/2026", "Ann Lee", "$980.00"},
        {"fp1025", "soon", "Bo Li", "abc"}};
    for (int r = 1; r <= 3; ++r)
        for (int c = 0; c < 4; ++c)
            EXPECT_EQ(form.fgProposals.TextMatrix(r, c), rows[r - 1][c]) << r << "," << c;
    EXPECT_EQ(form.Proposals[1].body, "");
    EXPECT_EQ(form.Proposals[1].financials, "$0.00");
    EXPECT_EQ(form.Proposals[2].body, "Scope of work\r\nNew roof\r\n");
    EXPECT_EQ(form.Proposals[2].financials, "$980.00,30 days");
    EXPECT_EQ(form.Proposals[3].financials, "$0.00");
}

TEST_F(SelectionTest, AProposalWithoutItsBodyIsTheRunTimeFailure) {
    folder.Write("NorvaxProposals/P2.txt", kFullProposal);
    EXPECT_THROW(OpenSelection(), platform::RuntimeError);
}

TEST_F(SelectionTest, AChosenProposalGoesToProjectCreationWithItsNumber) {
    Register<frmMainStandIn>();
    WriteProposals();
    frmCustomerSelection& form = OpenSelection();
    form.cmdStartup[1].Click();
    EXPECT_TRUE(form.fraProposals.Visible());
    form.cmdCancelselectProposal.Click();
    EXPECT_FALSE(form.fraProposals.Visible());
    form.cmdStartup[1].Click();
    form.fgProposals.UserClick(1, 2);
    EXPECT_FALSE(form.fraProposals.Visible());
    EXPECT_TRUE(form.fraProjectInfo.Visible());
    EXPECT_TRUE(form.cmdCreation[2].Visible());
    EXPECT_TRUE(form.cmdCreation[1].Enabled());
    EXPECT_EQ(form.lblAccount.Caption(), "A100");
    EXPECT_EQ(form.lblCustomerInfo[1].Caption(), "Hammer & Sons");
    EXPECT_EQ(form.lblCustomerInfo[7].Caption(), "217-555-0199");
    EXPECT_EQ(form.lblCustomerInfo[8].Caption(), "");

    form.cmdCreation[1].Click();
    frmMainStandIn& project = ProjectScreen();
    const char* lines[] = {"",   "Hammer & Sons", "12 Oak St",   "Suite 4", "Springfield",
                           "IL", "62701",         "217-555-0199"};
    for (int i = 1; i <= 7; ++i) {
        EXPECT_EQ(project.txtCustomerInfo[i].Text(), lines[i]);
        EXPECT_EQ(project.lblCustomerInfo[i].Caption(), lines[i]);
    }
    EXPECT_EQ(project.lblAccount.Caption(), "A100");
    EXPECT_TRUE(project.lblPropNo[0].Visible() && project.lblPropNo[1].Visible());
    EXPECT_EQ(project.lblPropNo[1].Caption(), "FP1023");
    EXPECT_TRUE(project.Visible());
    EXPECT_FALSE(form.Visible());
    EXPECT_TRUE(HandedOffAccount.fromProposal);
}

TEST_F(SelectionTest, AnAccountOfTheBookGoesToProjectCreationWithoutAProposalNumber) {
    Register<frmMainStandIn>();
    ProjectScreen().lblPropNo[1].SetCaption("FP1");
    Account ann = Person("P7", "Ms", "Ann", "Lee");
    ann.address1 = "7 Elm St";
    ann.phone = "217-555-0123";
    WriteBook({ann});
    MenuRoutine = 1;
    frmCustomerSelection& selection = OpenSelection();
    selection.cmdStartup[0].Click();
    EXPECT_EQ(platform::Forms::Existing("frmCustomerSelection"), nullptr);
    frmMainStandIn& project = ProjectScreen();
    EXPECT_FALSE(project.lblPropNo[0].Visible() || project.lblPropNo[1].Visible());

    frmCustomer& form = platform::Screen<frmCustomer>();
    ASSERT_TRUE(form.Visible());
    form.cmdSchedule.Click();
    // Title, first, middle and last name joined by blanks: the empty middle leaves two.
    const char* lines[] = {"",   "Ms Ann  Lee", "7 Elm St",    "", "Springfield",
                           "IL", "62701",       "217-555-0123"};
    for (int i = 1; i <= 7; ++i) {
        EXPECT_EQ(project.txtCustomerInfo[i].Text(), lines[i]);
        EXPECT_EQ(project.lblCustomerInfo[i].Caption(), lines[i]);
    }
    EXPECT_EQ(project.lblAccount.Caption(), "P7");
    EXPECT_TRUE(project.Visible());
    EXPECT_FALSE(form.Visible());
}

TEST_F(SelectionTest, AWorkOrderGetsTheAccountThroughTheProjectScreensLines) {
    Register<frmMainStandIn>();
    Register<frmWorkOrderStandIn>();
    UseAddressStyle(false);
    Account abroad = Business("W1", "Wombat Works", "3 George St", "Sydney");
    abroad.postal = "2000";
    WriteBook({abroad});
    ProjectScreen().txtCustomerInfo[6].SetText("kept");
    MenuRoutine = 2;
    frmCustomer& form = Open();
    form.cmdSchedule.Click();
    frmMainStandIn& project = ProjectScreen();
    EXPECT_EQ(project.txtCustomerInfo[4].Text(), "Sydney");
    EXPECT_EQ(project.txtCustomerInfo[5].Text(), "2000");
    // The zip line stays as it was in the international form.
    EXPECT_EQ(project.txtCustomerInfo[6].Text(), "kept");
    EXPECT_TRUE(platform::Screen<frmWorkOrderStandIn>().Visible());
    EXPECT_FALSE(project.Visible());
    EXPECT_FALSE(form.Visible());
}

TEST_F(SelectionTest, TheDialLinkOffersTheCellWhenBothNumbersAreThere) {
    Register<frmDialerStandIn>();
    Account one = Business("A1", "Alpha Roofing");
    one.phone = "217-555-0100";
    WriteBook({one});
    frmCustomer& form = Open();
    form.imgDialer.Raise("Click");
    auto& dialer = platform::Screen<frmDialerStandIn>();
    EXPECT_EQ(dialer.lblName.Caption(), "Alpha Roofing");
    EXPECT_EQ(dialer.lblNumber.Caption(), "217-555-0100");
    TypeInto(form.txtCustomer[11], "217-555-0999");
    Answer(vbNo);
    form.imgDialer.Raise("Click");
    EXPECT_EQ(Boxes().back().title, "Select Phone or Cell");
    EXPECT_EQ(Boxes().back().prompt, "Click YES to dial Phone,\r\nClick NO to dial Cell");
    EXPECT_EQ(dialer.lblNumber.Caption(), "217-555-0999");
}

}  // namespace
}  // namespace customers_tests
