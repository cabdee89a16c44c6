#pragma once

#include "platform/Form.h"

// Shown instead of the main menu until set-up has been completed; its only way on is set-up.
class frmWelcome : public platform::Form {
  public:
    static constexpr const char* kName = "frmWelcome";
    frmWelcome();

    platform::Label lblWelcome{*this, "lblWelcome"};
    platform::Label lblInstructions{*this, "lblInstructions"};
    platform::CommandButton cmdSetup{*this, "cmdSetup"};

    void cmdSetup_Click();
    void Form_QueryUnload(platform::EventArgs& e);
};
