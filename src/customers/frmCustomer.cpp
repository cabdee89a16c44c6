#include "customers/frmCustomer.h"

#include <algorithm>
#include <cmath>

#include "customers/AuxDataRoutines.h"
#include "customers/CustomerDiskRoutines.h"
#include "customers/CustomerHandOff.h"
#include "customers/CustomerListExport.h"
#include "customers/CustomerReport.h"
#include "customers/CustomerRoutines.h"
#include "customers/CustomerSearch.h"
#include "customers/Placing.h"
#include "frame/VerifyDataRoutines.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Records.h"
#include "platform/Ui.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupHooks.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"
#include "telephony/DialerLink.h"

using namespace platform;

namespace {

constexpr int kFormWidth = 13440;
constexpr int kFormHeight = 7440;
constexpr int kAuxHeight = 4920;  // what the form grows by while the data screen is open
constexpr int kBusinessPhone = 6;
constexpr const char* kNoFrame = "";
constexpr const char* kStatesFile = "\\StatesList.txt";
constexpr int kMostStates = 50;

const char* const kTitles[] = {"Mr/Mrs", "Mr.", "Mrs", "Ms", "Miss"};

// Captions and tips of cmdNav, by index, and the place of each: the four steps in a row, the
// quarters below them.
const char* const kNavCaptions[] = {"|<", "<", ">", ">|", "1/4", "3/4", "1/2"};
const char* const kNavTips[] = {
    "Selects 1st Customer Record",     "Selects Previous Customer Record",
    "Selects Next Customer Record",    "Selects Last Customer Record",
    "Goes  1/4 into Customer Records", "Goes 3/4 into Customer Record",
    "Goes 1/2 into Customer Records"};
const int kNavLeft[] = {120, 1650, 3180, 4710, 885, 3945, 2415};
const int kNavTop[] = {4440, 4440, 4440, 4440, 4920, 4920, 4920};

const char* const kSearchCaptions[] = {
    "by Business Name",    "by Address #1", "by Address #2",
    "by City or Addr #3)", "by State",      "by Zip Code (or Addr #4)",
    "by Telephone Number", "by Last Name",  "by Account Number"};

}  // namespace

frmCustomer::frmCustomer() : Form(kName) {
    LayOut();
    LayOutAux();
    RegisterHandlers();
}

