// The modem probe at start-up: the dialogue with the modem, the texts it leaves on the
// dialler and the phone page, and the phone files around it.
#include <string>
#include <vector>

#include "platform/SerialPort.h"
#include "platform/headless/SimulatedSerial.h"
#include "setup/PhoneOptionRoutines.h"
#include "setup/SetupFixture.h"
#include "store/SharedState.h"
#include "telephony/ModemRoutines.h"
#include "telephony/frmDialer.h"

using namespace platform;

namespace {

// The customer screen as far as the probe touches it.
class CustomerScreen : public Form {
  public:
    CustomerScreen() : Form("frmCustomer") {}
    Image imgDialer{*this, "imgDialer"};
};

class ModemProbeTest : public SetupTest {
  protected:
    ModemProbeTest() {
        SimulatedLines().Reset();
        SharedSerialPort().Reset();
        ResetSharedState();
        ProbeModemHook = [] { StartModem(); };
    }
    ~ModemProbeTest() override {
        SimulatedLines().Reset();
        SharedSerialPort().Reset();
    }

    // The start-up loads the set-up screen hidden; its load runs the phone options.
    frmSetup& Start() {
        frmDialer& dialer = Screen<frmDialer>();
        dialer.On("Text1.Change",
                  [this, &dialer](EventArgs&) { dialerTexts.push_back(dialer.Text1.Text()); });
        LoadAssignments();
        frmSetup& form = Screen<frmSetup>();
        form.Load();
        return form;
    }

    std::string Heard() { return SimulatedLines().Modem()->Heard(); }

    std::vector<std::string> dialerTexts;
    SerialPort& port = SharedSerialPort();
};

}  // namespace

TEST_F(ModemProbeTest, NoModemDisablesThePhoneOptionsAndShowsThePortCountRunOut) {
    Forms::RegisterFactory("frmCustomer", [] { return std::make_unique<CustomerScreen>(); });
    auto& customer = static_cast<CustomerScreen&>(Forms::Get("frmCustomer"));
    ModemPort = 0;
    frmSetup& form = Start();

    // The words of "not detected" are overwritten at once by the port line.
    const std::vector<std::string> texts = {"Modem Not Detected Or In Use.",
                                            "Your Modem Comm Port Is 17."};
    EXPECT_EQ(dialerTexts, texts);
    frmDialer& dialer = Screen<frmDialer>();
    EXPECT_EQ(dialer.Label2[3].Caption(), "COM Port # 17");
    EXPECT_EQ(form.txtModemPort.Text(), "17");
    EXPECT_EQ(ModemPort, 0);
    EXPECT_FALSE(customer.imgDialer.Visible());
    EXPECT_EQ(form.ckPhone.Value(), 0);
    EXPECT_FALSE(PhoneConnected);
    EXPECT_EQ(form.ckCallerID.Value(), 1);
    EXPECT_FALSE(form.SSTab1.TabEnabled(frmSetup::kPhonePage));
    // The caller-ID option shows the label again whatever the probe did.
    EXPECT_TRUE(form.lblCallid.Visible());
    EXPECT_FALSE(CallerIDEnabled);
    EXPECT_FALSE(port.PortOpen());
    EXPECT_FALSE(Exists("CallID.txt"));
    EXPECT_TRUE(dialer.IsLoaded());
    EXPECT_FALSE(dialer.Visible());
}

