#include "contacts/ContactReport.h"

#include <string>
#include <vector>

#include "contacts/VendorRoutines.h"
#include "platform/Dialogs.h"
#include "platform/Printer.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "printing/PrinterRoutines.h"
#include "workorders/WorkOrderPrint.h"

using namespace platform;

namespace {

constexpr float kColumns[] = {1.0f, 4.0f, 7.0f};  // inches from the left edge
constexpr float kHeadingTop = 0.5f;
constexpr float kDateLeft = 9.0f;
constexpr float kRowsLeft = 1.0f;
constexpr float kRowsTop = 2.25f;
constexpr int kLinesPerContact = 5;
constexpr int kReportDialogFlags = cdlPDHidePrintToFile | cdlPDCollate | cdlPDNoPageNums;

void PrintContactHeader() {
    PrinterObject& printer = Printer();
    SetPrintFont(0, true, false);
    const std::string heading = "Account Information";
    printer.SetCurrentX((printer.Width() - printer.TextWidth(heading)) / 2);
    SetPrintPosition(0, kHeadingTop);
    printer.Print(heading);
    SetPrintFont(0, false, false);
    SetPrintPosition(kDateLeft, kHeadingTop);
    printer.Print(ShortDate(Today()));
    SetPrintPosition(kRowsLeft, kRowsTop);
}

void PrintContactCell(int column, double y, const Record& contact) {
    PrinterObject& printer = Printer();
    const double left = kColumns[column] * kTwipsPerInch;
    const std::string lines[kLinesPerContact] = {
        contact.Trimmed("Name"), contact.Trimmed("Address1"),
        contact.Trimmed("City") + ", " + contact.Trimmed("State") + " " + contact.Trimmed("Zip"),
        contact.Trimmed("Telephone"), contact.Trimmed("EMail")};
    printer.SetCurrentY(y);
    for (const std::string& line : lines) {
        printer.SetCurrentX(left);
        printer.Print(line);
    }
}

void PrintContactRows(std::int32_t count) {
    PrinterObject& printer = Printer();
    const double rowHeight = kLinesPerContact * printer.TextHeight("ABC");
    double y = printer.CurrentY();
    int column = 0;
    for (const Record& contact : ReadVendors(count)) {
        PrintContactCell(column, y, contact);
        if (++column < 3) continue;
        column = 0;
        y += rowHeight;
        // A row that would run past the foot of the page starts the next one.
        if (y + rowHeight > printer.Height()) {
            printer.NewPage();
            PrintContactHeader();
            y = printer.CurrentY();
        }
    }
}

}  // namespace

void PrintContactReport(std::int32_t count) {
    if (MsgBox("Click Yes to print a Contact Report", vbYesNo + vbQuestion, "Contact Report") !=
        vbYes)
        return;
    try {
        ShowPrinterDialog(kReportDialogFlags);
        InitPrinter("Portrait", PrintSettingColor());
        PrintContactHeader();
        PrintContactRows(count);
        Printer().EndDoc();
    } catch (const RuntimeError& e) {
        // The report shares the work order's handler, and its words.
        ReportPrintFailure(e);
    }
}
