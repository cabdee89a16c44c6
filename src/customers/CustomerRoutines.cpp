#include "customers/CustomerRoutines.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

#include "customers/AuxDataRoutines.h"
#include "customers/CustomerDiskRoutines.h"
#include "customers/frmCustomer.h"
#include "frame/VerifyDataRoutines.h"
#include "platform/Records.h"
#include "platform/Ui.h"
#include "setup/ScreenLinks.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

constexpr int kBusinessCity = 3;
constexpr int kBusinessState = 4;
constexpr int kBusinessZip = 5;

// The order of a sorted list: without regard to case.
bool BeforeInList(const std::string& a, const std::string& b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return std::tolower(static_cast<unsigned char>(x)) <
               std::tolower(static_cast<unsigned char>(y));
    });
}

void AddCityIfNew(ComboBox& cities, const std::string& city) {
    if (city.empty()) return;
    for (const ListEntry& entry : cities.Items())
        if (entry.text == city) return;
    cities.AddItem(city);
}

void ShowRecordNumber(frmCustomer& form) {
    form.lblRecordNo.SetCaption("Record " + std::to_string(form.CurrentRecord) + " of " +
                                std::to_string(std::max(form.RecordCount, form.CurrentRecord)));
}

}  // namespace

bool IsBusiness(const Record& record) {
    return record.Trimmed("AccountType") == frmCustomer::kBusiness;
}

std::string ListName(const Record& record) {
    if (IsBusiness(record)) return record.Trimmed("AccountName");
    return record.Trimmed("LastName") + ", " + record.Trimmed("FirstName");
}

std::string FoundName(const Record& record) {
    if (IsBusiness(record)) return record.Trimmed("AccountName");
    std::string name;
    for (const char* part : {"Title", "FirstName", "LastName"}) {
        const std::string text = record.Trimmed(part);
        if (text.empty()) continue;
        if (!name.empty()) name += ' ';
        name += text;
    }
    return name;
}

std::string FoundRowName(const Record& record) {
    if (IsBusiness(record)) return record.Trimmed("AccountName");
    // The three parts joined by blanks as they are: no title leaves a leading blank.
    return record.Trimmed("Title") + " " + record.Trimmed("FirstName") + " " +
           record.Trimmed("LastName");
}

void LoadAccountLists(frmCustomer& form) {
    ClearCombo(form.cboAccounts);
    ClearCombo(form.cboCity);
    struct Entry {
        std::string name;
        std::int32_t recordNo;
    };
    std::vector<Entry> names;
    std::vector<std::string> cities;
    std::unordered_set<std::string> seenCities;
    ForEachCustomer(CountCustomers(), [&](std::int32_t recordNo, const Record& record) {
        const std::string city = record.Trimmed("City");
        if (!city.empty() && seenCities.insert(city).second) cities.push_back(city);
        names.push_back({ListName(record), recordNo});
    });
    for (const std::string& city : cities) form.cboCity.AddItem(city);
    // Added in the list's own order, each entry lands at the end instead of being pushed in.
    std::stable_sort(names.begin(), names.end(),
                     [](const Entry& a, const Entry& b) { return BeforeInList(a.name, b.name); });
    for (const Entry& entry : names) {
        form.cboAccounts.AddItem(entry.name);
        form.cboAccounts.SetItemData(form.cboAccounts.NewIndex(), entry.recordNo);
    }
}

void ClearCustomerBoxes(frmCustomer& form) {
    for (int i = frmCustomer::kAccountNoBox; i <= frmCustomer::kLastNameBox; ++i)
        form.txtCustomer[i].SetText("");
    form.cboCity.SetText("");
    form.txtAdd3.SetText("");
    form.txtAdd4.SetText("");
}

