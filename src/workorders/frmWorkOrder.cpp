#include "workorders/frmWorkOrder.h"

#include "customers/CustomerHandOff.h"
#include "customers/frmCustomer.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Printer.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "setup/SetupHooks.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"
#include "workorders/ItemFiles.h"
#include "workorders/ItemRecords.h"
#include "workorders/WorkOrderPrint.h"

using namespace platform;

namespace {

constexpr const char* kTemplateFile = "\\Templates\\WONarrative.txt";
constexpr const char* kNarrativeFile = "\\Templates\\WONarrativeTEMP.txt";
constexpr size_t kHeadingLength = 12;
constexpr int kPrintDialogFlags = cdlPDHidePrintToFile | cdlPDCollate | cdlPDNoPageNums;
constexpr const char* kNoFrame = "";

const char* const kHeadings[] = {"Work Order", "Service Order", "Repair Order", "Estimate"};

const char* const kButtonCaptions[] = {"Menu",
                                       "Print Documents",
                                       "Hide",
                                       "Clear All Services and Items ",
                                       "Add Service",
                                       "Add Item",
                                       "Save as a Template",
                                       "Clear Narrative",
                                       "Load a Template",
                                       "Select All",
                                       "Select All"};

void Place(Control& control, const std::string& frame, int left, int top, int width, int height,
           const std::string& caption = {}) {
    control.SetContainer(frame);
    control.Move(left, top, width, height);
    if (!caption.empty()) control.SetCaption(caption);
}

bool Holds(const ListBox& list, const std::string& text) {
    for (const ListEntry& entry : list.Items())
        if (entry.text == text) return true;
    return false;
}

}  // namespace

frmWorkOrder::frmWorkOrder() : Form(kName) {
    LayOut();
    On("Form.Load", [this](EventArgs&) { Form_Load(); });
    On("Form.Activate", [this](EventArgs&) { Form_Activate(); });
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
    On("lstItems.Click", [this](EventArgs&) { lstItems_Click(); });
    On("lstServices.Click", [this](EventArgs&) { lstServices_Click(); });
    On("cmdWO.Click", [this](EventArgs& e) { cmdWO_Click(e.index); });
}

void frmWorkOrder::LayOut() {
    SetCaption("Create Work Order or Estimate");
    SetSize(11520, 9600);

    Place(lblHeading, kNoFrame, 120, 120, 2520, 255, "Heading (Max Length = 12 Chrs)");
    Place(cboHeading, kNoFrame, 120, 420, 2520, 315);
    Place(fraAccount, kNoFrame, 2760, 60, 8520, 1500, "Account");
    for (int i = 0; i < lblAccount.Count(); ++i)
        Place(lblAccount[i], "fraAccount", 120 + (i / 4) * 3480, 300 + (i % 4) * 270, 3360, 255);
    Place(cmdWO[kHideAccount], "fraAccount", 7200, 300, 1200, 375);

    Place(lblItems, kNoFrame, 120, 1680, 5400, 255, "Parts and Items");
    Place(lstItems, kNoFrame, 120, 1960, 5400, 1680);
    Place(cboPrices[kItemPrices], kNoFrame, 120, 3750, 1800, 315);
    Place(cmdWO[kAddItem], kNoFrame, 2040, 3700, 1620, 420);
    Place(cmdWO[kAllItems], kNoFrame, 3780, 3700, 1740, 420);
    Place(lblServices, kNoFrame, 5880, 1680, 5400, 255, "Services");
    Place(lstServices, kNoFrame, 5880, 1960, 5400, 1680);
    Place(cboPrices[kServicePrices], kNoFrame, 5880, 3750, 1800, 315);
    Place(cmdWO[kAddService], kNoFrame, 7800, 3700, 1620, 420);
    Place(cmdWO[kAllServices], kNoFrame, 9540, 3700, 1740, 420);

    Place(lblItemsList, kNoFrame, 120, 4260, 5400, 255, "Items on the Work Order");
    Place(lstItemsList, kNoFrame, 120, 4540, 3960, 1200);
    Place(lstPrices[kItemPrices], kNoFrame, 4140, 4540, 1380, 1200);
    Place(lblServicesList, kNoFrame, 5880, 4260, 5400, 255, "Services on the Work Order");
    Place(lstServicesList, kNoFrame, 5880, 4540, 3960, 1200);
    Place(lstPrices[kServicePrices], kNoFrame, 9900, 4540, 1380, 1200);
    Place(cmdWO[kClearLists], kNoFrame, 120, 5820, 3480, 420);

    Place(lblNarrative, kNoFrame, 120, 6360, 7560, 255, "Narrative (Instructions for the Work)");
    Place(txtWONarrative, kNoFrame, 120, 6640, 7560, 1560);
    txtWONarrative.SetMultiLine(true);
    Place(cmdWO[kSaveTemplate], kNoFrame, 7800, 6640, 1680, 420);
    Place(cmdWO[kLoadTemplate], kNoFrame, 9600, 6640, 1680, 420);
    Place(cmdWO[kClearNarrative], kNoFrame, 7800, 7120, 1680, 420);
    Place(ckCompletion, kNoFrame, 7800, 7660, 3480, 375, "Print a Completion Summary Report");

    Place(cmdWO[kPrint], kNoFrame, 120, 8400, 2400, 495);
    Place(cmdWO[kMenu], kNoFrame, 2640, 8400, 1560, 495);
    for (int i = 0; i < cmdWO.Count(); ++i) cmdWO[i].SetCaption(kButtonCaptions[i]);
}

