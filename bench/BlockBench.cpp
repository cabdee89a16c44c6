// Times the blocked-days screen on the day files of a busy office: 40 teams, each with a
// year of days, most of them full of milestones and some blocked. The grid searches a
// one-year range; one holiday is blocked for all 40 teams.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "BenchSupport.h"
#include "blocked/frmBlock.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Ui.h"
#include "platform/headless/HeadlessBackend.h"
#include "schedule/Teams.h"
#include "store/SharedState.h"

namespace fs = std::filesystem;
using namespace platform;

using bench::WriteFile;

namespace {

constexpr int kTeams = 40;
constexpr int kYear = 2026;

void BuildOffice(const fs::path& root) {
    fs::remove_all(root);
    fs::create_directories(root / "Backup");
    std::string teams;
    for (int t = 1; t <= kTeams; ++t) teams += "\"Crew " + std::to_string(t) + "\"\r\n";
    WriteFile(root / "Assignto.txt", teams);
    std::string busy, blocked;
    for (int s = 0; s < 12; ++s) busy += "\"Pj100-1-Framing\"\r\n", blocked += "Vacation\r\n";
    for (int y = kYear; y <= kYear + 1; ++y) {
        for (int t = 1; t <= kTeams; ++t) {
            const fs::path folder = root / std::to_string(y) / ("Team#" + std::to_string(t));
            fs::create_directories(folder);
            for (int d = 1; d <= 365; ++d)
                if (d % 3)
                    WriteFile(folder / (std::to_string(d) + ".txt"), d % 17 ? busy : blocked);
        }
    }
}

template <typename Action>
double Time(Action action) {
    return bench::Time(action);
}

}  // namespace

int main() {
    const fs::path root = fs::temp_directory_path() / "scheduler-block-bench";
    BuildOffice(root);
    HeadlessBackend backend;
    backend.SetNow(DateTime::FromYmdHms(kYear, 1, 5, 9, 0, 0));
    SetBackend(&backend);
    SetAppFolder(root.string());
    ResetSharedState();
    WorkWeek = 5;
    CurrentYearText = std::to_string(kYear);
    LoadAssignments();
    frmBlock& form = Screen<frmBlock>();
    Dispatch([&] { form.Show(); });

    const double search = Time([&] {
        form.DTEndSearch.SetValue(DateTime::FromYmd(kYear + 1, 1, 4));
        form.mnuBlocked.Raise("Click");
    });
    std::printf("load grid, %d teams, one year, %d rows: %.0f ms\n", kTeams,
                form.FGBlocked.Rows() - 2, search);
    // A free day of every team (day 3 of each team has no file): the whole request.
    const double block = Time([&] {
        form.lstAssignto.SetListIndex(kTeams);
        form.lstReason.SetListIndex(1);
        form.Calender.UserPick(DateTime::FromYmd(kYear + 1, 1, 5));
        backend.QueueAnswer(vbYes);
        form.cmdAccept.Click();
    });
    std::printf("block one day for %d teams: %.0f ms\n", kTeams, block);
    const double restore = Time([&] {
        form.optAction[1].SetValue(true);
        form.lstAssignto.SetListIndex(kTeams);
        form.Calender.UserPick(DateTime::FromYmd(kYear + 1, 1, 5));
        backend.QueueAnswer(vbYes);
        form.cmdAccept.Click();
    });
    std::printf("restore one day for %d teams: %.0f ms\n", kTeams, restore);
    Forms::Reset();
    SetBackend(nullptr);
    fs::remove_all(root);
    return 0;
}
