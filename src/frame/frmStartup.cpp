#include "frame/frmStartup.h"

#include "frame/Navigation.h"
#include "platform/Files.h"
#include "platform/Pictures.h"
#include "platform/Ui.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

const char* const kRoutineCaptions[10] = {
    "&Create  a New Project",
    "Create a &Work Order",
    "Print/View Work &Schedules",
    "Print/View &Administrative Events",
    "&Set Unattended Call Monitoring",
    "&Place Reminder Calls",
    "Manage Vendors, Suppliers and Sub-Contractors",
    "Schedule &Holidays, Vacations",
    "Create/Modify Customer Data",
    "&Manage Existing Projects",
};

const char* const kRoutineScreens[10] = {
    "frmCustomerSelection", "frmCustomer", "frmMain",  "frmAdmin",    "frmCallID",
    "frmCallBack",          "frmContacts", "frmBlock", "frmCustomer", "frmProjectControl",
};

const char* const kSupplierAddress = "https://www.norvax.com/supplies/";

std::string WithoutAccelerator(std::string caption) {
    std::string out;
    for (char c : caption)
        if (c != '&') out += c;
    return out;
}

}  // namespace

const char* RoutineScreen(int menuRoutine) {
    return menuRoutine >= 1 && menuRoutine <= 10 ? kRoutineScreens[menuRoutine - 1] : "";
}

frmStartup::frmStartup() : Form(kName) {
    SetCaption(Ui().ProductName());
    SetSize(8640, 7560);

    Label1[0].SetCaption(Ui().ProductName());
    Label1[0].SetFontSize(14);
    Label1[0].SetFontBold(true);
    Label1[0].SetAlignment(2);
    Label1[0].Move(240, 120, 6600, 480);
    Label1[1].SetCaption("Choose a routine, then Start (or double click it)");
    Label1[1].SetAlignment(2);
    Label1[1].Move(240, 600, 6600, 300);

    Image1.SetPicture(pictures::kSetup);
    Image1.Move(7200, 180, 960, 960);
    Image1.SetToolTipText("Setup");
    Image2.SetPicture(pictures::kProgram);
    Image2.Move(7200, 1320, 960, 960);
    Image2.SetVisible(false);

    fraRoutines.SetCaption("Program Routines");
    fraRoutines.Move(240, 960, 6720, 4800);
    for (int i = 0; i < 10; ++i) {
        auto& opt = optProgramRoutine[i];
        opt.SetCaption(kRoutineCaptions[i]);
        opt.SetContainer("fraRoutines");
        opt.Move(240, 300 + i * 440, 6240, 375);
    }
    optProgramRoutine[4].SetToolTipText("Record incoming calls while away");
    optProgramRoutine[5].SetToolTipText("Call Accts, about upcoming Service");
    cmdStart.SetCaption("&Start");
    cmdStart.SetDefault(true);
    cmdStart.Move(2520, 5940, 2160, 495);

    mnuFile.SetCaption("&File");
    mnuCreate.SetCaption("&Setup");
    mnuExit.SetCaption("E&xit");
    mnuOrder.SetCaption("&Order Forms");
    mnuAddress.SetCaption("Mailing &Labels");
    mnuPPaper.SetCaption("&Plain Paper");
    mnuPPPaper.SetCaption("&Field Invoices");
    mnuLabels.SetCaption("L&abels");
    mnuDeluxe.SetCaption("&Deluxe Checks");
    mnuGraytex.SetCaption("&Graytex Forms");
    mnuDepositSlips.SetCaption("Deposit &Slips");
    mnuHelp.SetCaption("&Help");
    mnuHelpContentsFile.SetCaption("&Contents");
    mnuAbout.SetCaption("&About");
    for (Menu* m : {&mnuCreate, &mnuExit}) m->SetContainer("mnuFile");
    for (Menu* m : {&mnuAddress, &mnuPPaper, &mnuPPPaper, &mnuLabels, &mnuDeluxe, &mnuGraytex,
                    &mnuDepositSlips})
        m->SetContainer("mnuOrder");
    for (Menu* m : {&mnuHelpContentsFile, &mnuAbout}) m->SetContainer("mnuHelp");

    On("Form.Activate", [this](EventArgs&) { Form_Activate(); });
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
    On("optProgramRoutine.Click", [this](EventArgs& e) { optProgramRoutine_Click(e.index); });
    On("optProgramRoutine.DblClick", [this](EventArgs& e) { optProgramRoutine_DblClick(e.index); });
    On("cmdStart.Click", [this](EventArgs&) { cmdStart_Click(); });
    On("mnuCreate.Click", [this](EventArgs&) { mnuCreate_Click(); });
    On("Image1.Click", [this](EventArgs&) { Image1_Click(); });
    On("mnuAbout.Click", [this](EventArgs&) { mnuAbout_Click(); });
    On("mnuExit.Click", [this](EventArgs&) { mnuExit_Click(); });
    On("Label1.DblClick", [this](EventArgs& e) { Label1_DblClick(e.index); });
    On("mnuHelpContentsFile.Click", [this](EventArgs&) { mnuHelpContentsFile_Click(); });
    On("mnuAddress.Click", [this](EventArgs&) {
        OrderForms("Order Paper", "30 to a Page Mailing Labels",
                   kSupplierAddress + std::string("labels"));
    });
    On("mnuPPaper.Click", [this](EventArgs&) {
        OrderForms("Order Paper", "Use Plain Paper for Reports (etc)",
                   kSupplierAddress + std::string("paper"));
    });
    On("mnuPPPaper.Click", [this](EventArgs&) {
        OrderForms("Order Paper", "Field Invoices with a Tear-off Completion Summary",
                   kSupplierAddress + std::string("field-invoices"));
    });
    On("mnuLabels.Click", [this](EventArgs&) {
        OrderForms("Order Labels", "Click YES to Connect to a Supplier",
                   kSupplierAddress + std::string("labels"));
    });
    On("mnuDeluxe.Click", [this](EventArgs&) {
        OrderForms("Connect to Deluxe", "Check SSLM102-1 and Envelope 92500",
                   "https://www.deluxe.com/");
    });
    On("mnuGraytex.Click", [this](EventArgs&) {
        OrderForms("Order Graytex Forms", "Connect to Graytex Now", "https://www.graytex.com/");
    });
    On("mnuDepositSlips.Click",
       [](EventArgs&) { OpenAddress(kSupplierAddress + std::string("deposit-slips")); });
}

