#include "SetupFixture.h"

#include "setup/BusinessRoutines.h"
#include "store/SharedState.h"

namespace {

using platform::vbNo;
using platform::vbYes;

std::string BusinessLine(const std::vector<std::string>& values) {
    std::string line;
    for (size_t i = 0; i < 9; ++i) {
        if (i) line += ",";
        line += "\"" + (i < values.size() ? values[i] : std::string()) + "\"";
    }
    return line + "\r\n";
}

class BusinessTest : public SetupTest {};

TEST_F(BusinessTest, BusinessDataIsWrittenAndBoxEightIsNotShownBack) {
    frmSetup& form = Open();
    // First run: the design's USA style is flipped to the international one.
    EXPECT_EQ(form.cmdAddress.Caption(), "International Style Address");
    form.cmdAddress.Click();
    ASSERT_EQ(form.cmdAddress.Caption(), "USA Style Address");
    const std::vector<std::string> values = {"Acme Builders", "1 Main St",    "Suite 2",
                                             "Springfield",   "IL",           "62701",
                                             "217-555-0100",  "217-555-0101", "ABN - 123456789"};
    for (int i = 0; i < 9; ++i) TypeInto(form.txtBusiness[i], values[static_cast<size_t>(i)]);
    form.cmdQuit.Click();
    EXPECT_EQ(Read("MyBusinessData.txt"), BusinessLine(values));
    EXPECT_EQ(BusinessData[8], "ABN - 123456789");
    // The style the user chose stands after the save.
    EXPECT_EQ(form.cmdAddress.Caption(), "USA Style Address");

    frmSetup& again = Reopen();
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(again.txtBusiness[i].Text(), values[static_cast<size_t>(i)]);
    EXPECT_EQ(again.txtBusiness[8].Text(), "");
    EXPECT_EQ(BusinessData[8], "ABN - 123456789");
    EXPECT_EQ(again.cmdAddress.Caption(), "USA Style Address");

    // Leaving again without typing it loses the extra line.
    again.cmdQuit.Click();
    EXPECT_EQ(Read("MyBusinessData.txt"),
              BusinessLine({"Acme Builders", "1 Main St", "Suite 2", "Springfield", "IL", "62701",
                            "217-555-0100", "217-555-0101", ""}));
}

TEST_F(BusinessTest, TheAddressStyleAtLoadFollowsTheZip) {
    struct Case {
        std::vector<std::string> data;
        const char* style;
    };
    const Case cases[] = {
        {{"Acme", "", "", "Springfield", "IL", "62701"}, "USA Style Address"},
        {{"Acme", "", "", "Sydney", "NSW", "2000 NSW"}, "USA Style Address"},
        {{"Acme", "", "", "London"}, "International Style Address"},
        {{"", "", "", "", "", ""}, "USA Style Address"},
        {{"", "", "", "", "", "62701"}, "USA Style Address"},
    };
    for (const Case& c : cases) {
        folder.Write("MyBusinessData.txt", BusinessLine(c.data));
        frmSetup& form = Reopen();
        EXPECT_EQ(form.cmdAddress.Caption(), c.style) << c.data[0] << "/" << c.data[5];
    }
}

TEST_F(BusinessTest, TheStyleFlipChangesTheAddressBoxes) {
    folder.Write("MyBusinessData.txt",
                 BusinessLine({"Acme", "", "", "Springfield", "IL", "62701"}));
    frmSetup& form = Open();
    ASSERT_EQ(form.cmdAddress.Caption(), "USA Style Address");
    EXPECT_TRUE(form.lblPostal.Visible());
    EXPECT_EQ(form.lblAddress[3].Caption(), "City");
    EXPECT_EQ(form.lblAddress[4].Caption(), "State");
    EXPECT_EQ(form.txtBusiness[4].MaxLength(), 2);
    EXPECT_EQ(form.txtBusiness[5].Text(), "62701");

    form.cmdAddress.Click();
    EXPECT_EQ(form.cmdAddress.Caption(), "International Style Address");
    EXPECT_FALSE(form.lblPostal.Visible());
    EXPECT_EQ(form.lblAddress[3].Caption(), "Address 3");
    EXPECT_EQ(form.lblAddress[4].Caption(), "Address 4");
    EXPECT_FALSE(form.lblAddress[5].Visible());
    EXPECT_FALSE(form.txtBusiness[5].Visible());
    EXPECT_EQ(form.txtBusiness[5].Text(), "");
    EXPECT_EQ(form.txtBusiness[4].MaxLength(), 55);
    EXPECT_GT(form.txtBusiness[4].Width(), 2000);

    // Back to USA: the zip comes back from memory.
    form.cmdAddress.Click();
    EXPECT_EQ(form.txtBusiness[5].Text(), "62701");
    EXPECT_TRUE(form.txtBusiness[5].Visible());
}

TEST_F(BusinessTest, ClearAndReloadTheBusinessData) {
    folder.Write("MyBusinessData.txt", BusinessLine({"Acme", "1 Main St"}));
    frmSetup& form = Open();
    folder.Ui().QueueAnswer(vbNo);
    form.Image4.Raise("Click");
    EXPECT_EQ(Boxes().back().title, "Reset Business Data");
    EXPECT_EQ(Boxes().back().prompt, "Do you want to reset (clear)all Business Data?");
    EXPECT_EQ(form.txtBusiness[0].Text(), "Acme");

    folder.Ui().QueueAnswer(vbYes);
    form.Image4.Raise("Click");
    EXPECT_EQ(form.txtBusiness[0].Text(), "");
    EXPECT_EQ(form.txtBusiness[1].Text(), "");
    EXPECT_TRUE(form.txtBusiness[0].HasFocus());
    EXPECT_EQ(Read("MyBusinessData.txt"), BusinessLine({"Acme", "1 Main St"}));

    form.Image5.Raise("Click");
    EXPECT_EQ(form.txtBusiness[0].Text(), "Acme");
}

TEST_F(BusinessTest, PrintSettingsDefaultsAndChanges) {
    frmSetup& form = Open();
    EXPECT_EQ(form.txtBorders.BackColor(), 0);
    EXPECT_EQ(form.txtData.BackColor(), 0);
    EXPECT_EQ(form.lblFont.Caption(), "Arial");
    EXPECT_EQ(form.ckColor.Value(), 1);
    ASSERT_EQ(form.cboCopies.ListCount(), 5);
    EXPECT_EQ(form.cboCopies.Text(), "3");
    EXPECT_TRUE(PrintInColor);
    EXPECT_EQ(PrintCopies, 3);
    EXPECT_EQ(platform::SharedDialog().Copies, 3);

    form.tabSetup.SetTab(frmSetup::kOperationsTab);
    form.SSTab1.SetTab(frmSetup::kPrintingPage);
    platform::QueuedDialogs().QueueColor(255);
    form.cmdChange[1].Click();
    EXPECT_EQ(form.txtBorders.BackColor(), 255);
    platform::QueuedDialogs().QueueCancel();
    form.cmdChange[2].Click();
    EXPECT_EQ(form.txtData.BackColor(), 0);
    platform::QueuedDialogs().QueueFont("Times New Roman");
    form.cmdChange[3].Click();
    EXPECT_EQ(form.lblFont.Caption(), "Times New Roman");
    form.ckColor.SetValue(0);
    EXPECT_FALSE(PrintInColor);
    form.cboCopies.SetListIndex(0);
    EXPECT_EQ(PrintCopies, 1);

    form.cmdQuit.Click();
    EXPECT_EQ(Read("PrintColors.txt"), "255\r\n0\r\n\"Times New Roman\"\r\n#FALSE#\r\n1\r\n");

    frmSetup& again = Reopen();
    EXPECT_EQ(again.txtBorders.BackColor(), 255);
    EXPECT_EQ(again.lblFont.Caption(), "Times New Roman");
    EXPECT_EQ(again.ckColor.Value(), 0);
    EXPECT_EQ(again.cboCopies.Text(), "1");
    EXPECT_FALSE(PrintInColor);
}

TEST_F(BusinessTest, LogoSizesAreReadBackWithinLimits) {
    folder.Write("LogoSettings.txt", "2880,1200.4\r\n");
    frmSetup& form = Open();
    EXPECT_EQ(form.Image3.Width(), 1440);
    EXPECT_EQ(form.Image3.Height(), 1200);

    // With no file both are 1440, and nothing is written while there is no picture.
    std::filesystem::remove(folder.Path() / "LogoSettings.txt");
    frmSetup& again = Reopen();
    EXPECT_EQ(again.Image3.Width(), 1440);
    EXPECT_EQ(again.Image3.Height(), 1440);
    EXPECT_FALSE(Exists("LogoSettings.txt"));
}

TEST_F(BusinessTest, LogoSpinnersStepAndWrapAround) {
    EXPECT_EQ(StepLogoSize(1440, true), 1490);
    EXPECT_EQ(StepLogoSize(1780, true), 1800);
    EXPECT_EQ(StepLogoSize(1800, true), 360);
    EXPECT_EQ(StepLogoSize(2000, true), 360);
    EXPECT_EQ(StepLogoSize(400, false), 360);
    EXPECT_EQ(StepLogoSize(360, false), 1800);
    EXPECT_EQ(StepLogoSize(200, false), 1800);

    frmSetup& form = Open();
    form.UpDown2.UserUp();
    EXPECT_EQ(form.Image3.Width(), 1490);
    form.UpDown3.UserDown();
    EXPECT_EQ(form.Image3.Height(), 1390);
    form.cmdLogo[3].Click();  // square by the height
    EXPECT_EQ(form.Image3.Width(), 1390);
    form.UpDown2.UserUp();
    form.cmdLogo[4].Click();  // square by the width
    EXPECT_EQ(form.Image3.Height(), 1440);
    form.UpDown3.UserUp();
    form.cmdLogo[6].Click();
    EXPECT_EQ(form.Image3.Width(), 1440);
    EXPECT_EQ(form.Image3.Height(), 1440);
}

TEST_F(BusinessTest, AStoredLogoIsFoundAgainAndClearedOnRequest) {
    folder.Write("MyLogo.bmp", "BM picture");
    const std::string picture = (folder.Path() / "MyLogo.bmp").string();
    frmSetup& form = Open();
    EXPECT_FALSE(form.cmdLogo[1].Enabled());

    platform::QueuedDialogs().QueueFile(picture);
    form.cmdLogo[0].Click();
    EXPECT_EQ(form.Image2.Picture(), picture);
    EXPECT_EQ(form.Image3.Picture(), picture);
    ASSERT_TRUE(form.cmdLogo[1].Enabled());
    form.UpDown2.UserDown();
    form.cmdLogo[1].Click();
    EXPECT_EQ(LastBoxText(), "Your Logo has been Stored");
    EXPECT_FALSE(form.cmdLogo[1].Enabled());
    EXPECT_EQ(Read("CompanyLogo.txt"), "\"" + picture + "\"\r\n");
    EXPECT_EQ(Read("LogoSettings.txt"), "1390,1440\r\n");

    frmSetup& again = Reopen();
    EXPECT_EQ(again.Image2.Picture(), picture);
    EXPECT_EQ(again.Image3.Picture(), picture);
    EXPECT_EQ(again.Image3.Width(), 1390);

    folder.Ui().QueueAnswer(vbYes);
    again.cmdLogo[2].Click();
    EXPECT_EQ(Boxes().back().title, "Delete Logo");
    EXPECT_EQ(Boxes().back().prompt, "This will Delete your Company Logo");
    EXPECT_EQ(again.Image2.Picture(), "");
    EXPECT_EQ(again.Image3.Picture(), "");
    EXPECT_FALSE(Exists("CompanyLogo.txt"));
}

TEST_F(BusinessTest, ALogoWhosePictureIsGoneIsNoLogo) {
    folder.Write("CompanyLogo.txt", "\"C:\\\\Pictures\\\\gone.bmp\"\r\n");
    frmSetup& form = Open();
    EXPECT_EQ(form.Image2.Picture(), "");
    EXPECT_EQ(form.Image3.Picture(), "");
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(BusinessTest, PrintSampleDrawsTheLogoOnAPage) {
    folder.Write("MyLogo.bmp", "BM picture");
    const std::string picture = (folder.Path() / "MyLogo.bmp").string();
    frmSetup& form = Open();
    platform::QueuedDialogs().QueueFile(picture);
    form.cmdLogo[0].Click();

    platform::QueuedDialogs().QueuePrinter();
    form.cmdLogo[5].Click();
    const auto& documents = platform::RecordingPrinter().Documents();
    ASSERT_EQ(documents.size(), 1u);
    ASSERT_EQ(documents[0].pages.size(), 1u);
    bool found = false;
    for (const auto& op : documents[0].pages[0].operations) {
        if (op.kind != platform::PrintOperation::Kind::Picture) continue;
        found = true;
        EXPECT_EQ(op.text, picture);
        EXPECT_DOUBLE_EQ(op.x, (12240 - 1440) / 2.0);
    }
    EXPECT_TRUE(found);

    // A cancelled printer dialogue prints nothing and says nothing.
    platform::QueuedDialogs().QueueCancel();
    form.cmdLogo[5].Click();
    EXPECT_EQ(platform::RecordingPrinter().Documents().size(), 1u);
    EXPECT_TRUE(Boxes().empty());
}

}  // namespace
