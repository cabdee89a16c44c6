#include "blocked/frmBlock.h"

#include <algorithm>

#include "blocked/DayFileSearch.h"
#include "blocked/HolidayImport.h"
#include "blocked/ScheduleExport.h"
#include "platform/Files.h"
#include "platform/Records.h"
#include "platform/Ui.h"
#include "schedule/SchedulerRoutines.h"
#include "schedule/Teams.h"
#include "schedule/Workdays.h"
#include "setup/SetupHooks.h"
#include "store/BasicDiskRoutines.h"
#include "store/Journal.h"
#include "store/SharedState.h"

using namespace platform;

const char* const kBlockReasons[4] = {"Vacation", "Holiday", "Personal Day", "Sick Day"};

namespace {

constexpr int kCalendarDays = 730;
constexpr int kMostDays = 30;

bool IsBlockReason(const std::string& text) {
    return std::find(std::begin(kBlockReasons), std::end(kBlockReasons), text) !=
           std::end(kBlockReasons);
}

}  // namespace

DateTime BlockDefaultDate() {
    const DateTime now = Now();
    return now.Hour() > 19 ? now.DateOnly().AddDays(1) : now.DateOnly();
}

frmBlock::frmBlock() : Form(kName) {
    SetCaption("Holiday and Vacation Days");
    SetSize(14400, 6960);

    fraInstructions.SetCaption("Instructions");
    fraInstructions.Move(120, 120, 8400, 1320);
    lblInstructions.SetContainer("fraInstructions");
    lblInstructions.SetCaption(
        "Choose an assignment (or All Assignments), the reason and the number of consecutive "
        "workdays, then click the first day on the calendar and Accept. Days that hold events "
        "cannot be blocked. Restoring frees the whole day, events included.");
    lblInstructions.Move(120, 240, 8160, 960);

    optAction[0].SetCaption("Reserve Days (Prevents work Scheduling)");
    optAction[0].Move(240, 1560, 4200, 300);
    optAction[1].SetCaption("Restore Days (Clears previous Blocks)");
    optAction[1].Move(240, 1890, 4200, 300);

    lblAssignto.SetCaption("Assignment");
    lblAssignto.Move(240, 2340, 2520, 255);
    lstAssignto.Move(240, 2600, 2520, 3000);

    lblReason.SetCaption("Reason");
    lblReason.Move(2940, 2340, 2160, 255);
    lstReason.Move(2940, 2600, 2160, 315);
    lblTimeReq.SetCaption("Consecutive Workdays");
    lblTimeReq.Move(2940, 3100, 2160, 255);
    txtTimeReq.Move(2940, 3360, 720, 315);
    txtTimeReq.SetLocked(true);
    txtTimeReq.SetToolTipText("Click to add a day, or use the arrows");
    sldTimeReq.Move(3660, 3360, 255, 315);
    sldTimeReq.SetMin(1);
    sldTimeReq.SetMax(kMostDays);

    Calender.Move(5280, 1560, 3240, 2880);

    cmdAccept.SetCaption("&Accept");
    cmdAccept.SetDefault(true);
    cmdAccept.Move(5280, 4680, 1500, 435);
    cmdCancel.SetCaption("&Cancel");
    cmdCancel.Move(7020, 4680, 1500, 435);
    cmdExit.SetCaption("&Menu");
    cmdExit.Move(7020, 5280, 1500, 435);

    fraBlockedDays.SetCaption("Blocked Days");
    fraBlockedDays.Move(8760, 120, 5400, 6000);
    FGBlocked.SetContainer("fraBlockedDays");
    FGBlocked.SetFixedCols(0);
    FGBlocked.SetFormatString("<Team|^Date|Reason");
    FGBlocked.SetColWidth(0, 2160);
    FGBlocked.SetColWidth(1, 1200);
    FGBlocked.SetColWidth(2, 1500);
    FGBlocked.Move(120, 960, 5160, 4320);
    lblStartSearch.SetContainer("fraBlockedDays");
    lblStartSearch.SetCaption("From");
    lblStartSearch.Move(120, 300, 1500, 255);
    DTStartSearch.SetContainer("fraBlockedDays");
    DTStartSearch.Move(120, 540, 1500, 315);
    lblEndSearch.SetContainer("fraBlockedDays");
    lblEndSearch.SetCaption("To");
    lblEndSearch.Move(1740, 300, 1500, 255);
    DTEndSearch.SetContainer("fraBlockedDays");
    DTEndSearch.Move(1740, 540, 1500, 315);
    cmdSearch.SetContainer("fraBlockedDays");
    cmdSearch.SetCaption("&Load Grid");
    cmdSearch.Move(3480, 480, 1800, 375);
    cmdClearGrid.SetContainer("fraBlockedDays");
    cmdClearGrid.SetCaption("C&lear Grid");
    cmdClearGrid.Move(120, 5400, 1800, 435);
    cmdHideGrid.SetContainer("fraBlockedDays");
    cmdHideGrid.SetCaption("&Hide Grid");
    cmdHideGrid.Move(3480, 5400, 1800, 435);

    mnuBlocked.SetCaption("&Blocked Days");
    mnuCalendar.SetCaption("&iCalendar");
    mnuImportHolidays.SetCaption("&Import Holidays...");
    mnuImportHolidays.SetContainer("mnuCalendar");
    mnuExportSchedule.SetCaption("&Export Schedule...");
    mnuExportSchedule.SetContainer("mnuCalendar");

    On("Form.Load", [this](EventArgs&) { Form_Load(); });
    On("Form.Activate", [this](EventArgs&) { Form_Activate(); });
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
    On("optAction.Click", [this](EventArgs& e) { optAction_Click(e.index); });
    On("lstReason.Click", [this](EventArgs&) { lstReason_Change(); });
    On("lstReason.Change", [this](EventArgs&) { lstReason_Change(); });
    // Reasons come from the list only: a typed one would not be found by the grid.
    On("lstReason.KeyPress", [](EventArgs& e) { e.keyAscii = 0; });
    On("sldTimeReq.Change", [this](EventArgs&) { sldTimeReq_Change(); });
    On("txtTimeReq.Click", [this](EventArgs&) { txtTimeReq_Click(); });
    On("Calender.DateClick", [this](EventArgs&) { Calender_DateClick(); });
    On("cmdAccept.Click", [this](EventArgs&) { cmdAccept_Click(); });
    On("cmdCancel.Click", [this](EventArgs&) { cmdCancel_Click(); });
    On("cmdSearch.Click", [this](EventArgs&) { cmdSearch_Click(); });
    On("cmdClearGrid.Click", [this](EventArgs&) { cmdClearGrid_Click(); });
    On("cmdHideGrid.Click", [this](EventArgs&) { cmdHideGrid_Click(); });
    On("mnuBlocked.Click", [this](EventArgs&) { mnuBlocked_Click(); });
    On("DTStartSearch.Change", [this](EventArgs&) { DTStartSearch_Change(); });
    On("DTEndSearch.Change", [this](EventArgs&) { DTEndSearch_Change(); });
    On("cmdExit.Click", [this](EventArgs&) { cmdExit_Click(); });
    On("mnuImportHolidays.Click", [this](EventArgs&) { mnuImportHolidays_Click(); });
    On("mnuExportSchedule.Click", [this](EventArgs&) { mnuExportSchedule_Click(); });
}

