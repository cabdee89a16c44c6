#include "contacts/frmContacts.h"

#include <algorithm>

#include "contacts/ContactReport.h"
#include "contacts/VendorListExport.h"
#include "contacts/VendorRoutines.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Pictures.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "setup/SetupHooks.h"
#include "setup/frmSetup.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"
#include "telephony/DialerLink.h"

using namespace platform;
using contacts::kVendorFile;
using contacts::kVendorRecord;

namespace {

constexpr const char* kStatesFile = "\\StatesList.txt";
constexpr int kStatesInList = 51;
constexpr int kRecordColumn = 3;       // of fgVendors: the link to the file
constexpr int kFoundRecordColumn = 6;  // of fgContactsFound
constexpr const char* kNoFrame = "";
constexpr int kNoSuchElement = 340;  // Control array element doesn't exist

const char* const kCategories[] = {"Vendor", "Sub-Contractor", "Supplier", "Credit Card Company",
                                   "Retail Credit Card"};

// The field of the record each optSearch looks in, by its index.
const char* const kSearchFields[] = {"Name",  "Address1", "Address2",  "City",
                                     "State", "Zip",      "Telephone", "Category"};
const char* const kSearchCaptions[] = {"by Name",  "by Address 1",   "by Address 2", "by City",
                                       "by State", "by Postal Code", "by Phone",     "by Category"};

// Boxes and their fields, in the order of the record.
struct BoxField {
    int box;
    const char* field;
};
const BoxField kBoxFields[] = {
    {frmContacts::kAccountNoBox, "AccountNo"},  {frmContacts::kNameBox, "Name"},
    {frmContacts::kAddress1Box, "Address1"},    {frmContacts::kAddress2Box, "Address2"},
    {frmContacts::kStateBox, "State"},          {frmContacts::kZipBox, "Zip"},
    {frmContacts::kTelephoneBox, "Telephone"},  {frmContacts::kEMailBox, "EMail"},
    {frmContacts::kKeyContactBox, "KeyContact"}};

void Place(Control& control, const std::string& frame, int left, int top, int width, int height,
           const std::string& caption = {}) {
    control.SetContainer(frame);
    control.Move(left, top, width, height);
    if (!caption.empty()) control.SetCaption(caption);
}

}  // namespace

// ---- txtContact

frmContacts::ContactBoxes::ContactBoxes(Form& form) {
    for (int i = 0; i < static_cast<int>(boxes_.size()); ++i)
        if (i != 7)
            boxes_[static_cast<size_t>(i)] = std::make_unique<TextBox>(form, "txtContact", i);
}

TextBox& frmContacts::ContactBoxes::operator[](int index) {
    // As a control array does, an element that was never made is a run-time failure.
    if (!Has(index)) platform::Raise(kNoSuchElement, "txtContact(" + std::to_string(index) + ")");
    return *boxes_[static_cast<size_t>(index)];
}

bool frmContacts::ContactBoxes::Has(int index) const {
    return index >= 0 && index < static_cast<int>(boxes_.size()) &&
           boxes_[static_cast<size_t>(index)] != nullptr;
}

// ---- Layout

frmContacts::frmContacts() : Form(kName) {
    LayOut();
    RegisterHandlers();
}

