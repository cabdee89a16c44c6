#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/ControlArray.h"
#include "platform/Form.h"
#include "platform/SerialPort.h"

// The dialler. It holds the program's serial port as MSComm1: every screen that talks to
// the modem goes through that one port object, which outlives this screen and all others.
// The modem probe at start-up writes the port it found into Text1 and Label2(3).
//
// Other screens put a name into lblName and a number into lblNumber and show it modally
// (ShowDialer). The modem dials and stays off the hook in command state, the user picks up
// the receiver, and hanging up lets the line go and closes the screen. Ten speed numbers are
// kept in SpeedNumbers.txt.
class frmDialer : public platform::Form {
  public:
    static constexpr const char* kName = "frmDialer";
    static constexpr int kSpeedPlaces = 10;
    frmDialer();

    platform::SerialPort& MSComm1 = platform::SharedSerialPort();

    platform::TextBox Text1{*this, "Text1"};
    platform::ControlArray<platform::Label, 4> Label2{*this, "Label2"};
    platform::Label lblName{*this, "lblName"};
    platform::Label lblNumber{*this, "lblNumber"};
    platform::Label lblStatus{*this, "lblStatus"};
    platform::CheckBox ckDial1{*this, "ckDial1"};
    platform::CommandButton cmdNewDial{*this, "cmdNewDial"};
    platform::CommandButton cmdCancel{*this, "cmdCancel"};
    platform::CommandButton cmdHangup{*this, "cmdHangup"};
    platform::CommandButton cmdHelp{*this, "cmdHelp"};
    platform::Image Image2{*this, "Image2"};
    platform::ControlArray<platform::CommandButton, kSpeedPlaces> cmdDialer{*this, "cmdDialer"};
    platform::ControlArray<platform::CommandButton, 5> cmdSpeedDialer{*this, "cmdSpeedDialer"};
    platform::Frame fraSpeedDial{*this, "fraSpeedDial"};
    platform::ControlArray<platform::Label, 2> Label3{*this, "Label3"};
    platform::ControlArray<platform::TextBox, 2> txtDialer{*this, "txtDialer"};
    platform::Frame fraHelp{*this, "fraHelp"};
    platform::Label lblHelp{*this, "lblHelp"};

    void Form_Activate();
    void Form_QueryUnload(platform::EventArgs& e);
    void cmdDialer_Click(int index);
    void cmdSpeedDialer_Click(int index);
    void ckDial1_Click();
    void cmdNewDial_Click();
    void cmdCancel_Click();
    void cmdHangup_Click();
    void cmdHelp_Click();

    // The speed places, 0 to 9; cmdDialer(i) shows SpeedNames[i].
    std::array<std::string, kSpeedPlaces> SpeedNames;
    std::array<std::string, kSpeedPlaces> SpeedNumbers;
    std::uint8_t SpeedIndex = 0;
    // The labels as they stood at the last click on a speed place.
    std::string SavedName, SavedNumber;
    // Set to leave the wait for the modem's answer to the dialling.
    bool DialCancelled = false;
    std::string ModemReply;

  private:
    void ResetDialer();
    void LoadSpeedNumbers();
    void SaveSpeedNumbers();
    void CancelDial();
};
