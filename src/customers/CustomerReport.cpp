#include "customers/CustomerReport.h"

#include <string>
#include <vector>

#include "customers/CustomerDiskRoutines.h"
#include "customers/CustomerRoutines.h"
#include "customers/frmCustomer.h"
#include "platform/Dialogs.h"
#include "platform/Printer.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "printing/PrinterRoutines.h"

using namespace platform;

namespace {

constexpr float kColumns[] = {1.0f, 4.0f, 7.0f};  // inches from the left edge
constexpr float kHeadingTop = 0.5f;
constexpr float kBlocksTop = 1.2f;
constexpr double kBottomMargin = 0.5 * kTwipsPerInch;
constexpr float kNameSize = 10;

// The lines of one account's block; the address form follows the screen's.
std::vector<std::string> BlockLines(const Record& record, bool usAddress) {
    std::vector<std::string> lines = {FoundName(record), record.Trimmed("Address1")};
    const std::string city = record.Trimmed("City");
    const std::string state = record.Trimmed("State");
    const std::string code = record.Trimmed("PostalCode");
    if (usAddress) {
        lines.push_back(city + ", " + state + " " + code);
    } else {
        // Each on a line of its own, the state's too, though it is blank abroad.
        for (const std::string& line : {city, state, code}) lines.push_back(line);
    }
    return lines;
}

void PrintHeading() {
    SetPrintColor(false);
    SetPrintFont(14, true, false);
    SetPrintPosition(kColumns[0], kHeadingTop);
    Printer().Print("Account Information");
    SetPrintFont(10, false, false);
    SetPrintPosition(kColumns[2], kHeadingTop + 0.05f);
    Printer().Print(ShortDate(Today()));
    SetPrintColor(true);
    SetPrintFont(kNameSize, false, false);
}

void PrintBlocks(bool usAddress) {
    PrinterObject& printer = Printer();
    PrintHeading();
    const double line = printer.TextHeight();
    const int linesPerBlock = usAddress ? 3 : 5;
    const double blockHeight = (linesPerBlock + 1) * line;
    double top = kBlocksTop * kTwipsPerInch;
    int column = 0;
    ForEachCustomer(CountCustomers(), [&](std::int32_t, const Record& record) {
        if (column == 0 && top + blockHeight > printer.Height() - kBottomMargin) {
            printer.NewPage();
            PrintHeading();
            top = kBlocksTop * kTwipsPerInch;
        }
        const auto lines = BlockLines(record, usAddress);
        for (size_t i = 0; i < lines.size(); ++i) {
            printer.SetCurrentX(kColumns[column] * kTwipsPerInch);
            printer.SetCurrentY(top + static_cast<double>(i) * line);
            printer.Print(lines[i]);
        }
        if (++column == 3) {
            column = 0;
            top += blockHeight;
        }
    });
}

}  // namespace

void PrintCustomerReport(frmCustomer& form) {
    if (MsgBox("Click Yes to print a Customer Report", vbYesNo + vbQuestion, "Customer Report") !=
        vbYes)
        return;
    // The report goes to the printer as it is set up: no printer dialogue is asked.
    try {
        InitPrinter("Landscape", PrintSettingColor());
        PrintBlocks(form.USAddress);
        Printer().EndDoc();
    } catch (const RuntimeError&) {
        Printer().KillDoc();
        MsgBox("A Print Error has occurred", vbOKOnly + vbCritical, "Print Error");
    }
}
