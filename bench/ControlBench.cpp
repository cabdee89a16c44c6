// Times the project control screen on a busy office: 300 projects of 20 milestones on 40
// teams. Opening the screen, moving one milestone whose cascade moves ten more, and leaving
// the screen with the changed project saved. Prints one line an action.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "BenchSupport.h"
#include "control/ProjectTables.h"
#include "control/frmProjectControl.h"
#include "frame/SubMain.h"
#include "frame/frmStartup.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Ui.h"
#include "platform/headless/HeadlessBackend.h"
#include "store/SharedState.h"

namespace fs = std::filesystem;
using namespace platform;

using bench::WriteFile;

namespace {

constexpr int kProjects = 300;
constexpr int kMilestones = 20;
constexpr int kTeams = 40;
constexpr int kCascade = 10;  // milestones 3 to 12 wait for the one before them

DateTime NextWeekday(DateTime date) {
    while (date.Weekday() == 1 || date.Weekday() == 7) date = date.AddDays(1);
    return date;
}

std::string BlockDay(const std::string& text) {
    std::string day;
    for (int s = 1; s <= 12; ++s)
        day += "\"" + (s >= 3 && s <= 10 ? text : std::string("No Event Scheduled")) + "\"\r\n";
    return day;
}

void BuildOffice(const fs::path& root) {
    fs::create_directories(root / "ConstructionProjects");
    bench::WriteSetUpOffice(root, kTeams);
    WriteFile(root / "CustomerData.txt", "A100" + std::string(324, ' '));
    for (int y = 2026; y <= 2027; ++y)
        for (int t = 1; t <= kTeams; ++t)
            fs::create_directories(root / std::to_string(y) / ("Team#" + std::to_string(t)));
    for (int p = 1; p <= kProjects; ++p) {
        const std::string no = "Pj" + std::to_string(100 + p / 10) + "-" + std::to_string(p % 10);
        const int team = (p - 1) % kTeams + 1;
        std::string file = "\"" + no + "\",\"New Installation\",\"A" + std::to_string(1000 + p) +
                           "\",\"Proposal Number\",\"Customer " + std::to_string(p) +
                           "\",\"1 Elm Road\",\"\",\"Dayton\",\"OH\",\"45402\",\"937-555-0100\","
                           "\"Site\",\"2 Oak Lane\",\"\",\"Kettering\",\"OH\",\"45429\","
                           "\"937-555-0199\"," +
                           std::to_string(kMilestones) + "\r\n";
        // Each team's projects follow one another, a milestone a workday.
        DateTime date = NextWeekday(DateTime::FromYmd(2026, 7, 1).AddDays(((p - 1) / kTeams) * 28));
        for (int m = 1; m <= kMilestones; ++m) {
            const std::string name = "Step " + std::to_string(m);
            const int dependency = m >= 3 && m <= 2 + kCascade ? m - 1 : 0;
            file += "\"" + name + "\",2,#" + FormatDate(date, "yyyy-mm-dd") + "#,2," +
                    std::to_string(dependency) + "," + (dependency ? "1" : "0") + ",\"" +
                    std::to_string(team) +
                    "\",\"On Site\",\"3\",\"1\",\"Days\",\"Scheduled\",\"Not Completed \"\r\n";
            WriteFile(root / std::to_string(date.Year()) / ("Team#" + std::to_string(team)) /
                          (std::to_string(date.DayOfYear()) + ".txt"),
                      BlockDay(no + "-" + name));
            date = NextWeekday(date.AddDays(1));
        }
        WriteFile(root / "ConstructionProjects" / (no + ".txt"), file);
    }
}

template <typename F>
double Timed(F&& action) {
    return bench::Time(action);
}

}  // namespace

int main(int argc, char** argv) {
    // --keep reuses the folder of the last run and leaves it in place.
    const bool keep = argc > 1 && std::string(argv[1]) == "--keep";
    const fs::path root = fs::temp_directory_path() / "scheduler-control-bench";
    fs::remove_all(root / "Backup");
    if (!keep || !fs::exists(root / "ConstructionProjects")) {
        fs::remove_all(root);
        BuildOffice(root);
    }
    HeadlessBackend backend;
    backend.SetNow(DateTime::FromYmdHms(2026, 6, 16, 8, 0, 0));
    SetBackend(&backend);
    SetAppFolder(root.string());
    SetProgramFileName("NorvaxConstructionScheduler");
    ResetProgramState();
    RegisterScreens();
    Dispatch([] { SubMain(); });

    // As after a project was created: the next visit reads every project file.
    ProjectsLoaded = false;
    auto& menu = Screen<frmStartup>();
    const double open = Timed([&] { menu.optProgramRoutine[9].Raise("DblClick"); });
    auto& f = Screen<frmProjectControl>();
    Dispatch([&] { f.fgProjects.UserDoubleClick(1, 0); });
    Dispatch([&] { f.fgMilestones.UserClick(2, 1, 2); });
    Dispatch([&] { f.mnuRescheduleMilestone.Raise("Click"); });
    const DateTime later = f.MSCal.Value().AddDays(7);
    const double move = Timed([&] { f.MSCal.UserPick(later); });
    const double leave = Timed([&] { f.cmdMenu.Click(); });

    std::printf("open the project control screen (%d projects): %.0f ms\n", kProjects, open);
    std::printf("move a milestone, %d following: %.0f ms\n", kCascade, move);
    std::printf("leave the screen, saving the changed project: %.0f ms\n", leave);
    Forms::Reset();
    SetBackend(nullptr);
    if (!keep) fs::remove_all(root);
    return 0;
}
