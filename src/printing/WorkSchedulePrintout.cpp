#include "printing/WorkSchedulePrintout.h"

#include "platform/Dialogs.h"
#include "platform/Numbers.h"
#include "platform/Printer.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "printing/PrinterRoutines.h"
#include "projects/TeamSchedule.h"
#include "projects/WorkSchedule.h"
#include "projects/frmMain.h"
#include "schedule/SchedulerRoutines.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

// The printer dialogue: no page numbers, collate, no print to file (a PDF printer serves).
constexpr int kPrinterDialogFlags = cdlPDNoPageNums | cdlPDCollate | cdlPDHidePrintToFile;
constexpr float kRowStep = 0.75f;    // inches from one hour to the next
constexpr float kFirstRowY = 1.35f;  // inches
constexpr float kStripX = 7.5f;      // the perforated strip starts here
constexpr float kTickOffset = 1.9f;  // the tick fields right of the strip's lines

// The grid of the response paper, in twips.
constexpr double kGridLeft = 1000, kGridRight = 10300;
constexpr double kGridTop = 1520, kHeadingBottom = 1850, kGridRow = 1080;
constexpr double kGridColumns[] = {1000, 4200, 6400, 8300, 10300};
constexpr int kGridRows = 8;

bool ExtendedLayout(frmMain& form) {
    return form.optWorkSchedule[0].Value();
}

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

// Prints at x inches on the present line and stays on it.
void PrintAt(float x, const std::string& text) {
    SetPrintPosition(x, 0);
    Printer().Print(text, PrintEnd::Semicolon);
}

// Prints at x inches on the present line and goes to the next.
void PrintLineAt(float x, const std::string& text) {
    SetPrintPosition(x, 0);
    Printer().Print(text);
}

void PrintScheduleHeader(frmMain& form, const std::string& teamName) {
    const bool extended = ExtendedLayout(form);
    const std::string date = ShortDate(form.MonthView1.Value());
    SetPrintFont(0, true, false);
    SetPrintPosition(1.0f, 0.3f);
    Printer().Print("Daily Work Schedule");
    PrintLineAt(1.0f, "Assigned to : " + teamName);
    PrintLineAt(1.0f, "Date: " + date);

    SetPrintFont(10, true, false);
    SetPrintPosition(0.75f, 1.1f);
    if (extended) {
        PrintAt(0.75f, "Time");
        PrintAt(2.5f, "Account Info");
        PrintLineAt(4.5f, "Project Event/Reason");
        return;
    }
    PrintAt(0.75f, "Account Information");
    PrintAt(3.25f, "Problem");
    PrintAt(4.85f, "Times");
    PrintLineAt(6.1f, "Total Time");

    SetPrintFont(0, true, true);
    SetPrintPosition(8.0f, 0.3f);
    Printer().Print("COMPLETION REPORT");
    SetPrintFont(0, true, false);
    PrintLineAt(8.0f, "Date: " + date);
    PrintLineAt(8.0f, teamName);
}

// One hour of the day: its time, and what is booked in it with the customer behind it.
void PrintScheduleRow(frmMain& form, int slot, float y, bool extended) {
    const ScheduleRow& row = PrintRows[static_cast<size_t>(slot)];
    const std::string& slotText = DaySlots[static_cast<size_t>(slot + 1)];
    SetPrintPosition(0.75f, y);
    const bool booked = Contains(slotText, "Recurring") || !row.telephone.empty();
    if (!booked) {
        Printer().Print(form.Label2[slot].Caption());
        return;
    }
    Printer().Print(form.Label2[slot].Caption(), PrintEnd::Semicolon);
    if (extended) {
        PrintAt(4.5f, slotText);
        PrintLineAt(2.5f, row.telephone);
        PrintLineAt(2.5f, row.name);
        PrintLineAt(2.5f, row.street);
    } else {
        PrintAt(3.0f, slotText);
        PrintLineAt(4.5f, "Start");
        PrintLineAt(0.75f, row.name);
        SetPrintFont(0, true, false);
        PrintAt(0.75f, row.street);
        SetPrintFont(0, false, false);
        PrintLineAt(4.5f, "Stop");
    }
    PrintLineAt(2.5f, row.cityLine);
    if (!PrintSettingUsaAddress()) PrintLineAt(2.5f, row.extra);
}

