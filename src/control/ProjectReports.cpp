#include "control/ProjectReports.h"

#include <string>

#include "control/ProjectTables.h"
#include "control/frmProjectControl.h"
#include "platform/Controls.h"
#include "platform/Dialogs.h"
#include "platform/Numbers.h"
#include "platform/Printer.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "printing/GenericForm.h"
#include "printing/PrinterRoutines.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

// The printer dialogue of the shared dialog: no page numbers, collate, no print to file.
constexpr int kPrinterDialogFlags = 0x100018;
constexpr std::int32_t kRed = Rgb(255, 0, 0);

// Prints at x inches on the present line and stays on it.
void PrintAt(float x, const std::string& text) {
    SetPrintPosition(x, 0);
    Printer().Print(text, PrintEnd::Semicolon);
}

void EndLine() {
    Printer().Print();
}

// True when one more line of text would reach the bottom of the page.
bool PageFull() {
    PrinterObject& printer = Printer();
    return printer.CurrentY() + printer.TextHeight("ABC") >= printer.Height();
}

// A printing failure or a cancelled dialogue leaves what was begun with the spooler.
void AbandonDocument() {
    if (Printer().DocumentOpen()) Printer().KillDoc();
}

void PrintPastCompletionHeader() {
    SetPrintFont(15, true, false);
    SetPrintPosition(2.25f, 0.5f);
    Printer().Print("Milestones Past Competion Report", PrintEnd::Semicolon);
    SetPrintFont(10, false, false);
    PrintAt(6.25f, ShortDate(Today()));
    EndLine();
    EndLine();
    SetPrintFont(10, true, false);
    PrintAt(0.75f, "Project No.");
    PrintAt(2.25f, "Project Name");
    PrintAt(4.0f, "Milestone");
    PrintAt(6.0f, "Scheduled Date");
    EndLine();
    SetPrintFont(10, false, false);
    EndLine();
}

}  // namespace

void PrintProjectHeader(int project) {
    const ProjectHeader& h = HeaderOf(project);
    PrinterObject& printer = Printer();
    printer.SetForeColor(0);
    const std::string title = "Construction Project Status and Event Report";
    SetPrintFont(15, true, false);
    printer.SetCurrentY(0.5 * kTwipsPerInch);
    printer.SetCurrentX(printer.Width() / 2 - printer.TextWidth(title) / 2);
    printer.Print(title, PrintEnd::Semicolon);
    SetPrintFont(10, false, false);
    PrintAt(9.0f, ShortDate(Today()));
    SetPrintFont(10, true, false);
    SetPrintPosition(1.0f, 1.0f);
    printer.Print("Account", PrintEnd::Semicolon);
    PrintAt(6.5f, "Project Title");
    PrintAt(9.0f, "Project No");
    SetPrintFont(10, false, false);
    SetPrintPosition(6.5f, 1.25f);
    printer.Print(h.title, PrintEnd::Semicolon);
    PrintAt(9.0f, h.projectNo);
    PrintAddressBlock(h.billingName, h.billingAddress1, h.billingAddress2, h.billingCity,
                      h.billingState, h.billingZip, 1.25f);
    SetPrintPosition(1.0f, 0);
    printer.Print("Telephone  " + h.billingTelephone);
    EndLine();
    const double rule = printer.CurrentY();
    printer.Line(0.75 * kTwipsPerInch, rule, printer.Width() - 0.75 * kTwipsPerInch, rule, 0);
    printer.SetCurrentY(rule + 120);
    SetPrintFont(10, true, false);
    PrintAt(0.75f, "Milestone Event");
    PrintAt(2.75f, "Action Date");
    PrintAt(4.0f, "Assigned to");
    PrintAt(5.75f, "Work Location");
    PrintAt(7.5f, "Status");
    PrintAt(9.0f, "Completed Date");
    EndLine();
    SetPrintFont(10, false, false);
}

void PrintProject(int project) {
    PrintProjectHeader(project);
    EndLine();
    const DateTime today = Today();
    PrinterObject& printer = Printer();
    for (int m = 1; m <= HeaderOf(project).milestoneCount; ++m) {
        const Milestone& ms = MilestoneOf(project, m);
        const std::string assigned =
            ms.type == 1 ? "Administrative" : TeamListEntry(CInt(Val(ms.team)));
        const bool late = ms.date < today && ms.completion.find("Not") != std::string::npos;
        printer.SetForeColor(late ? kRed : 0);
        PrintAt(0.75f, ms.name);
        PrintAt(2.75f, ShortDate(ms.date));
        PrintAt(4.0f, assigned);
        PrintAt(6.0f, ms.location);
        PrintAt(7.5f, ms.status);
        PrintAt(9.0f, ms.completion);
        EndLine();
        printer.SetForeColor(0);
        if (m % 5 == 0) EndLine();
        if (PageFull()) {
            printer.NewPage();
            PrintProjectHeader(project);
        }
    }
}

void PrintOneProject(frmProjectControl& form, int project) {
    try {
        ShowPrinterDialog(kPrinterDialogFlags);
        InitPrinter("Landscape", PrintInColor);
        PrintProject(project);
        Printer().EndDoc();
    } catch (const RuntimeError&) {
        AbandonDocument();
        throw;
    }
}

void PrintSelectedProject(frmProjectControl& form) {
    try {
        form.SelProject = form.fgProjects.Row();
        PrintOneProject(form, form.SelProject);
    } catch (const RuntimeError&) {
    }
}

void PrintAllProjects(frmProjectControl& form) {
    try {
        ShowPrinterDialog(kPrinterDialogFlags);
        for (int p = 1; p <= ProjectCount; ++p) {
            InitPrinter("Landscape", PrintInColor);
            PrintProject(p);
            Printer().EndDoc();
        }
    } catch (const RuntimeError&) {
        AbandonDocument();
    }
}

void PrintPastCompletion(frmProjectControl& form) {
    try {
        ShowPrinterDialog(kPrinterDialogFlags);
        InitPrinter("Portrait", PrintInColor);
        PrintPastCompletionHeader();
        Grid& grid = form.fgCompleted;
        for (int r = 1; r <= grid.Rows() - 1; ++r) {
            PrintAt(1.0f, grid.TextMatrix(r, 0));
            PrintAt(2.25f, grid.TextMatrix(r, 1));
            PrintAt(4.0f, grid.TextMatrix(r, 2));
            PrintAt(6.25f, grid.TextMatrix(r, 3));
            EndLine();
            if (r % 5 == 0) EndLine();
            if (PageFull()) {
                Printer().NewPage();
                PrintPastCompletionHeader();
            }
        }
        Printer().EndDoc();
    } catch (const RuntimeError&) {
        AbandonDocument();
    }
}
