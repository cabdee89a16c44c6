// The dialler: the modem dialogue of a call, the wait that the user can always end, the
// prefix, and the ten speed numbers with SpeedNumbers.txt byte for byte.
#include "TelephonyFixture.h"
#include "telephony/DialerLink.h"

namespace telephony_tests {
namespace {

using platform::vbNo;
using platform::vbYes;

class DialerTest : public TelephonyTest {
  protected:
    frmDialer& Open(const std::string& name = "Smith Roofing",
                    const std::string& number = "217-555-0100") {
        EXPECT_TRUE(ShowDialer(name, number));
        frmDialer& dialer = platform::Screen<frmDialer>();
        EXPECT_TRUE(dialer.Visible());
        return dialer;
    }
    std::vector<std::string> Captions(frmDialer& dialer) {
        std::vector<std::string> out;
        for (int i = 0; i < frmDialer::kSpeedPlaces; ++i)
            out.push_back(dialer.cmdDialer[i].Caption());
        return out;
    }
    static constexpr const char* kFourPlaces =
        "Office\r\n217-555-0111\r\nYard\r\n217-555-0122\r\nSupplier\r\n309-555-0133\r\n"
        "Inspector\r\n309-555-0144\r\n";
};

TEST_F(DialerTest, DialsTheNumberAsItStandsWaitsForOkAndHangsUp) {
    Start();
    frmDialer& dialer = Open();
    EXPECT_EQ(dialer.lblStatus.Caption(), "Ready to Dial......");
    EXPECT_TRUE(dialer.cmdNewDial.Visible());
    EXPECT_FALSE(dialer.cmdCancel.Visible());
    EXPECT_FALSE(dialer.cmdSpeedDialer[2].Enabled());

    dialer.cmdNewDial.Click();
    EXPECT_EQ(Heard(), "ATDT217-555-0100;\r");
    EXPECT_EQ(dialer.lblStatus.Caption(), "Pickup Receiver - Then Click Hangup");
    EXPECT_FALSE(dialer.cmdNewDial.Visible());
    EXPECT_TRUE(dialer.cmdCancel.Visible());
    EXPECT_TRUE(platform::SimulatedLines().Modem()->OffHook());

    // The user has picked up the receiver: the modem lets go, the port closes.
    dialer.cmdCancel.Click();
    EXPECT_EQ(Heard(), "ATDT217-555-0100;\rATH\r");
    EXPECT_FALSE(port.PortOpen());
    EXPECT_FALSE(dialer.IsLoaded());
}

TEST_F(DialerTest, TheWaitForAModemThatNeverAnswersEndsWithTheHangUp) {
    Start();
    frmDialer& dialer = Open();
    platform::SimulatedLines().RemoveModem();
    int passes = 0;
    std::string statusWhileWaiting;
    // The screen keeps answering while it waits; the third pass brings the user's click.
    folder.Ui().SetDoEventsHook([&] {
        if (++passes != 3) return;
        statusWhileWaiting = dialer.lblStatus.Caption();
        dialer.cmdHangup.Click();
    });
    dialer.cmdNewDial.Click();
    EXPECT_EQ(passes, 3);
    EXPECT_EQ(statusWhileWaiting, "Dialing..... 217-555-0100");
    EXPECT_FALSE(dialer.IsLoaded());
    EXPECT_FALSE(port.PortOpen());
}

TEST_F(DialerTest, ThePrefixComesAndGoesWithTheBox) {
    Start();
    frmDialer& dialer = Open();
    dialer.ckDial1.SetValue(1);
    EXPECT_EQ(dialer.lblNumber.Caption(), "1-217-555-0100");
    dialer.ckDial1.SetValue(0);
    EXPECT_EQ(dialer.lblNumber.Caption(), "217-555-0100");
    dialer.ckDial1.SetValue(1);
    dialer.cmdNewDial.Click();
    EXPECT_EQ(Heard(), "ATDT1-217-555-0100;\r");
}

TEST_F(DialerTest, AnEmptyPlaceTakesANewSpeedNumber) {
    Start();
    frmDialer& dialer = Open();
    EXPECT_EQ(Captions(dialer), std::vector<std::string>(10));
    dialer.cmdDialer[0].Click();
    EXPECT_TRUE(dialer.fraSpeedDial.Visible());
    TypeInto(dialer.txtDialer[0], "Office");
    TypeInto(dialer.txtDialer[1], "217-555-0111");
    dialer.cmdSpeedDialer[0].Click();
    EXPECT_EQ(Read("SpeedNumbers.txt"), "Office\r\n217-555-0111\r\n");
    EXPECT_EQ(dialer.cmdDialer[0].Caption(), "Office");
    EXPECT_FALSE(dialer.fraSpeedDial.Visible());
    EXPECT_EQ(dialer.txtDialer[0].Text(), "");

    // Cancelled, a new entry leaves the places as they were.
    dialer.cmdDialer[1].Click();
    TypeInto(dialer.txtDialer[0], "Yard");
    dialer.cmdSpeedDialer[1].Click();
    EXPECT_EQ(dialer.SpeedNames[1], "");
    EXPECT_EQ(Read("SpeedNumbers.txt"), "Office\r\n217-555-0111\r\n");

    // The one on the line goes into a place of its own.
    dialer.cmdDialer[5].Click();
    dialer.cmdSpeedDialer[4].Click();
    EXPECT_EQ(Read("SpeedNumbers.txt"),
              "Office\r\n217-555-0111\r\nSmith Roofing\r\n217-555-0100\r\n");
    EXPECT_EQ(dialer.cmdDialer[5].Caption(), "Smith Roofing");
}

TEST_F(DialerTest, ASpeedNumberIsTakenAndTheCallerRestored) {
    folder.Write("SpeedNumbers.txt", kFourPlaces);
    Start();
    frmDialer& dialer = Open();
    EXPECT_EQ(Captions(dialer)[3], "Inspector");
    dialer.cmdDialer[2].Click();
    EXPECT_EQ(dialer.lblName.Caption(), "Supplier");
    EXPECT_EQ(dialer.lblNumber.Caption(), "309-555-0133");
    EXPECT_TRUE(dialer.cmdSpeedDialer[2].Enabled());
    dialer.cmdSpeedDialer[3].Click();
    EXPECT_EQ(dialer.lblName.Caption(), "Smith Roofing");
    EXPECT_EQ(dialer.lblNumber.Caption(), "217-555-0100");
}

TEST_F(DialerTest, DeletingAPlaceAsksAndMovesTheLaterOnesUp) {
    folder.Write("SpeedNumbers.txt", kFourPlaces);
    Start();
    frmDialer& dialer = Open();
    dialer.cmdDialer[1].Click();
    Answer(vbNo);
    dialer.cmdSpeedDialer[2].Click();
    ASSERT_EQ(Boxes().size(), 1u);
    EXPECT_EQ(Boxes()[0].title, "Delete Speed Dial");
    EXPECT_EQ(Boxes()[0].prompt, "This will delete SpeedDial entry  Yard\r\nAre you Sure");
    EXPECT_FALSE(dialer.cmdSpeedDialer[2].Enabled());
    EXPECT_EQ(Read("SpeedNumbers.txt"), kFourPlaces);

    dialer.cmdDialer[1].Click();
    Answer(vbYes);
    dialer.cmdSpeedDialer[2].Click();
    EXPECT_EQ(
        Read("SpeedNumbers.txt"),
        "Office\r\n217-555-0111\r\nSupplier\r\n309-555-0133\r\nInspector\r\n309-555-0144\r\n");
    const std::vector<std::string> after = {"Office", "Supplier", "Inspector", "", "",
                                            "",       "",         "",          "", ""};
    EXPECT_EQ(Captions(dialer), after);
}

TEST_F(DialerTest, AnEntrySavedWithoutANameIsDroppedWithItsNumber) {
    folder.Write("SpeedNumbers.txt", "Office\r\n217-555-0111\r\n");
    Start();
    frmDialer& dialer = Open();
    dialer.cmdDialer[4].Click();
    TypeInto(dialer.txtDialer[1], "217-555-0999");
    dialer.cmdSpeedDialer[0].Click();
    EXPECT_EQ(Read("SpeedNumbers.txt"), "Office\r\n217-555-0111\r\n");
}

TEST_F(DialerTest, ACallersNameWithItsLineEndIsKeptOnOneLine) {
    Start();
    frmDialer& dialer = Open("SMITH JOHN\r\n", "217-555-0100");
    dialer.cmdDialer[0].Click();
    dialer.cmdSpeedDialer[4].Click();
    EXPECT_EQ(Read("SpeedNumbers.txt"), "SMITH JOHN\r\n217-555-0100\r\n");
    dialer.cmdHangup.Click();
    frmDialer& again = Open();
    EXPECT_EQ(again.cmdDialer[0].Caption(), "SMITH JOHN");
    EXPECT_EQ(again.SpeedNumbers[0], "217-555-0100");
}

TEST_F(DialerTest, EveryDialPictureReachesTheDiallerWithItsNumber) {
    Start();
    EXPECT_TRUE(ShowDialer("Lee Builders", "309-555-0142"));
    frmDialer& dialer = platform::Screen<frmDialer>();
    EXPECT_EQ(dialer.lblName.Caption(), "Lee Builders");
    EXPECT_EQ(dialer.lblNumber.Caption(), "309-555-0142");
    // The port the probe found is opened for the call.
    EXPECT_TRUE(port.PortOpen());
    EXPECT_EQ(port.CommPort(), 3);
}

}  // namespace
}  // namespace telephony_tests
