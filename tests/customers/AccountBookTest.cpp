// The account book on frmCustomer: the first account, adding, moving, refusing, deleting, and
// the bytes of the three record files that the billing program reads.
#include "CustomersFixture.h"

#include <cstring>

#include "customers/CustomerRoutines.h"

namespace customers_tests {
namespace {

using platform::vbNo;
using platform::vbYes;

std::string Padded(const std::string& text, size_t width) {
    std::string out = text.substr(0, width);
    out.resize(width, ' ');
    return out;
}

std::string Int16Bytes(std::int16_t value) {
    platform::RecordWriter w;
    w.Int16(value);
    return w.Bytes();
}

std::string DayBytes(double serial) {
    char raw[8];
    std::memcpy(raw, &serial, 8);
    return std::string(raw, 8);
}

// The defaults the billing program finds for a new account, on Monday 15 June 2026.
std::string DefaultContract() {
    return Padded("None Selected", 35) + Padded("None", 15) + std::string(8, '\0') +
           Padded("Monday", 9) + Padded("None Selected", 40) + DayBytes(46188) + DayBytes(46188) +
           Int16Bytes(0) + Int16Bytes(-1) + Int16Bytes(0) + Padded("None", 20) +
           std::string(20 + 30 + 35 + 25 + 20 + 2 + 10 + 13 + 30, ' ') + Int16Bytes(0) +
           std::string(50, ' ');
}

std::string DefaultCycle() {
    return Padded("None Selected", 35) + std::string(8, '\0') + Int16Bytes(0) +
           std::string(20, ' ') + Int16Bytes(0) + Int16Bytes(-1);
}

class AccountBookTest : public CustomersTest {};

TEST_F(AccountBookTest, TheFirstAccountOfAFreshSystemCreatesAllThreeFiles) {
    frmCustomer& form = Open();
    EXPECT_EQ(
        BoxTexts(),
        (std::vector<std::string>{
            "[Create Customers] Your Customer File is Empty\r\nCreate your First Customer Now",
            "[No Customer File Found] Your Customer Information File is missing\r\nThe "
            "Contract File can not be rebuilt\r\nThis is normal when creating your 1st "
            "Customer",
            "[No Customer File Found] Your Customer Information File is missing\r\nThe Cycle "
            "File can not be rebuilt\r\nThis is normal when creating your 1st Customer"}));
    // The contractor's own place prefills the first account.
    EXPECT_EQ(form.cboCity.Text(), "Springfield");
    EXPECT_EQ(form.cboStates.Text(), "IL");
    EXPECT_EQ(form.txtCustomer[5].Text(), "62701");
    EXPECT_EQ(form.txtCustomer[6].Text(), "217-555-");
    EXPECT_FALSE(form.cmdNav[2].Enabled());
    EXPECT_FALSE(form.Command1[0].Enabled());
    EXPECT_FALSE(form.mnuDelete.Enabled());
    EXPECT_EQ(form.lbLType.Caption(), "Individual");
    EXPECT_FALSE(Exists("CustomerData.txt"));

    form.cmdAcctType.Click();
    TypeInto(form.txtCustomer[0], "A100");
    TypeInto(form.txtCustomer[1], "Hammer & Sons");
    TypeInto(form.txtCustomer[2], "12 Oakwood Dr");
    TypeInto(form.txtCustomer[6], "217-555-0199");
    form.cmdNew.Click();

    Account expected = Business("A100", "Hammer & Sons", "12 Oakwood Dr");
    expected.phone = "217-555-0199";
    EXPECT_EQ(Read("CustomerData.txt"), Bytes(expected));
    EXPECT_EQ(Read("ContractInfo.txt"), DefaultContract());
    EXPECT_EQ(Read("CycleInfo.txt"), DefaultCycle());
    for (int i = 0; i <= 5; ++i) EXPECT_TRUE(Exists("AuxFiles/A100/AuxFile" + std::to_string(i)));
    // The new account is record 2, being entered.
    EXPECT_EQ(form.CurrentRecord, 2);
    EXPECT_TRUE(form.cmdCustomer.Visible());
    EXPECT_TRUE(form.cmdNav[2].Enabled());
    EXPECT_FALSE(form.mnuAdd.Enabled());
    EXPECT_EQ(form.txtCustomer[6].Text(), "");
}

TEST_F(AccountBookTest, ANewBusinessKeepsTheMarkOfANewRecordAnIndividualWritesItsLastName) {
    WriteBook({Business("A1", "Alpha Roofing")});
    frmCustomer& form = Open();
    form.cmdNew.Click();
    form.cmdAcctType.Click();
    TypeInto(form.txtCustomer[0], "A2");
    TypeInto(form.txtCustomer[1], "Beta Corp");
    form.cmdNav[0].Click();
    const std::string book = Read("CustomerData.txt");
    ASSERT_EQ(book.size(), 2u * 328);
    EXPECT_EQ(book.substr(328 + 289, 25), Padded("'", 25));
    EXPECT_EQ(form.txtCustomer[1].Text(), "Alpha Roofing");

    form.cmdNew.Click();
    form.cboTitle.SetText("Ms");
    TypeInto(form.txtCustomer[8], "Ann");
    TypeInto(form.txtCustomer[10], "Lee");
    form.cmdNav[3].Click();
    Account ann = Person("", "Ms", "Ann", "Lee");
    ann.zip = ann.postal = "62701";
    ann.phone = "";
    EXPECT_EQ(RecordOf(Read("CustomerData.txt"), 328, 3), Bytes(ann));
    // The last record, shown again with its built name.
    EXPECT_EQ(form.CurrentRecord, 3);
    EXPECT_EQ(form.txtCustomer[1].Text(), "Ms Ann Lee");
    // Each new account got the default billing records, but for the third contract text,
    // which the defaults leave as the last account shown had it.
    std::string contract = DefaultContract();
    contract.replace(199, 35, std::string(35, 'a'));
    EXPECT_EQ(RecordOf(Read("ContractInfo.txt"), 386, 3), contract);
    EXPECT_EQ(RecordOf(Read("CycleInfo.txt"), 69, 2), DefaultCycle());
}

TEST_F(AccountBookTest, CancellingAnAddWritesNothingAndShowsTheFirstAccount) {
    WriteBook({Business("A1", "Alpha Roofing"), Business("A2", "Beta Corp")});
    frmCustomer& form = Open();
    const std::string before = Read("CustomerData.txt") + Read("ContractInfo.txt");
    form.cmdNav[3].Click();
    form.mnuAdd.Raise("Click");
    EXPECT_EQ(form.CurrentRecord, 3);
    TypeInto(form.txtCustomer[8], "Half");
    form.cmdCustomer.Click();
    EXPECT_EQ(Read("CustomerData.txt") + Read("ContractInfo.txt"), before);
    EXPECT_EQ(form.RecordCount, 2);
    EXPECT_EQ(form.CurrentRecord, 1);
    EXPECT_FALSE(form.cmdCustomer.Visible());
    EXPECT_TRUE(form.mnuAdd.Enabled() && form.mnuAux.Enabled() && form.mnuDelete.Enabled());
    EXPECT_EQ(form.txtCustomer[1].Text(), "Alpha Roofing");

    // Saved while being added, then cancelled: the account stays counted and is not overwritten.
    form.mnuAdd.Raise("Click");
    form.cmdAcctType.Click();
    TypeInto(form.txtCustomer[1], "Gamma Paving");
    form.Command1[0].Click();
    form.cmdCustomer.Click();
    EXPECT_EQ(form.RecordCount, 3);
    form.mnuAdd.Raise("Click");
    EXPECT_EQ(form.CurrentRecord, 4);
}

TEST_F(AccountBookTest, NextWrapsPreviousStopsAndTheQuartersNeedFourAccounts) {
    WriteBook({Business("A1", "One"), Business("A2", "Two"), Business("A3", "Three")});
    frmCustomer& form = Open();
    auto at = [&](int index) {
        form.cmdNav[index].Click();
        return form.CurrentRecord;
    };
    EXPECT_EQ(at(1), 1);
    EXPECT_EQ(at(2), 2);
    EXPECT_EQ(at(3), 3);
    EXPECT_EQ(at(2), 1);
    EXPECT_EQ(at(4), 1);
    form.cmdNav[3].Click();
    EXPECT_EQ(at(5), 3);
    EXPECT_EQ(at(6), 3);
    EXPECT_EQ(form.txtCustomer[1].Text(), "Three");

    WriteBook({Business("A1", "One"), Business("A2", "Two"), Business("A3", "Three"),
               Business("A4", "Four")});
    platform::Forms::Reset();
    frmCustomer& four = Open();
    auto quarter = [&](int index) {
        four.cmdNav[index].Click();
        return four.CurrentRecord;
    };
    EXPECT_EQ(quarter(4), 1);
    EXPECT_EQ(quarter(6), 2);
    EXPECT_EQ(quarter(5), 3);
    EXPECT_EQ(four.txtCustomer[1].Text(), "Three");
}

TEST_F(AccountBookTest, AnAccountWithoutItsNameIsRefusedAndNothingIsWritten) {
    WriteBook({Business("A1", "Alpha Roofing"), Person("A2", "Mr.", "John", "Smith")});
    frmCustomer& form = Open();
    const std::string before = Read("CustomerData.txt") + Read("ContractInfo.txt");
    form.txtCustomer[1].SetText("");
    form.cmdNav[2].Click();
    EXPECT_EQ(Boxes().back().prompt, "The Account Name Cannot be Blank");
    EXPECT_EQ(form.CurrentRecord, 1);
    EXPECT_EQ(form.FocusedControl(), &form.txtCustomer[1]);

    TypeInto(form.txtCustomer[1], "Alpha Roofing");
    form.cmdNav[2].Click();
    form.txtCustomer[10].SetText("");
    form.cmdExit.Click();
    EXPECT_EQ(Boxes().back().prompt, "Enter Account 1st and Last Name");
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(form.FocusedControl(), &form.txtCustomer[8]);
    EXPECT_EQ(Read("CustomerData.txt") + Read("ContractInfo.txt"), before);
}

TEST_F(AccountBookTest, AnIndividualWithATitleAndNoLastNameShowsItsBuiltName) {
    WriteBook({Person("P1", "Mr.", "John", "")});
    frmCustomer& form = Open();
    // The title and first name with the blank behind them, as the name is built.
    EXPECT_EQ(form.txtCustomer[1].Text(), "Mr. John ");
    EXPECT_FALSE(form.txtCustomer[1].Enabled());
    EXPECT_TRUE(form.cboTitle.Enabled());
    form.cmdNav[0].Click();
    EXPECT_EQ(Boxes().back().prompt, "Enter Account 1st and Last Name");
}

TEST_F(AccountBookTest, AccountNumbersAreUniqueAndKeysThatBreakFilesAreRefused) {
    WriteBook({Business("A1", "Alpha Roofing"), Business("A2", "Beta Corp")});
    frmCustomer& form = Open();
    form.txtCustomer[0].Raise("LostFocus");
    EXPECT_TRUE(Boxes().empty()) << "its own number is no duplicate";
    TypeInto(form.txtCustomer[0], "A2");
    form.txtCustomer[0].Raise("LostFocus");
    EXPECT_EQ(Boxes().back().title, "Duplicate Account Number");
    EXPECT_EQ(Boxes().back().prompt,
              "The Account Number has been duplicated\r\nEnter a different Number");
    EXPECT_EQ(form.txtCustomer[0].Text(), "");
    EXPECT_EQ(form.FocusedControl(), &form.txtCustomer[0]);

    TypeInto(form.txtCustomer[0], "A/3");
    EXPECT_EQ(form.txtCustomer[0].Text(), "A3");
    EXPECT_EQ(Boxes().back().prompt, "This character, (/) is invalid for this field");
    TypeInto(form.txtAdd3, "x,y");
    EXPECT_EQ(form.txtAdd3.Text(), "xy");

    form.txtCustomer[1].SetText("A");
    form.txtCustomer[1].Raise("LostFocus");
    EXPECT_EQ(Boxes().back().title, "No Name Entered");
    EXPECT_EQ(Boxes().back().prompt, "Account Name cannot be blank");
}

TEST_F(AccountBookTest, DeletingTheMiddleAccountMovesTheLaterRecordsOfAllThreeFilesDown) {
    WriteBook({Business("A1", "One"), Business("A2", "Two"), Business("A3", "Three")});
    folder.Write("NIActiveAccounts/A2.txt", "x");
    folder.Write("Backup/NIActiveAccounts/A2.txt", "x");
    folder.MakeDirs("AuxFiles/A2/AuxFile0");
    const std::string book = Read("CustomerData.txt");
    const std::string contract = Read("ContractInfo.txt");
    const std::string cycle = Read("CycleInfo.txt");
    frmCustomer& form = Open();
    form.cmdNav[2].Click();
    Answer(vbNo);
    form.mnuDelete.Raise("Click");
    EXPECT_EQ(Read("CustomerData.txt"), book);

    Answer(vbYes);
    form.mnuDelete.Raise("Click");
    EXPECT_EQ(Boxes().back().prompt, "Delete this Customer");
    EXPECT_EQ(Read("CustomerData.txt"), book.substr(0, 328) + book.substr(656));
    EXPECT_EQ(Read("ContractInfo.txt"), contract.substr(0, 386) + contract.substr(772));
    EXPECT_EQ(Read("CycleInfo.txt"), cycle.substr(0, 69) + cycle.substr(138));
    EXPECT_FALSE(Exists("NIActiveAccounts/A2.txt"));
    EXPECT_FALSE(Exists("Backup/NIActiveAccounts/A2.txt"));
    EXPECT_FALSE(Exists("CUSTOMER.TMP") || Exists("Temp.txt"));
    EXPECT_TRUE(Exists("AuxFiles/A2/AuxFile0"));
    EXPECT_EQ(form.RecordCount, 2);
    EXPECT_EQ(form.CurrentRecord, 1);
    EXPECT_EQ(form.cboAccounts.ListCount(), 2);
    form.cmdNav[3].Click();
    EXPECT_EQ(form.txtCustomer[1].Text(), "Three");
}

TEST_F(AccountBookTest, ACutShortAccountBookIsCountedAsTheFileLayerDoesAndLosesNothingElse) {
    const std::string book = Bytes(Business("A1", "One")) + Bytes(Business("A2", "Two"));
    WriteBook({Business("A1", "One"), Business("A2", "Two"), Business("A3", "Three")});
    const std::string contract = Read("ContractInfo.txt");
    const std::string cycle = Read("CycleInfo.txt");
    // Two records and a little of a third: two accounts.
    folder.Write("CustomerData.txt", book + Bytes(Business("A3", "Three")).substr(0, 100));
    frmCustomer& form = Open();
    EXPECT_EQ(form.RecordCount, 2);
    EXPECT_EQ(Read("ContractInfo.txt"), contract);
    EXPECT_EQ(Read("CycleInfo.txt"), cycle);
    Answer(vbYes);
    form.mnuDelete.Raise("Click");
    EXPECT_EQ(Read("CustomerData.txt"), book.substr(328));
    // The billing records of the third account are kept, moved down with the rest.
    EXPECT_EQ(Read("ContractInfo.txt"), contract.substr(386));
    EXPECT_EQ(Read("CycleInfo.txt"), cycle.substr(69));

    // More than half a record counts as one.
    platform::Forms::Reset();
    folder.Write("CustomerData.txt", book + Bytes(Business("A3", "Three")).substr(0, 200));
    EXPECT_EQ(Open().RecordCount, 3);
}

TEST_F(AccountBookTest, TextIsOneByteACharacterCutToItsFieldAndPadded) {
    WriteBook({Business("A1", "One")});
    frmCustomer& form = Open();
    TypeInto(form.txtCustomer[1], "Caf\xE9 R\xF6sti");
    form.txtCustomer[2].SetText(std::string(50, 'x'));
    form.cmdNav[0].Click();
    const std::string record = Read("CustomerData.txt");
    ASSERT_EQ(record.size(), 328u);
    EXPECT_EQ(record.substr(20, 45), Padded("Caf\xE9 R\xF6sti", 45));
    EXPECT_EQ(record.substr(65, 35), std::string(35, 'x'));
    EXPECT_EQ(form.txtCustomer[1].Text(), "Caf\xE9 R\xF6sti");
}

TEST_F(AccountBookTest, TheCellNumberIsNotShownAndGoesOnToTheNextAccountSaved) {
    Account one = Business("A1", "One");
    one.cell = "217-555-0001";
    WriteBook({one, Business("A2", "Two")});
    frmCustomer& form = Open();
    EXPECT_EQ(form.txtCustomer[11].Text(), "");
    TypeInto(form.txtCustomer[11], "217-555-0009");
    form.cmdNav[2].Click();
    form.cmdNav[0].Click();
    EXPECT_EQ(RecordOf(Read("CustomerData.txt"), 328, 2).substr(220, 13), "217-555-0009 ");
}

TEST_F(AccountBookTest, TheReservedFieldsOfARecordPassThroughASave) {
    Account one = Business("A1", "One");
    one.reserved1 = 12345;
    one.reserved2 = -2;
    WriteBook({one, Business("A2", "Two")});
    frmCustomer& form = Open();
    // Scans of the whole book in between do not disturb the record in hand.
    form.txtCustomer[0].Raise("LostFocus");
    form.mnuPrint.Raise("Click");
    form.cmdNav[2].Click();
    EXPECT_EQ(RecordOf(Read("CustomerData.txt"), 328, 1), Bytes(one));
}

TEST_F(AccountBookTest, AnInternationalAddressUsesItsOwnLinesAndNoState) {
    UseAddressStyle(false);
    Account abroad = Business("W1", "Wombat Works", "3 George St");
    abroad.city = "Sydney NSW";
    abroad.state = "";
    abroad.zip = "";
    abroad.postal = "2000";
    WriteBook({abroad});
    frmCustomer& form = Open();
    EXPECT_TRUE(form.fraIntAddress.Visible());
    EXPECT_FALSE(form.fraUSAddress.Visible());
    EXPECT_EQ(form.txtAdd3.Text(), "Sydney NSW");
    EXPECT_EQ(form.txtAdd4.Text(), "2000");
    EXPECT_EQ(form.txtCustomer[5].Text(), "2000");
    TypeInto(form.txtAdd3, "Parramatta");
    TypeInto(form.txtAdd4, "NSW 2150");
    form.cmdNav[0].Click();
    const std::string record = Read("CustomerData.txt");
    EXPECT_EQ(record.substr(125, 25), Padded("Parramatta", 25));
    EXPECT_EQ(record.substr(170, 2), "  ");
    // The zip box is written as it stands; the postal code comes from the fourth line.
    EXPECT_EQ(record.substr(172, 10), Padded("2000", 10));
    EXPECT_EQ(record.substr(182, 25), Padded("NSW 2150", 25));
}

}  // namespace
}  // namespace customers_tests
