// Finding contacts: a part of the field anywhere, without regard to case; one hit shows the
// contact, more fill the result list, none offers a new contact.
#include "ContactsFixture.h"

namespace contacts_tests {
namespace {

using platform::vbNo;
using platform::vbYes;

class SearchTest : public ContactsTest {
  protected:
    frmContacts& Search(int kind, const std::string& key) {
        frmContacts& form = platform::Screen<frmContacts>();
        form.Command1[0].Click();
        form.optSearch[kind].SetValue(true);
        form.txtSearchfor.SetText("");
        TypeInto(form.txtSearchfor, key);
        form.cmdStartSearch.Click();
        return form;
    }
};

TEST_F(SearchTest, OneHitShowsTheContactAndMoreFillTheResultList) {
    WriteThree();
    frmContacts& form = Open();
    form.Command1[0].Click();
    EXPECT_TRUE(form.fraSearch.Visible());
    EXPECT_FALSE(form.fraContact.Visible());
    EXPECT_TRUE(form.optSearch[frmContacts::kByTelephone].Value());

    Search(frmContacts::kByCategory, "contr");
    EXPECT_TRUE(form.fraContact.Visible());
    EXPECT_FALSE(form.fraSearch.Visible());
    EXPECT_EQ(form.ContactRec, 2);
    EXPECT_EQ(form.txtContact[frmContacts::kNameBox].Text(), "Alpha Electric");

    Search(3, "peoria");
    EXPECT_TRUE(form.fraContactsFound.Visible());
    EXPECT_EQ(form.fraContactsFound.Caption(), "Contacts Search Results");
    EXPECT_FALSE(form.cmdPrintContacts.Visible());
    ASSERT_EQ(form.fgContactsFound.Rows(), 3);
    const std::string first[] = {
        "Zeta Lumber", "309-555-0101", "1 Zeta Lumber Way", "Peoria", "IL", "62701", "1"};
    for (int col = 0; col < 7; ++col)
        EXPECT_EQ(form.fgContactsFound.TextMatrix(1, col), first[col]);
    EXPECT_EQ(form.fgContactsFound.TextMatrix(2, 6), "3");
    form.fgContactsFound.UserDoubleClick(2, 0);
    EXPECT_EQ(form.txtContact[frmContacts::kNameBox].Text(), "Midway Supply");
    EXPECT_TRUE(form.fraContact.Visible());
    EXPECT_FALSE(form.fraContactsFound.Visible());
}

TEST_F(SearchTest, ATelephoneIsLookedForWholeAndAnEmptyKeyFindsEveryRecord) {
    WriteThree();
    frmContacts& form = Open();
    Search(frmContacts::kByTelephone, "309-555");
    EXPECT_EQ(folder.Ui().Beeps(), 1);
    EXPECT_TRUE(form.fraSearch.Visible());
    EXPECT_TRUE(BoxTexts().empty());

    Search(frmContacts::kByTelephone, "309-555-0103");
    EXPECT_EQ(form.ContactRec, 3);

    Search(frmContacts::kByName, "");
    EXPECT_EQ(form.fgContactsFound.Rows(), 4);
    form.cmdRetry.Click();
    EXPECT_TRUE(form.fraSearch.Visible());
    EXPECT_FALSE(form.fraContactsFound.Visible());
}

TEST_F(SearchTest, NoHitOffersANewContactOrGoesBackToTheSearch) {
    WriteThree();
    frmContacts& form = Open();
    Answer(vbNo);
    Search(frmContacts::kByName, "nobody");
    EXPECT_EQ(BoxTexts().back(), "[Contact not Found] Would you like to Create a New Contact?");
    EXPECT_TRUE(form.fraSearch.Visible());
    EXPECT_EQ(form.ContactCount, 3);

    Answer(vbYes);
    Search(frmContacts::kByName, "nobody");
    EXPECT_TRUE(form.fraContact.Visible());
    EXPECT_FALSE(form.fraSearch.Visible());
    EXPECT_EQ(form.ContactCount, 4);
    EXPECT_EQ(form.ContactRec, 4);
    EXPECT_EQ(form.txtContact[frmContacts::kNameBox].Text(), "");
    EXPECT_TRUE(form.Command1[1].Enabled());
}

TEST_F(SearchTest, TheContactListShowsEveryRecordWithItsPrintButton) {
    WriteThree();
    frmContacts& form = Open();
    form.mnuPrint.Raise("Click");
    EXPECT_EQ(form.fraContactsFound.Caption(), "Contact List");
    EXPECT_TRUE(form.fraContactsFound.Visible());
    EXPECT_FALSE(form.fraContact.Visible());
    EXPECT_TRUE(form.cmdPrintContacts.Visible());
    EXPECT_EQ(form.fgContactsFound.Rows(), 4);
    form.cmdRetry.Click();
    EXPECT_TRUE(form.fraContact.Visible());
}

}  // namespace
}  // namespace contacts_tests
