// Times project creation on the program folder of a busy office: 40 teams with three years
// of full day files (43,920 files), 300 saved projects and their records. Entering the
// wizard takes the snapshot of the day files and abandoning it restores them; both are
// timed beside `cp -r` and `cp -al` of the same tree. Every other action prints its time.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "BenchSupport.h"
#include "frame/SubMain.h"
#include "platform/FileSafety.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Ui.h"
#include "platform/headless/HeadlessBackend.h"
#include "projects/CreationWizard.h"
#include "projects/TeamSchedule.h"
#include "projects/TeamSnapshot.h"
#include "projects/WorkSchedule.h"
#include "projects/frmMain.h"
#include "schedule/SchedulerRoutines.h"
#include "store/SharedState.h"

namespace fs = std::filesystem;
using namespace platform;

using bench::WriteFile;

namespace {

constexpr int kTeams = 40;
constexpr int kYear = 2026;
constexpr int kDays = 366;
constexpr int kProjects = 300;

std::string Padded(std::string text, size_t length) {
    text.resize(length, ' ');
    return text;
}

void BuildOffice(const fs::path& root) {
    fs::create_directories(root / "ConstructionProjects");
    WriteFile(root / "CustomerData.txt", std::string(328, ' '));
    std::string teams;
    for (int t = 1; t <= kTeams; ++t) teams += "\"Crew " + std::to_string(t) + "\"\r\n";
    WriteFile(root / "Assignto.txt", teams);
    WriteFile(root / "NorvaxConstructionSchedulerSettings.txt",
              "8\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n");
    WriteFile(root / "Prompts.txt", "#FALSE#,#FALSE#\r\n");
    WriteFile(root / "MyBusinessData.txt",
              "\"Acme\",\"1 Main St\",\"\",\"Springfield\",\"IL\",\"62701\",\"\",\"\",\"\"\r\n");
    WriteFile(root / "Characteristics.txt", "\"Permit\",1,1,0,0\r\n\"Framing\",2,2,0,0\r\n");
    std::string day;
    for (int s = 0; s < 12; ++s) day += "\"Pj100-1-Framing\"\r\n";
    for (int y = kYear; y <= kYear + 2; ++y)
        for (int t = 1; t <= kTeams; ++t) {
            const fs::path folder = root / std::to_string(y) / ("Team#" + std::to_string(t));
            fs::create_directories(folder);
            for (int d = 1; d <= kDays; ++d) WriteFile(folder / (std::to_string(d) + ".txt"), day);
        }
    // Saved projects, each with three technical milestones on team 1 around 17 June.
    std::string records;
    for (int p = 1; p <= kProjects; ++p) {
        const std::string no = "Pj100-" + std::to_string(p);
        std::string file = "\"" + no +
                           "\",\"Add-on\",\"A1\",\"Proposal Number\",\"Name\",\"\",\"\",\"\",\"\","
                           "\"\",\"\",\"Site\",\"1 Main St\",\"\",\"Springfield\",\"IL\","
                           "\"62701\",\"217-555-0100\",3\r\n";
        for (int m = 1; m <= 3; ++m) {
            file += "\"Step" + std::to_string(m) + "\",2,#2026-06-" + std::to_string(10 + m) +
                    "#,2,0,2,\"1\",\"On Site\",\"3\",\"1\",\"Days\",\"Scheduled\",\"Not "
                    "Completed \"\r\n";
            records += Padded("", 10) + Padded(no, 10) + Padded("1", 2) + Padded("Days", 6) +
                       Padded("1", 2) + Padded("6/" + std::to_string(10 + m) + "/2026", 10) +
                       Padded("3", 2) + Padded("Step" + std::to_string(m), 30) +
                       Padded("Scheduled", 20) + Padded("", 40) + Padded("$1.00", 10) +
                       Padded("A1", 20) + Padded("Site", 30) + Padded("1 Main St", 35) +
                       Padded("", 25) + Padded("Springfield", 20) + "IL" + Padded("62701", 10) +
                       Padded("217-555-0100", 13);
        }
        WriteFile(root / "ConstructionProjects" / (no + ".txt"), file);
    }
    WriteFile(root / "ProjectRecords.txt", records);
}

double Time(const std::function<void()>& action) {
    return bench::MillisecondsOf(action);
}

double Shell(const std::string& command) {
    return Time([&] {
        if (std::system(command.c_str()) != 0) std::printf("failed: %s\n", command.c_str());
    });
}

// `cp` of the three years of day files into a fresh folder.
double Copy(const fs::path& root, const fs::path& scratch, const char* options) {
    fs::remove_all(scratch);
    fs::create_directories(scratch);
    const std::string years =
        root.string() + "/2026 " + root.string() + "/2027 " + root.string() + "/2028";
    const double ms = Shell(std::string("cp ") + options + " " + years + " " + scratch.string());
    fs::remove_all(scratch);
    return ms;
}

void Print(const char* action, double ms) {
    std::printf("%s: %.0f ms\n", action, ms);
}

void Ratio(const char* action, double ms, double reference) {
    std::printf("%s / cp -al: %.2f\n", action, ms / reference);
}

// A creation run up to the summary: the permit, then framing for 90 days on a full calendar.
void RunToSummary(frmMain& form, double* scan) {
    form.cmdContinue.Click();
    form.cmdContinue.Click();
    form.tgTime.Click();
    for (int i = 1; i < 90; ++i) form.UpDnTime.UserUp();
    const double ms = Time([&] { form.cmdContinue.Click(); });
    if (scan) *scan = ms;
}

}  // namespace