void frmCustomer::LayOut() {
    SetCaption("Customer Information");
    SetSize(kFormWidth, kFormHeight);

    // ---- The account, on the left
    const char* boxCaptions[] = {"Account No", "Name", "Address 1", "Address 2",
                                 "",           "Zip",  "Telephone", "Fax, Email, ETC",
                                 "First Name", "MI",   "Last Name", "Cell"};
    for (int i = 0; i < 12; ++i) {
        lblCustomer[i].SetCaption(boxCaptions[i]);
        lblCustomer[i].SetAlignment(1);
    }
    lblCustomer[4].SetVisible(false);
    txtCustomer[4].SetVisible(false);
    auto row = [&](int box, int top, int width, int maxLength) {
        Place(lblCustomer[box], kNoFrame, 120, top + 30, 1320, 255);
        Place(txtCustomer[box], kNoFrame, 1500, top, width, 315);
        txtCustomer[box].SetMaxLength(maxLength);
    };
    row(kAccountNoBox, 120, 2160, 20);
    Place(lbLType, kNoFrame, 3780, 120, 1200, 315, kIndividual);
    lbLType.SetBorderStyle(true);
    lbLType.SetAlignment(2);
    Place(cmdAcctType, kNoFrame, 5040, 90, 1080, 375, "Toggle Type");
    row(kNameBox, 540, 4620, 45);

    Place(lblTitle, kNoFrame, 1500, 930, 1020, 255, "Title");
    Place(cboTitle, kNoFrame, 1500, 1200, 1020, 315);
    for (const char* title : kTitles) cboTitle.AddItem(title);
    const int partLeft[] = {2580, 4200, 4620};
    const int partWidth[] = {1560, 360, 1500};
    const int partLength[] = {15, 1, 25};
    for (int k = 0; k < 3; ++k) {
        const int box = kFirstNameBox + k;
        Place(lblCustomer[box], kNoFrame, partLeft[k], 930, partWidth[k], 255);
        lblCustomer[box].SetAlignment(0);
        Place(txtCustomer[box], kNoFrame, partLeft[k], 1200, partWidth[k], 315);
        txtCustomer[box].SetMaxLength(partLength[k]);
    }
    row(kAddress1Box, 1620, 4620, 35);
    row(kAddress2Box, 2040, 4620, 25);

    // The two address forms share one place; the style of set-up shows one of them.
    Place(fraUSAddress, kNoFrame, 120, 2400, 6000, 735, "USA Address");
    Place(lblCity, "fraUSAddress", 120, 330, 480, 255, "City");
    Place(cboCity, "fraUSAddress", 600, 300, 2280, 315);
    cboCity.SetSorted(true);
    Place(lblState, "fraUSAddress", 3000, 330, 540, 255, "State");
    Place(cboStates, "fraUSAddress", 3540, 300, 780, 315);
    Place(lblCustomer[kZipBox], "fraUSAddress", 4380, 330, 360, 255);
    Place(txtCustomer[kZipBox], "fraUSAddress", 4800, 300, 1080, 315);
    txtCustomer[kZipBox].SetMaxLength(10);
    Place(fraIntAddress, kNoFrame, 120, 2400, 6000, 735, "International Address");
    fraIntAddress.SetVisible(false);
    Place(lblAdd3, "fraIntAddress", 120, 330, 900, 255, "Address 3");
    Place(txtAdd3, "fraIntAddress", 1020, 300, 2040, 315);
    txtAdd3.SetMaxLength(25);
    Place(lblAdd4, "fraIntAddress", 3120, 330, 900, 255, "Address 4");
    Place(txtAdd4, "fraIntAddress", 4020, 300, 1860, 315);
    txtAdd4.SetMaxLength(25);

    row(kTelephoneBox, 3240, 1620, 13);
    txtCustomer[kTelephoneBox].SetToolTipText(
        "Enter telephone Number with Area Code FIRST (as AAA-EEE-NNNN)");
    Place(imgDialer, kNoFrame, 3180, 3210, 375, 375, "Dial");
    imgDialer.SetToolTipText("Click to Dial");
    Place(lblCustomer[kCellBox], kNoFrame, 3600, 3270, 600, 255);
    Place(txtCustomer[kCellBox], kNoFrame, 4260, 3240, 1860, 315);
    txtCustomer[kCellBox].SetMaxLength(13);
    row(kFaxEmailBox, 3660, 4620, 30);
    Place(lblRecordNo, kNoFrame, 1500, 4080, 4620, 255);

    for (int i = 0; i < cmdNav.Count(); ++i) {
        Place(cmdNav[i], kNoFrame, kNavLeft[i], kNavTop[i], 1410, 420, kNavCaptions[i]);
        cmdNav[i].SetToolTipText(kNavTips[i]);
    }
    Place(cmdSchedule, kNoFrame, 120, 5460, 2940, 495, "&Select Account Start Routine");
    Place(cmdExit, kNoFrame, 3180, 5460, 2940, 495, "&Exit W/O Selecting");
    Place(cmdNew, kNoFrame, 120, 6060, 2940, 495, "A&dd a New Customer");
    Place(cmdCustomer, kNoFrame, 3180, 6060, 2940, 495, "Cancel Add &New");
    cmdCustomer.SetVisible(false);

    // ---- Finding an account, on the right
    const char* findCaptions[] = {"&Search by Criteria,such as Street Address",
                                  "&Find Account in Name List Alphbetically",
                                  "Select from &Account List", "&Locate Account in Name List "};
    for (int i = 0; i < Command1.Count(); ++i)
        Place(Command1[i], kNoFrame, 6360 + (i % 2) * 3480, 120 + (i / 2) * 540, 3360, 495,
              findCaptions[i]);
    Place(cboAccounts, kNoFrame, 6360, 1260, 6840, 315);
    cboAccounts.SetSorted(true);
    cboAccounts.SetVisible(false);

    Place(fraSearch, kNoFrame, 6360, 1680, 6840, 4875, "Search by Criteria");
    fraSearch.SetVisible(false);
    for (int i = 0; i < optSearch.Count(); ++i)
        Place(optSearch[i], "fraSearch", 240 + (i / 5) * 3240, 300 + (i % 5) * 390, 3120, 375,
              kSearchCaptions[i]);
    Place(lblSearchfor, "fraSearch", 240, 2400, 4440, 255, "Search for");
    Place(txtSearchfor, "fraSearch", 240, 2700, 4440, 315);
    Place(cmdStartSearch, "fraSearch", 4800, 2640, 1800, 435, "Search");
    cmdStartSearch.SetDefault(true);

    Place(fraCustomersFound, kNoFrame, 6360, 1680, 6840, 4875, "Customer List");
    fraCustomersFound.SetVisible(false);
    Place(fgCustomersFound, "fraCustomersFound", 120, 300, 6600, 3840);
    fgCustomersFound.SetFixedCols(0);
    fgCustomersFound.SetRows(1);
    const int columnWidths[] = {2100, 1200, 1500, 1050, 450};
    fgCustomersFound.SetCols(5);
    for (int c = 0; c < 5; ++c) fgCustomersFound.SetColWidth(c, columnWidths[c]);
    Place(cmdPrintCustomers, "fraCustomersFound", 120, 4260, 3240, 495, "&Print Customer Report");
    Place(cmdRetry, "fraCustomersFound", 3480, 4260, 3240, 495, "&Close/Retry");

    // ---- Menus
    mnuCustomer.SetCaption("&Customer");
    mnuAdd.SetCaption("&Add a New Customer");
    mnuDelete.SetCaption("DELETE This customer");
    mnuPrint.SetCaption("View Customer List");
    mnuAux.SetCaption("Toggle Data Screen");
    mnuSaveList.SetCaption("&Save Customer List as CSV...");
    for (Menu* m : {&mnuAdd, &mnuDelete, &mnuPrint, &mnuAux, &mnuSaveList})
        m->SetContainer("mnuCustomer");
    mnupopup.SetCaption("Customers");
    mnupopup.SetVisible(false);
    mnuSelect.SetCaption("Load Customer");
    mnuSelect.SetContainer("mnupopup");
}

