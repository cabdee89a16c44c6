#include "blocked/frmAdmin.h"

#include "control/ProjectListRoutines.h"
#include "control/ProjectTables.h"
#include "control/frmProjectControl.h"
#include "platform/Dialogs.h"
#include "platform/Printer.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupHooks.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

constexpr int kLoadGrid = 3, kNextYear = 5, kNextMonth = 6, kNextQuarter = 7;
constexpr int kMenu = 0, kPrint = 1;
constexpr int kAdministrative = 1;
// The printer dialogue: no page numbers, collate, no print to file (a PDF printer serves).

// Prints at x inches on the present line and stays on it.
void PrintAt(float x, const std::string& text) {
    SetPrintPosition(x, 0);
    Printer().Print(text, PrintEnd::Semicolon);
}

}  // namespace

frmAdmin::frmAdmin() : Form(kName) {
    SetCaption("Administrative Events");
    SetSize(12000, 7200);

    lblStart.SetCaption("From");
    lblStart.Move(240, 120, 1560, 255);
    DTStart.Move(240, 380, 1560, 315);
    lblEnd.SetCaption("To");
    lblEnd.Move(1920, 120, 1560, 255);
    DTEnd.Move(1920, 380, 1560, 315);
    const char* captions[8] = {"",        "", "", "&Load Grid", "", "Next Year", " Next Month",
                               "Next Qtr"};
    const int lefts[8] = {0, 0, 0, 3720, 0, 8760, 5400, 7080};
    for (int i = 0; i < cmdWeekly.Count(); ++i) {
        cmdWeekly[i].SetCaption(captions[i]);
        cmdWeekly[i].SetVisible(captions[i][0] != '\0');
        cmdWeekly[i].Move(lefts[i], 320, 1560, 435);
    }

    fgAdminSchedule.SetFixedCols(0);
    fgAdminSchedule.SetFormatString(
        "^Proj No|Project Name|^Date|^Milestone Event|Customer Name|^Phone");
    const int widths[6] = {1080, 2640, 1200, 2400, 2280, 1560};
    for (int c = 0; c < 6; ++c) fgAdminSchedule.SetColWidth(c, widths[c]);
    fgAdminSchedule.Move(240, 900, 11400, 4920);

    cmdAdmin[kMenu].SetCaption("&Menu");
    cmdAdmin[kMenu].Move(8400, 6000, 1560, 495);
    cmdAdmin[kPrint].SetCaption("&Print");
    cmdAdmin[kPrint].Move(10080, 6000, 1560, 495);

    On("Form.Load", [this](EventArgs&) { Form_Load(); });
    On("Form.Activate", [this](EventArgs&) { Form_Activate(); });
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
    On("cmdWeekly.Click", [this](EventArgs& e) { cmdWeekly_Click(e.index); });
    On("cmdAdmin.Click", [this](EventArgs& e) { cmdAdmin_Click(e.index); });
    On("DTEnd.Change", [this](EventArgs&) { DTEnd_Change(); });
}

void frmAdmin::Form_Load() {
    if (!ProjectsLoaded) LoadProjects(Screen<frmProjectControl>());
}

void frmAdmin::Form_Activate() {
    ResetAdminDates();
    LoadAdminEvents();
}

void frmAdmin::Form_QueryUnload(EventArgs& e) {
    if (e.unloadMode == 0) ExitProgramFromSetup();
}

void frmAdmin::ResetAdminDates() {
    const DateTime today = Today();
    DTStart.SetValue(today);
    DTEnd.SetValue(DateAdd("m", 1, today));
}

void frmAdmin::cmdWeekly_Click(int index) {
    const DateTime today = Today();
    if (index == kNextYear || index == kNextMonth || index == kNextQuarter) {
        const int months = index == kNextYear ? 12 : index == kNextMonth ? 1 : 3;
        DTEnd.SetValue(DateAdd("m", months, today));
        DTStart.SetValue(today);
    } else if (index != kLoadGrid) {
        return;
    }
    LoadAdminEvents();
}

void frmAdmin::cmdAdmin_Click(int index) {
    if (index == kMenu) {
        Unload();
        ShowMainMenuFromSetup();
    } else if (index == kPrint) {
        PrintAdminEvents();
    }
}

