// Times the slip screen, the work schedule printouts and the CSV lists on a busy office: 40
// teams, 5000 service slips, 6000 project records in 300 project files and 5000 accounts.
// Prints one line an action.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "BenchSupport.h"
#include "control/frmProjectControl.h"
#include "customers/frmCustomer.h"
#include "frame/SubMain.h"
#include "frame/frmStartup.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Printer.h"
#include "platform/Ui.h"
#include "platform/headless/HeadlessBackend.h"
#include "platform/headless/HeadlessDialogs.h"
#include "platform/headless/HeadlessPrinter.h"
#include "projects/frmMain.h"
#include "store/SharedState.h"

namespace fs = std::filesystem;
using namespace platform;

using bench::WriteFile;

namespace {

constexpr int kTeams = 40;
constexpr int kSlips = 5000;
constexpr int kProjects = 300;
constexpr int kMilestones = 20;
constexpr int kAccounts = 5000;

std::string Pad(std::string text, size_t length) {
    text.resize(length, ' ');
    return text;
}

std::string Record(const std::string& key, int team, const std::string& date, int slot,
                   const std::string& problem) {
    return Pad("", 10) + Pad(key, 10) + Pad(std::to_string(team), 2) + Pad("Hours", 6) +
           Pad("1", 2) + Pad(date, 10) + Pad(std::to_string(slot), 2) + Pad(problem, 30) +
           Pad("Scheduled", 20) + Pad("", 40) + Pad("$1.00", 10) + Pad("A1001", 20) +
           Pad("Customer " + key, 30) + Pad("1 Elm Road", 35) + Pad("", 25) + Pad("Dayton", 20) +
           Pad("OH", 2) + Pad("45402", 10) + Pad("937-555-0100", 13);
}

void BuildOffice(const fs::path& root) {
    fs::create_directories(root / "ConstructionProjects");
    bench::WriteSetUpOffice(root, kTeams);
    std::string accounts;
    for (int a = 1; a <= kAccounts; ++a)
        accounts += Pad("A" + std::to_string(a), 20) + Pad("Customer " + std::to_string(a), 45) +
                    Pad("1 Elm Road", 35) + Pad("", 25) + Pad("Dayton", 25) + Pad("Dayton", 20) +
                    Pad("OH", 2) + Pad("45402", 10) + Pad("45402", 25) + Pad("937-555-0100", 13) +
                    Pad("", 13 + 30 + 10 + 15 + 1 + 25) + Pad("Business", 10) +
                    std::string(4, '\0');
    WriteFile(root / "CustomerData.txt", accounts);
    for (int y = 2026; y <= 2027; ++y)
        for (int t = 1; t <= kTeams; ++t)
            fs::create_directories(root / std::to_string(y) / ("Team#" + std::to_string(t)));
    // Slips on every team and workday of two months; 17 June holds one on every team.
    std::string slips;
    for (int s = 0; s < kSlips; ++s) {
        const int team = s % kTeams + 1;
        const DateTime day = DateTime::FromYmd(2026, 6, 17).AddDays(s / kTeams % 60);
        slips += Record("SA" + std::to_string(s), team, ShortDate(day), 3 + s / kTeams % 8,
                        "Leaking faucet");
    }
    WriteFile(root / "Slips.txt", slips);
    std::string day;
    for (int slot = 1; slot <= 12; ++slot)
        day += slot == 3 ? "\"SA0 Leaking faucet\"\r\n" : "\"No Event Scheduled\"\r\n";
    WriteFile(root / "2026" / "Team#1" / "168.txt", day);
    std::string records;
    for (int p = 1; p <= kProjects; ++p) {
        const std::string no = "Pj" + std::to_string(100 + p / 10) + "-" + std::to_string(p % 10);
        const int team = (p - 1) % kTeams + 1;
        std::string file = "\"" + no +
                           "\",\"New Installation\",\"A1001\",\"Proposal Number\","
                           "\"Customer\",\"1 Elm Road\",\"\",\"Dayton\",\"OH\",\"45402\","
                           "\"937-555-0100\",\"Site\",\"2 Oak Lane\",\"\",\"Kettering\",\"OH\","
                           "\"45429\",\"937-555-0199\"," +
                           std::to_string(kMilestones) + "\r\n";
        for (int m = 1; m <= kMilestones; ++m) {
            const DateTime date = DateTime::FromYmd(2026, 7, 1).AddDays(m + p % 30);
            file += "\"Step " + std::to_string(m) + "\",2,#" + FormatDate(date, "yyyy-mm-dd") +
                    "#,2,0,0,\"" + std::to_string(team) +
                    "\",\"On Site\",\"3\",\"1\",\"Days\",\"Scheduled\",\"Not Completed \"\r\n";
            records += Record(no, team, ShortDate(date), 3, "Step " + std::to_string(m));
        }
        WriteFile(root / "ConstructionProjects" / (no + ".txt"), file);
    }
    WriteFile(root / "ProjectRecords.txt", records);
}

template <typename F>
double Timed(F&& action) {
    return bench::Time(action);
}

}  // namespace

int main() {
    const fs::path root = fs::temp_directory_path() / "scheduler-printouts-bench";
    fs::remove_all(root);
    BuildOffice(root);
    HeadlessBackend backend;
    backend.SetNow(DateTime::FromYmdHms(2026, 6, 15, 8, 0, 0));
    SetBackend(&backend);
    SetAppFolder(root.string());
    SetProgramFileName("NorvaxConstructionScheduler");
    ResetProgramState();
    RegisterScreens();
    Dispatch([] { SubMain(); });

    MenuRoutine = 3;
    frmMain& form = Screen<frmMain>();
    form.Show();
    form.MonthView1.UserPick(DateTime::FromYmd(2026, 6, 17));
    const double slip = Timed([&] { form.fgHours.UserClick(3, 1); });
    std::printf("open slip from a booked cell: %.0f ms\n", slip);
    Forms::Get("frmSlip").Hide();

    form.lblPrintSched.Raise("Click");
    const double one = Timed([&] { form.cmdInvoiceContinue.Click(); });
    std::printf("print one team's work schedule: %.0f ms\n", one);
    form.lstTeam.SetListIndex(form.lstTeam.ListCount() - 1);
    form.lblPrintSched.Raise("Click");
    const double all = Timed([&] { form.cmdInvoiceContinue.Click(); });
    std::printf("print all %d teams' work schedules: %.0f ms\n", kTeams, all);
    RecordingPrinter().Clear();

    auto& control = Screen<frmProjectControl>();
    control.Load();
    QueuedDialogs().QueueFile((root / "Projects.csv").string());
    const double projects = Timed([&] { control.mnuSaveList.Raise("Click"); });
    std::printf("save the project list as CSV: %.0f ms\n", projects);
    auto& customers = Screen<frmCustomer>();
    customers.Load();
    QueuedDialogs().QueueFile((root / "Customers.csv").string());
    const double accounts = Timed([&] { customers.mnuSaveList.Raise("Click"); });
    std::printf("save the customer list as CSV: %.0f ms\n", accounts);

    SetBackend(nullptr);
    fs::remove_all(root);
    return 0;
}