void frmCustomer::LayOutAux() {
    Place(fraAux, kNoFrame, 120, 6660, 13080, 4800, "Customer Data");
    fraAux.SetVisible(false);
    Place(lblAuxHelp, "fraAux", 120, 240, 6480, 255,
          "Use this screen to store data about each Customer Account");
    Place(lblAccount, "fraAux", 6720, 240, 6240, 255);
    lblAccount.SetFontBold(true);
    for (int i = 0; i < 6; ++i) {
        const int left = 120 + (i % 2) * 3300;
        const int top = 600 + (i / 2) * 1380;
        Place(txtHeading[i], "fraAux", left, top, 2520, 315);
        txtHeading[i].SetText("Heading #" + std::to_string(i + 1));
        Place(lblClear[i], "fraAux", left + 2580, top + 30, 600, 255, "<Clear");
        lblClear[i].SetToolTipText("Clears the Aux Data Box");
        Place(txtAux[i], "fraAux", left, top + 360, 3180, 900);
        txtAux[i].SetMultiLine(true);
    }
    const struct {
        int index;
        const char* caption;
    } buttons[] = {{0, "Save &Headings"},
                   {3, "&Reload This Acct"},
                   {7, "&Show Next Account"},
                   {8, "Show &Previous Account"},
                   {2, "&Close Window"}};
    int top = 600;
    for (const auto& b : buttons) {
        Place(cmdSaveAux[b.index], "fraAux", 6720, top, 2040, 495, b.caption);
        top += 540;
    }
    Place(cmdSaveAux[1], "fraAux", 6720, top, 2040, 495);
    cmdSaveAux[1].SetVisible(false);
    Place(ckSaveAux, "fraAux", 6720, 3300, 2040, 495, "RETAIN Aux Data between Accounts");
    ckSaveAux.SetToolTipText(
        "The data for one account is not cleared when the next account is loaded");
    Place(lblSaveHelp, "fraAux", 6720, 3840, 2040, 900,
          "Data is SAVED when clicking\r\nClose Screen, Show Next, Show Previous");

    Place(fraBig, "fraAux", 8880, 480, 4080, 4200);
    fraBig.SetVisible(false);
    Place(lblEditing, "fraBig", 120, 240, 3840, 495);
    Place(txtBig, "fraBig", 120, 780, 3840, 2700);
    txtBig.SetMultiLine(true);
    Place(cmdSaveAux[4], "fraBig", 120, 3600, 1200, 435, "Hi&de");
    Place(cmdSaveAux[5], "fraBig", 1440, 3600, 1200, 435, "Clear");
    Place(cmdSaveAux[6], "fraBig", 2760, 3600, 1200, 435, "Oops, Reload");
}

