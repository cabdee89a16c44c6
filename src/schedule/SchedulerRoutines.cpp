#include "schedule/SchedulerRoutines.h"

#include "platform/Controls.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/RuntimeError.h"
#include "schedule/Workdays.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"

using namespace platform;

std::array<std::string, 13> DaySlots;
std::string DayFilePath;
std::string DayOfYearText;
const std::array<std::string, 13> HourLabels = {"",      "06:00", "07:00", "08:00", "09:00",
                                                "10:00", "11:00", "01:00", "02:00", "03:00",
                                                "04:00", "05:00", "06:00"};

namespace {

// The day grid of the scheduling screen shows the open day beside DaySlots.
Grid* DayGrid() {
    Form* form = Forms::Existing("frmMain");
    if (!form || !form->IsLoaded()) return nullptr;
    Control* c = form->Find("fgHours");
    return c && c->Type() == ControlType::Grid ? static_cast<Grid*>(c) : nullptr;
}

// Busy days met by all searches for consecutive days since the program started.
std::int16_t BusyDaysScanned = 0;
constexpr int kScanLimit = 60;
constexpr int kOverflow = 6;

void ShowSlotInGrid(Grid* grid, int slot) {
    if (grid && slot < grid->Rows() && grid->Cols() > 1)
        grid->SetTextMatrix(slot, 1, DaySlots[static_cast<size_t>(slot)]);
}

}  // namespace

void ResetDayState() {
    DaySlots.fill("");
    DayFilePath.clear();
    DayOfYearText.clear();
    BusyDaysScanned = 0;
}

std::string HourLabelShown(int slot) {
    return HourLabels[static_cast<size_t>(slot)] + (slot <= 6 ? "am" : "pm");
}

int WorkingSlot(int position) {
    const int slot = StartHour + position - 6;
    // The day has twelve slots and no more, whatever the start hour says.
    if (slot < 1 || slot > 12) Raise(err::SubscriptOutOfRange, "DaySlots");
    return slot;
}

void BuildDayPath(DateTime date, const std::string& team) {
    const std::string year = std::to_string(DatePart("yyyy", date));
    DayOfYearText = std::to_string(DatePart("y", date));
    const std::string folder = "\\" + year + "\\Team#" + team;
    if (!FolderExists(DataPath(folder))) MkDir(DataPath(folder));
    DayFilePath = DataPath(folder + "\\" + DayOfYearText + ".txt");
}

void ClearDaySlots() {
    Grid* grid = DayGrid();
    for (int i = 1; i <= 12; ++i) {
        DaySlots[static_cast<size_t>(i)] = kFreeSlot;
        ShowSlotInGrid(grid, i);
    }
}

void ShowDaySlots() {
    Grid* grid = DayGrid();
    if (grid && grid->Cols() > 1) {
        grid->SetCol(1);
        grid->SetColAlignment(1, 1);
    }
    if (!FileExists(DayFilePath)) return;
    const int n = FreeFile();
    Open(n, DayFilePath, OpenMode::Input);
    for (int i = 1; i <= 12 && !Eof(n); ++i) {
        DaySlots[static_cast<size_t>(i)] = InputString(n);
        ShowSlotInGrid(grid, i);
    }
    Close(n);
}

void ReadDay(DateTime date, const std::string& team) {
    ClearDaySlots();
    BuildDayPath(date, team);
    ShowDaySlots();
}

void WriteDay(DateTime date, const std::string& team) {
    BuildDayPath(date, team);
    const int n = FreeFile();
    Open(n, DayFilePath, OpenMode::Output);
    for (int i = 1; i <= 12; ++i) WriteFields(n, {Text(DaySlots[static_cast<size_t>(i)])});
    CloseAll();
}

void ReadDayRaw() {
    const int n = FreeFile();
    Open(n, DayFilePath, OpenMode::Input);
    for (int i = 0; i < 12; ++i) DaySlots[static_cast<size_t>(i)] = InputString(n);
    Close(n);
}

void CheckDayFree(DateTime date, std::int16_t& conflict) {
    ReadDay(date, CurrentTeam);
    for (int i = 1; i <= 8; ++i) {
        const std::string& slot = DaySlots[static_cast<size_t>(WorkingSlot(i))];
        if (slot != kFreeSlot && !slot.empty()) {
            conflict = -1;
            break;
        }
    }
    CloseAll();
}

void WriteDays(DateTime& date, int count, const std::string& text) {
    for (int n = 1; n <= count; ++n) {
        NextWorkday(date);
        ReadDay(date, CurrentTeam);
        for (int i = 1; i <= 8; ++i) DaySlots[static_cast<size_t>(WorkingSlot(i))] = text;
        WriteDay(date, CurrentTeam);
        date = date.AddDays(1);
    }
}

void CheckConsecutiveDays(DateTime& date, int count, std::int16_t& conflict) {
    if (count < 0 || count > 255) Raise(kOverflow, "CheckConsecutiveDays");  // a byte
    for (int i = 1; i <= count; ++i) {
        if (i > 1) {
            date = date.AddDays(1);
            NextWorkday(date);
        }
        CheckDayFree(date, conflict);
        if (conflict != -1) continue;
        // A busy day: the search starts again behind it. The result of the deeper search
        // stays there; only this level's own limit reaches the caller.
        conflict = 0;
        if (BusyDaysScanned == INT16_MAX) Raise(kOverflow, "CheckConsecutiveDays");
        ++BusyDaysScanned;
        if (BusyDaysScanned >= kScanLimit) {
            conflict = -1;
            return;
        }
        date = date.AddDays(1);
        NextWorkday(date);
        std::int16_t deeper = 0;
        CheckConsecutiveDays(date, count, deeper);
        return;
    }
}

std::int16_t ScanCount() {
    return BusyDaysScanned;
}