void frmBlock::Form_Load() {
    lstReason.Clear();
    for (const char* reason : kBlockReasons) lstReason.AddItem(reason);
    const DateTime today = Today();
    DTStartSearch.SetMinDate(today);
    Calender.SetMinDate(today);
    Calender.SetMaxDate(today.AddDays(kCalendarDays));
    // The start-up fills the team list; a screen loaded again after its unload fills its own.
    if (lstAssignto.ListCount() == 0) FillTeamList();
}

void frmBlock::FillTeamList() {
    lstAssignto.Clear();
    for (int n = 1; n <= TeamCount(); ++n) lstAssignto.AddItem(TeamNames[static_cast<size_t>(n)]);
    lstAssignto.AddItem("All Assignments");
}

void frmBlock::Form_Activate() {
    Initform();
}

void frmBlock::Form_QueryUnload(EventArgs& e) {
    if (e.unloadMode == 0) ExitProgramFromSetup();
}

void frmBlock::Initform() {
    lstReason.SetEnabled(true);
    lstReason.SetListIndex(0);
    if (lstAssignto.ListCount() > 0) lstAssignto.SetListIndex(0);
    DateTime start = BlockDefaultDate();
    SetCalendar(NextWorkday(start));
    optAction[0].SetValue(true);
    txtTimeReq.SetText("1");
    sldTimeReq.SetValue(1);
    ResetSearchDates();
    fraBlockedDays.SetVisible(false);
}

