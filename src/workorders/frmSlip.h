#pragma once

#include "platform/ControlArray.h"
#include "platform/Form.h"
#include "platform/RecordLayout.h"

// "Service Attention Slip": what the record behind a cell of the team schedule says, from
// Slips.txt, Meetings.txt or ProjectRecords.txt as the schedule chose in LookupFile.
class frmSlip : public platform::Form {
  public:
    static constexpr const char* kName = "frmSlip";
    frmSlip();

    platform::Label lblServiceSlip{*this, "lblServiceSlip"};
    platform::Label lblName{*this, "lblName"};
    platform::Label lblStreet{*this, "lblStreet"};
    platform::Label lblApt{*this, "lblApt"};
    platform::Label lblCity{*this, "lblCity"};
    platform::Label lblState{*this, "lblState"};
    platform::Label lblZip{*this, "lblZip"};
    platform::Label lblTelephone{*this, "lblTelephone"};
    platform::Label lblAccount{*this, "lblAccount"};
    platform::Label lblDuration{*this, "lblDuration"};
    platform::Label lblTime{*this, "lblTime"};
    platform::Label lblDate{*this, "lblDate"};
    platform::Label lblProblem{*this, "lblProblem"};
    platform::Label lblAssignto{*this, "lblAssignto"};
    // Headings beside the labels of the record.
    platform::ControlArray<platform::Label, 13> lblHeading{*this, "lblHeading"};
    platform::Frame fraDial{*this, "fraDial"};
    platform::Image imgDialer{*this, "imgDialer"};
    platform::CommandButton cmdAttn{*this, "cmdAttn"};

    void Form_Activate();
    void Form_QueryUnload(platform::EventArgs& e);
    void cmdAttn_Click();
    void imgDialer_Click();

    void ReadCallSlip();
    void LoadRecData(const platform::Record& slip);
    void ClearSlip();
};
