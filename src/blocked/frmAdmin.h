#pragma once

#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"

// "Administrative Events": the administrative milestones (those that take no team time) of all
// projects within a date range, from the project tables, with a printout to tick them off.
// Writes nothing.
class frmAdmin : public platform::Form {
  public:
    static constexpr const char* kName = "frmAdmin";
    frmAdmin();

    platform::Grid fgAdminSchedule{*this, "fgAdminSchedule"};
    platform::Label lblStart{*this, "lblStart"};
    platform::DatePicker DTStart{*this, "DTStart"};
    platform::Label lblEnd{*this, "lblEnd"};
    platform::DatePicker DTEnd{*this, "DTEnd"};
    // Elements 3 "&Load Grid", 5 "Next Year", 6 " Next Month" and 7 "Next Qtr".
    platform::ControlArray<platform::CommandButton, 8> cmdWeekly{*this, "cmdWeekly"};
    // Element 0 "&Menu", 1 "&Print".
    platform::ControlArray<platform::CommandButton, 2> cmdAdmin{*this, "cmdAdmin"};

    void Form_Load();
    void Form_Activate();
    void Form_QueryUnload(platform::EventArgs& e);
    void cmdWeekly_Click(int index);
    void cmdAdmin_Click(int index);
    void DTEnd_Change();

    void ResetAdminDates();
    void ClearAdminGrid();
    void LoadAdminEvents();
    void PrintAdminEvents();
    void PrintAdminHeader();
    void PrintAdminRows();
};
