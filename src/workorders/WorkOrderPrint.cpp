#include "workorders/WorkOrderPrint.h"

#include <functional>

#include "customers/CustomerDiskRoutines.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Printer.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "printing/GenericForm.h"
#include "printing/PrinterRoutines.h"
#include "store/BasicDiskRoutines.h"
#include "workorders/frmWorkOrder.h"

using namespace platform;

namespace {

constexpr const char* kNarrativeFile = "\\Templates\\WONarrativeTEMP.txt";

// The page, in twips.
constexpr int kPageWidth = 12240;
constexpr double kLeftEdge = 360;
constexpr double kRightEdge = 11880;
constexpr double kBodyTop = 5760;
constexpr double kBodyBottom = 14400;

// The narrative.
constexpr float kNarrativeLeft = 0.5f;
constexpr float kNarrativeTop = 4.5f;
constexpr double kNarrativeBottom = 14040;
constexpr std::int16_t kWrapLeft = 720;
constexpr std::int16_t kWrapWidth = 10800;
constexpr std::int16_t kWrapHeight = 7200;
constexpr int kInstructionRules = 11;
constexpr double kFirstRule = 6480;
constexpr double kRuleStep = 720;

// The parts list.
constexpr float kPartsTop = 4.3f;
constexpr double kPartsBottom = 11520;
constexpr float kDescriptionLeft = 2.3f;
constexpr double kPriceRight = 9360;
constexpr double kRuleGap = 72;

// The header blocks.
constexpr float kHeaderLeft = 6.0f;
constexpr float kHeaderTop = 0.9f;
constexpr float kBlockLeft = 1.0f;
constexpr float kBusinessTop = 0.4f;
constexpr float kAddressTop = 2.3f;
constexpr float kNameSize = 12;

// The summary report.
constexpr float kSummaryLeft = 5.0f;
constexpr float kSummaryTop = 1.5f;
constexpr float kBlankLeft = 6.5f;
constexpr float kListsLeft = 0.5f;
constexpr int kRowsToFill = 9;

struct PrintJob {
    std::string heading;
    std::string account;
    std::string name;
};

PrintJob JobOf(frmWorkOrder& form) {
    return {form.cboHeading.Text(), form.lblAccount[0].Caption(), form.CustomerName()};
}

// A step of the work order whose failure is passed over.
void Step(const std::function<void()>& step) {
    try {
        step();
    } catch (const RuntimeError&) {
    }
}

void PrintAt(double x, const std::string& text) {
    Printer().SetCurrentX(x);
    Printer().Print(text);
}

void PrintCustomerBlock(const PrintJob& job) {
    PrintAddressBlock(job.name, CustomerRecord.Trimmed("Address1"), "",
                      CustomerRecord.Trimmed("City"), CustomerRecord.Trimmed("State"),
                      CustomerRecord.Trimmed("ZipCode"), kAddressTop);
}

void PrintWOForm(const PrintJob& job, float top) {
    PrinterObject& printer = Printer();
    printer.SetOrientation(vbPRORPortrait);
    printer.SetWidth(kPageWidth);
    DrawTopBox();
    for (double y : {kBodyTop, kBodyBottom}) printer.Line(kLeftEdge, y, kRightEdge, y, BorderColor);
    for (double x : {kLeftEdge, kRightEdge}) printer.Line(x, kBodyTop, x, kBodyBottom, BorderColor);
    PrintFormTitle(job.heading, 0.5f, 0.5f);
    PrintLogo(0);
    PrintBusinessBlock(kBlockLeft, top, kNameSize);
    PrintWOHeader(job.account);
    PrintCustomerBlock(job);
}

void NewNarrativePage(const PrintJob& job) {
    Printer().NewPage();
    PrintWOForm(job, kBusinessTop);
    SetPrintPosition(kNarrativeLeft, kNarrativeTop);
}

void PrintNarrative(const PrintJob& job) {
    PrinterObject& printer = Printer();
    SetPrintPosition(kNarrativeLeft, kNarrativeTop);
    OpenForInput(kNarrativeFile);
    const int file = MainFileNo;
    std::vector<std::string> lines;
    while (!Eof(file)) lines.push_back(LineInput(file));
    CloseAll();
    for (const std::string& line : lines) {
        if (printer.CurrentY() + printer.TextHeight(line) > kNarrativeBottom) NewNarrativePage(job);
        // The position goes to the primitive as a whole twip, rounded as the platform does.
        PrintWrappedText(kWrapLeft, CInt(printer.CurrentY()), kWrapWidth, kWrapHeight, line);
    }
}

void PrintInstructionRules() {
    SetPrintPosition(1.0f, 3.8f);
    Printer().Print("Enter Instructions");
    for (int i = 0; i < kInstructionRules; ++i) {
        const double y = kFirstRule + i * kRuleStep;
        Printer().Line(kLeftEdge, y, kRightEdge, y);
    }
}

void PrintRowRule() {
    PrinterObject& printer = Printer();
    const double y = printer.CurrentY() + kRuleGap;
    printer.Line(kLeftEdge, y, kRightEdge, y, 0);
    printer.SetCurrentY(y + kRuleGap);
}

void NewPartsPage(const PrintJob& job) {
    Printer().NewPage();
    Printer().SetWidth(kPageWidth);
    StartGenericForm(true, job.heading, kBusinessTop);
    PrintWOHeader(job.account);
    SetPrintPosition(3.0f, 3.6f);
    Printer().Print("Parts and Services List");
    PrintInvoiceHeaderLine();
    PrintCustomerBlock(job);
    SetPrintPosition(0, kPartsTop);
}

void PrintPartsRow(const PrintJob& job, const std::string& description, const std::string& price) {
    PrinterObject& printer = Printer();
    if (printer.CurrentY() + printer.TextHeight("ABCD") >= kPartsBottom) NewPartsPage(job);
    const double y = printer.CurrentY();
    SetPrintPosition(kDescriptionLeft, 0);
    printer.Print(description);
    printer.SetCurrentY(y);
    PrintAt(kPriceRight - printer.TextWidth(price), price);
    PrintRowRule();
}

void PrintPartsList(const PrintJob& job, frmWorkOrder& form) {
    SetPrintPosition(0, kPartsTop);
    const struct {
        ListBox& chosen;
        ListBox& prices;
    } lists[] = {{form.lstItemsList, form.lstPrices[frmWorkOrder::kItemPrices]},
                 {form.lstServicesList, form.lstPrices[frmWorkOrder::kServicePrices]}};
    for (const auto& list : lists)
        for (int i = 0; i < list.chosen.ListCount(); ++i)
            Step([&] {
                PrintPartsRow(job, list.chosen.List(i),
                              i < list.prices.ListCount() ? list.prices.List(i) : std::string());
            });
}

// A line of the summary's block: the label at the block's left, the blank to fill beside it.
void PrintBlankLine(const std::string& label, const std::string& blank) {
    PrinterObject& printer = Printer();
    const double y = printer.CurrentY();
    PrintAt(kSummaryLeft * kTwipsPerInch, label);
    printer.SetCurrentY(y);
    PrintAt(kBlankLeft * kTwipsPerInch, blank);
}

void PrintEmptyRows() {
    for (int i = 0; i < kRowsToFill; ++i) {
        Printer().Print();
        PrintRowRule();
    }
}

}  // namespace

