#include "projects/TeamSchedule.h"

#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Numbers.h"
#include "platform/Records.h"
#include "platform/Ui.h"
#include "projects/MilestonePlacement.h"
#include "projects/ProjectRecord.h"
#include "projects/frmMain.h"
#include "schedule/SchedulerRoutines.h"
#include "schedule/Teams.h"
#include "schedule/Workdays.h"
#include "setup/ScreenLinks.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"

using namespace platform;

std::string SelectedSlotText;
std::uint8_t LookupFile = 0;
std::string SlipTeam;

namespace {

constexpr const char* kAllTeams = "All Teams";
constexpr const char* kSlipScreen = "frmSlip";
const char* const kMonths[12] = {"Jan",  "Feb", "March", "April", "May", "June",
                                 "July", "Aug", "Sep",   "Oct",   "Nov", "Dec"};
constexpr std::int32_t kBoxText = Rgb(0, 0, 255);
constexpr std::int32_t kBoxGround = Rgb(255, 255, 192);
constexpr std::int32_t kChosenDayGround = Rgb(192, 224, 255);
constexpr std::int32_t kHoursTaken = Rgb(255, 0, 0);

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

// The week as the set-up screen's option buttons show it.
WeekOptions ChosenWeek() {
    OptionButton* ms = OptionOnScreen("frmSetup", "optMS");
    OptionButton* sf = OptionOnScreen("frmSetup", "optSF");
    OptionButton* ss = OptionOnScreen("frmSetup", "optSS");
    if (!ms || !sf || !ss) return WeekOptionsOf(WorkWeek);
    return WeekOptions{ms->Value(), sf->Value(), ss->Value()};
}

// The lines of a day file that hold an event.
int HoursTaken(const std::string& path) {
    const int file = FreeFile();
    Open(file, path, OpenMode::Input);
    int taken = 0;
    while (!Eof(file))
        if (!Contains(LineInput(file), kFreeSlot)) ++taken;
    Close(file);
    return taken;
}

// The slot's text belongs to the kind of record the file holds.
bool MarkerOf(int lookupFile, const std::string& text) {
    switch (lookupFile) {
        case 1: {
            const size_t blank = text.find(' ');
            const std::string firstWord = blank == std::string::npos ? text : text.substr(0, blank);
            return Contains(text, "SA") || IsNumeric(firstWord);
        }
        case 2:
            return Contains(text, "Mtg");
        default:
            return Contains(text, "Pj");
    }
}

void OpenSlip() {
    if (!Forms::Known(kSlipScreen)) {
        MsgBox("\"Service Attention Slip\" is not available in this version of the program.",
               vbInformation, "Routine Not Available");
        return;
    }
    Forms::Get(kSlipScreen).Show(vbModal);
}

}  // namespace

void SetCalendarDate(frmMain& form, DateTime date) {
    struct Quiet {
        bool& flag;
        const bool before;
        ~Quiet() { flag = before; }
    } quiet{form.CalendarSetByProgram, form.CalendarSetByProgram};
    form.CalendarSetByProgram = true;
    form.MonthView1.SetValue(date);
    form.MonthView1.SetToolTipText(
        DayNames[static_cast<size_t>(form.MonthView1.Value().Weekday())]);
}

void ShowCalendarDate(frmMain& form, DateTime date) {
    MonthView& calendar = form.MonthView1;
    SetCalendarDate(form, NextWorkday(date, 0));
    if (calendar.Value() == Today()) SetCalendarDate(form, DefaultStartDate());
    int year = calendar.Value().Year();
    CheckYear(year);
    SetCalendarDate(form, NextWorkday(calendar.Value(), 0));
    CurrentDate = calendar.Value();
    TodayDayNumber = CurrentDate.DayOfYear();
    form.lblDate.SetCaption(ShortDate(CurrentDate));
    form.lblDay.SetCaption(FormatDate(CurrentDate, "dddd"));
    if (form.fraTeam.Visible()) form.lstTeam_Click();
    if (form.cmdContinue.Enabled()) form.cmdContinue.SetFocus();
}

void CalendarChanged(frmMain& form) {
    const DateTime value = form.MonthView1.Value();
    // A later year has its folders before any of its days is read.
    int year = value.Year();
    CheckYear(year);
    // The day the grid shows is the day its slots are written to.
    CurrentDate = value;
    form.lblDay.SetCaption(FormatDate(value, "dddd"));
    form.lblDate.SetCaption(ShortDate(value));
    form.MonthView1.SetToolTipText(DayNames[static_cast<size_t>(value.Weekday())]);
    FillTeamCalendar(form);
    ShowDayIfBusy(form);
}