// ---- Loading

void frmWorkOrder::Form_Load() {
    for (const char* heading : kHeadings) cboHeading.AddItem(heading);
    if (FindFile(workorders::kInventoryFile)) LoadAdditionalItems();
    if (FindFile(workorders::kServicesFile)) LoadServices();
    if (FindFile(workorders::kCustomItemsFile)) LoadCustomItems();
}

void frmWorkOrder::LoadAdditionalItems() {
    lstItems.Clear();
    cboPrices[kItemPrices].Clear();
    for (const ItemRow& item : ReadInventoryItems()) {
        lstItems.AddItem(item.description);
        cboPrices[kItemPrices].AddItem(item.price);
    }
}

void frmWorkOrder::LoadServices() {
    cboPrices[kServicePrices].Clear();
    lstServices.Clear();
    for (const ItemRow& service : ReadServices()) {
        cboPrices[kServicePrices].AddItem(service.price);
        lstServices.AddItem(service.description);
    }
}

void frmWorkOrder::LoadCustomItems() {
    for (const ItemRow& item : ReadCustomItems()) {
        lstItems.AddItem(item.description);
        cboPrices[kItemPrices].AddItem(item.price);
    }
}

void frmWorkOrder::Form_Activate() {
    DeleteFile(kNarrativeFile);
    frmCustomer& customer = Screen<frmCustomer>();
    for (int i = 0; i < lblAccount.Count(); ++i)
        if (i != 4) lblAccount[i].SetCaption(customer.txtCustomer[i].Text());
    lblAccount[1].SetCaption(CustomerName());

    // A list without rows, its file missing, is closed to the user with all that serves it.
    const struct {
        ListBox& list;
        ComboBox& prices;
        int add, all;
    } selections[] = {{lstItems, cboPrices[kItemPrices], kAddItem, kAllItems},
                      {lstServices, cboPrices[kServicePrices], kAddService, kAllServices}};
    for (const auto& s : selections) {
        const bool rows = s.list.ListCount() > 0;
        if (rows) s.list.SetListIndex(0);
        for (Control* c :
             {static_cast<Control*>(&s.list), static_cast<Control*>(&s.prices),
              static_cast<Control*>(&cmdWO[s.add]), static_cast<Control*>(&cmdWO[s.all])})
            c->SetEnabled(rows);
        if (s.prices.ListCount() > 0) s.prices.SetListIndex(0);
    }
    cboHeading.SetListIndex(0);
    ClearPartsList();
    cmdWO[kLoadTemplate].SetEnabled(FindFile(kTemplateFile));
}

void frmWorkOrder::Form_QueryUnload(EventArgs& e) {
    if (e.unloadMode == 0) ExitProgramFromSetup();
}

std::string frmWorkOrder::CustomerName() const {
    return HandedOffAccount.siteInfo[1];
}

// ---- Choosing services and items

void frmWorkOrder::ClearPartsList() {
    lstItemsList.Clear();
    lstServicesList.Clear();
    lstPrices[kServicePrices].Clear();
    lstPrices[kItemPrices].Clear();
}

void frmWorkOrder::lstItems_Click() {
    // The price follows the item; the user may overtype it afterwards.
    cboPrices[kItemPrices].SetListIndex(lstItems.ListIndex());
}

void frmWorkOrder::lstServices_Click() {
    cboPrices[kServicePrices].SetListIndex(lstServices.ListIndex());
}