void PrintWOHeader(const std::string& account) {
    PrinterObject& printer = Printer();
    SetPrintFont(10, true, false);
    SetPrintPosition(kHeaderLeft, kHeaderTop);
    const double left = printer.CurrentX();
    PrintAt(left, "Date " + ShortDate(Today()));
    PrintAt(left, "Acct: " + account);
    PrintAt(left, "Page " + std::to_string(printer.Page()));
}

void PrintInvoiceHeaderLine() {
    const struct {
        float x;
        const char* text;
    } columns[] = {
        {0.6f, "QTY"}, {1.5f, "DATE"}, {3.1f, "DESCRIPTION"}, {6.1f, "PRICE"}, {7.5f, "TOTAL"}};
    for (const auto& column : columns) {
        SetPrintPosition(column.x, 4.05f);
        Printer().Print(column.text);
    }
}

void PrintWorkOrder(frmWorkOrder& form) {
    const PrintJob job = JobOf(form);
    Step([] { InitPrinter("Portrait", PrintSettingColor()); });
    Step([&] { PrintWOForm(job, kBusinessTop); });
    if (FindFile(kNarrativeFile))
        Step([&] { PrintNarrative(job); });
    else
        Step(PrintInstructionRules);
    if (form.lstItemsList.ListCount() > 0 || form.lstServicesList.ListCount() > 0) {
        Step([&] { NewPartsPage(job); });
        PrintPartsList(job, form);
    }
    Step([] { Printer().EndDoc(); });
}

void PrintSummaryReport(frmWorkOrder& form) {
    const PrintJob job = JobOf(form);
    PrinterObject& printer = Printer();
    InitPrinter("Portrait", PrintSettingColor());
    printer.SetWidth(kPageWidth);
    DrawTopBox();
    PrintFormTitle(job.heading, 0.5f, 0.5f);
    SetPrintFont(0, true, false);
    SetPrintPosition(kSummaryLeft, 0.5f);
    printer.Print("Summary Report");

    PrintLogo(0);
    PrintBusinessBlock(kBlockLeft, kBusinessTop, kNameSize);
    SetPrintPosition(kSummaryLeft, kSummaryTop);
    const double left = printer.CurrentX();
    PrintAt(left, "Date " + ShortDate(Today()));
    PrintAt(left, "Acct: " + job.account);
    printer.Print();
    for (const char* label : {"Start Time:", "Completion Time:", "Service Time:"})
        PrintBlankLine(label, "______:______");
    printer.Print();
    printer.Print();
    for (const char* label : {"Starting Odometer:", "Ending Odometer:"})
        PrintBlankLine(label, "____________");

    PrintCustomerBlock(job);

    SetPrintPosition(kListsLeft, kPartsTop);
    printer.Print("List any Anomalies prior to Commencement");
    PrintEmptyRows();
    printer.Print();
    printer.Print();
    PrintAt(kListsLeft * kTwipsPerInch,
            "List any Services that could not be Performed and the Reason");
    PrintEmptyRows();
    printer.Print();
    printer.Print();
    PrintAt(kListsLeft * kTwipsPerInch,
            "Service performed by: ______________________________________________");
    printer.EndDoc();
}

void ReportPrintFailure(const RuntimeError& error) {
    Printer().KillDoc();
    if (error.Number() == cdlCancel)
        MsgBox("The Work Order will not be Printed");
    else
        MsgBox("A Print Error has occurred", vbOKOnly + vbCritical, "Print Error");
}
