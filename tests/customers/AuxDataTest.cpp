// The six boxes of auxiliary data of each account, their headings and the big edit box.
#include "CustomersFixture.h"

#include "customers/AuxDataRoutines.h"

namespace customers_tests {
namespace {

class AuxDataTest : public CustomersTest {
  protected:
    frmCustomer& OpenWithData() {
        WriteBook({Business("A1", "Alpha Roofing"), Person("B2", "Ms", "Ann", "Lee")});
        folder.Write("AuxFiles/A1/AuxFile0/Data.txt", "12 Main St, Unit 4\r\n");
        folder.Write("AuxFiles/A1/AuxFile5/Data.txt", "\"gate code\" 1234\r\n");
        folder.Write("AuxHeadings.txt", "Site\r\nGate\r\nDog\r\nKeys\r\nPaint\r\nNotes\r\n");
        frmCustomer& form = Open();
        form.mnuAux.Raise("Click");
        return form;
    }
    std::string Data(const std::string& account, int box) {
        return Read("AuxFiles/" + account + "/AuxFile" + std::to_string(box) + "/Data.txt");
    }
};

TEST_F(AuxDataTest, BoxesAreReadValueByValueUnderTheirHeadings) {
    frmCustomer& form = OpenWithData();
    EXPECT_TRUE(form.fraAux.Visible());
    EXPECT_EQ(form.txtHeading[1].Text(), "Gate");
    EXPECT_EQ(form.lblAccount.Caption(), "Alpha Roofing");
    // A comma starts a new line, a leading quote goes.
    EXPECT_EQ(form.txtAux[0].Text(), "12 Main St\r\nUnit 4\r\n");
    EXPECT_EQ(form.txtAux[5].Text(), "gate code\r\n");
    EXPECT_EQ(form.txtAux[1].Text(), "");
}

TEST_F(AuxDataTest, WithoutAHeadingsFileTheDesignHeadingsStand) {
    WriteBook({Business("A1", "Alpha Roofing")});
    frmCustomer& form = Open();
    EXPECT_EQ(form.txtHeading[0].Text(), "Heading #1");
    EXPECT_EQ(form.txtHeading[5].Text(), "Heading #6");
    TypeInto(form.txtHeading[2], "Dog");
    form.cmdSaveAux[0].Click();
    EXPECT_EQ(Read("AuxHeadings.txt"),
              "Heading #1\r\nHeading #2\r\nDog\r\nHeading #4\r\nHeading #5\r\nHeading #6\r\n");
}

TEST_F(AuxDataTest, OnlyTheNamedButtonsSaveAndMovingByTheArrowsLosesTheChange) {
    frmCustomer& form = OpenWithData();
    TypeInto(form.txtAux[1], "lost");
    form.cmdNav[2].Click();
    form.cmdNav[0].Click();
    EXPECT_EQ(form.txtAux[1].Text(), "");
    EXPECT_FALSE(Exists("AuxFiles/A1/AuxFile1/Data.txt"));

    TypeInto(form.txtAux[1], "blue door");
    form.cmdSaveAux[7].Click();
    EXPECT_EQ(Data("A1", 1), "blue door\r\n");
    EXPECT_EQ(Data("A1", 2), "\r\n");
    EXPECT_EQ(form.CurrentRecord, 2);
    EXPECT_EQ(form.lblAccount.Caption(), "Ms Ann Lee");
    // A new folder is made for an account that has none yet.
    TypeInto(form.txtAux[3], "under the mat");
    form.cmdSaveAux[8].Click();
    EXPECT_EQ(Data("B2", 3), "under the mat\r\n");
    EXPECT_EQ(form.CurrentRecord, 1);
    form.cmdSaveAux[2].Click();
    EXPECT_FALSE(form.fraAux.Visible());
}

TEST_F(AuxDataTest, RetainedBoxesGoOnToTheNextAccount) {
    frmCustomer& form = OpenWithData();
    form.ckSaveAux.SetValue(1);
    form.cmdNav[2].Click();
    EXPECT_EQ(form.txtAux[0].Text(), "12 Main St\r\nUnit 4\r\n");
    form.cmdSaveAux[7].Click();
    EXPECT_EQ(Data("B2", 0), "12 Main St\r\nUnit 4\r\n\r\n");
}

TEST_F(AuxDataTest, TheBigBoxEditsOneBoxUntilItIsHidden) {
    frmCustomer& form = OpenWithData();
    form.txtAux[0].Raise("DblClick");
    EXPECT_TRUE(form.fraBig.Visible());
    EXPECT_EQ(form.lblEditing.Caption(), "Editing Data Box # 1 - Site - for Alpha Roofing");
    EXPECT_EQ(form.txtBig.Text(), "12 Main St\r\nUnit 4\r\n");
    form.cmdSaveAux[5].Click();
    EXPECT_EQ(form.txtBig.Text(), "");
    form.cmdSaveAux[6].Click();
    EXPECT_EQ(form.txtBig.Text(), "12 Main St\r\nUnit 4\r\n");
    form.txtBig.SetText("one line");
    form.cmdSaveAux[4].Click();
    EXPECT_FALSE(form.fraBig.Visible());
    EXPECT_EQ(form.txtAux[0].Text(), "one line");
    form.lblClear[0].Raise("Click");
    EXPECT_EQ(form.txtAux[0].Text(), "");
    form.cmdSaveAux[3].Click();
    EXPECT_EQ(form.txtAux[0].Text(), "12 Main St\r\nUnit 4\r\n");
}

TEST_F(AuxDataTest, AnAccountNumberThatNamesNoFolderOfItsOwnIsRefusedBeforeAnyWrite) {
    Account bad = Business("../up", "Alpha Roofing");
    WriteBook({bad});
    const std::string before = Read("CustomerData.txt");
    frmCustomer& form = Open();
    EXPECT_EQ(form.txtAux[0].Text(), "");
    EXPECT_THROW(form.cmdNav[0].Click(), platform::RuntimeError);
    EXPECT_EQ(Read("CustomerData.txt"), before);
    EXPECT_FALSE(Exists("up"));
}

}  // namespace
}  // namespace customers_tests