void PrintScheduleRows(frmMain& form) {
    const bool extended = ExtendedLayout(form);
    SetPrintFont(9, false, false);
    const int first = extended ? 0 : StartHour - 6;
    const int last = extended ? 11 : StartHour + 1;
    float y = kFirstRowY;
    for (int slot = first; slot <= last; ++slot, y += kRowStep) {
        if (slot < 0 || slot > 11) continue;
        PrintScheduleRow(form, slot, y, extended);
    }
}

// One job of the strip: the customer, the reference, and the amount to fill in.
void PrintCompletionData(int slot, float x, float y) {
    const ScheduleRow& row = PrintRows[static_cast<size_t>(slot)];
    SetPrintPosition(x, y);
    PrintAt(x, row.name);
    PrintLineAt(x + kTickOffset, "___Collected");
    PrintAt(x, row.reference);
    PrintLineAt(x + kTickOffset, "___Invoiced");
    PrintAt(x, "AMOUNT    _______________");
    PrintLineAt(x + kTickOffset, "___from Office");
}

// A job that fills several hours gets one entry in the strip.
void PrintCompletionRows() {
    SetPrintFont(10, false, false);
    float y = kFirstRowY;
    for (int slot = 2; slot <= 9; ++slot, y += kRowStep) {
        const std::string& reference = PrintRows[static_cast<size_t>(slot)].reference;
        if (reference.empty()) continue;
        if (slot == 2 || reference != PrintRows[static_cast<size_t>(slot - 1)].reference)
            PrintCompletionData(slot, kStripX, y);
    }
}

void PrintCompletionGrid() {
    Printer().SetDrawMode(vbCopyPen);
    const double bottom = kHeadingBottom + kGridRows * kGridRow;
    Printer().Line(kGridLeft, kGridTop, kGridRight, kGridTop, 0);
    for (int line = 0; line <= kGridRows; ++line) {
        const double y = kHeadingBottom + line * kGridRow;
        Printer().Line(kGridLeft, y, kGridRight, y, 0);
    }
    for (double x : kGridColumns) Printer().Line(x, kGridTop, x, bottom, 0);
    Printer().Line(kGridLeft, bottom, kGridRight, bottom, 0);
    PrintCompletionRows();
}

void ShowPrintError() {
    Printer().KillDoc();
    MsgBox("A Print Error has occurred", vbOKOnly + vbCritical, "Print Error");
}

// The day of team `team` into the grid and the day view, as the schedule shows it.
void LoadDayView(frmMain& form, int team) {
    CurrentTeam = std::to_string(team);
    ReadDay(form.MonthView1.Value(), CurrentTeam);
    BuildWorkSchedule(form);
}

}  // namespace

void PrintSchedule(frmMain& form, const std::string& teamName) {
    PrintScheduleHeader(form, teamName);
    PrintScheduleRows(form);
    if (!ExtendedLayout(form)) PrintCompletionGrid();
    Printer().EndDoc();
}

void PrintWorkSchedules(frmMain& form) {
    try {
        ShowPrinterDialog(kPrinterDialogFlags);
        InitPrinter("Landscape", PrintSettingColor());
        if (ExtendedLayout(form)) Printer().SetOrientation(vbPRORPortrait);
    } catch (const RuntimeError&) {
        ShowPrintError();
        return;
    }
    // With no entry chosen yet, the team whose day the grid shows is printed.
    int chosen = form.lstTeam.ListIndex();
    if (chosen < 0) chosen = CInt(Val(CurrentTeam)) - 1;
    if (chosen < 0 || chosen >= form.lstTeam.ListCount()) return;
    const bool allTeams = chosen == form.lstTeam.ListCount() - 1;
    const int firstTeam = allTeams ? chosen : chosen + 1;
    const int lastTeam = allTeams ? 1 : chosen + 1;
    // A failed team's schedule says so and the next team's is printed all the same.
    for (int team = firstTeam; team >= lastTeam; --team) {
        LoadDayView(form, team);
        try {
            PrintSchedule(form, form.lstTeam.List(team - 1));
        } catch (const RuntimeError&) {
            ShowPrintError();
        }
    }
    // The grid shows the chosen entry's day again.
    CurrentTeam = std::to_string(chosen + 1);
    ReadDay(form.MonthView1.Value(), CurrentTeam);
    ClosePrintPanel(form);
}

void ClosePrintPanel(frmMain& form) {
    form.cmdClosePrint_Click();
}
