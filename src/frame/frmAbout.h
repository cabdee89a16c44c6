#pragma once

#include "platform/Form.h"

class frmAbout : public platform::Form {
  public:
    static constexpr const char* kName = "frmAbout";
    frmAbout();

    platform::Label lblTitle{*this, "lblTitle"};
    platform::Label lblVersion{*this, "lblVersion"};
    platform::Label lblDescription{*this, "lblDescription"};
    platform::Image imgIcon{*this, "imgIcon"};
    platform::CommandButton cmdVisit{*this, "cmdVisit"};
    platform::CommandButton cmdOK{*this, "cmdOK"};

    void Form_QueryUnload(platform::EventArgs& e);
    void cmdVisit_Click();
    void cmdOK_Click();
};