void frmWorkOrder::AddChosen(ListBox& from, ComboBox& prices, ListBox& chosen,
                             ListBox& chosenPrices) {
    // With no row chosen in the list there is nothing to add.
    if (from.ListIndex() < 0) return;
    const std::string text = from.Text();
    if (Holds(chosen, text)) {
        AlarmBeep();
        return;
    }
    chosen.AddItem(text);
    chosenPrices.AddItem(prices.Text());
}

void frmWorkOrder::AddAll(ListBox& from, ComboBox& prices, ListBox& chosen, ListBox& chosenPrices) {
    // The prices of the list are taken, not what was typed over them.
    for (int i = 0; i < from.ListCount(); ++i) {
        if (Holds(chosen, from.List(i))) continue;
        chosen.AddItem(from.List(i));
        chosenPrices.AddItem(i < prices.ListCount() ? prices.List(i) : std::string());
    }
}

void frmWorkOrder::cmdWO_Click(int index) {
    switch (index) {
        case kMenu:
            Hide();
            ShowMainMenuFromSetup();
            break;
        case kPrint:
            PrintDocuments();
            break;
        case kHideAccount:
            fraAccount.SetVisible(false);
            break;
        case kClearLists:
            lstItems.SetListIndex(-1);
            lstServices.SetListIndex(-1);
            ClearPartsList();
            break;
        case kAddService:
            AddChosen(lstServices, cboPrices[kServicePrices], lstServicesList,
                      lstPrices[kServicePrices]);
            break;
        case kAddItem:
            AddChosen(lstItems, cboPrices[kItemPrices], lstItemsList, lstPrices[kItemPrices]);
            break;
        case kSaveTemplate:
            SaveNarrativeTemplate();
            break;
        case kClearNarrative:
            txtWONarrative.SetText("");
            txtWONarrative.SetFocus();
            break;
        case kLoadTemplate:
            LoadNarrativeTemplate();
            break;
        case kAllItems:
            AddAll(lstItems, cboPrices[kItemPrices], lstItemsList, lstPrices[kItemPrices]);
            break;
        case kAllServices:
            AddAll(lstServices, cboPrices[kServicePrices], lstServicesList,
                   lstPrices[kServicePrices]);
            break;
        default:
            break;
    }
}

// ---- The narrative

void frmWorkOrder::SaveNarrativeTemplate() {
    if (txtWONarrative.Text().empty()) {
        MsgBox("Enter Data in Narrative Box");
        txtWONarrative.SetFocus();
        return;
    }
    DeleteFile(kTemplateFile);
    OpenForOutput(kTemplateFile);
    PrintLine(MainFileNo, txtWONarrative.Text());
    CloseAll();
    cmdWO[kLoadTemplate].SetEnabled(true);
}

void frmWorkOrder::LoadNarrativeTemplate() {
    txtWONarrative.SetText("");
    OpenForInput(kTemplateFile);
    const int file = MainFileNo;
    std::string text;
    while (!Eof(file)) text += LineInput(file) + "\r\n";
    CloseAll();
    txtWONarrative.SetText(text);
}

void frmWorkOrder::StoreNarrative() {
    DeleteFile(kNarrativeFile);
    if (txtWONarrative.Text().empty()) return;
    OpenForOutput(kNarrativeFile);
    PrintLine(MainFileNo, txtWONarrative.Text());
    CloseAll();
}

// ---- Printing

void frmWorkOrder::PrintSummaryBeside() {
    // Printed into a PDF file, the summary goes beside the work order rather than over it.
    PrinterObject& printer = Printer();
    const std::string file = printer.OutputFile();
    if (!file.empty()) {
        const size_t dot = file.find_last_of('.');
        const size_t slash = file.find_last_of("/\\");
        const bool extension =
            dot != std::string::npos && (slash == std::string::npos || dot > slash);
        printer.SetOutputFile((extension ? file.substr(0, dot) : file) + " Summary" +
                              (extension ? file.substr(dot) : std::string(".pdf")));
    }
    try {
        PrintSummaryReport(*this);
    } catch (...) {
        printer.SetOutputFile(file);
        throw;
    }
    printer.SetOutputFile(file);
}

void frmWorkOrder::PrintDocuments() {
    std::string heading = cboHeading.Text();
    if (heading.size() > kHeadingLength) {
        heading.resize(kHeadingLength);
        cboHeading.SetText(heading);
    }
    try {
        ShowPrinterDialog(kPrintDialogFlags);
        StoreNarrative();
        PrintWorkOrder(*this);
        // The screen is back at the main menu by now; the box is looked at after that.
        cmdWO_Click(kMenu);
        if (ckCompletion.Value() == 1) PrintSummaryBeside();
    } catch (const RuntimeError& e) {
        ReportPrintFailure(e);
    }
}
