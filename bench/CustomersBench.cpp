// Times the customer screen on the account book of a busy office: 10,000 accounts with their
// billing records. Prints one line per action; each should stay under 100 ms, opening the
// screen under 300 ms.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "BenchSupport.h"
#include "customers/frmCustomer.h"
#include "frame/SubMain.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Records.h"
#include "platform/Ui.h"
#include "platform/headless/HeadlessBackend.h"

namespace fs = std::filesystem;
using namespace platform;

using bench::WriteFile;

namespace {

constexpr int kAccounts = 10000;

std::string Account(int i) {
    const bool business = i % 3 == 0;
    const std::string n = std::to_string(i);
    RecordWriter w;
    w.Text("C" + std::to_string(10000 + i), 20);
    w.Text(business ? "Builders " + n + " Inc" : "", 45);
    w.Text(n + " Oak Street", 35);
    w.Text(i % 7 == 0 ? "Unit " + n : "", 25);
    const std::string city = "City " + std::to_string(i % 200);
    w.Text(city, 25);
    w.Text(city, 20);
    w.Text(i % 2 ? "IL" : "WI", 2);
    w.Text(std::to_string(60000 + i % 900), 10);
    w.Text(std::to_string(60000 + i % 900), 25);
    char phone[16];
    std::snprintf(phone, sizeof phone, "217-%03d-%04d", i / 10000 + 555, i % 10000);
    w.Text(phone, 13);
    w.Text("", 13);
    w.Text("mail" + n + "@example.com", 30);
    w.Text(business ? "" : "Mr.", 10);
    w.Text(business ? "" : "First" + n, 15);
    w.Text("", 1);
    w.Text(business ? "" : "Last" + n, 25);
    w.Text(business ? "Business" : "Individual", 10);
    w.Int16(0);
    w.Int16(0);
    return w.Bytes();
}

void BuildBook(const fs::path& root) {
    fs::create_directories(root / "Backup");
    fs::create_directories(root / "AuxFiles");
    std::string book, contract, cycle;
    for (int i = 1; i <= kAccounts; ++i) {
        book += Account(i);
        contract += std::string(386, 'c');
        cycle += std::string(69, 'y');
    }
    WriteFile(root / "CustomerData.txt", book);
    WriteFile(root / "ContractInfo.txt", contract);
    WriteFile(root / "CycleInfo.txt", cycle);
    WriteFile(root / "MyBusinessData.txt",
              "\"Acme\",\"1 Main St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0100\",\"\","
              "\"\"\r\n");
}

double Time(const std::function<void()>& action) {
    return bench::Time(action);
}

bool Report(const char* action, double ms, double limit = 100) {
    std::printf("%s: %.0f ms\n", action, ms);
    return ms < limit;
}

}  // namespace

int main() {
    const fs::path root = fs::temp_directory_path() / "scheduler-customers-bench";
    fs::remove_all(root);
    BuildBook(root);
    HeadlessBackend backend;
    backend.SetNow(DateTime::FromYmdHms(2026, 6, 15, 9, 0, 0));
    SetBackend(&backend);
    SetAppFolder(root.string());
    SetProgramFileName("NorvaxConstructionScheduler");
    ResetProgramState();
    RegisterScreens();
    Dispatch([] { Forms::Get("frmSetup").Load(); });
    auto& form = static_cast<frmCustomer&>(Forms::Get(frmCustomer::kName));

    bool ok = Report("open the screen", Time([&] { form.Show(); }), 300);
    ok &= Report("next record", Time([&] { form.cmdNav[2].Click(); }));
    ok &= Report("last record", Time([&] { form.cmdNav[3].Click(); }));
    ok &= Report("account number check",
                 Time([&] { form.txtCustomer[frmCustomer::kAccountNoBox].Raise("LostFocus"); }));
    const char* texts[] = {"BUILDERS 999 ", "9999 OAK",     "UNIT 9996", "CITY 199", "WI",
                           "60899",         "217-555-9999", "LAST9998",  "C19997"};
    const char* names[] = {
        "search by business name", "search by address #1", "search by address #2",
        "search by city",          "search by state",      "search by zip code",
        "search by telephone",     "search by last name",  "search by account number"};
    for (int option = 0; option <= 8; ++option) {
        ok &= Report(names[option], Time([&] {
                         form.Command1[0].Click();
                         form.optSearch[option].SetValue(true);
                         form.txtSearchfor.SetText(texts[option]);
                         form.cmdStartSearch.Click();
                     }));
    }
    ok &= Report("customer list", Time([&] { form.mnuPrint.Raise("Click"); }));
    ok &= Report("name list, one key", Time([&] {
                     form.Command1[1].Click();
                     form.cboAccounts.TypeText("L");
                 }));
    ok &= Report("add an account", Time([&] { form.cmdNew.Click(); }));
    form.cmdAcctType.Click();
    form.txtCustomer[frmCustomer::kAccountNoBox].SetText("NEW1");
    form.txtCustomer[frmCustomer::kNameBox].SetText("New Builders");
    ok &= Report("save the new account", Time([&] { form.cmdNav[3].Click(); }));
    backend.QueueAnswer(vbYes);
    ok &= Report("delete an account", Time([&] { form.mnuDelete.Raise("Click"); }));

    Forms::Reset();
    SetBackend(nullptr);
    fs::remove_all(root);
    std::printf("%s\n", ok ? "every action within its limit" : "SOME ACTION TOO SLOW");
    return ok ? 0 : 1;
}