void DisplayCustomer(frmCustomer& form) {
    ClearCustomerBoxes(form);
    ReadCustomerRecord(form.CurrentRecord);
    const Record& r = CustomerRecord;
    auto show = [&](int box, const char* field) {
        form.txtCustomer[box].SetText(r.Trimmed(field));
    };
    show(frmCustomer::kAccountNoBox, "AccountNo");
    show(frmCustomer::kNameBox, "AccountName");
    show(frmCustomer::kAddress1Box, "Address1");
    show(frmCustomer::kAddress2Box, "Address2");
    form.cboCity.SetText(r.Trimmed("City"));
    form.txtAdd3.SetText(r.Trimmed("City"));
    form.cboStates.SetText(r.Trimmed("State"));
    const std::string zip = r.Trimmed("ZipCode");
    form.txtCustomer[frmCustomer::kZipBox].SetText(zip.empty() ? r.Trimmed("PostalCode") : zip);
    form.txtAdd4.SetText(r.Trimmed("PostalCode"));
    show(frmCustomer::kTelephoneBox, "Telephone");
    show(frmCustomer::kFaxEmailBox, "FaxEmail");
    show(frmCustomer::kFirstNameBox, "FirstName");
    form.txtCustomer[frmCustomer::kMiddleBox].SetText("");
    show(frmCustomer::kLastNameBox, "LastName");
    form.cboTitle.SetText(r.Trimmed("Title"));
    form.lbLType.SetCaption(r.Trimmed("AccountType"));
    SetAccountType(form, form.lbLType.Caption());
    if (form.txtCustomer[frmCustomer::kNameBox].Text().empty()) {
        form.txtCustomer[frmCustomer::kAccountNoBox].SetFocus();
        form.txtCustomer[frmCustomer::kNameBox].SetText(
            JoinName(r.Trimmed("Title"), r.Trimmed("FirstName"), "", r.Trimmed("LastName")));
    }
    ShowRecordNumber(form);
    LoadAuxData(form);
    ReadContractRecord(form.CurrentRecord);
    ReadCycleRecord(form.CurrentRecord);
}

void SaveCustomer(frmCustomer& form) {
    form.SaveAccepted = true;
    auto box = [&](int index) { return Trim(form.txtCustomer[index].Text()); };
    const std::string type = form.lbLType.Caption();
    const bool business = type == frmCustomer::kBusiness;
    if (business && box(frmCustomer::kNameBox).empty()) {
        MsgBox("The Account Name Cannot be Blank", vbOKOnly + vbExclamation);
        form.SaveAccepted = false;
        form.txtCustomer[frmCustomer::kNameBox].SetFocus();
        return;
    }
    if (!business &&
        (box(frmCustomer::kFirstNameBox).empty() || box(frmCustomer::kLastNameBox).empty())) {
        MsgBox("Enter Account 1st and Last Name", vbOKOnly + vbExclamation);
        form.SaveAccepted = false;
        form.txtCustomer[frmCustomer::kFirstNameBox].SetFocus();
        return;
    }
    // The account's folders first: a number that cannot name a folder stops before any write.
    MakeAuxFolders(box(frmCustomer::kAccountNoBox));

    Record& r = CustomerRecord;
    r.SetText("AccountNo", box(frmCustomer::kAccountNoBox));
    r.SetText("AccountName", box(frmCustomer::kNameBox));
    r.SetText("Address1", box(frmCustomer::kAddress1Box));
    r.SetText("Address2", box(frmCustomer::kAddress2Box));
    r.SetText("CityCopy", Trim(form.cboCity.Text()));
    r.SetText("ZipCode", form.txtCustomer[frmCustomer::kZipBox].Text());
    r.SetText("Telephone", box(frmCustomer::kTelephoneBox));
    r.SetText("FaxEmail", box(frmCustomer::kFaxEmailBox));
    r.SetText("FirstName", box(frmCustomer::kFirstNameBox));
    r.SetText("MiddleInitial", "");
    // A business keeps the last name it has: a new one keeps the mark of a new record.
    if (!business) r.SetText("LastName", box(frmCustomer::kLastNameBox));
    r.SetText("CellPhone", box(frmCustomer::kCellBox));
    r.SetText("Title", Trim(form.cboTitle.Text()));
    r.SetText("AccountType", type);
    if (form.USAddress) {
        r.SetText("City", Trim(form.cboCity.Text()));
        r.SetText("State", Trim(form.cboStates.Text()));
        r.SetText("PostalCode", box(frmCustomer::kZipBox));
    } else {
        r.SetText("City", Trim(form.txtAdd3.Text()));
        r.SetText("State", "");
        r.SetText("PostalCode", Trim(form.txtAdd4.Text()));
    }
    WriteCustomerRecord(form.CurrentRecord);

    AddCityIfNew(form.cboCity, r.Trimmed("City"));
    for (int i = 0; i < form.cmdNav.Count(); ++i) form.cmdNav[i].SetEnabled(true);
    for (int i = 0; i < form.Command1.Count(); ++i) form.Command1[i].SetEnabled(true);
    WriteContractRecord(form.CurrentRecord);
    WriteCycleRecord(form.CurrentRecord);
    ResetBillingRecords();
    form.mnuAdd.SetEnabled(true);
    form.mnuDelete.SetEnabled(true);
    form.mnuAux.SetEnabled(true);
}

