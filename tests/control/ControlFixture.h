#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "control/ProjectTables.h"
#include "control/frmProjectControl.h"
#include "frame/SubMain.h"
#include "frame/frmStartup.h"
#include "platform/Form.h"
#include "platform/Ui.h"
#include "store/SharedState.h"
#include "support/TestFolder.h"

namespace control_tests {

// One milestone line of a project file, as the creation flow writes it.
struct MilestoneLine {
    std::string name;
    int type = 2;
    std::string date;  // yyyy-mm-dd
    int phase = 2;
    int dependency = 0;
    int lead = 0;
    std::string team = "1";
    std::string location = "On Site";
    std::string startSlot = "3";
    std::string time = "1";
    std::string mode = "Days";
    std::string status = "Scheduled";
    std::string completion = "Not Completed ";
};

inline std::string MilestoneBytes(const MilestoneLine& m) {
    return "\"" + m.name + "\"," + std::to_string(m.type) + ",#" + m.date + "#," +
           std::to_string(m.phase) + "," + std::to_string(m.dependency) + "," +
           std::to_string(m.lead) + ",\"" + m.team + "\",\"" + m.location + "\",\"" + m.startSlot +
           "\",\"" + m.time + "\",\"" + m.mode + "\",\"" + m.status + "\",\"" + m.completion +
           "\"\r\n";
}

// A project file: the header of 19 values, then its milestone lines.
inline std::string ProjectBytes(const std::string& projectNo, const std::string& title,
                                const std::vector<MilestoneLine>& milestones,
                                const std::string& proposal = "Proposal Number") {
    std::string out = "\"" + projectNo + "\",\"" + title + "\",\"A100\",\"" + proposal +
                      "\",\"Jane Doe\",\"5 Elm Road\",\"\",\"Dayton\",\"OH\",\"45402\","
                      "\"937-555-0100\",\"Jane Doe\",\"7 Oak Lane\",\"\",\"Kettering\",\"OH\","
                      "\"45429\",\"937-555-0199\"," +
                      std::to_string(milestones.size()) + "\r\n";
    for (const auto& m : milestones) out += MilestoneBytes(m);
    return out;
}

// Twelve day slots, the working block (slots 3 to 10) holding the text.
inline std::string BlockDay(const std::string& text, const std::string& other = "") {
    std::string daySlots[12];
    for (int i = 0; i < 12; ++i) daySlots[i] = "No Event Scheduled";
    for (int i = 2; i <= 9; ++i) daySlots[i] = text;
    if (!other.empty()) daySlots[0] = other;
    return testing_support::DayFileBytes(daySlots);
}

inline std::string HoursDay(int first, int count, const std::string& text) {
    std::string daySlots[12];
    for (int i = 0; i < 12; ++i) daySlots[i] = "No Event Scheduled";
    for (int i = first; i < first + count; ++i) daySlots[i - 1] = text;
    return testing_support::DayFileBytes(daySlots);
}

// A program folder with two teams and a customer, on Monday 15 June 2026 at 9:00.
class ControlTest : public ::testing::Test {
  protected:
    void SetUp() override {
        folder.Write("NorvaxConstructionSchedulerSettings.txt",
                     "8\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n");
        folder.Write("MyBusinessData.txt",
                     "\"Acme Builders\",\"12 Main Street\",\"\",\"Springfield\",\"IL\",\"62701\","
                     "\"217-555-0100\",\"\",\"\"\r\n");
        folder.Write("Assignto.txt", "\"Crew A\"\r\n\"Crew B\"\r\n");
        folder.Write("Characteristics.txt", "\"Framing\",2,2,0,0\r\n");
        folder.Write("CustomerData.txt", "A100" + std::string(324, ' '));
        folder.MakeDirs("ConstructionProjects");
        folder.MakeDirs("2026/Team#1");
        folder.MakeDirs("2026/Team#2");
        folder.MakeDirs("2027/Team#1");
        folder.MakeDirs("2027/Team#2");
    }

    void StartProgram() {
        ResetProgramState();
        RegisterScreens();
        folder.Ui().ClearLog();
        platform::Dispatch([] { SubMain(); });
    }

    // Starts the program and opens "Manage Existing Projects".
    frmProjectControl& Open() {
        StartProgram();
        auto& menu = platform::Screen<frmStartup>();
        platform::Dispatch([&] { menu.optProgramRoutine[9].Raise("DblClick"); });
        folder.Ui().ClearLog();
        return platform::Screen<frmProjectControl>();
    }

    // Runs one user action as the event loop does.
    template <typename F>
    void Do(F&& action) {
        platform::Dispatch(std::forward<F>(action));
    }

    // The summary of project row `row`, then milestone row `milestone` right-clicked.
    void SelectMilestone(frmProjectControl& f, int row, int milestone) {
        Do([&] { f.fgProjects.UserDoubleClick(row, 0); });
        Do([&] { f.fgMilestones.UserClick(milestone, 1, 2); });
    }

    std::string Day(int team, int dayOfYear, int year = 2026) const {
        const std::string path = std::to_string(year) + "/Team#" + std::to_string(team) + "/" +
                                 std::to_string(dayOfYear) + ".txt";
        return folder.Exists(path) ? folder.Read(path) : std::string("missing");
    }

    testing_support::TestFolder folder;
};

}  // namespace control_tests