void frmCustomer::RegisterHandlers() {
    On("Form.Load", [this](EventArgs&) { Form_Load(); });
    On("Form.Activate", [this](EventArgs&) { Form_Activate(); });
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
    On("cmdNav.Click", [this](EventArgs& e) { cmdNav_Click(e.index); });
    On("cmdNew.Click", [this](EventArgs&) { cmdNew_Click(); });
    On("mnuAdd.Click", [this](EventArgs&) { mnuAdd_Click(); });
    On("cmdCustomer.Click", [this](EventArgs&) { cmdCustomer_Click(); });
    On("cmdExit.Click", [this](EventArgs&) { cmdExit_Click(); });
    On("mnuDelete.Click", [this](EventArgs&) { mnuDelete_Click(); });
    On("cmdAcctType.Click", [this](EventArgs&) { cmdAcctType_Click(); });
    On("txtCustomer.LostFocus", [this](EventArgs& e) { txtCustomer_LostFocus(e.index); });
    On("txtCustomer.KeyPress", [this](EventArgs& e) { txtCustomer_KeyPress(e.index, e); });
    On("txtAdd3.KeyPress", [this](EventArgs& e) { txtAdd3_KeyPress(e); });
    On("txtAdd4.KeyPress", [this](EventArgs& e) { txtAdd4_KeyPress(e); });
    On("Command1.Click", [this](EventArgs& e) { Command1_Click(e.index); });
    On("cboAccounts.Change", [this](EventArgs&) { cboAccounts_Change(); });
    On("cboAccounts.KeyDown", [this](EventArgs& e) { cboAccounts_KeyDown(e); });
    On("cboAccounts.KeyPress", [this](EventArgs& e) { cboAccounts_KeyPress(e); });
    On("cboAccounts.LostFocus", [this](EventArgs&) { cboAccounts_LostFocus(); });
    On("cboAccounts.Click", [this](EventArgs&) { cboAccounts_Click(); });
    On("optSearch.Click", [this](EventArgs& e) { optSearch_Click(e.index); });
    On("cmdStartSearch.Click", [this](EventArgs&) { cmdStartSearch_Click(); });
    On("mnuPrint.Click", [this](EventArgs&) { mnuPrint_Click(); });
    On("fgCustomersFound.MouseUp", [this](EventArgs& e) { fgCustomersFound_MouseUp(e); });
    On("fgCustomersFound.DblClick", [this](EventArgs&) { fgCustomersFound_DblClick(); });
    On("mnuSelect.Click", [this](EventArgs&) { mnuSelect_Click(); });
    On("cmdRetry.Click", [this](EventArgs&) { cmdRetry_Click(); });
    On("cmdPrintCustomers.Click", [this](EventArgs&) { cmdPrintCustomers_Click(); });
    On("mnuSaveList.Click", [this](EventArgs&) { mnuSaveList_Click(); });
    On("imgDialer.Click", [this](EventArgs&) { imgDialer_Click(); });
    On("cmdSchedule.Click", [this](EventArgs&) { cmdSchedule_Click(); });
    On("mnuAux.Click", [this](EventArgs&) { mnuAux_Click(); });
    On("cmdSaveAux.Click", [this](EventArgs& e) { cmdSaveAux_Click(e.index); });
    On("txtAux.DblClick", [this](EventArgs& e) { txtAux_DblClick(e.index); });
    On("lblClear.Click", [this](EventArgs& e) { lblClear_Click(e.index); });
}