bool NewCustomer(frmCustomer& form) {
    if (form.txtCustomer[frmCustomer::kNameBox].Text().size() >= 2) {
        SaveCustomer(form);
        if (!form.SaveAccepted) return false;
    }
    form.cmdCustomer.SetVisible(true);
    ++form.RecordCount;
    form.CurrentRecord = form.RecordCount;
    for (const FieldSpec& field : CustomerRecord.Layout().Fields())
        if (field.kind == FieldKind::Text) CustomerRecord.SetText(field.name, "");
    CustomerRecord.SetText("LastName", "'");
    ClearCustomerBoxes(form);
    form.cboTitle.SetText("");
    form.cboStates.SetText("");
    SetAccountType(form, frmCustomer::kIndividual);
    LoadAccountLists(form);
    PrefillFromBusiness(form);
    form.txtCustomer[frmCustomer::kTelephoneBox].SetText("");
    form.txtCustomer[frmCustomer::kAccountNoBox].SetFocus();
    ShowRecordNumber(form);
    return true;
}

void PrefillFromBusiness(frmCustomer& form) {
    form.cboCity.SetText(BusinessData[kBusinessCity]);
    form.txtCustomer[frmCustomer::kZipBox].SetText(BusinessData[kBusinessZip]);
    form.cboStates.SetText(BusinessData[kBusinessState]);
}

void SetAccountType(frmCustomer& form, const std::string& type) {
    const bool business = type == frmCustomer::kBusiness;
    form.txtCustomer[frmCustomer::kNameBox].SetEnabled(business);
    for (int i : {frmCustomer::kFirstNameBox, frmCustomer::kMiddleBox, frmCustomer::kLastNameBox})
        form.txtCustomer[i].SetEnabled(!business);
    form.cboTitle.SetEnabled(!business);
    form.lbLType.SetCaption(business ? frmCustomer::kBusiness : frmCustomer::kIndividual);
    if (business)
        form.txtCustomer[frmCustomer::kAccountNoBox].SetFocus();
    else
        form.cboTitle.SetFocus();
}

bool AccountNoTaken(frmCustomer& form, const std::string& accountNo) {
    bool taken = false;
    ForEachCustomer(form.RecordCount, [&](std::int32_t recordNo, const Record& record) {
        if (recordNo != form.CurrentRecord && record.Trimmed("AccountNo") == accountNo)
            taken = true;
    });
    return taken;
}

void DeleteCustomer(frmCustomer& form) {
    DeleteCustomerRecords(form.CurrentRecord, form.RecordCount,
                          Trim(form.txtCustomer[frmCustomer::kAccountNoBox].Text()));
    if (form.RecordCount > 1) --form.RecordCount;
    form.CurrentRecord = 1;
    LoadAccountLists(form);
    DisplayCustomer(form);
    form.txtCustomer[frmCustomer::kAccountNoBox].SetFocus();
}

void MakeAuxFolders(const std::string& accountNo) {
    const std::string folder = "/AuxFiles/" + CheckedName(accountNo);
    MakeFolder("/AuxFiles");
    MakeFolder(folder);
    for (int i = 0; i <= 5; ++i) MakeFolder(folder + "/AuxFile" + std::to_string(i));
}