void frmContacts::LayOut() {
    SetCaption("Payto Selection");
    SetSize(9720, 6180);

    // ---- One contact
    Place(fraContact, kNoFrame, 120, 120, 9360, 4200, "Contact");
    const char* labels[] = {"Account No.", "Name",     "Address 1",  "Address 2",
                            "City",        "State",    "Postal",     "Telephone",
                            "eMail",       "Category", "Key Contact"};
    for (int i = 0; i < lblContact.Count(); ++i) lblContact[i].SetCaption(labels[i]);
    auto row = [&](int label, int top) {
        Place(lblContact[label], "fraContact", 240, top + 30, 1320, 255);
    };
    auto box = [&](int index, int left, int top, int width, int maxLength) {
        Place(txtContact[index], "fraContact", left, top, width, 315);
        txtContact[index].SetMaxLength(maxLength);
    };
    row(0, 360);
    box(kAccountNoBox, 1620, 360, 2520, 20);
    Place(lblContact[9], "fraContact", 4380, 390, 1080, 255);
    Place(cboCategory, "fraContact", 5520, 360, 3600, 315);
    row(1, 780);
    box(kNameBox, 1620, 780, 4200, 30);
    row(2, 1200);
    box(kAddress1Box, 1620, 1200, 4800, 35);
    row(3, 1620);
    box(kAddress2Box, 1620, 1620, 3600, 25);
    row(4, 2040);
    Place(cboCity, "fraContact", 1620, 2040, 2760, 315);
    cboCity.SetSorted(true);
    Place(lblContact[5], "fraContact", 4500, 2070, 600, 255);
    box(kStateBox, 5160, 2040, 480, 2);
    Place(cboStates, "fraContact", 5700, 2040, 960, 315);
    Place(lblContact[6], "fraContact", 6780, 2070, 720, 255);
    box(kZipBox, 7560, 2040, 1560, 10);
    row(7, 2460);
    box(kTelephoneBox, 1620, 2460, 1800, 13);
    txtContact[kTelephoneBox].SetToolTipText(
        "Enter telephone Number with Area Code FIRST (as AAA-EEE-NNNN)");
    Place(imgPhone, "fraContact", 3540, 2430, 375, 375);
    imgPhone.SetPicture(pictures::kDial);
    imgPhone.SetToolTipText("Click to Dial");
    imgPhone.SetVisible(false);
    Place(lblContact[8], "fraContact", 4380, 2490, 1080, 255);
    box(kEMailBox, 5520, 2460, 3600, 30);
    row(10, 2880);
    box(kKeyContactBox, 1620, 2880, 4200, 30);
    Place(lblRecord, "fraContact", 1620, 3300, 4200, 255);

    const char* navCaptions[] = {"|<<", "<", ">", ">>|"};
    const char* navTips[] = {"First Contact", "Previous Contact", "Next Contact", "Last Contact"};
    for (int i = 0; i < cmdNav.Count(); ++i) {
        Place(cmdNav[i], kNoFrame, 120 + i * 1020, 4440, 960, 495, navCaptions[i]);
        cmdNav[i].SetToolTipText(navTips[i]);
    }
    Place(Command1[0], kNoFrame, 4320, 4440, 1560, 495, "&Search");
    Place(Command1[1], kNoFrame, 6000, 4440, 1800, 495, "Cancel &Add New");
    Command1[1].SetEnabled(false);
    Place(cmdExit, kNoFrame, 7920, 4440, 1560, 495, "E&xit");

    // ---- Finding contacts, in the place of the contact
    Place(fraSearch, kNoFrame, 120, 120, 9360, 4200, "Search Contacts");
    fraSearch.SetVisible(false);
    for (int i = 0; i < optSearch.Count(); ++i)
        Place(optSearch[i], "fraSearch", 240 + (i / 4) * 3000, 360 + (i % 4) * 420, 2760, 375,
              kSearchCaptions[i]);
    Place(lblSearchfor, "fraSearch", 240, 2160, 5400, 255,
          "Search for (part of the text; a telephone as AAA-EEE-NNNN)");
    Place(txtSearchfor, "fraSearch", 240, 2460, 5400, 315);
    Place(cmdStartSearch, "fraSearch", 5880, 2400, 1800, 435, "Start Searc&h");
    cmdStartSearch.SetDefault(true);

    Place(fraContactsFound, kNoFrame, 120, 120, 9360, 4200, "Contacts Search Results");
    fraContactsFound.SetVisible(false);
    Place(fgContactsFound, "fraContactsFound", 120, 300, 9120, 3180);
    fgContactsFound.SetFixedCols(0);
    fgContactsFound.SetFormatString(
        "^Name                     |^Phone          |<Street Address           |<City            "
        "|<St |<Zip Code    |Rec");
    fgContactsFound.SetRows(1);
    Place(cmdPrintContacts, "fraContactsFound", 120, 3600, 2760, 495, "&Print Contact Report");
    Place(cmdRetry, "fraContactsFound", 3000, 3600, 1560, 495, "&Hide");

    // ---- The vendor list, over the other frames
    Place(fraSuppliers, kNoFrame, 120, 120, 9360, 4200, "Vendors, Suppliers and Sub-Contractors");
    fraSuppliers.SetVisible(false);
    Place(fgVendors, "fraSuppliers", 120, 300, 9120, 3180);
    fgVendors.SetFixedCols(0);
    fgVendors.SetFormatString(
        "<Vendor Name                       |^Account Number|^Phone              |^Vendor Rec");
    fgVendors.SetRows(1);
    Place(cmdVendorList[0], "fraSuppliers", 120, 3600, 2400, 495, "Load Selected Vendor");
    Place(cmdVendorList[1], "fraSuppliers", 2640, 3600, 1560, 495, "Hide &List");

    // ---- Menus
    mnuContacts.SetCaption("&Contacts");
    mnuAdd.SetCaption("&Add a New Contact");
    mnuDelete.SetCaption("&Delete this Contact");
    mnuPrint.SetCaption("&Print Contact List");
    mnuView.SetCaption("&View Vendor List");
    mnuSaveList.SetCaption("&Save Vendor List as CSV...");
    for (Menu* m : {&mnuAdd, &mnuDelete, &mnuPrint, &mnuView, &mnuSaveList})
        m->SetContainer("mnuContacts");
    mnupopup.SetCaption("Contacts");
    mnupopup.SetVisible(false);
    mnuSelect.SetCaption("Load Contact");
    mnuSelect.SetContainer("mnupopup");
}