// ---- The screen as a whole

void frmCustomer::Form_Load() {
    if (FindFile(kStatesFile)) {
        OpenForInput(kStatesFile);
        const int file = MainFileNo;
        for (int i = 0; i < kMostStates && !Eof(file); ++i) cboStates.AddItem(InputString(file));
        CloseAll();
    }
    optSearch[kSearchByAccountNo].SetValue(true);
}

void frmCustomer::Form_Activate() {
    ResetBillingRecords();
    txtCustomer[kAccountNoBox].SetFocus();
    LoadAuxHeadings(*this);
    ClearCustomerBoxes(*this);
    cboTitle.SetText("");
    cboStates.SetText("");
    SetAccountType(*this, kIndividual);

    USAddress = PrintSettingUsaAddress();
    fraUSAddress.SetVisible(USAddress);
    fraIntAddress.SetVisible(!USAddress);
    imgDialer.SetVisible(PhoneConnected);

    const bool haveCustomers = FindFile(customers::kCustomerFile);
    for (int i = 0; i < cmdNav.Count(); ++i) cmdNav[i].SetEnabled(haveCustomers);
    for (int i = 0; i < Command1.Count(); ++i) Command1[i].SetEnabled(haveCustomers);
    if (haveCustomers) {
        RecordCount = CountCustomers();
        LoadAccountLists(*this);
        DisplayCustomer(*this);
    } else {
        // The first account is being entered: it becomes record 1.
        RecordCount = 1;
        CurrentRecord = 1;
        PrefillFromBusiness(*this);
        txtCustomer[kTelephoneBox].SetText(BusinessData[kBusinessPhone].substr(0, 7) + "-");
        txtCustomer[kAccountNoBox].SetFocus();
        MsgBox("Your Customer File is Empty\r\nCreate your First Customer Now",
               vbOKOnly + vbInformation, "Create Customers");
        mnuDelete.SetEnabled(false);
    }
    if (!FindFile(customers::kContractFile)) BuildContractInfo(RecordCount);
    if (!FindFile(customers::kCycleFile)) BuildCycleInfo(RecordCount);
    txtCustomer[kAccountNoBox].SetFocus();
}

void frmCustomer::Form_QueryUnload(EventArgs& e) {
    if (e.unloadMode == 0) ExitProgramFromSetup();
}

// ---- Moving, adding, deleting and leaving

void frmCustomer::cmdNav_Click(int index) {
    cboAccounts.SetVisible(false);
    SaveCustomer(*this);
    if (!SaveAccepted) return;
    const std::int32_t quarter = RecordCount / 4;
    switch (index) {
        case 0:
            CurrentRecord = 1;
            break;
        case 1:
            if (CurrentRecord >= 2) --CurrentRecord;
            break;
        case 2:
            CurrentRecord = CurrentRecord >= RecordCount ? 1 : CurrentRecord + 1;
            break;
        case 3:
            CurrentRecord = RecordCount;
            break;
        default:
            // The quarters need four records; with fewer nothing moves.
            if (RecordCount < 4) return;
            // A quarter is rounded to the nearest record, a half to the even one.
            if (index == 4)
                CurrentRecord = static_cast<std::int32_t>(std::nearbyint(RecordCount / 4.0));
            if (index == 5) CurrentRecord = quarter * 3;
            if (index == 6) CurrentRecord = quarter * 2;
            break;
    }
    DisplayCustomer(*this);
    cmdSchedule.SetFocus();
}

void frmCustomer::cmdNew_Click() {
    // A refused save stops the new record only: the screen still turns to adding, and the
    // count, which Cancel takes from the file, never runs ahead of it.
    cmdCustomer.SetVisible(true);
    if (NewCustomer(*this)) txtCustomer[kAccountNoBox].SetFocus();
    ResetBillingRecords();
    mnuAux.SetEnabled(false);
    mnuDelete.SetEnabled(false);
    mnuAdd.SetEnabled(false);
}

void frmCustomer::mnuAdd_Click() {
    cmdNew_Click();
}

