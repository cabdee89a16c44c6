#pragma once

#include <cstdint>

#include "platform/ControlArray.h"
#include "platform/Form.h"

// Reminder calls: the service slips of a date range, from Slips.txt, so that the office can
// ring the accounts concerned through the dialler. Reads the file and writes nothing.
class frmCallBack : public platform::Form {
  public:
    static constexpr const char* kName = "frmCallBack";
    frmCallBack();

    platform::ControlArray<platform::Label, 2> Label1{*this, "Label1"};
    platform::DatePicker DTStarting{*this, "DTStarting"};
    platform::DatePicker DTEnding{*this, "DTEnding"};
    // Elements 3, 5, 6 and 7 are the screen's buttons; the others are not shown.
    platform::ControlArray<platform::CommandButton, 8> cmdWeekly{*this, "cmdWeekly"};
    platform::Grid fgTomorrow{*this, "fgTomorrow"};
    platform::Image Image2{*this, "Image2"};
    platform::CommandButton cmdTomorrow{*this, "cmdTomorrow"};

    void Form_Activate();
    void Form_QueryUnload(platform::EventArgs& e);
    void cmdWeekly_Click(int index);
    void fgTomorrow_Click();
    void Image2_Click();
    void cmdTomorrow_Click();

    // Records in Slips.txt, and the next free row of the grid.
    std::int16_t n = 0;
    int row = 0;

    void LoadGrid();

  private:
    void ClearGrid();
};