void frmContacts::RegisterHandlers() {
    On("Form.Load", [this](EventArgs&) { Form_Load(); });
    On("Form.Activate", [this](EventArgs&) { Form_Activate(); });
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
    On("cmdNav.Click", [this](EventArgs& e) { cmdNav_Click(e.index); });
    On("txtContact.LostFocus", [this](EventArgs& e) { txtContact_LostFocus(e.index); });
    On("mnuAdd.Click", [this](EventArgs&) { mnuAdd_Click(); });
    On("Command1.Click", [this](EventArgs& e) { Command1_Click(e.index); });
    On("mnuDelete.Click", [this](EventArgs&) { mnuDelete_Click(); });
    On("cmdStartSearch.Click", [this](EventArgs&) { cmdStartSearch_Click(); });
    On("mnuPrint.Click", [this](EventArgs&) { mnuPrint_Click(); });
    On("mnuSelect.Click", [this](EventArgs&) { mnuSelect_Click(); });
    On("fgContactsFound.DblClick", [this](EventArgs&) { fgContactsFound_DblClick(); });
    On("fgContactsFound.MouseUp", [this](EventArgs& e) { fgContactsFound_MouseUp(e); });
    On("cmdRetry.Click", [this](EventArgs&) { cmdRetry_Click(); });
    On("cmdVendorList.Click", [this](EventArgs& e) { cmdVendorList_Click(e.index); });
    On("fgVendors.Click", [this](EventArgs&) { fgVendors_Click(); });
    On("mnuView.Click", [this](EventArgs&) { mnuView_Click(); });
    On("mnuSaveList.Click", [this](EventArgs&) { mnuSaveList_Click(); });
    On("cboStates.Click", [this](EventArgs&) { cboStates_Click(); });
    On("imgPhone.Click", [this](EventArgs&) { imgPhone_Click(); });
    On("cmdPrintContacts.Click", [this](EventArgs&) { cmdPrintContacts_Click(); });
    On("cmdExit.Click", [this](EventArgs&) { cmdExit_Click(); });
}

// ---- The screen as a whole

void frmContacts::Form_Load() {
    LoadCategories();
    ContactRec = 1;
    if (FindFile(kVendorFile)) LoadVendors();
    if (FindFile(kStatesFile)) LoadStates();
}

