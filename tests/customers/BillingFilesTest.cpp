// ContractInfo.txt and CycleInfo.txt: rebuilt with defaults when missing, and otherwise
// carried through this program unchanged, record for record beside the account book.
#include "CustomersFixture.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace customers_tests {
namespace {

class BillingFilesTest : public CustomersTest {
  protected:
    void WriteThree() {
        WriteBook({Business("A1", "One"), Business("A2", "Two"), Business("A3", "Three")});
    }
};

TEST_F(BillingFilesTest, AMissingCycleFileIsBuiltWithDefaultsForEveryAccount) {
    WriteThree();
    folder.Write("CycleInfo.txt", "");
    std::remove((folder.Path() / "CycleInfo.txt").string().c_str());
    Open();
    EXPECT_EQ(BoxTexts(), (std::vector<std::string>{"[Building Billing Info] Your Billing "
                                                    "Information File will be Built with Default "
                                                    "Values"}));
    const std::string cycle = Read("CycleInfo.txt");
    ASSERT_EQ(cycle.size(), 3u * 69);
    EXPECT_EQ(RecordOf(cycle, 69, 1), RecordOf(cycle, 69, 3));
    EXPECT_EQ(cycle.substr(0, 13), "None Selected");
    EXPECT_EQ(cycle.substr(67, 2), std::string("\xFF\xFF", 2));
}

TEST_F(BillingFilesTest, AMissingContractFileGetsOnlyItsLastRecordWritten) {
    WriteThree();
    std::remove((folder.Path() / "ContractInfo.txt").string().c_str());
    Open();
    EXPECT_TRUE(Boxes().empty());
    const std::string contract = Read("ContractInfo.txt");
    ASSERT_EQ(contract.size(), 3u * 386);
    // The records before the last stand as a file written past its end leaves them.
    EXPECT_EQ(contract.substr(0, 2 * 386), std::string(2 * 386, '\0'));
    EXPECT_EQ(RecordOf(contract, 386, 3).substr(0, 35), "None Selected                      ");
}

TEST_F(BillingFilesTest, ABillingFileFoundInBackupIsRestoredNotRebuilt) {
    WriteThree();
    const std::string contract = Read("ContractInfo.txt");
    folder.Write("Backup/ContractInfo.txt", contract);
    std::remove((folder.Path() / "ContractInfo.txt").string().c_str());
    Open();
    EXPECT_EQ(Read("ContractInfo.txt"), contract);
}

TEST_F(BillingFilesTest, AnEmptyAccountBookWritesNoBillingRecords) {
    folder.Write("CustomerData.txt", "");
    Open();
    EXPECT_EQ(Read("ContractInfo.txt"), "");
    EXPECT_EQ(Read("CycleInfo.txt"), "");
}

TEST_F(BillingFilesTest, TheBillingProgramsBytesPassThroughEverySave) {
    WriteThree();
    // A contract date that is no number at all is not this program's business.
    std::string contract = Read("ContractInfo.txt");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    std::memcpy(&contract[386 + 107], &nan, 8);
    folder.Write("ContractInfo.txt", contract);
    const std::string cycle = Read("CycleInfo.txt");
    frmCustomer& form = Open();
    form.cmdNav[2].Click();
    form.cmdNav[2].Click();
    form.cmdNav[2].Click();
    TypeInto(form.txtCustomer[2], "New Street 1");
    form.cmdNav[3].Click();
    EXPECT_EQ(Read("ContractInfo.txt"), contract);
    EXPECT_EQ(Read("CycleInfo.txt"), cycle);
}

TEST_F(BillingFilesTest, AShortBillingFileGetsTheDefaultsOfTheMissingRecordAtTheNextSave) {
    WriteThree();
    const std::string contract = Read("ContractInfo.txt");
    folder.Write("ContractInfo.txt", contract.substr(0, 386));
    frmCustomer& form = Open();
    form.cmdNav[3].Click();
    form.cmdNav[2].Click();
    const std::string now = Read("ContractInfo.txt");
    ASSERT_EQ(now.size(), 3u * 386);
    EXPECT_EQ(RecordOf(now, 386, 1), RecordOf(contract, 386, 1));
    EXPECT_EQ(RecordOf(now, 386, 2), std::string(386, '\0'));
    EXPECT_EQ(RecordOf(now, 386, 3).substr(0, 13), "None Selected");
}

}  // namespace
}  // namespace customers_tests