void frmCustomer::cmdCustomer_Click() {
    CloseAll();
    // The count comes from the file: a new account that was saved meanwhile stays counted.
    RecordCount = std::max<std::int32_t>(CountCustomers(), 1);
    CurrentRecord = 1;
    cmdCustomer.SetVisible(false);
    DisplayCustomer(*this);
    mnuAdd.SetEnabled(true);
    mnuAux.SetEnabled(true);
    mnuDelete.SetEnabled(true);
}

void frmCustomer::cmdExit_Click() {
    SaveCustomer(*this);
    if (!SaveAccepted) return;
    CloseAll();
    Unload();
    ShowMainMenuFromSetup();
}

void frmCustomer::mnuDelete_Click() {
    if (MsgBox("Delete this Customer", vbYesNo + vbQuestion) != vbYes) {
        txtCustomer[kAccountNoBox].SetFocus();
        return;
    }
    DeleteCustomer(*this);
}

void frmCustomer::cmdAcctType_Click() {
    cboAccounts.SetVisible(false);
    SetAccountType(*this, lbLType.Caption() == kBusiness ? kIndividual : kBusiness);
}

// ---- Checks while typing

void frmCustomer::txtCustomer_LostFocus(int index) {
    TextBox& box = txtCustomer[index];
    if (index == kAccountNoBox) {
        if (box.Text().empty() || !AccountNoTaken(*this, box.Text())) return;
        MsgBox("The Account Number has been duplicated\r\nEnter a different Number",
               vbOKOnly + vbExclamation, "Duplicate Account Number");
        box.SetText("");
        box.SetFocus();
    } else if (index == kNameBox) {
        if (lbLType.Caption() != kBusiness || box.Text().size() >= 2) return;
        AlarmBeep();
        MsgBox("Account Name cannot be blank", vbOKOnly + vbExclamation, "No Name Entered");
    }
}

void frmCustomer::txtCustomer_KeyPress(int index, EventArgs& e) {
    if (index == kAccountNoBox || index == kTelephoneBox)
        e.keyAscii = CheckKey(e.keyAscii, txtCustomer[index]);
}

void frmCustomer::txtAdd3_KeyPress(EventArgs& e) {
    e.keyAscii = CheckKey(e.keyAscii, txtAdd3);
}

void frmCustomer::txtAdd4_KeyPress(EventArgs& e) {
    e.keyAscii = CheckKey(e.keyAscii, txtAdd4);
}

// ---- Finding an account

void frmCustomer::Command1_Click(int index) {
    switch (index) {
        case 0:
            SaveCustomer(*this);
            if (!SaveAccepted) return;
            cboAccounts.SetVisible(false);
            fraCustomersFound.SetVisible(false);
            fraSearch.SetVisible(true);
            txtSearchfor.SetText("");
            txtSearchfor.SetFocus();
            break;
        case 1:
            if (cboAccounts.ListCount() == 0) return;
            fraSearch.SetVisible(false);
            fraCustomersFound.SetVisible(false);
            cboAccounts.SetText("");
            cboAccounts.SetVisible(true);
            cboAccounts.SetFocus();
            // The name is looked up, not typed over.
            for (int box : {kNameBox, kFirstNameBox, kMiddleBox, kLastNameBox})
                txtCustomer[box].SetEnabled(false);
            cboTitle.SetEnabled(false);
            break;
        case 2:
            cboAccounts.SetVisible(false);
            fraSearch.SetVisible(false);
            fraCustomersFound.SetVisible(false);
            SetAccountType(*this, lbLType.Caption());
            break;
        case 3:
            cboAccounts.SetVisible(false);
            fraSearch.SetVisible(false);
            mnuPrint_Click();
            break;
        default:
            break;
    }
}

void frmCustomer::cboAccounts_Change() {
    if (TypeAheadPaused) {
        TypeAheadPaused = false;
        return;
    }
    const std::string typed = cboAccounts.Text();
    if (typed.empty()) return;
    const int found = cboAccounts.FindString(typed);
    if (found < 0) return;
    const std::string entry = cboAccounts.List(found);
    if (entry != typed) cboAccounts.SetText(entry);
    // What was not typed is selected, so that the next key replaces it.
    cboAccounts.SetSelStart(static_cast<int>(typed.size()));
    cboAccounts.SetSelLength(static_cast<int>(entry.size() - typed.size()));
}