void frmContacts::Form_Activate() {
    if (Screen<frmSetup>().ckPhone.Value() == 1) imgPhone.SetVisible(true);
    fraContact.SetVisible(true);
    ClearContact();
    if (FindFile(kVendorFile)) LoadVendors();
    if (ContactCount == 0) {
        // The first contact is being entered: it becomes record 1.
        ContactCount = 1;
        Command1[1].SetEnabled(true);
        txtContact[kAccountNoBox].SetFocus();
        MsgBox("Your Contact File is Empty\r\nCreate your First Contact Now", vbOKOnly,
               "Create Contacts");
    } else {
        ShowContact();
    }
}

void frmContacts::Form_QueryUnload(EventArgs& e) {
    if (FindFile(kVendorFile)) LoadVendors();
    if (e.unloadMode == 0) ExitProgramFromSetup();
}

// ---- Lists of the screen

void frmContacts::LoadCategories() {
    cboCategory.Clear();
    for (const char* category : kCategories) cboCategory.AddItem(category);
}

void frmContacts::LoadStates() {
    OpenForInput(kStatesFile);
    const int file = MainFileNo;
    for (int i = 0; i < kStatesInList && !Eof(file); ++i) cboStates.AddItem(InputString(file));
    CloseAll();
}

void frmContacts::AddCity(const std::string& city) {
    if (!cities_.insert(city).second) return;
    cboCity.AddItem(city);
}

void frmContacts::LoadVendors() {
    ContactCount = CountVendors();
    const std::vector<Record> vendors = ReadVendors(ContactCount);
    fgVendors.SetRows(ContactCount + 1);
    for (std::int32_t i = 1; i <= ContactCount; ++i) {
        const Record& vendor = vendors[static_cast<size_t>(i - 1)];
        AddCity(vendor.Trimmed("City"));
        fgVendors.SetTextMatrix(i, 0, vendor.Trimmed("Name"));
        fgVendors.SetTextMatrix(i, 1, vendor.Trimmed("AccountNo"));
        fgVendors.SetTextMatrix(i, 2, vendor.Trimmed("Telephone"));
        fgVendors.SetTextMatrix(i, kRecordColumn, std::to_string(i));
    }
    if (ContactCount < 1) return;
    fgVendors.SetRow(1);
    fgVendors.SetCol(0);
    fgVendors.SetSort(flexSortGenericAscending);
}

std::vector<Record> frmContacts::ListedVendors() {
    std::vector<Record> listed;
    const std::vector<Record> vendors = ReadVendors(CountVendors());
    for (int row = 1; row < fgVendors.Rows(); ++row) {
        const auto recordNo = static_cast<size_t>(Val(fgVendors.TextMatrix(row, kRecordColumn)));
        if (recordNo >= 1 && recordNo <= vendors.size()) listed.push_back(vendors[recordNo - 1]);
    }
    return listed;
}

// ---- The contact on display

void frmContacts::ClearContact() {
    for (const BoxField& b : kBoxFields) txtContact[b.box].SetText("");
    cboCity.SetText("");
    cboCategory.SetText("");
}

void frmContacts::ShowContact() {
    ClearContact();
    if (ContactRec == 0) return;
    fraSearch.SetVisible(false);
    fraContactsFound.SetVisible(false);
    fraContact.SetVisible(true);
    const Record vendor = ReadVendor(ContactRec);
    for (const BoxField& b : kBoxFields) txtContact[b.box].SetText(vendor.Trimmed(b.field));
    cboCity.SetText(vendor.Trimmed("City"));
    cboStates.SetText(vendor.Trimmed("State"));
    cboCategory.SetText(vendor.Trimmed("Category"));
    lblRecord.SetCaption("Contact " + std::to_string(ContactRec) + " of " +
                         std::to_string(ContactCount));
}

void frmContacts::SaveContact() {
    if (ContactRec == 0) return;
    // A contact without a category is filed under its telephone number.
    if (cboCategory.Text().empty()) cboCategory.SetText(txtContact[kTelephoneBox].Text());
    Record vendor(kVendorRecord);
    for (const BoxField& b : kBoxFields) vendor.SetText(b.field, txtContact[b.box].Text());
    vendor.SetText("City", cboCity.Text());
    vendor.SetText("Category", cboCategory.Text());
    WriteVendor(ContactRec, vendor);
    AddCity(vendor.Trimmed("City"));
    LoadVendors();
}

