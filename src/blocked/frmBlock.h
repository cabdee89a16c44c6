#pragma once

#include <cstdint>
#include <string>

#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"

// "Holiday and Vacation Days": reserves consecutive workdays of one team or of all teams for
// a reason, or gives them back. A blocked day is a day file whose twelve slots hold the reason;
// the grid is a search of the day files, since no list of blocked days is kept.
class frmBlock : public platform::Form {
  public:
    static constexpr const char* kName = "frmBlock";
    frmBlock();

    platform::Frame fraInstructions{*this, "fraInstructions"};
    platform::Label lblInstructions{*this, "lblInstructions"};
    platform::Label lblAssignto{*this, "lblAssignto"};
    platform::ListBox lstAssignto{*this, "lstAssignto"};
    platform::Label lblReason{*this, "lblReason"};
    platform::ComboBox lstReason{*this, "lstReason"};
    platform::Label lblTimeReq{*this, "lblTimeReq"};
    platform::TextBox txtTimeReq{*this, "txtTimeReq"};
    platform::UpDown sldTimeReq{*this, "sldTimeReq"};
    platform::ControlArray<platform::OptionButton, 2> optAction{*this, "optAction"};
    platform::MonthView Calender{*this, "Calender"};
    platform::CommandButton cmdAccept{*this, "cmdAccept"};
    platform::CommandButton cmdCancel{*this, "cmdCancel"};
    platform::CommandButton cmdExit{*this, "cmdExit"};

    platform::Frame fraBlockedDays{*this, "fraBlockedDays"};
    platform::Grid FGBlocked{*this, "FGBlocked"};
    platform::Label lblStartSearch{*this, "lblStartSearch"};
    platform::DatePicker DTStartSearch{*this, "DTStartSearch"};
    platform::Label lblEndSearch{*this, "lblEndSearch"};
    platform::DatePicker DTEndSearch{*this, "DTEndSearch"};
    platform::CommandButton cmdSearch{*this, "cmdSearch"};
    platform::CommandButton cmdClearGrid{*this, "cmdClearGrid"};
    platform::CommandButton cmdHideGrid{*this, "cmdHideGrid"};

    platform::Menu mnuBlocked{*this, "mnuBlocked"};
    platform::Menu mnuCalendar{*this, "mnuCalendar"};
    platform::Menu mnuImportHolidays{*this, "mnuImportHolidays"};
    platform::Menu mnuExportSchedule{*this, "mnuExportSchedule"};

    // Form state of the day loops.
    std::int16_t BlockOk = 1;
    std::uint8_t BlockIndex = 0;
    platform::DateTime BlockStartDate;
    std::string BlockDayText;
    std::string BlockFolderPrefix;
    // The request as accepted: each team is tried with it, also after a conflict has reset
    // the screen.
    std::int16_t BlockRequestDays = 1;
    std::string BlockRequestReason;

    void Form_Load();
    void Form_Activate();
    void Form_QueryUnload(platform::EventArgs& e);
    void optAction_Click(int index);
    void lstReason_Change();
    void sldTimeReq_Change();
    void txtTimeReq_Click();
    void Calender_DateClick();
    void cmdAccept_Click();
    void cmdCancel_Click();
    void cmdSearch_Click();
    void cmdClearGrid_Click();
    void cmdHideGrid_Click();
    void mnuBlocked_Click();
    void DTStartSearch_Change();
    void DTEndSearch_Change();
    void cmdExit_Click();
    void mnuImportHolidays_Click();
    void mnuExportSchedule_Click();

    void Initform();
    void FindAllTeams();
    void FindTeam(const std::string& Team);
    void CheckJulian(const std::string& Team);
    void ResetSearchDates();
    void ClearBlockedGrid();
    // The number of consecutive workdays asked for, as txtTimeReq holds it.
    int DaysRequested() const;
    // The team list: every team, then "All Assignments".
    void FillTeamList();

  private:
    // The date rules of the calendar applied to a date: the past gives the default date, any
    // other date moves onto a workday, gets its year's folders and sets BlockFolderPrefix.
    void ApplyCalendarRules(platform::DateTime& date);
    void SetCalendar(platform::DateTime date);
    // The workday cursor of the day loops, which Calender shows.
    platform::DateTime cursor_;
};

// The reasons a day is blocked for, in list order.
extern const char* const kBlockReasons[4];
// What a restored day holds.
constexpr const char* kRestoredReason = "No Event Scheduled";
// The present hour above 19 gives tomorrow, otherwise today.
platform::DateTime BlockDefaultDate();