void StepCalendar(frmMain& form, bool up) {
    MonthView& calendar = form.MonthView1;
    const DateTime before = calendar.Value();
    const DateTime after = up ? SpinDateUp(before, calendar.MaxDate(), ChosenWeek())
                              : SpinDateDown(before, ChosenWeek());
    if (after == before)
        CalendarChanged(form);
    else
        calendar.SetValue(after);
}

void ChooseTeam(frmMain& form) {
    const int index = form.lstTeam.ListIndex();
    if (index < 0) return;
    CurrentTeam = std::to_string(index + 1);
    if (form.mnuTeamCal.Enabled()) FillTeamCalendar(form);
    ReadDay(form.MonthView1.Value(), CurrentTeam);
    form.txtCurrentTeam.SetText(form.lstTeam.Text());
    if (MenuRoutine == 1) {
        MsAt(MsTeam, form.CurrentMilestone) = CurrentTeam;
        return;
    }
    if (MenuRoutine == 3) {
        form.cmdView.SetEnabled(false);
        form.cmdClear.SetEnabled(false);
        if (form.lstTeam.Text() != kAllTeams) ShowDayIfBusy(form);
    }
}

void StepTeam(frmMain& form, bool up) {
    const int lastTeam = TeamCount() - 1;
    if (lastTeam < 0) return;
    const int index = form.lstTeam.ListIndex();
    int next;
    if (up)
        next = index < lastTeam && index >= 0 ? index + 1 : 0;
    else
        next = index > 0 ? index - 1 : lastTeam;
    form.lstTeam.SetListIndex(next);
    form.lstTeam_Click();
}

void ShowHourlyDay(frmMain& form) {
    ReadDay(form.MonthView1.Value(), CurrentTeam);
    form.fraHours.SetVisible(true);
    form.fraCalendar.SetVisible(false);
    form.cmdClear.SetEnabled(true);
}

void ShowDayIfBusy(frmMain& form) {
    if (CurrentTeam.empty()) return;
    ShowHourlyDay(form);
    for (int row = 1; row <= 12; ++row) {
        if (form.fgHours.TextMatrix(row, 1) != kFreeSlot) {
            form.cmdView.SetEnabled(true);
            form.cmdClear.SetEnabled(true);
            form.fraHours.SetVisible(true);
            form.fraCalendar.SetVisible(false);
            return;
        }
    }
    ShowCalendarFrame(form);
}

void ShowCalendarFrame(frmMain& form) {
    form.fraHours.SetVisible(false);
    form.fraCalendar.SetVisible(true);
}

void FillTeamCalendar(frmMain& form) {
    const DateTime shown = form.MonthView1.Value();
    const int year = shown.Year();
    const int month = shown.Month();
    const DateTime first = DateTime::FromYmd(year, month, 1);
    form.txtCurrentDate.SetText(std::to_string(year) + " " + kMonths[month - 1]);
    for (int i = 0; i < form.Text1.Count(); ++i) {
        form.Text1[i].SetText("");
        form.Text1[i].SetForeColor(kBoxText);
        form.Text1[i].SetBackColor(kBoxGround);
    }
    const int offset = first.Weekday() - 2;
    const int days = DaysInMonth(year, month);
    for (int day = 1; day <= days; ++day) {
        TextBox& box = form.Text1[day + offset];
        box.SetText(std::to_string(day));
        if (first.AddDays(day - 1) == shown) box.SetBackColor(kChosenDayGround);
    }
    if (CurrentTeam.empty()) return;
    const DateTime today = Today();
    for (int day = 1; day <= days; ++day) {
        const DateTime date = first.AddDays(day - 1);
        if (date < today) continue;  // past days are not read
        const std::string path = DataPath("\\" + std::to_string(year) + "\\Team#" + CurrentTeam +
                                          "\\" + std::to_string(date.DayOfYear()) + ".txt");
        if (!FileExists(path)) continue;
        const int taken = HoursTaken(path);
        if (taken > 0) {
            form.Text1[day + offset].SetText(std::to_string(taken));
            form.Text1[day + offset].SetForeColor(kHoursTaken);
        }
    }
}