void frmStartup::Form_Activate() {
    if (FindFile("/CustomerData.txt")) {
        if (Dir(DataPath("\\ConstructionProjects\\*.txt")).empty()) {
            optProgramRoutine[9].SetEnabled(false);
            optProgramRoutine[3].SetEnabled(false);
        }
        // The call monitor (routine 5) is offered only once caller ID has been seen to work.
        if (!CallerIDEnabled) optProgramRoutine[4].SetVisible(false);
        optProgramRoutine[0].SetValue(true);
        MenuRoutine = 1;
    } else {
        MsgBox("Create your 1st Customer Record Now");
        for (int i = 0; i < optProgramRoutine.Count(); ++i) optProgramRoutine[i].SetEnabled(false);
        optProgramRoutine[8].SetEnabled(true);
        optProgramRoutine[8].SetValue(true);
    }
}

void frmStartup::Form_QueryUnload(EventArgs& e) {
    if (e.unloadMode == 0) ExitProgram();
}

void frmStartup::optProgramRoutine_Click(int index) {
    MenuRoutine = static_cast<std::int16_t>(index + 1);
}

void frmStartup::optProgramRoutine_DblClick(int index) {
    MenuRoutine = static_cast<std::int16_t>(index + 1);
    cmdStart_Click();
}

void frmStartup::cmdStart_Click() {
    const std::string screen = RoutineScreen(MenuRoutine);
    if (screen.empty()) return;
    if (!Forms::Known(screen)) {
        const std::string routine = WithoutAccelerator(kRoutineCaptions[MenuRoutine - 1]);
        MsgBox("\"" + routine + "\" is not available in this version of the program.",
               vbInformation, "Routine Not Available");
        return;
    }
    Form& opened = Forms::Get(screen);
    opened.Show();
    // A screen with nothing to show sends the user straight back: the menu then stays.
    if (opened.IsLoaded()) Unload();
}

void frmStartup::mnuCreate_Click() {
    Forms::Get("frmSetup").Show();
    Hide();
}

void frmStartup::Image1_Click() {
    mnuCreate_Click();
}

void frmStartup::mnuAbout_Click() {
    Forms::Get("frmAbout").Show(vbModal);
}

void frmStartup::mnuExit_Click() {
    ExitProgram();
}

void frmStartup::Label1_DblClick(int index) {
    if (index == 0) Image2.SetVisible(true);
}

void frmStartup::mnuHelpContentsFile_Click() {
    OpenAddress(kManualAddress);
}

void frmStartup::OrderForms(const std::string& title, const std::string& question,
                            const std::string& url) {
    std::string text = question;
    if (question != "Click YES to Connect to a Supplier")
        text += "\r\nClick YES to Connect to a Supplier";
    if (MsgBox(text, vbYesNo + vbQuestion, title) == vbYes) OpenAddress(url);
}
