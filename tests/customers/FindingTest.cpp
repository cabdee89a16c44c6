// Finding an account: the searches, the name list that types ahead, the customer list and
// its printed report.
#include "CustomersFixture.h"

#include "customers/CustomerSearch.h"

namespace customers_tests {
namespace {

using platform::vbNo;
using platform::vbYes;

class FindingTest : public CustomersTest {
  protected:
    frmCustomer& OpenBook() {
        Account oak = Business("C100", "Hammer & Sons", "12 Oakwood Dr");
        oak.phone = "217-555-0199";
        Account smith = Person("C101", "Mr.", "John", "Smith");
        smith.address1 = "4 Main St";
        smith.phone = "217-555-0142";
        Account lee = Person("c1", "", "Ann", "Lee");
        lee.address1 = "9 Oak Ln";
        lee.city = "Decatur";
        WriteBook({oak, smith, lee, Business("D7", "Zephyr Glass", "1 Elm St", "Peoria")});
        return Open();
    }
    void Search(frmCustomer& form, int option, const std::string& text) {
        form.Command1[0].Click();
        form.optSearch[option].SetValue(true);
        TypeInto(form.txtSearchfor, text);
        form.cmdStartSearch.Click();
    }
    std::vector<std::string> FoundRecords(frmCustomer& form) {
        std::vector<std::string> records;
        for (int r = 1; r < form.fgCustomersFound.Rows(); ++r)
            records.push_back(form.fgCustomersFound.TextMatrix(r, kRecordColumn));
        return records;
    }
};

TEST_F(FindingTest, ASearchFindsInnerTextWithoutRegardToCase) {
    frmCustomer& form = OpenBook();
    form.cmdNav[3].Click();
    Search(form, 1, "oak");
    EXPECT_FALSE(form.fraSearch.Visible());
    // Two addresses hold "OAK": the list shows both.
    EXPECT_TRUE(form.fraCustomersFound.Visible());
    EXPECT_EQ(form.fraCustomersFound.Caption(), "Customers Search Results");
    EXPECT_FALSE(form.cmdPrintCustomers.Visible());
    EXPECT_EQ(FoundRecords(form), (std::vector<std::string>{"1", "3"}));
    // The parts of the name are joined by blanks, the missing title's too.
    EXPECT_EQ(form.fgCustomersFound.TextMatrix(2, 0), " Ann Lee");
    EXPECT_EQ(form.fgCustomersFound.TextMatrix(1, 3), "Springfield");

    // One match shows the account at once.
    Search(form, 0, "zephyr");
    EXPECT_EQ(form.CurrentRecord, 4);
    EXPECT_EQ(form.txtCustomer[1].Text(), "Zephyr Glass");
    Search(form, 7, "SMI");
    EXPECT_EQ(form.CurrentRecord, 2);
}

TEST_F(FindingTest, AnAccountNumberIsFoundExactlyFirstThenByItsBeginning) {
    frmCustomer& form = OpenBook();
    EXPECT_TRUE(form.optSearch[kSearchByAccountNo].Value()) << "chosen when the screen opens";
    Search(form, kSearchByAccountNo, "C1");
    EXPECT_EQ(form.CurrentRecord, 3) << "c1 is the exact number";
    Search(form, kSearchByAccountNo, "c10");
    EXPECT_EQ(FoundRecords(form), (std::vector<std::string>{"1", "2"}));
    Search(form, kSearchByAccountNo, "d");
    EXPECT_EQ(form.CurrentRecord, 4);
}

TEST_F(FindingTest, ATelephoneSearchNeedsTheWholeNumber) {
    frmCustomer& form = OpenBook();
    form.Command1[0].Click();
    form.optSearch[kSearchByTelephone].SetValue(true);
    EXPECT_EQ(form.txtSearchfor.Text(), "217-555-");
    form.txtSearchfor.TypeText("014");
    const size_t boxes = Boxes().size();
    form.cmdStartSearch.Click();
    EXPECT_EQ(folder.Ui().Beeps(), 1);
    EXPECT_EQ(Boxes().size(), boxes);
    EXPECT_TRUE(form.fraSearch.Visible());
    form.txtSearchfor.TypeText("2");
    form.cmdStartSearch.Click();
    EXPECT_EQ(form.CurrentRecord, 2);
}

TEST_F(FindingTest, NoMatchOffersANewAccount) {
    frmCustomer& form = OpenBook();
    Answer(vbNo);
    Search(form, 3, "Chicago");
    EXPECT_EQ(Boxes().back().title, "Customer not Found");
    EXPECT_EQ(Boxes().back().prompt,
              "No Accounts Matching the Search Data were Found\r\nWould you like to Create a New "
              "Account?");
    EXPECT_EQ(form.txtSearchfor.Text(), "");
    EXPECT_FALSE(form.fraSearch.Visible());
    EXPECT_EQ(form.CurrentRecord, 1);

    Answer(vbYes);
    Search(form, 3, "Chicago");
    EXPECT_EQ(form.CurrentRecord, 5);
    EXPECT_TRUE(form.cmdCustomer.Visible());
}

TEST_F(FindingTest, TheCustomerListLoadsTheAccountChosenFromItsMenu) {
    frmCustomer& form = OpenBook();
    form.Command1[3].Click();
    EXPECT_EQ(form.fraCustomersFound.Caption(), "Customer List");
    EXPECT_TRUE(form.cmdPrintCustomers.Visible());
    EXPECT_EQ(FoundRecords(form), (std::vector<std::string>{"1", "2", "3", "4"}));
    form.fgCustomersFound.UserClick(3, 1, 2);
    EXPECT_EQ(folder.Ui().Transcript().back(), "popup frmCustomer.mnupopup");
    form.mnuSelect.Raise("Click");
    EXPECT_EQ(form.CurrentRecord, 3);
    EXPECT_EQ(form.txtCustomer[8].Text(), "Ann");
    EXPECT_FALSE(form.fraCustomersFound.Visible());
    form.mnuPrint.Raise("Click");
    form.fgCustomersFound.UserDoubleClick(4, 0);
    EXPECT_EQ(form.CurrentRecord, 4);
}

TEST_F(FindingTest, TheNameListTypesAheadAndLetsDeletingBe) {
    frmCustomer& form = OpenBook();
    form.Command1[1].Click();
    ASSERT_TRUE(form.cboAccounts.Visible());
    EXPECT_FALSE(form.txtCustomer[8].Enabled());
    std::vector<std::string> names;
    for (const auto& entry : form.cboAccounts.Items()) names.push_back(entry.text);
    EXPECT_EQ(names, (std::vector<std::string>{"Hammer & Sons", "Lee, Ann", "Smith, John",
                                               "Zephyr Glass"}));
    form.cboAccounts.TypeText("sm");
    EXPECT_EQ(form.cboAccounts.Text(), "Smith, John");
    EXPECT_EQ(form.cboAccounts.SelStart(), 2);
    EXPECT_EQ(form.cboAccounts.SelLength(), 9);
    // Backspace removes the proposed part, and the change after it proposes nothing.
    form.cboAccounts.TypeKey(8);
    EXPECT_EQ(form.cboAccounts.Text(), "Sm");
    form.cboAccounts.TypeText("ith, john ");
    form.cboAccounts.Raise("LostFocus");
    EXPECT_FALSE(form.cboAccounts.Visible());
    EXPECT_EQ(form.CurrentRecord, 2);
    EXPECT_TRUE(form.txtCustomer[8].Enabled());

    form.Command1[1].Click();
    form.cboAccounts.SetListIndex(3);
    EXPECT_EQ(form.CurrentRecord, 4);
}

TEST_F(FindingTest, TheReportPrintsThreeBlocksAcrossALandscapePage) {
    frmCustomer& form = OpenBook();
    form.mnuPrint.Raise("Click");
    Answer(vbNo);
    form.cmdPrintCustomers.Click();
    EXPECT_TRUE(platform::RecordingPrinter().Documents().empty());
    form.cmdPrintCustomers.Click();
    EXPECT_EQ(Boxes().back().title, "Customer Report");
    EXPECT_EQ(Boxes().back().prompt, "Click Yes to print a Customer Report");
    const auto& document = platform::RecordingPrinter().LastDocument();
    ASSERT_EQ(document.pages.size(), 1u);
    const auto& page = document.pages[0];
    EXPECT_EQ(page.orientation, platform::vbPRORLandscape);
    auto at = [&](const std::string& text) -> const platform::PrintOperation* {
        for (const auto& op : page.operations)
            if (op.kind == platform::PrintOperation::Kind::Text && op.text == text) return &op;
        return nullptr;
    };
    ASSERT_TRUE(at("Account Information"));
    ASSERT_TRUE(at("6/15/2026"));
    const double columns[] = {1440, 5760, 10080, 1440};
    const char* names[] = {"Hammer & Sons", "Mr. John Smith", "Ann Lee", "Zephyr Glass"};
    for (int i = 0; i < 4; ++i) {
        const auto* name = at(names[i]);
        ASSERT_TRUE(name) << names[i];
        EXPECT_EQ(name->x, columns[i]) << names[i];
    }
    EXPECT_GT(at("Zephyr Glass")->y, at("Hammer & Sons")->y);
    EXPECT_TRUE(at("Decatur, IL 62701"));
}

TEST_F(FindingTest, AReportOfManyAccountsGoesOnNewPagesInEitherAddressForm) {
    std::vector<Account> many;
    for (int i = 1; i <= 60; ++i)
        many.push_back(Business("N" + std::to_string(i), "Firm " + std::to_string(i)));
    WriteBook(many);
    UseAddressStyle(false);
    frmCustomer& form = Open();
    form.mnuPrint.Raise("Click");
    form.cmdPrintCustomers.Click();
    const auto& document = platform::RecordingPrinter().LastDocument();
    ASSERT_GE(document.pages.size(), 2u);
    for (const auto& page : document.pages) {
        bool heading = false;
        for (const auto& op : page.operations) {
            heading = heading || op.text == "Account Information";
            EXPECT_LE(op.y, page.height - 720) << op.text;
        }
        EXPECT_TRUE(heading);
    }
    // The international form puts the city and the code on lines of their own.
    bool cityAlone = false;
    for (const auto& op : document.pages[0].operations)
        cityAlone = cityAlone || op.text == "Springfield";
    EXPECT_TRUE(cityAlone);

    // The report goes to the printer without a printer dialogue.
    EXPECT_TRUE(platform::QueuedDialogs().Shown().empty());

    platform::RecordingPrinter().FailNextOutput(482);
    form.cmdPrintCustomers.Click();
    EXPECT_EQ(Boxes().back().title, "Print Error");
    EXPECT_EQ(Boxes().back().prompt, "A Print Error has occurred");
}

}  // namespace
}  // namespace customers_tests
