#include "telephony/ModemRoutines.h"

#include <string>

#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/RuntimeError.h"
#include "platform/SerialPort.h"
#include "platform/Ui.h"
#include "setup/PhoneOptionRoutines.h"
#include "setup/ScreenLinks.h"
#include "setup/frmSetup.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"
#include "telephony/PortErrors.h"
#include "telephony/frmDialer.h"

using namespace platform;

namespace {

// A modem answers "AT" with at least its echo or "OK".
constexpr int kAnswerBytes = 2;

}  // namespace

bool ProbeModem() {
    frmDialer& dialer = Screen<frmDialer>();
    dialer.Load();
    SerialPort& port = dialer.MSComm1;
    int probed = kFirstCommPort;
    for (; probed <= kLastCommPort; ++probed) {
        IgnoringPortErrors([&] { port.SetCommPort(probed); });
        if (port.PortOpen()) continue;
        IgnoringPortErrors([&] { port.SetPortOpen(true); });
        IgnoringPortErrors([&] { port.Output("AT\r"); });
        // One pass of the event loop, no timed wait, gives the modem its moment to answer.
        DoEvents();
        if (port.InBufferCount() >= kAnswerBytes) break;
        IgnoringPortErrors([&] { port.SetPortOpen(false); });
    }
    const bool found = probed <= kLastCommPort;
    if (!found) {
        dialer.Text1.SetText("Modem Not Detected Or In Use.");
        DisablePhoneOptions();
    } else {
        IgnoringPortErrors([&] { port.SetPortOpen(false); });
        ModemPort = static_cast<std::int16_t>(probed);
    }
    // After a loop run to its end the count stands one past the last port, and so it is shown.
    const std::string shown = std::to_string(probed);
    IgnoringPortErrors([&] { port.SetCommPort(ModemPort); });
    dialer.Text1.SetText("Your Modem Comm Port Is " + shown + ".");
    dialer.Label2[3].SetCaption("COM Port # " + shown);
    Screen<frmSetup>().txtModemPort.SetText(shown);
    if (!port.PortOpen()) IgnoringPortErrors([&] { port.SetPortOpen(true); });
    IgnoringPortErrors([&] { port.SetInBufferCount(0); });
    IgnoringPortErrors([&] { port.Output("AT#CID=1\r"); });
    return found;
}

void DisablePhoneOptions() {
    if (Control* dialerImage = ControlOnScreen("frmCustomer", "imgDialer"))
        dialerImage->SetVisible(false);
    frmSetup& setup = Screen<frmSetup>();
    setup.ckPhone.SetValue(0);
    PhoneConnected = false;
    setup.lblCallid.SetVisible(false);
    // Checked here, against the sense of the others.
    setup.ckCallerID.SetValue(1);
    setup.SSTab1.SetTabEnabled(frmSetup::kPhonePage, false);
}

void EnableCallerIDIfAnswered() {
    SerialPort& port = SharedSerialPort();
    std::string answer;
    DoEvents();
    IgnoringPortErrors([&] { answer = port.Input(); });
    if (answer.find("OK") == std::string::npos) return;
    // Only a program that has never stored the option gets it from the modem: a stored choice,
    // True or False, is the user's.
    bool stored = false;
    if (ReadCallerIDOption(stored)) return;
    CallerIDEnabled = true;
    SaveCallerIDOption();
}

void StartModem() {
    if (ProbeModem()) EnableCallerIDIfAnswered();
}
