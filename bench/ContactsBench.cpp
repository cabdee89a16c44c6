// Times the vendor screen on the vendor file of a large office: 5,000 contacts. Prints one
// line per action; each should stay under 100 ms.
#include <cstdio>
#include <filesystem>
#include <string>

#include "BenchSupport.h"
#include "contacts/frmContacts.h"
#include "frame/SubMain.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Records.h"
#include "platform/Ui.h"
#include "platform/headless/HeadlessBackend.h"
#include "platform/headless/HeadlessDialogs.h"

namespace fs = std::filesystem;
using namespace platform;
using bench::Report;
using bench::Time;
using bench::WriteFile;

namespace {

constexpr int kContacts = 5000;

std::string Contact(int i) {
    const std::string n = std::to_string(i);
    char phone[16];
    std::snprintf(phone, sizeof phone, "217-%03d-%04d", 555 + i / 10000, i % 10000);
    RecordWriter w;
    w.Text("V" + std::to_string(10000 + i), 20);
    w.Text("Supplier " + std::to_string((i * 7919) % kContacts) + " Co", 30);
    w.Text(n + " Mill Road", 35);
    w.Text(i % 5 == 0 ? "Dock " + n : "", 25);
    w.Text("City " + std::to_string(i % 300), 20);
    w.Text(i % 2 ? "IL" : "WI", 2);
    w.Text(std::to_string(60000 + i % 900), 10);
    w.Text(phone, 13);
    w.Text("orders" + n + "@example.com", 30);
    w.Text(i % 3 ? "Vendor" : "Sub-Contractor", 20);
    w.Text("Contact " + n, 30);
    return w.Bytes();
}

}  // namespace

int main() {
    const fs::path root = fs::temp_directory_path() / "scheduler-contacts-bench";
    fs::remove_all(root);
    fs::create_directories(root / "Backup");
    std::string file;
    for (int i = 1; i <= kContacts; ++i) file += Contact(i);
    WriteFile(root / "VendorData.txt", file);
    HeadlessBackend backend;
    backend.SetNow(DateTime::FromYmdHms(2026, 6, 15, 9, 0, 0));
    SetBackend(&backend);
    SetAppFolder(root.string());
    SetProgramFileName("NorvaxConstructionScheduler");
    ResetProgramState();
    RegisterScreens();
    Dispatch([] { Forms::Get("frmSetup").Load(); });
    auto& form = static_cast<frmContacts&>(Forms::Get(frmContacts::kName));

    bool ok = Report("open the screen", Time([&] { form.Show(); }));
    ok &= Report("next record", Time([&] { form.cmdNav[2].Click(); }));
    ok &= Report("last record", Time([&] { form.cmdNav[3].Click(); }));
    ok &= Report("first record", Time([&] { form.cmdNav[0].Click(); }));
    const char* keys[] = {"SUPPLIER 4999", "4999 MILL",    "DOCK 4995",     "CITY 299", "WI",
                          "60899",         "217-555-4999", "SUB-CONTRACTOR"};
    const char* names[] = {"search by name",  "search by address 1", "search by address 2",
                           "search by city",  "search by state",     "search by postal code",
                           "search by phone", "search by category"};
    for (int kind = 0; kind < 8; ++kind)
        ok &= Report(names[kind], Time([&] {
                         form.Command1[0].Click();
                         form.optSearch[kind].SetValue(true);
                         form.txtSearchfor.SetText(keys[kind]);
                         form.cmdStartSearch.Click();
                     }));
    ok &= Report("contact list", Time([&] { form.mnuPrint.Raise("Click"); }));
    ok &= Report("pick from the contact list", Time([&] {
                     form.fgContactsFound.SetRow(2500);
                     form.mnuSelect.Raise("Click");
                 }));
    ok &= Report("vendor list", Time([&] { form.mnuView.Raise("Click"); }));
    ok &= Report("pick from the vendor list", Time([&] { form.fgVendors.UserClick(4000, 0); }));
    ok &= Report("add a contact", Time([&] { form.mnuAdd.Raise("Click"); }));
    form.txtContact[frmContacts::kNameBox].SetText("New Supplier");
    ok &= Report("save the new contact", Time([&] { form.cmdNav[0].Click(); }));
    backend.QueueAnswer(vbYes);
    ok &= Report("delete a contact", Time([&] { form.mnuDelete.Raise("Click"); }));
    backend.QueueAnswer(vbYes);
    ok &= Report("print the contact report", Time([&] { form.cmdPrintContacts.Click(); }));
    QueuedDialogs().QueueFile((root / "Vendors.csv").string());
    ok &= Report("save the vendor list as CSV", Time([&] { form.mnuSaveList.Raise("Click"); }));
    ok &= Report("leave the screen", Time([&] { form.cmdExit.Click(); }));

    Forms::Reset();
    SetBackend(nullptr);
    fs::remove_all(root);
    std::printf("%s\n", ok ? "every action within its limit" : "SOME ACTION TOO SLOW");
    return ok ? 0 : 1;
}