void frmBlock::ResetSearchDates() {
    const DateTime today = Today();
    DTStartSearch.SetValue(today);
    DTEndSearch.SetValue(DateAdd("m", 1, today));
}

void frmBlock::optAction_Click(int index) {
    if (index == 0) {
        lstReason.SetListIndex(0);
        lstReason.SetEnabled(true);
    } else {
        lstReason.SetText(kRestoredReason);
        lstReason.SetEnabled(false);
    }
}

void frmBlock::lstReason_Change() {
    cmdAccept.SetFocus();
}

void frmBlock::sldTimeReq_Change() {
    txtTimeReq.SetText(std::to_string(sldTimeReq.Value()));
    cmdAccept.SetFocus();
}

void frmBlock::txtTimeReq_Click() {
    const int number = DaysRequested();
    if (number > 0 && number < kMostDays) {
        txtTimeReq.SetText(std::to_string(number + 1));
        sldTimeReq.SetValue(number + 1);
    }
}

int frmBlock::DaysRequested() const {
    const std::string& text = txtTimeReq.Text();
    int number = 0;
    for (char c : text) {
        if (c < '0' || c > '9') break;
        number = number * 10 + (c - '0');
        if (number > kMostDays) return kMostDays;
    }
    return number;
}

void frmBlock::SetCalendar(DateTime date) {
    cursor_ = date;
    // The calendar cannot show a day outside its range; the loops go on with the cursor.
    Calender.SetValue(std::clamp(date, Calender.MinDate(), Calender.MaxDate()));
}

void frmBlock::ApplyCalendarRules(DateTime& date) {
    if (date < Today()) {
        date = BlockDefaultDate();
        return;
    }
    NextWorkday(date);
    const int year = date.Year();
    if (year > Today().Year()) MakeYearTree(std::to_string(year));
    BlockFolderPrefix = AppFolder() + "\\" + std::to_string(year) + "\\Team#";
}

void frmBlock::Calender_DateClick() {
    DateTime date = Calender.Value();
    ApplyCalendarRules(date);
    SetCalendar(date);
}

void frmBlock::cmdAccept_Click() {
    BlockStartDate = Calender.Value();
    SetCalendar(BlockStartDate);
    Calender_DateClick();
    const int number = DaysRequested();
    BlockRequestDays = static_cast<std::int16_t>(number);
    BlockRequestReason = lstReason.Text();
    const std::string action =
        optAction[0].Value() ? "Prevent Work Scheduling" : "Restore Previous Blocked Days";
    const std::string question = "You have Selected to\r\n" + action + "\r\nof " +
                                 std::to_string(number) + " Consecutive WORKDAYS\r\nStarting on " +
                                 ShortDate(BlockStartDate) + "\r\nfor " + lstAssignto.Text();
    if (MsgBox(question, vbYesNo, "Action Selection") == vbNo) {
        cmdCancel_Click();
        return;
    }
    // A crash half way through the request leaves every day file as it was before it.
    KeepOldFiles request;
    if (lstAssignto.ListIndex() == lstAssignto.ListCount() - 1) {
        FindAllTeams();
    } else {
        FindTeam(std::to_string(lstAssignto.ListIndex() + 1));
    }
}

void frmBlock::cmdCancel_Click() {
    Initform();
}

void frmBlock::FindAllTeams() {
    for (int team = 1; team <= TeamCount(); ++team) FindTeam(std::to_string(team));
}

void frmBlock::FindTeam(const std::string& Team) {
    BlockOk = 1;
    const int number = BlockRequestDays;
    if (optAction[0].Value()) {
        // Every team's check starts on the first day asked for.
        SetCalendar(BlockStartDate);
        for (BlockIndex = 0; BlockIndex < number; ++BlockIndex) {
            NextWorkday(cursor_);
            ApplyCalendarRules(cursor_);
            SetCalendar(cursor_);
            BlockDayText = std::to_string(cursor_.DayOfYear());
            CheckJulian(Team);
            SetCalendar(cursor_.AddDays(1));
        }
        if (BlockOk != 1) {
            DateTime start = BlockDefaultDate();
            SetCalendar(NextWorkday(start));
            return;
        }
        SetCalendar(BlockStartDate);
    }
    SetCalendar(NextWorkday(BlockStartDate, 0));
    for (BlockIndex = 0; BlockIndex < number; ++BlockIndex) {
        ApplyCalendarRules(cursor_);
        SetCalendar(cursor_);
        BlockDayText = std::to_string(cursor_.DayOfYear());
        const int file = FreeFile();
        Open(file, BlockFolderPrefix + Team + "\\" + BlockDayText + ".txt", OpenMode::Output);
        for (int slot = 0; slot < 12; ++slot) PrintLine(file, BlockRequestReason);
        Close(file);
        SetCalendar(cursor_.AddDays(1));
    }
    SetCalendar(NextWorkday(cursor_));
}