void PickMonthBox(frmMain& form, int index) {
    if (form.Text1[index].Text().empty()) return;
    int firstBox = 0;
    while (firstBox < 6 && form.Text1[firstBox].Text().empty()) ++firstBox;
    const DateTime shown = form.MonthView1.Value();
    const DateTime date =
        DateTime::FromYmd(shown.Year(), shown.Month(), 1).AddDays(index - firstBox);
    if (date < form.MonthView1.MinDate()) {
        MsgBox("Date cannot be before Today", vbOKOnly, "Invalid date");
        SetCalendarDate(form, Today());
        return;
    }
    SetCalendarDate(form, date);
    ShowCalendarDate(form, date);
}

void ClickHourRow(frmMain& form) {
    Grid& grid = form.fgHours;
    const int row = grid.Row();
    if (row < 1 || row > 12) return;
    if (MenuRoutine == 3) {
        SelectedSlotText = grid.TextMatrix(row, 1);
        if (Contains(SelectedSlotText, "No Event ")) {
            AlarmBeep();
            return;
        }
        const char* const files[] = {projects::kSlipsFile, projects::kMeetingsFile,
                                     projects::kProjectRecordsFile};
        for (int file = 1; file <= 3; ++file) {
            if (!FindFile(files[file - 1]) || !MarkerOf(file, SelectedSlotText)) continue;
            LookupFile = static_cast<std::uint8_t>(file);
            SlipTeam = form.txtCurrentTeam.Text();
            OpenSlip();
            return;
        }
        // No record behind it, as on a blocked day: the hourly entry below answers it.
    }
    if (!form.cmdClear.Enabled()) return;
    form.SlotSelection = form.lblProjectNo.Caption() + "-" + form.txtConEvents.Text();
    const int hours = static_cast<int>(Val(form.txtTime.Text()));
    if (hours - 1 + row > 12) {
        MsgBox("Hours Requested exceed Hours Remaining this Date", vbOKOnly, "Selection Error");
        return;
    }
    for (int r = 1; r <= 12; ++r) {
        if (grid.TextMatrix(r, 1) == form.SlotSelection) {
            AlarmBeep();  // one block of a milestone a day
            return;
        }
    }
    bool free = true;
    CheckforSlots(form, row, hours, free);
    if (!free) return;
    for (int r = row; r <= row + hours - 1; ++r) grid.SetTextMatrix(r, 1, form.SlotSelection);
    form.lblDateTime.SetCaption("Click Continue");
    WriteSlots(form);
    if (MenuRoutine == 1) MsAt(MsStartSlot, form.CurrentMilestone) = std::to_string(row);
}

void CheckforSlots(frmMain& form, int row, int hours, bool& free) {
    for (int r = row; r <= row + hours - 1; ++r) {
        if (!Contains(form.fgHours.TextMatrix(r, 1), "No Event")) {
            MsgBox("Event already Scheduled Here", vbOKOnly, "Selection Error");
            free = false;
            return;
        }
    }
}

void ClearSelection(frmMain& form) {
    for (int r = 1; r <= 12; ++r)
        if (form.fgHours.TextMatrix(r, 1) == form.SlotSelection)
            form.fgHours.SetTextMatrix(r, 1, kFreeSlot);
    form.SlotSelection = kNoSlotSelected;
}

void WriteSlots(frmMain& form) {
    for (int r = 1; r <= 12; ++r) DaySlots[static_cast<size_t>(r)] = form.fgHours.TextMatrix(r, 1);
}

void ClearScheduleDay(frmMain& form) {
    if (MenuRoutine == 1) {
        if (MsgBox("This will clear Milestone " + form.txtConEvents.Text() + "\r\nAre You Sure?",
                   vbYesNo, "Clear Current Event This Date") != vbYes)
            return;
        ClearSelection(form);
        WriteSlots(form);
        WriteDay(CurrentDate, CurrentTeam);
        return;
    }
    const std::string title = "Clearing Time Slots";
    if (MsgBox("This will Clear all Events for " + ShortDate(CurrentDate) + " for " +
                   form.txtCurrentTeam.Text(),
               vbYesNo, title) != vbYes)
        return;
    if (MsgBox("Are You Sure?", vbYesNo, title) != vbYes) return;
    ClearDaySlots();
    WriteDay(CurrentDate, CurrentTeam);
    ReadDay(CurrentDate, CurrentTeam);
}