int main(int argc, char** argv) {
    // --keep reuses the folder of the last run and leaves it in place; --no-flush leaves
    // flushing to disk out, to weigh its cost.
    bool keep = false;
    for (int i = 1; i < argc; ++i) {
        if (std::string(argv[i]) == "--keep") keep = true;
        if (std::string(argv[i]) == "--no-flush") SetFlushToDisk(false);
    }
    const fs::path root = fs::temp_directory_path() / "scheduler-snapshot-bench";
    const fs::path scratch = fs::temp_directory_path() / "scheduler-snapshot-bench-copies";
    if (!keep || !fs::exists(root)) {
        fs::remove_all(root);
        std::printf("building the program folder: %d teams, 3 years of full day files...\n",
                    kTeams);
        BuildOffice(root);
    }
    HeadlessBackend backend;
    backend.SetNow(DateTime::FromYmdHms(kYear, 1, 2, 9, 0, 0));  // nothing purged yet
    SetBackend(&backend);
    SetAppFolder(root.string());
    SetProgramFileName("NorvaxConstructionScheduler");
    ResetProgramState();
    RegisterScreens();
    Dispatch([] { SubMain(); });
    // Every run starts from a Backup tree that holds copies of its own, as an older run left.
    fs::remove_all(root / "Backup" / "2026");
    fs::remove_all(root / "Backup" / "2027");
    fs::remove_all(root / "Backup" / "2028");
    Shell("cp -r " + root.string() + "/2026 " + root.string() + "/2027 " + root.string() +
          "/2028 " + (root / "Backup").string());

    const double cpr = Copy(root, scratch, "-r");
    const double cpal = Copy(root, scratch, "-al");
    Print("cp -r", cpr);
    Print("cp -al", cpal);

    MenuRoutine = 1;
    frmMain& form = Screen<frmMain>();
    form.Load();
    const double snapshot = Time([&] { form.Show(); });
    Print("snapshot, entering the wizard", snapshot);
    Ratio("snapshot", snapshot, cpal);

    double scan = 0;
    RunToSummary(form, &scan);
    Print("consecutive-days scan on a full calendar, 90 days written", scan);
    backend.QueueAnswer(vbNo);
    const double restore = Time([&] { form.cmdExit.Click(); });
    Print("restore, abandoning the wizard", restore);
    Ratio("restore", restore, cpal);

    // The office's second project of the day: the snapshot now shares its files.
    ResetDayState();
    const double again = Time([&] { form.Show(); });
    Print("snapshot, entering the wizard again", again);
    RunToSummary(form, nullptr);
    Print("saving", Time([&] { form.cmdSave.Click(); }));

    // The team schedule.
    MenuRoutine = 3;
    Print("entering the team schedule", Time([&] { form.Show(); }));
    Print("month view", Time([&] { FillTeamCalendar(form); }));
    Print("choosing a team", Time([&] { form.lstTeam.SetListIndex(5); }));
    form.lstTeam.SetListIndex(0);
    Print("picking a date",
          Time([&] { form.MonthView1.UserPick(DateTime::FromYmd(2026, 6, 12)); }));
    Print("day view", Time([&] { form.cmdView.Click(); }));
    backend.QueueAnswer(vbYes);
    backend.QueueAnswer(vbYes);
    Print("clearing a day", Time([&] { form.cmdClear.Click(); }));

    if (std::getenv("BENCH_TRANSCRIPT"))
        for (const std::string& line : backend.Transcript()) std::printf("  %s\n", line.c_str());
    Forms::Reset();
    SetBackend(nullptr);
    if (!keep) fs::remove_all(root);
    return 0;
}
