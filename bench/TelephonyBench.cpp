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
#include "platform/SerialPort.h"
#include "platform/Ui.h"
#include "platform/headless/HeadlessBackend.h"
#include "platform/headless/SimulatedSerial.h"
#include "telephony/frmCallBack.h"
#include "telephony/frmCallID.h"

namespace fs = std::filesystem;
using namespace platform;

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
    for (int i = 0; i < kSlips; ++i) {
        std::string slip(297, ' ');
        slip.replace(10, 6, "SA" + std::to_string(1000 + i));
        slip.replace(20, 1, "0");
        const DateTime day = DateAdd("d", i % 400, DateTime::FromYmd(2026, 6, 1));
        const std::string date = ShortDate(day);
        slip.replace(30, date.size(), date);
        slip.replace(40, 1, std::to_string(1 + i % 9));
        slip.replace(162, 12, "Account " + std::to_string(i % 1000));
        slip.replace(284, 12, Phone(i));
        slips += slip;
    }
    WriteFile(root / "CustomerData.txt", customers);
    WriteFile(root / "TelCall.txt", calls);
    WriteFile(root / "Slips.txt", slips);
    WriteFile(root / "CallID.txt", "#TRUE#\r\n");
    WriteFile(root / "Assignto.txt", "\"Crew A\"\r\n\"Crew B\"\r\n");
    WriteFile(root / "MyBusinessData.txt",
              "\"Acme\",\"1 Main St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0100\",\"\","
              "\"\"\r\n");
}

double Time(const std::function<void()>& action) {
    return bench::Time(action);
}

bool Report(const char* action, double ms, double limit) {
    std::printf("%s: %.1f ms\n", action, ms);
    return ms < limit;
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
    Dispatch([] { Forms::Get("frmSetup").Load(); });

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

    Forms::Reset();
    SetBackend(nullptr);
    SimulatedLines().Reset();
    SharedSerialPort().Reset();
    fs::remove_all(root);
    std::printf("%s\n", ok ? "every action within its limit" : "SOME ACTION TOO SLOW");
    return ok ? 0 : 1;
}
