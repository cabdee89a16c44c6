// The account book saved for a spreadsheet: a header row, one row an account, the names as
// the list shows them, Windows-1252 letters as UTF-8, and the record files untouched.
#include "CustomersFixture.h"

#include <filesystem>

namespace customers_tests {
namespace {

class CustomerListExport : public CustomersTest {};

TEST_F(CustomerListExport, EveryAccountIsARowOfTheChosenFile) {
    Account business = Business("A1", "Caf\xE9 Roma, Inc.", "12 \"Old\" Mill Rd");
    business.phone = "217-555-0100";
    Account person = Person("A2", "Mr.", "Jos\xE9",
                            "Pe\xF1"
                            "a");
    person.address1 = "4 Elm St";
    WriteBook({business, person});
    const std::string book = Read("CustomerData.txt");
    const std::string contracts = Read("ContractInfo.txt");
    frmCustomer& form = Open();

    platform::QueuedDialogs().QueueFile((folder.Path() / "Accounts").string());
    form.mnuSaveList.Raise("Click");
    EXPECT_EQ(platform::QueuedDialogs().Shown().back(),
              "save -> " + (folder.Path() / "Accounts").string());
    ASSERT_TRUE(Exists("Accounts.csv"));
    EXPECT_EQ(Read("Accounts.csv"),
              "\xEF\xBB\xBF"
              "Name,Account No,Type,Title,First Name,Middle Initial,Last Name,Address 1,"
              "Address 2,City,State,Postal Code,Telephone,Cell Phone,Fax/E-mail\r\n"
              "\"Caf\xC3\xA9 Roma, Inc.\",A1,Business,,,,,\"12 \"\"Old\"\" Mill Rd\",,Springfield,"
              "IL,62701,217-555-0100,,\r\n"
              "Mr. Jos\xC3\xA9 Pe\xC3\xB1"
              "a,A2,Individual,Mr.,Jos\xC3\xA9,,Pe\xC3\xB1"
              "a,4 Elm St,,"
              "Springfield,IL,62701,,,\r\n");
    EXPECT_EQ(BoxTexts().back(),
              "[Save Customer List] The customer list was saved in Accounts.csv with 2 accounts.");
    EXPECT_EQ(Read("CustomerData.txt"), book);
    EXPECT_EQ(Read("ContractInfo.txt"), contracts);
}

TEST_F(CustomerListExport, ACancelledDialogueOrAnUnwritablePlaceSavesNothing) {
    WriteBook({Business("A1", "Alpha")});
    frmCustomer& form = Open();
    const size_t boxes = Boxes().size();
    form.mnuSaveList.Raise("Click");  // no file chosen: the dialogue is cancelled
    EXPECT_EQ(Boxes().size(), boxes);

    folder.MakeDirs("Taken.csv");
    platform::QueuedDialogs().QueueFile((folder.Path() / "Taken.csv").string());
    form.mnuSaveList.Raise("Click");
    EXPECT_EQ(BoxTexts().back(),
              "[Save Customer List] The customer list could not be written to Taken.csv.");
    EXPECT_TRUE(std::filesystem::is_directory(folder.Path() / "Taken.csv"));
}

}  // namespace
}  // namespace customers_tests