void frmCustomer::cboAccounts_KeyDown(EventArgs& e) {
    if (e.keyCode == 46 || e.keyCode == 8) TypeAheadPaused = true;
}

void frmCustomer::cboAccounts_KeyPress(EventArgs& e) {
    if (e.keyAscii == 8) TypeAheadPaused = true;
}

void frmCustomer::cboAccounts_LostFocus() {
    if (cboAccounts.Text().empty()) return;
    const std::string wanted = UCase(Trim(cboAccounts.Text()));
    for (int i = 0; i < cboAccounts.ListCount(); ++i) {
        if (UCase(Trim(cboAccounts.List(i))) != wanted) continue;
        cboAccounts.SetListIndex(i);
        cboAccounts.SetVisible(false);
        CurrentRecord = cboAccounts.ItemData(i);
        DisplayCustomer(*this);
        return;
    }
}

void frmCustomer::cboAccounts_Click() {
    const int chosen = cboAccounts.ListIndex();
    if (chosen < 0) return;
    cboAccounts.SetVisible(false);
    CurrentRecord = cboAccounts.ItemData(chosen);
    DisplayCustomer(*this);
}

void frmCustomer::optSearch_Click(int index) {
    SearchOption = index;
    if (index == kSearchByTelephone) {
        // The area code and exchange of the contractor's own number.
        txtSearchfor.SetText(BusinessData[kBusinessPhone].substr(0, 8));
        txtSearchfor.SetSelStart(static_cast<int>(txtSearchfor.Text().size()));
    } else {
        txtSearchfor.SetText("");
    }
}

void frmCustomer::cmdStartSearch_Click() {
    int index = kSearchByAccountNo;
    for (int i = 0; i < kSearchByAccountNo; ++i)
        if (optSearch[i].Value()) {
            index = i;
            break;
        }
    // A telephone number is looked up whole: "AAA-EEE-NNNN".
    if (index == kSearchByTelephone && txtSearchfor.Text().size() < 12) {
        AlarmBeep();
        txtSearchfor.SetFocus();
        return;
    }
    FindCustomers(*this, index, UCase(Trim(txtSearchfor.Text())));
    fraSearch.SetVisible(false);
}

void frmCustomer::mnuPrint_Click() {
    if (!FindFile(customers::kCustomerFile)) {
        AlarmBeep();
        return;
    }
    // The list takes the place of the search.
    fraSearch.SetVisible(false);
    fraCustomersFound.SetCaption("Customer List");
    fraCustomersFound.SetVisible(true);
    cmdPrintCustomers.SetVisible(true);
    FindCustomers(*this, kSearchAll, "All");
}

void frmCustomer::fgCustomersFound_MouseUp(EventArgs& e) {
    if (e.button == 2) PopupMenu(mnupopup);
}

void frmCustomer::fgCustomersFound_DblClick() {
    mnuSelect_Click();
}

void frmCustomer::mnuSelect_Click() {
    const int row = fgCustomersFound.MouseRow();
    if (row < fgCustomersFound.FixedRows() || row >= fgCustomersFound.Rows()) return;
    CurrentRecord = static_cast<std::int32_t>(Val(fgCustomersFound.TextMatrix(row, kRecordColumn)));
    DisplayCustomer(*this);
    fraCustomersFound.SetVisible(false);
}

void frmCustomer::cmdRetry_Click() {
    fraCustomersFound.SetVisible(false);
    mnuPrint.SetCaption("View Customer List");
}

void frmCustomer::mnuSaveList_Click() {
    SaveCustomerList(*this);
}

void frmCustomer::cmdPrintCustomers_Click() {
    PrintCustomerReport(*this);
}

// ---- Dialling and the hand-off

