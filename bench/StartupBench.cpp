// Times the start-up sequence on a program folder of a busy office: 10,000 customers,
// 40 teams and three years of full day files. Prints the figures; fails above one second.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "BenchSupport.h"
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

constexpr int kCustomers = 10000;
constexpr int kTeams = 40;
constexpr int kYear = 2026;

void BuildOffice(const fs::path& root) {
    fs::create_directories(root);
    std::string customers;
    for (int i = 1; i <= kCustomers; ++i) {
        RecordWriter w;
        w.Text("A" + std::to_string(100000 + i), 20);
        w.Text("Customer " + std::to_string(i), 308);
        customers += w.Bytes();
        const fs::path aux = root / "AuxFiles" / ("A" + std::to_string(100000 + i));
        for (int f = 0; f <= 5; ++f) fs::create_directories(aux / ("AuxFile" + std::to_string(f)));
    }
    WriteFile(root / "CustomerData.txt", customers);
    std::string teams;
    for (int t = 1; t <= kTeams; ++t) teams += "\"Crew " + std::to_string(t) + "\"\r\n";
    WriteFile(root / "Assignto.txt", teams);
    WriteFile(root / "NorvaxConstructionSchedulerSettings.txt",
              "8\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n");
    WriteFile(root / "MyBusinessData.txt",
              "\"Acme\",\"1 Main "
              "St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0100\",\"\",\"\"\r\n");
    WriteFile(root / "Characteristics.txt", "\"Framing\",2,2,0,0\r\n");
    std::string day;
    for (int s = 0; s < 12; ++s) day += "\"Pj100-1-Framing\"\r\n";
    for (int y = kYear; y <= kYear + 2; ++y) {
        for (int t = 1; t <= kTeams; ++t) {
            const fs::path folder = root / std::to_string(y) / ("Team#" + std::to_string(t));
            fs::create_directories(folder);
            for (int d = 1; d <= 365; ++d) WriteFile(folder / (std::to_string(d) + ".txt"), day);
        }
    }
    // The last start was yesterday: today's purge has one day to do.
    WriteFile(root / "PurgedDate.txt", "165\r\n");
}

double TimeStart(const fs::path& root, HeadlessBackend& backend) {
    ResetProgramState();
    RegisterScreens();
    const auto start = std::chrono::steady_clock::now();
    Dispatch([] { SubMain(); });
    const auto end = std::chrono::steady_clock::now();
    return std::chrono::duration<double, std::milli>(end - start).count();
}

}  // namespace

int main(int argc, char** argv) {
    // --keep reuses the folder of the last run and leaves it in place.
    const bool keep = argc > 1 && std::string(argv[1]) == "--keep";
    const fs::path root = fs::temp_directory_path() / "scheduler-startup-bench";
    if (!keep || !fs::exists(root)) {
        fs::remove_all(root);
        std::printf(
            "building the program folder: %d customers, %d teams, 3 years of day files...\n",
            kCustomers, kTeams);
        BuildOffice(root);
    }
    HeadlessBackend backend;
    backend.SetNow(DateTime::FromYmdHms(kYear, 6, 16, 8, 0, 0));  // day 167
    SetBackend(&backend);
    SetAppFolder(root.string());
    SetProgramFileName("NorvaxConstructionScheduler");
    const double first = TimeStart(root, backend);
    const double second = TimeStart(root, backend);
    std::printf("start-up, first run of the day: %.1f ms\n", first);
    std::printf("start-up, again:                %.1f ms\n", second);
    Forms::Reset();
    SetBackend(nullptr);
    if (!keep) fs::remove_all(root);
    const bool ok = first < 1000 && second < 1000;
    std::printf("%s\n", ok ? "within one second" : "SLOWER THAN ONE SECOND");
    return ok ? 0 : 1;
}