void frmAdmin::DTEnd_Change() {
    const DateTime start = DTStart.Value().DateOnly();
    if (start >= Today() && DTEnd.Value().DateOnly() >= start) return;
    AlarmBeep();
    ResetAdminDates();
    DTStart.SetFocus();
}

void frmAdmin::ClearAdminGrid() {
    for (int row = 1; row < fgAdminSchedule.Rows(); ++row)
        for (int col = 0; col < fgAdminSchedule.Cols(); ++col)
            fgAdminSchedule.SetTextMatrix(row, col, "");
}

void frmAdmin::LoadAdminEvents() {
    if (!ProjectsLoaded) {
        cmdAdmin[kPrint].SetEnabled(false);
        return;
    }
    ClearAdminGrid();
    fgAdminSchedule.SetRows(2);
    fgAdminSchedule.SetRow(1);
    const DateTime first = DTStart.Value().DateOnly();
    const DateTime last = DTEnd.Value().DateOnly();
    int found = 0;
    // Every position up to the widest project: the empty ones of shorter projects have no date.
    for (int p = 1; p <= ProjectCount; ++p) {
        const ProjectHeader& header = HeaderOf(p);
        for (int m = 1; m <= MaxMilestones; ++m) {
            const Milestone& milestone = MilestoneOf(p, m);
            if (milestone.date < first || milestone.date > last) continue;
            if (milestone.type != kAdministrative) continue;
            const int row = fgAdminSchedule.Row();
            const std::string cells[6] = {header.projectNo,          header.title,
                                          ShortDate(milestone.date), milestone.name,
                                          header.billingName,        header.billingTelephone};
            for (int c = 0; c < 6; ++c) fgAdminSchedule.SetTextMatrix(row, c, cells[c]);
            fgAdminSchedule.SetRows(fgAdminSchedule.Rows() + 1);
            fgAdminSchedule.SetRow(row + 1);
            ++found;
        }
    }
    if (fgAdminSchedule.Rows() >= 3) fgAdminSchedule.SetRows(fgAdminSchedule.Rows() - 1);
    cmdAdmin[kPrint].SetEnabled(found > 0);
}

void frmAdmin::PrintAdminEvents() {
    // The list goes straight to the printer as it is set up: no printer dialogue is asked.
    try {
        InitPrinter("Portrait", PrintSettingColor());
        PrintAdminHeader();
        PrintAdminRows();
        Printer().EndDoc();
    } catch (const RuntimeError&) {
        if (Printer().DocumentOpen()) Printer().KillDoc();
        MsgBox("A Print Error has occurred", vbOKOnly, "Print Error");
    }
}

void frmAdmin::PrintAdminHeader() {
    SetPrintFont(14, true, false);
    SetPrintPosition(1.0f, 0.3f);
    Printer().Print("Administrative Tasks");
    SetPrintFont(10, false, false);
    SetPrintPosition(1.0f, 0);
    Printer().Print("Date Range: " + ShortDate(DTStart.Value()) + "to " + ShortDate(DTEnd.Value()));
    SetPrintFont(10, true, false);
    SetPrintPosition(0, 1.1f);
    const struct {
        float x;
        const char* text;
    } headings[] = {{0.75f, "Project No."}, {1.75f, "Project Title"}, {3.5f, "Milestone"},
                    {5.0f, "Acct Name"},    {7.5f, "Acct Tel"},       {9.0f, "Status"}};
    for (const auto& heading : headings) PrintAt(heading.x, heading.text);
    Printer().Print();
    SetPrintFont(10, false, false);
}

void frmAdmin::PrintAdminRows() {
    PrinterObject& printer = Printer();
    const float columns[6] = {0.75f, 1.75f, 3.0f, 3.75f, 5.0f, 7.5f};
    for (int row = 1; row < fgAdminSchedule.Rows(); ++row) {
        for (int c = 0; c < 6; ++c) PrintAt(columns[c], fgAdminSchedule.TextMatrix(row, c));
        PrintAt(9.0f, std::string(32, '_'));
        printer.Print();
        if (row % 5 == 0) printer.Print();
        if (printer.CurrentY() + printer.TextHeight("ABC") >= printer.Height()) {
            printer.NewPage();
            PrintAdminHeader();
        }
    }
}
