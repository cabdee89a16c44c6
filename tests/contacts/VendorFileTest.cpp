// The vendor file as the screen keeps it: every move saves the record on display, records
// are added at the end and deleted by a packed copy, and the list is sorted by name while
// its record numbers stay the link to the file.
#include "ContactsFixture.h"

namespace contacts_tests {
namespace {

using platform::vbNo;
using platform::vbYes;

class VendorFileTest : public ContactsTest {};

TEST_F(VendorFileTest, TheListIsSortedByNameAndItsRecordNumbersLeadBackToTheFile) {
    WriteThree();
    frmContacts& form = Open();
    ASSERT_EQ(form.fgVendors.Rows(), 4);
    const std::string expected[3][4] = {{"Alpha Electric", "V2", "217-555-0102", "2"},
                                        {"Midway Supply", "V3", "309-555-0103", "3"},
                                        {"Zeta Lumber", "V1", "309-555-0101", "1"}};
    for (int row = 1; row <= 3; ++row)
        for (int col = 0; col < 4; ++col)
            EXPECT_EQ(form.fgVendors.TextMatrix(row, col), expected[row - 1][col]);
    // Record 1 is shown first, whatever its place in the list.
    EXPECT_EQ(form.txtContact[frmContacts::kNameBox].Text(), "Zeta Lumber");
    EXPECT_EQ(form.cboCategory.Text(), "Vendor");
    EXPECT_EQ(form.txtContact[frmContacts::kStateBox].Text(), "IL");

    // The cities, each once.
    EXPECT_EQ(form.cboCity.ListCount(), 2);

    form.mnuView.Raise("Click");
    EXPECT_TRUE(form.fraSuppliers.Visible());
    form.fgVendors.UserClick(2, 0);
    EXPECT_EQ(form.ContactRec, 3);
    EXPECT_EQ(form.txtContact[frmContacts::kNameBox].Text(), "Midway Supply");
    EXPECT_FALSE(form.fraSuppliers.Visible());
}

TEST_F(VendorFileTest, TheListIsSavedForASpreadsheetInItsOrderAndTheFileIsOnlyRead) {
    WriteContacts({Vendor("V1", "Zeta Lumber", "Peoria", "309-555-0101"),
                   Vendor("V2", "Caf\xE9 Tile, Inc.", "Springfield", "217-555-0102", "Supplier")});
    const std::string before = Read("VendorData.txt");
    frmContacts& form = Open();
    platform::QueuedDialogs().QueueFile((folder.Path() / "Suppliers").string());
    form.mnuSaveList.Raise("Click");
    EXPECT_EQ(platform::QueuedDialogs().Shown().back(),
              "save -> " + (folder.Path() / "Suppliers").string());
    EXPECT_EQ(Read("Suppliers.csv"),
              "\xEF\xBB\xBF"
              "Name,Account No,Telephone,Category,Address 1,Address 2,City,State,Postal Code,"
              "E-mail,Key Contact\r\n"
              "\"Caf\xC3\xA9 Tile, Inc.\",V2,217-555-0102,Supplier,\"1 Caf\xC3\xA9 Tile, Inc. "
              "Way\",,Springfield,IL,62701,,Pat\r\n"
              "Zeta Lumber,V1,309-555-0101,Vendor,1 Zeta Lumber Way,,Peoria,IL,62701,,Pat\r\n");
    EXPECT_EQ(BoxTexts().back(),
              "[Save Vendor List] The vendor list was saved in Suppliers.csv with 2 contacts.");
    EXPECT_EQ(Read("VendorData.txt"), before);
}

TEST_F(VendorFileTest, AnEmptyFileAsksForTheFirstContactAndLeavingSavesItAsRecordOne) {
    frmContacts& form = Open();
    ASSERT_EQ(BoxTexts().size(), 1u);
    EXPECT_EQ(BoxTexts()[0],
              "[Create Contacts] Your Contact File is Empty\r\nCreate your First Contact Now");
    EXPECT_TRUE(form.Command1[1].Enabled());
    TypeInto(form.txtContact[frmContacts::kAccountNoBox], "ACE-1");
    TypeInto(form.txtContact[frmContacts::kNameBox], "Ace Hardware and Lumber of Springfield");
    TypeInto(form.cboCity, "Springfield");
    TypeInto(form.txtContact[frmContacts::kTelephoneBox], "217-555-0199");
    TypeInto(form.cboCategory, "Supplier");
    form.cmdExit.Click();
    EXPECT_FALSE(form.Visible());
    Contact ace = {"ACE-1",
                   "Ace Hardware and Lumber of Spr",
                   "",
                   "",
                   "Springfield",
                   "",
                   "",
                   "217-555-0199",
                   "",
                   "Supplier",
                   ""};
    EXPECT_EQ(Read("VendorData.txt"), Bytes(ace));
}

TEST_F(VendorFileTest, NextWrapsFromTheLastPreviousStopsAtTheFirstAndEveryMoveSaves) {
    WriteThree();
    frmContacts& form = Open();
    form.cmdNav[1].Click();
    EXPECT_EQ(form.ContactRec, 1);
    form.cmdNav[3].Click();
    EXPECT_EQ(form.ContactRec, 3);
    TypeInto(form.txtContact[frmContacts::kKeyContactBox], "Lee");
    form.cmdNav[2].Click();
    EXPECT_EQ(form.ContactRec, 1);
    Contact midway = Vendor("V3", "Midway Supply", "Peoria", "309-555-0103", "Supplier");
    midway.keyContact = "Lee";
    EXPECT_EQ(RecordOf(Read("VendorData.txt"), 3), Bytes(midway));
    form.cmdNav[2].Click();
    EXPECT_EQ(form.txtContact[frmContacts::kNameBox].Text(), "Alpha Electric");
}

TEST_F(VendorFileTest, AContactWithoutCategoryIsFiledUnderItsTelephoneNumber) {
    WriteThree();
    frmContacts& form = Open();
    form.cboCategory.SetText("");
    form.cmdNav[2].Click();
    EXPECT_EQ(RecordOf(Read("VendorData.txt"), 1).substr(185, 20), "309-555-0101        ");
}

TEST_F(VendorFileTest, AnAddedContactIsWrittenAtTheEndByTheNextMove) {
    WriteThree();
    frmContacts& form = Open();
    form.mnuAdd.Raise("Click");
    EXPECT_EQ(form.ContactCount, 4);
    EXPECT_EQ(form.ContactRec, 4);
    EXPECT_EQ(form.txtContact[frmContacts::kNameBox].Text(), "");
    TypeInto(form.txtContact[frmContacts::kAccountNoBox], "V4");
    TypeInto(form.txtContact[frmContacts::kNameBox], "Beta Roofing");
    TypeInto(form.cboCity, "Decatur");
    TypeInto(form.cboCategory, "Sub-Contractor");
    form.cmdNav[0].Click();
    const std::string file = Read("VendorData.txt");
    ASSERT_EQ(file.size(), 4u * 235);
    Contact beta = {"V4", "Beta Roofing", "", "", "Decatur", "", "", "", "", "Sub-Contractor", ""};
    EXPECT_EQ(RecordOf(file, 4), Bytes(beta));
    EXPECT_EQ(form.fgVendors.TextMatrix(2, 0), "Beta Roofing");
    EXPECT_EQ(form.fgVendors.TextMatrix(2, 3), "4");
    EXPECT_EQ(form.cboCity.ListCount(), 3);
}

TEST_F(VendorFileTest, AShortNameIsWarnedAndCancelAddNewTakesTheCountBack) {
    WriteThree();
    frmContacts& form = Open();
    form.mnuAdd.Raise("Click");
    TypeInto(form.txtContact[frmContacts::kNameBox], "B");
    form.txtContact[frmContacts::kNameBox].Raise("LostFocus");
    ASSERT_EQ(BoxTexts().size(), 1u);
    EXPECT_EQ(BoxTexts()[0],
              "[No Name Entered] The Name Field Must be at least 2 Characters\r\nThis is okay "
              "if Cancelling a New Entry\r\nClick Cancel AddNew Again");
    EXPECT_EQ(folder.Ui().Beeps(), 1);
    // A second add does not save a name of one character; the count still goes up.
    form.mnuAdd.Raise("Click");
    EXPECT_EQ(form.ContactCount, 5);
    form.Command1[1].Click();
    EXPECT_EQ(form.ContactCount, 4);
    EXPECT_EQ(form.ContactRec, 4);
    EXPECT_FALSE(form.Command1[1].Enabled());
    EXPECT_EQ(Read("VendorData.txt").size(), 3u * 235);
}

TEST_F(VendorFileTest, DeletingPacksTheFileThroughTheScratchFile) {
    WriteThree();
    const std::string before = Read("VendorData.txt");
    frmContacts& form = Open();
    form.cmdNav[2].Click();
    Answer(vbNo);
    form.mnuDelete.Raise("Click");
    EXPECT_EQ(Read("VendorData.txt"), before);

    Answer(vbYes);
    form.mnuDelete.Raise("Click");
    EXPECT_EQ(BoxTexts().back(), "[Norvax Construction Scheduler] Delete this Contact?");
    EXPECT_EQ(Read("VendorData.txt"), RecordOf(before, 1) + RecordOf(before, 3));
    EXPECT_FALSE(Exists("Contact.TMP"));
    EXPECT_EQ(form.ContactCount, 2);
    EXPECT_EQ(form.ContactRec, 1);
    EXPECT_EQ(form.txtContact[frmContacts::kNameBox].Text(), "Zeta Lumber");
    EXPECT_EQ(form.fgVendors.Rows(), 3);
    EXPECT_EQ(form.fgVendors.TextMatrix(1, 3), "2");
}

TEST_F(VendorFileTest, LeavingSavesTheRecordOnDisplayEvenUnchanged) {
    WriteContacts({{"V1", "Padded Name", "", "", "", "", "", "", "", "Vendor", ""}});
    // A name stored with an odd byte behind it comes back trimmed and is written back so.
    std::string bytes = Read("VendorData.txt");
    bytes[20 + 29] = '\0';
    folder.Write("VendorData.txt", bytes);
    frmContacts& form = Open();
    form.cmdExit.Click();
    EXPECT_EQ(Read("VendorData.txt").substr(20, 30), "Padded Name" + std::string(19, ' '));
}

TEST_F(VendorFileTest, TheDialLinkHandsTheNameAndTelephoneToTheDialler) {
    WriteThree();
    testing_support::RegisterScreen<frmDialerStandIn>();
    platform::Screen<frmSetup>().ckPhone.SetValue(1);
    frmContacts& form = Open();
    EXPECT_TRUE(form.imgPhone.Visible());
    form.imgPhone.Raise("Click");
    auto& dialer = platform::Screen<frmDialerStandIn>();
    EXPECT_TRUE(dialer.Visible());
    EXPECT_EQ(dialer.lblName.Caption(), "Zeta Lumber");
    EXPECT_EQ(dialer.lblNumber.Caption(), "309-555-0101");
}

}  // namespace
}  // namespace contacts_tests
