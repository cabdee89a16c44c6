#pragma once

#include <string>
#include <vector>

#include "platform/SerialPort.h"
#include "platform/headless/SimulatedSerial.h"
#include "setup/SetupFixture.h"
#include "store/SharedState.h"
#include "telephony/ModemRoutines.h"
#include "telephony/frmCallBack.h"
#include "telephony/frmCallID.h"
#include "telephony/frmDialer.h"

namespace telephony_tests {

// One customer record of 328 bytes with its land line and cell number, as the customer
// screen writes them.
inline std::string CustomerBytes(const std::string& account, const std::string& telephone,
                                 const std::string& cell) {
    std::string record(328, ' ');
    record.replace(0, account.size(), account);
    record.replace(207, telephone.size(), telephone);
    record.replace(220, cell.size(), cell);
    record.replace(324, 4, std::string(4, '\0'));
    return record;
}

// A modem on port 3, the program started on it (the probe, then the set-up screen hidden),
// and the telephony screens registered as the program has them.
class TelephonyTest : public SetupTest {
  protected:
    TelephonyTest() {
        platform::SimulatedLines().Reset();
        platform::SharedSerialPort().Reset();
        ResetSharedState();
        ProbeModemHook = [] { StartModem(); };
        platform::Forms::RegisterFactory(frmDialer::kName,
                                         [] { return std::make_unique<frmDialer>(); });
        platform::Forms::RegisterFactory(frmCallID::kName,
                                         [] { return std::make_unique<frmCallID>(); });
        platform::Forms::RegisterFactory(frmCallBack::kName,
                                         [] { return std::make_unique<frmCallBack>(); });
    }
    ~TelephonyTest() override {
        folder.Ui().SetDoEventsHook(nullptr);
        platform::SimulatedLines().Reset();
        platform::SharedSerialPort().Reset();
    }

    void Start(bool callerIdModem = true) {
        platform::SimulatedLines().PlaceModem(3, callerIdModem);
        LoadAssignments();
        platform::Screen<frmSetup>().Load();
        ForgetHeard();
    }

    // The monitor shown from the main menu, past its wait for the modem's "OK".
    frmCallID& OpenMonitor() {
        frmCallID& monitor = platform::Screen<frmCallID>();
        monitor.Show();
        monitor.tmrMain.Tick();
        return monitor;
    }

    std::string Heard() { return platform::SimulatedLines().Modem()->Heard(); }
    void ForgetHeard() { platform::SimulatedLines().Modem()->ForgetHeard(); }
    void Answer(int answer) { folder.Ui().QueueAnswer(answer); }

    platform::SerialPort& port = platform::SharedSerialPort();
};

}  // namespace telephony_tests