TEST_F(ModemProbeTest, AModemOnPort3IsFoundAskedForCallerIdAndLeftOpen) {
    SimulatedLines().PlaceModem(3);
    frmSetup& form = Start();

    EXPECT_EQ(Heard(), "AT\rAT#CID=1\r");
    EXPECT_EQ(ModemPort, 3);
    EXPECT_TRUE(port.PortOpen());
    EXPECT_EQ(port.CommPort(), 3);
    EXPECT_EQ(&Screen<frmDialer>().MSComm1, &port);
    EXPECT_EQ(dialerTexts, std::vector<std::string>{"Your Modem Comm Port Is 3."});
    EXPECT_EQ(Screen<frmDialer>().Label2[3].Caption(), "COM Port # 3");
    EXPECT_EQ(form.txtModemPort.Text(), "3");
    EXPECT_TRUE(form.SSTab1.TabEnabled(frmSetup::kPhonePage));
    // No Phone.txt yet: the phone box stays clear.
    EXPECT_EQ(form.ckPhone.Value(), 0);
    EXPECT_FALSE(PhoneConnected);
    // The modem took caller ID: the monitor is offered from this start on.
    EXPECT_EQ(Read("CallID.txt"), "#TRUE#\r\n");
    EXPECT_TRUE(CallerIDEnabled);
}

TEST_F(ModemProbeTest, TheLastPortIsStillFound) {
    SimulatedLines().PlaceModem(16);
    frmSetup& form = Start();
    EXPECT_EQ(ModemPort, 16);
    EXPECT_EQ(form.txtModemPort.Text(), "16");
    EXPECT_TRUE(port.PortOpen());
}

TEST_F(ModemProbeTest, PhoneTxtNamingAnotherPortWinsInMemoryOnly) {
    folder.Write("Phone.txt", "#TRUE#\r\n5\r\n");
    SimulatedLines().PlaceModem(3);
    frmSetup& form = Start();

    EXPECT_EQ(ModemPort, 5);
    EXPECT_TRUE(PhoneConnected);
    EXPECT_EQ(form.ckPhone.Value(), 1);
    // The port object and the page keep the port the probe found.
    EXPECT_EQ(form.txtModemPort.Text(), "3");
    EXPECT_EQ(port.CommPort(), 3);
    EXPECT_TRUE(port.PortOpen());

    SavePhoneOptions(form);
    EXPECT_EQ(Read("Phone.txt"), "#TRUE#\r\n5\r\n");
    EXPECT_EQ(Read("CallID.txt"), "#TRUE#\r\n");
}

TEST_F(ModemProbeTest, AModemWithoutCallerIdLeavesTheMonitorHidden) {
    SimulatedLines().PlaceModem(2, false);
    Start();
    EXPECT_EQ(Heard(), "AT\rAT#CID=1\r");
    EXPECT_EQ(ModemPort, 2);
    EXPECT_FALSE(Exists("CallID.txt"));
    EXPECT_FALSE(CallerIDEnabled);
}

TEST_F(ModemProbeTest, AModemTakingCallerIdOffersTheMonitorUnlessTheUserSaidNo) {
    SimulatedLines().PlaceModem(4);
    Start();
    EXPECT_EQ(Read("CallID.txt"), "#TRUE#\r\n");
    EXPECT_TRUE(CallerIDEnabled);

    // The next start, after the user switched the monitor off.
    folder.Write("CallID.txt", "#FALSE#\r\n");
    Forms::Reset();
    SharedSerialPort().Reset();
    ResetSharedState();
    Start();
    EXPECT_EQ(Read("CallID.txt"), "#FALSE#\r\n");
    EXPECT_FALSE(CallerIDEnabled);
}

TEST_F(ModemProbeTest, WithNoModemTheStoredCallerIdFlagStandsAsItIs) {
    folder.Write("CallID.txt", "#TRUE#\r\n");
    folder.Write("Phone.txt", "#TRUE#\r\n3\r\n");
    frmSetup& form = Start();
    EXPECT_TRUE(CallerIDEnabled);
    EXPECT_EQ(Read("CallID.txt"), "#TRUE#\r\n");
    // Phone.txt is read after the probe disabled the options, and checks the box again.
    EXPECT_TRUE(PhoneConnected);
    EXPECT_EQ(form.ckPhone.Value(), 1);
    EXPECT_EQ(ModemPort, 3);
    EXPECT_EQ(form.txtModemPort.Text(), "17");
}