void frmContacts::cmdNav_Click(int index) {
    SaveContact();
    switch (index) {
        case 0:
            ContactRec = 1;
            break;
        case 1:
            if (ContactRec >= 2) --ContactRec;
            break;
        case 2:
            ContactRec = ContactRec >= ContactCount ? 1 : ContactRec + 1;
            break;
        case 3:
            ContactRec = ContactCount;
            break;
        default:
            break;
    }
    ShowContact();
}

void frmContacts::txtContact_LostFocus(int index) {
    if (ContactRec == 0 || index != kNameBox) return;
    if (txtContact[kNameBox].Text().size() >= 2) return;
    AlarmBeep();
    MsgBox(
        "The Name Field Must be at least 2 Characters\r\nThis is okay if Cancelling a New "
        "Entry\r\nClick Cancel AddNew Again",
        vbOKOnly, "No Name Entered");
}

void frmContacts::cboStates_Click() {
    txtContact[kStateBox].SetText(cboStates.Text());
}

// ---- Adding and deleting

void frmContacts::AddNewContact() {
    if (txtContact[kNameBox].Text().size() >= 2) SaveContact();
    ++ContactCount;
    ContactRec = ContactCount;
    ClearContact();
    Command1[1].SetEnabled(true);
    // The list is read again; the count goes on holding the record being added, so that
    // cancelling the add takes it back to the last record of the file.
    const std::int32_t withNew = ContactCount;
    LoadVendors();
    ContactCount = withNew;
    lblRecord.SetCaption("New Contact");
    txtContact[kAccountNoBox].SetFocus();
}

void frmContacts::mnuAdd_Click() {
    AddNewContact();
}

void frmContacts::Command1_Click(int index) {
    if (index == 0) {
        SaveContact();
        ShowFrame(fraSearch);
        optSearch[kByTelephone].SetValue(true);
        txtSearchfor.SetFocus();
        txtSearchfor.SetSelStart(static_cast<int>(txtSearchfor.Text().size()));
    } else {
        Command1[1].SetEnabled(false);
        --ContactCount;
        ContactRec = ContactCount;
        ShowContact();
    }
}

void frmContacts::mnuDelete_Click() {
    if (MsgBox("Delete this Contact?", vbYesNo + vbQuestion) != vbYes) {
        txtContact[kAccountNoBox].SetFocus();
        return;
    }
    DeleteVendor(ContactRec, ContactCount);
    ContactCount = CountVendors();
    if (ContactCount > 1) --ContactCount;
    if (ContactRec > ContactCount) ContactRec = ContactCount;
    ShowContact();
    LoadVendors();
    txtContact[kAccountNoBox].SetFocus();
}

// ---- Finding contacts

void frmContacts::ShowFrame(Frame& frame) {
    for (Frame* f : {&fraContact, &fraSearch, &fraContactsFound}) f->SetVisible(f == &frame);
}

void frmContacts::cmdStartSearch_Click() {
    SearchKind = 0;
    for (int i = 0; i < optSearch.Count(); ++i) {
        if (optSearch[i].Value()) {
            SearchKind = static_cast<std::int16_t>(i);
            break;
        }
    }
    // A telephone number is found whole: "AAA-EEE-NNNN".
    if (SearchKind == kByTelephone && txtSearchfor.Text().size() < 12) {
        AlarmBeep();
        txtSearchfor.SetFocus();
        return;
    }
    SearchContacts(SearchKind, UCase(Trim(txtSearchfor.Text())));
}

