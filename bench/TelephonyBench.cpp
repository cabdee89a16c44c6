// Times the call monitor of a busy office: 10,000 customers on file and a year of calls
// already in the list. The monitor polls the modem once a second, so every tick, a tick that
// takes a call included, must stay under 10 ms; opening the screen and the reminder list
// stay under 100 ms. Prints one line per action.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "BenchSupport.h"
#include "frame/SubMain.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/RecordLayout.h"
#include "platform/SerialPort.h"
#include "platform/Ui.h"
#include "platform/headless/HeadlessBackend.h"
#include "platform/headless/SimulatedSerial.h"
#include "schedule/Teams.h"
#include "telephony/frmCallBack.h"
#include "telephony/frmCallID.h"
#include "workorders/SlipFile.h"

namespace fs = std::filesystem;
using namespace platform;

using bench::Report;
using bench::Time;
using bench::WriteFile;

namespace {

constexpr int kCustomers = 10000;
constexpr int kOldCalls = 5000;
constexpr int kSlips = 3000;
constexpr int kTicks = 200;

std::string Phone(int i) {
    char phone[16];
    std::snprintf(phone, sizeof phone, "217-%03d-%04d", 555 + i / 10000, i % 10000);
    return phone;
}

std::string Padded(const std::string& text, std::size_t length) {
    return text.substr(0, length) + std::string(length - std::min(length, text.size()), ' ');
}

// A slip as the service-call program books it: a key, one of the two teams, an hour or two
// from a slot of the morning, a day within the 400 ahead, the customer and the problem.
std::string Slip(int i) {
    Record slip(workorders::kSlipRecord);
    slip.SetText("ProjectNo", "SA" + std::to_string(1000 + i));
    slip.SetText("Team", std::to_string(i % 2));
    slip.SetText("Mode", "Hours");
    slip.SetText("Time", std::to_string(1 + i % 2));
    slip.SetText("Date", ShortDate(DateAdd("d", i % 400, DateTime::FromYmd(2026, 6, 1))));
    slip.SetText("StartSlot", std::to_string(1 + i % 9));
    slip.SetText("Milestone", "Service call " + std::to_string(i));
    slip.SetText("Account", "C" + std::to_string(10001 + i % 1000));
    slip.SetText("SiteName", "Account " + std::to_string(i % 1000));
    slip.SetText("SiteAddress1", std::to_string(i % 90 + 1) + " Elm St");
    slip.SetText("SiteCity", "Springfield");
    slip.SetText("SiteState", "IL");
    slip.SetText("SiteZip", "62701");
    slip.SetText("SiteTelephone", Phone(i));
    return slip.Bytes();
}

void BuildFolder(const fs::path& root) {
    fs::create_directories(root / "Backup");
    std::string customers, calls, slips;
    for (int i = 1; i <= kCustomers; ++i) {
        std::string record(328, ' ');
        record.replace(0, 6, "C" + std::to_string(10000 + i));
        record.replace(207, 12, Phone(i));
        if (i % 3 == 0) record.replace(220, 12, Phone(kCustomers + i));
        customers += record;
    }
    for (int i = 1; i <= kOldCalls; ++i)
        calls += Padded("CALLER " + std::to_string(i), 15) + Phone(i * 7) + "09:15 am";
    for (int i = 0; i < kSlips; ++i) slips += Slip(i);
    WriteFile(root / "CustomerData.txt", customers);
    WriteFile(root / "TelCall.txt", calls);
    WriteFile(root / "Slips.txt", slips);
    WriteFile(root / "CallID.txt", "#TRUE#\r\n");
    WriteFile(root / "Assignto.txt", "\"Crew A\"\r\n\"Crew B\"\r\n");
    WriteFile(root / "MyBusinessData.txt",
              "\"Acme\",\"1 Main St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0100\",\"\","
              "\"\"\r\n");
}

}  // namespace

int main() {
    const fs::path root = fs::temp_directory_path() / "scheduler-telephony-bench";
    fs::remove_all(root);
    BuildFolder(root);
    HeadlessBackend backend;
    backend.SetNow(DateTime::FromYmdHms(2026, 6, 15, 9, 0, 0));
    SetBackend(&backend);
    SetAppFolder(root.string());
    SetProgramFileName("NorvaxConstructionScheduler");
    ResetProgramState();
    RegisterScreens();
    SimulatedLines().PlaceModem(3);
    // The team list, as the start-up reads it: the reminder list names each slip's team.
    Dispatch([] {
        LoadAssignments();
        Forms::Get("frmSetup").Load();
    });

    auto& monitor = static_cast<frmCallID&>(Forms::Get(frmCallID::kName));
    bool ok = Report("open the call monitor", Time([&] { monitor.Show(); }), 100);
    ok &= Report("tick: the modem's OK", Time([&] { monitor.tmrMain.Tick(); }), 10);

    // Quiet polls, and polls that take a call matched against every customer: the worst
    // case is a number that belongs to nobody, compared with all 20,000 numbers.
    double quiet = 0, calls = 0;
    for (int i = 0; i < kTicks; ++i) {
        quiet = std::max(quiet, Time([&] { monitor.tmrMain.Tick(); }));
        SimulatedLines().Ring(i % 2 ? "3125550123" : "2175559999", "CALLER NAME", 6, 15, 9, 0);
        calls = std::max(calls, Time([&] { monitor.tmrMain.Tick(); }));
        SimulatedLines().PassTime();
    }
    ok &= Report("tick: nothing came (slowest)", quiet, 10);
    ok &= Report("tick: a call taken and matched (slowest)", calls, 10);
    ok &= Report("step to the next call", Time([&] { monitor.updnCalls.UserUp(); }), 100);
    ok &= Report("reset the form", Time([&] { monitor.imgLogo.Raise("Click"); }), 100);

    auto& reminders = static_cast<frmCallBack&>(Forms::Get(frmCallBack::kName));
    ok &= Report("open the reminder calls", Time([&] { reminders.Show(); }), 100);
    ok &= Report("reminder calls of the next year", Time([&] { reminders.cmdWeekly[5].Click(); }),
                 100);
    // The figures count only when the list was filled: the slips of the year ahead.
    const int listed = reminders.fgTomorrow.Rows() - 1;
    std::printf("reminder calls listed: %d of %d slips\n", listed, kSlips);
    ok &= listed > 0;
    // A run-time failure ends the program at once and would leave the figures above empty.
    for (const auto& box : backend.Boxes())
        std::printf("message [%s] %s\n", box.title.c_str(), box.prompt.c_str());
    ok &= !ProgramHasEnded();

    Forms::Reset();
    SetBackend(nullptr);
    SimulatedLines().Reset();
    SharedSerialPort().Reset();
    fs::remove_all(root);
    std::printf("%s\n", ok ? "every action within its limit" : "SOME ACTION TOO SLOW");
    return ok ? 0 : 1;
}
