#pragma once

#include "platform/ControlArray.h"
#include "platform/Form.h"
#include "platform/SerialPort.h"

// The dialler. It holds the program's serial port as MSComm1: every screen that talks to
// the modem goes through that one port object, which outlives this screen and all others.
// The modem probe at start-up writes the port it found into Text1 and Label2(3).
class frmDialer : public platform::Form {
  public:
    static constexpr const char* kName = "frmDialer";
    frmDialer();

    platform::SerialPort& MSComm1 = platform::SharedSerialPort();

    platform::TextBox Text1{*this, "Text1"};
    platform::ControlArray<platform::Label, 4> Label2{*this, "Label2"};
};