void frmCustomer::imgDialer_Click() {
    const std::string phone = Trim(txtCustomer[kTelephoneBox].Text());
    const std::string cell = Trim(txtCustomer[kCellBox].Text());
    if (phone.empty() && cell.empty()) return;
    std::string number = phone.empty() ? cell : phone;
    if (!phone.empty() && !cell.empty() &&
        MsgBox("Click YES to dial Phone,\r\nClick NO to dial Cell", vbYesNo + vbQuestion,
               "Select Phone or Cell") == vbNo)
        number = cell;
    ShowDialer(txtCustomer[kNameBox].Text(), number);
}

void frmCustomer::cmdSchedule_Click() {
    SaveCustomer(*this);
    if (!SaveAccepted) return;
    CloseAll();
    AccountHandOff handOff;
    auto box = [&](int index) { return Trim(txtCustomer[index].Text()); };
    std::string name = box(kNameBox);
    if (lbLType.Caption() == kIndividual) {
        // Joined by blanks as they stand: the middle box, always empty, leaves two.
        name = Trim(Trim(cboTitle.Text()) + " " + box(kFirstNameBox) + " " + box(kMiddleBox) + " " +
                    box(kLastNameBox));
    }
    const std::string lines[8] = {"",
                                  name,
                                  box(kAddress1Box),
                                  box(kAddress2Box),
                                  Trim(USAddress ? cboCity.Text() : txtAdd3.Text()),
                                  Trim(USAddress ? cboStates.Text() : txtAdd4.Text()),
                                  USAddress ? box(kZipBox) : std::string(),
                                  box(kTelephoneBox)};
    for (int i = 1; i <= 7; ++i) handOff.siteInfo[i] = handOff.billingInfo[i] = lines[i];
    handOff.zipKept = !USAddress;
    handOff.account = box(kAccountNoBox);
    HandOnAccount(handOff, false);
    if (MenuRoutine == 2) {
        if (!Forms::Known(kWorkOrderScreen)) {
            ShowRoutineScreen(kWorkOrderScreen, "Create a Work Order");
            return;
        }
        Hide();
        Forms::Get(kWorkOrderScreen).Show();
    } else {
        if (!Forms::Known(kProjectScreen)) {
            ShowRoutineScreen(kProjectScreen, "Create  a New Project");
            return;
        }
        Hide();
        Forms::Get(kProjectScreen).Show();
    }
}

// ---- Auxiliary data

void frmCustomer::mnuAux_Click() {
    const bool open = !fraAux.Visible();
    // The data screen opens below the account: the window grows to hold it.
    SetSize(kFormWidth, open ? kFormHeight + kAuxHeight : kFormHeight);
    fraAux.SetVisible(open);
    if (open) ShowAuxTitle(*this);
}

void frmCustomer::cmdSaveAux_Click(int index) {
    switch (index) {
        case 0:
            SaveAuxHeadings(*this);
            break;
        case 2:
            SaveAuxData(*this);
            mnuAux_Click();
            break;
        case 3:
            LoadAuxData(*this);
            break;
        case 4:
            txtAux[AuxBoxInEdit].SetText(txtBig.Text());
            fraBig.SetVisible(false);
            break;
        case 5:
            txtBig.SetText("");
            break;
        case 6:
            txtBig.SetText(txtAux[AuxBoxInEdit].Text());
            break;
        case 7:
        case 8: {
            SaveAuxData(*this);
            const bool canMove = index == 7 ? CurrentRecord < RecordCount : CurrentRecord >= 2;
            if (!canMove) break;
            CurrentRecord += index == 7 ? 1 : -1;
            DisplayCustomer(*this);
            LoadAuxData(*this);
            ShowAuxTitle(*this);
            break;
        }
        default:
            break;
    }
}

void frmCustomer::txtAux_DblClick(int index) {
    txtBig.SetText(txtAux[index].Text());
    fraBig.SetVisible(true);
    lblEditing.SetCaption("Editing Data Box # " + std::to_string(index + 1) + " - " +
                          txtHeading[index].Text() + " - for " + lblAccount.Caption());
    txtBig.SetFocus();
    AuxBoxInEdit = index;
}

void frmCustomer::lblClear_Click(int index) {
    txtAux[index].SetText("");
    txtAux[index].SetFocus();
}