void frmBlock::CheckJulian(const std::string& Team) {
    DayFilePath = BlockFolderPrefix + Trim(Team) + "\\" + BlockDayText + ".txt";
    if (!FileExists(DayFilePath)) return;
    ReadDayRaw();
    for (int k = 0; k <= 11; ++k) {
        // A reason found inside a slot passes, as does a free slot; an empty slot does not.
        const std::string& slot = DaySlots[static_cast<size_t>(k)];
        if (slot.find(kFreeSlot) == std::string::npos &&
            slot.find(BlockRequestReason) == std::string::npos) {
            MsgBox("An Event Exists at " + HourLabels[static_cast<size_t>(k) + 1] + " on " +
                       ShortDate(cursor_) +
                       "\r\nUse the Reschedule Routine to\r\nDelete or Rechedule this "
                       "Attention\r\nThis Request will be aborted.",
                   vbCritical, "Can't Block or UnBlock This Time");
            BlockOk = 0;
            BlockIndex = static_cast<std::uint8_t>(BlockRequestDays - 1);
            cmdCancel_Click();
            return;
        }
    }
    CloseAll();
    Kill(DayFilePath);
}

void frmBlock::ClearBlockedGrid() {
    for (int row = 1; row < FGBlocked.Rows(); ++row)
        for (int col = 0; col < FGBlocked.Cols(); ++col) FGBlocked.SetTextMatrix(row, col, "");
    FGBlocked.SetRows(2);
}

void frmBlock::cmdSearch_Click() {
    ClearBlockedGrid();
    FGBlocked.SetRow(1);
    const DateTime first = DTStartSearch.Value().DateOnly();
    const DateTime last = DTEndSearch.Value().DateOnly();
    DayFileSearch files;
    for (int team = 1; team <= TeamCount(); ++team) {
        for (DateTime date = first; date <= last; date = date.AddDays(1)) {
            if (!files.Find(date, team)) continue;
            const std::string path = DayFileSearch::PathOf(date, team);
            OpenForInput(path);
            const std::string slot = Eof(MainFileNo) ? std::string() : InputString(MainFileNo);
            CloseAll();
            if (!IsBlockReason(slot)) continue;
            const int row = FGBlocked.Row();
            FGBlocked.SetTextMatrix(row, 0, TeamNames[static_cast<size_t>(team)]);
            FGBlocked.SetTextMatrix(row, 1, ShortDate(date));
            FGBlocked.SetTextMatrix(row, 2, slot);
            FGBlocked.SetRows(FGBlocked.Rows() + 1);
            FGBlocked.SetRow(row + 1);
        }
    }
}

void frmBlock::cmdClearGrid_Click() {
    ClearBlockedGrid();
}

void frmBlock::cmdHideGrid_Click() {
    fraBlockedDays.SetVisible(false);
}

void frmBlock::mnuBlocked_Click() {
    if (fraBlockedDays.Visible()) {
        fraBlockedDays.SetVisible(false);
        return;
    }
    fraBlockedDays.SetVisible(true);
    cmdSearch_Click();
}

void frmBlock::DTStartSearch_Change() {
    if (DTStartSearch.Value().DateOnly() >= Today()) return;
    AlarmBeep();
    ResetSearchDates();
}

void frmBlock::DTEndSearch_Change() {
    if (DTEndSearch.Value().DateOnly() >= DTStartSearch.Value().DateOnly()) return;
    AlarmBeep();
    ResetSearchDates();
}

void frmBlock::cmdExit_Click() {
    Unload();
    ShowMainMenuFromSetup();
}

void frmBlock::mnuImportHolidays_Click() {
    ImportHolidays(*this);
}

void frmBlock::mnuExportSchedule_Click() {
    ExportSchedule(*this);
}