void frmContacts::SearchContacts(int kind, const std::string& key) {
    const std::vector<Record> vendors = ReadVendors(ContactCount);
    std::vector<std::int32_t> hits;
    for (std::int32_t r = 1; r <= static_cast<std::int32_t>(vendors.size()); ++r) {
        const Record& vendor = vendors[static_cast<size_t>(r - 1)];
        if (kind == kAllContacts ||
            UCase(vendor.Text(kSearchFields[kind])).find(key) != std::string::npos)
            hits.push_back(r);
    }
    fgContactsFound.SetRows(static_cast<int>(hits.size()) + 1);
    for (size_t i = 0; i < hits.size(); ++i)
        AddFoundRow(static_cast<int>(i) + 1, hits[i], vendors[static_cast<size_t>(hits[i] - 1)]);

    if (kind == kAllContacts) {
        fraContact.SetVisible(false);
        return;
    }
    if (hits.empty()) {
        if (MsgBox("Would you like to Create a New Contact?", vbYesNo + vbQuestion,
                   "Contact not Found") != vbYes) {
            cmdRetry_Click();
            return;
        }
        ShowFrame(fraContact);
        SaveContact();
        ClearContact();
        AddNewContact();
    } else if (hits.size() == 1) {
        ShowFrame(fraContact);
        ContactRec = hits.front();
        ShowContact();
    } else {
        fraSearch.SetVisible(false);
        fraContactsFound.SetCaption("Contacts Search Results");
        fraContactsFound.SetVisible(true);
        cmdPrintContacts.SetVisible(false);
    }
}

void frmContacts::AddFoundRow(int row, std::int32_t recordNo, const Record& record) {
    fgContactsFound.SetTextMatrix(row, 0, record.Trimmed("Name"));
    fgContactsFound.SetTextMatrix(row, 1, record.Trimmed("Telephone"));
    fgContactsFound.SetTextMatrix(row, 2, record.Trimmed("Address1"));
    fgContactsFound.SetTextMatrix(row, 3, record.Trimmed("City"));
    fgContactsFound.SetTextMatrix(row, 4, record.Trimmed("State"));
    fgContactsFound.SetTextMatrix(row, 5, record.Trimmed("Zip"));
    fgContactsFound.SetTextMatrix(row, kFoundRecordColumn, std::to_string(recordNo));
}

void frmContacts::mnuPrint_Click() {
    SearchKind = kAllContacts;
    SearchContacts(kAllContacts, "All");
    fraSearch.SetVisible(false);
    fraContactsFound.SetCaption("Contact List");
    fraContactsFound.SetVisible(true);
    cmdPrintContacts.SetVisible(true);
}

void frmContacts::mnuSelect_Click() {
    const int row = fgContactsFound.Row();
    if (row < fgContactsFound.FixedRows() || row >= fgContactsFound.Rows()) return;
    ContactRec =
        static_cast<std::int32_t>(Val(fgContactsFound.TextMatrix(row, kFoundRecordColumn)));
    ShowContact();
}

void frmContacts::fgContactsFound_DblClick() {
    mnuSelect_Click();
}

void frmContacts::fgContactsFound_MouseUp(EventArgs& e) {
    if (e.button == 2) PopupMenu(mnupopup);
}

void frmContacts::cmdRetry_Click() {
    fraContactsFound.SetVisible(false);
    // The list of every contact came from the contact, a search's results from the search.
    if (SearchKind == kAllContacts)
        fraContact.SetVisible(true);
    else
        fraSearch.SetVisible(true);
}

// ---- The vendor list

void frmContacts::cmdVendorList_Click(int index) {
    if (index == 0) {
        if (fgVendors.Row() == 0) {
            AlarmBeep();
        } else {
            ContactRec = static_cast<std::int32_t>(
                Val(fgVendors.TextMatrix(fgVendors.Row(), kRecordColumn)));
            ShowContact();
        }
    }
    fraSuppliers.SetVisible(false);
}

void frmContacts::fgVendors_Click() {
    cmdVendorList_Click(0);
}

void frmContacts::mnuView_Click() {
    fraSuppliers.SetVisible(!fraSuppliers.Visible());
}

void frmContacts::mnuSaveList_Click() {
    SaveVendorList(*this);
}

// ---- Dialling, printing, leaving

void frmContacts::imgPhone_Click() {
    // A contact has one number to dial, its telephone.
    ShowDialer(txtContact[kNameBox].Text(), Trim(txtContact[kTelephoneBox].Text()));
}

void frmContacts::cmdPrintContacts_Click() {
    PrintContactReport(ContactCount);
}

void frmContacts::cmdExit_Click() {
    if (ContactRec > 0) SaveContact();
    Hide();
    ShowMainMenuFromSetup();
}
