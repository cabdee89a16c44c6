#pragma once

#include <cstdint>
#include <string>

#include "platform/ControlArray.h"
#include "platform/Form.h"

// Unattended call monitoring. While the screen is active the modem reports callers, and
// tmrMain polls it once a second: a block of caller data (28 bytes or more gathered since
// the last look) becomes a call in the list and in TelCall.txt, counted as a customer's call
// when its number is a customer's telephone or cell number. The timer is the screen's state
// machine: 1500 ms waits for the modem's "OK" to caller ID, 1000 ms polls, and it is off
// while a tick is at work.
class frmCallID : public platform::Form {
  public:
    static constexpr const char* kName = "frmCallID";
    frmCallID();

    platform::Timer tmrMain{*this, "tmrMain"};
    platform::Image imgLogo{*this, "imgLogo"};
    platform::Image Image1{*this, "Image1"};
    platform::Frame fraCall{*this, "fraCall"};
    platform::Label lblName{*this, "lblName"};
    platform::Label lblNumber{*this, "lblNumber"};
    platform::Label lblTime{*this, "lblTime"};
    platform::UpDown updnCalls{*this, "updnCalls"};
    platform::ControlArray<platform::Label, 4> Label1{*this, "Label1"};
    platform::ControlArray<platform::Label, 4> lblCount{*this, "lblCount"};
    platform::Frame fraSummary{*this, "fraSummary"};
    platform::Grid fgCallSummary{*this, "fgCallSummary"};
    platform::CommandButton cmdDial{*this, "cmdDial"};
    platform::CommandButton cmdClear{*this, "cmdClear"};
    platform::CommandButton cmdExit{*this, "cmdExit"};
    // Every customer's numbers, one row a record, for the match of a caller's number.
    platform::ListBox lstCustomerTel{*this, "lstCustomerTel"};
    platform::ListBox lstCustomerCell{*this, "lstCustomerCell"};
    platform::Menu mnuSummary{*this, "mnuSummary"};

    void Form_Load();
    void Form_Activate();
    void Form_Deactivate();
    void Form_QueryUnload(platform::EventArgs& e);
    void tmrMain_Timer();
    void updnCalls_UpClick();
    void updnCalls_DownClick();
    void cmdDial_Click();
    void Image1_Click();
    void imgLogo_Click();
    void mnuSummary_Click();
    void cmdClear_Click();
    void cmdExit_Click();

    // Rows of the call list: the records of TelCall.txt.
    std::int32_t CallCount = 0;
    // Calls since the last reset, by whether the number is a customer's.
    std::int16_t CustomerCalls = 0;
    std::int16_t OtherCalls = 0;
    // What was last read from the modem.
    std::string ModemBuffer;

    void ResetDisplay();

  private:
    std::int32_t StoredCalls();
    void OpenCallerPort();
    void StartCallerID();
    void FlushModemInput();
    void ProcessCall();
    void LoadCustomerNumbers();
    void ShowSelectedCall();
    void WriteCallRecord(std::int32_t recordNumber);
    void CountCaller(const std::string& display);
};
