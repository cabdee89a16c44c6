// Ends the program at every write to the disk of an action, one crash point a run, then
// starts it again on what is left. After that start every file must be as it is after a
// start on the folder as it was before the action, or as it was after it; files that belong
// together must all be one or the other; nothing temporary may stay; and the start must show
// the user what one of those two starts shows.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <sstream>

#include <sys/wait.h>
#include <unistd.h>

#include "app/script/ScriptDriver.h"
#include "platform/FileSafety.h"
#include "platform/Files.h"

namespace fs = std::filesystem;

namespace {

constexpr int kCrashed = 77;

long stepsLeft = 0;  // 0: only counted
long stepsSeen = 0;

void CrashAtStep() {
    ++stepsSeen;
    if (stepsLeft > 0 && --stepsLeft == 0) _exit(kCrashed);
}

// A file's bytes, or "<folder>" for a folder.
using FolderState = std::map<std::string, std::string>;

std::string ReadAll(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

FolderState StateOf(const fs::path& folder) {
    FolderState state;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = fs::relative(entry.path(), folder).generic_string();
        if (name.ends_with(".lock")) continue;  // the instance lock is no data
        state[name] = entry.is_directory() ? std::string("<folder>") : ReadAll(entry.path());
    }
    return state;
}

// Runs `body` in a child process and returns its exit status.
int InChild(const std::function<int()>& body) {
    const pid_t pid = fork();
    if (pid == 0) _exit(body());
    int status = 0;
    waitpid(pid, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int RunLines(const fs::path& folder, const std::vector<std::string>& lines,
             std::ostream& transcript) {
    ScriptDriver driver(folder.string(), transcript);
    return driver.Run(lines);
}

struct CrashAction {
    std::string name;
    std::vector<std::string> office;  // makes the program folder
    std::vector<std::string> lead;    // brings the program to the action (no crash here)
    std::vector<std::string> action;  // each write to the disk here is a crash point
    // Files and folders that belong together: each group is all as before or all as after.
    std::vector<std::vector<std::string>> groups;
    std::string clock;  // of the next start
};

void PrintTo(const CrashAction& action, std::ostream* out) {
    *out << action.name;
}

class CrashPoints : public ::testing::TestWithParam<CrashAction> {
  protected:
    void SetUp() override {
        std::random_device rd;
        root_ = fs::temp_directory_path() / ("scheduler-crash-" + std::to_string(rd()));
        fs::create_directories(root_ / "office");
    }
    void TearDown() override { fs::remove_all(root_); }

    // Runs the lines on a copy of the office in a process of its own, which ends at write
    // step `crashAt` (0: runs to the end). Writes the number of write steps to "steps" and
    // the transcript to "transcript.txt" beside the folder.
    int RunOnCopy(const fs::path& folder, const std::vector<std::string>& lines, long crashAt) {
        fs::copy(root_ / "office", folder, fs::copy_options::recursive);
        return InChild([&] {
            std::ostringstream out;
            stepsLeft = crashAt;
            platform::SetWriteStepHook(CrashAtStep);
            const int failures = RunLines(folder, lines, out);
            platform::SetWriteStepHook(nullptr);
            std::ofstream(root_ / "steps") << stepsSeen;
            std::ofstream(root_ / "transcript.txt", std::ios::binary) << out.str();
            return failures == 0 ? 0 : 2;
        });
    }

    long StepsCounted() { return std::stol(ReadAll(root_ / "steps")); }

    // The transcript of a start on the folder, which it changes.
    std::string Restart(const fs::path& folder) {
        const fs::path transcript = root_ / "restart.txt";
        const int status = InChild([&] {
            std::ofstream out(transcript, std::ios::binary);
            return RunLines(folder, {"clock " + GetParam().clock, "start"}, out) == 0 ? 0 : 1;
        });
        EXPECT_EQ(status, 0) << ReadAll(transcript);
        return ReadAll(transcript);
    }

    fs::path root_;
};

bool InGroup(const std::string& name, const std::vector<std::string>& group) {
    for (const std::string& member : group)
        if (name == member || name.starts_with(member + "/")) return true;
    return false;
}

TEST_P(CrashPoints, EveryFileIsAsBeforeOrAsAfter) {
    const CrashAction& a = GetParam();
    std::ostringstream made;
    ASSERT_EQ(InChild([&] { return RunLines(root_ / "office", a.office, made); }), 0);

    // The lead's own writes come before the first crash point.
    ASSERT_EQ(RunOnCopy(root_ / "before", a.lead, 0), 0) << ReadAll(root_ / "transcript.txt");
    const long leadSteps = StepsCounted();
    std::vector<std::string> script = a.lead;
    script.insert(script.end(), a.action.begin(), a.action.end());
    ASSERT_EQ(RunOnCopy(root_ / "after", script, 0), 0) << ReadAll(root_ / "transcript.txt");
    const long steps = StepsCounted() - leadSteps;
    ASSERT_GT(steps, 0);
    std::printf("%s: %ld crash points\n", a.name.c_str(), steps);
    ASSERT_NE(StateOf(root_ / "before"), StateOf(root_ / "after"));
    // Each folder is looked at after the next start, which repairs what the program repairs
    // by design (a missing file from its Backup copy) and finishes what a crash left.
    const std::string startAfter = Restart(root_ / "after");
    const std::string startBefore = Restart(root_ / "before");
    const FolderState before = StateOf(root_ / "before");
    const FolderState after = StateOf(root_ / "after");

    for (long n = 1; n <= steps; ++n) {
        SCOPED_TRACE(a.name + ", crash at write " + std::to_string(n) + " of " +
                     std::to_string(steps));
        const fs::path folder = root_ / ("crash" + std::to_string(n));
        ASSERT_EQ(RunOnCopy(folder, script, leadSteps + n), kCrashed);
        const std::string start = Restart(folder);
        EXPECT_TRUE(start == startAfter || start == startBefore) << start;
        const FolderState left = StateOf(folder);
        std::set<std::string> names;
        for (const FolderState* state : {&before, &after, &left})
            for (const auto& [name, bytes] : *state) names.insert(name);
        auto valueIn = [](const FolderState& state, const std::string& name) {
            auto it = state.find(name);
            return it == state.end() ? std::string("<missing>") : it->second;
        };
        for (const std::string& name : names) {
            const std::string now = valueIn(left, name);
            EXPECT_TRUE(now == valueIn(before, name) || now == valueIn(after, name))
                << name << " is neither as before nor as after: " << now;
        }
        for (const auto& group : a.groups) {
            bool asBefore = true, asAfter = true;
            for (const std::string& name : names) {
                if (!InGroup(name, group)) continue;
                asBefore = asBefore && valueIn(left, name) == valueIn(before, name);
                asAfter = asAfter && valueIn(left, name) == valueIn(after, name);
            }
            EXPECT_TRUE(asBefore || asAfter) << group.front() << " and its group are half changed";
        }
        fs::remove_all(folder);
    }
}

// A configured office of four teams with work in each team's folder, the settings files
// and their Backup copies.
std::vector<std::string> Office() {
    return {
        "write /NorvaxConstructionSchedulerSettings.txt "
        "8\\r\\n5\\r\\n\"\"\\r\\n\"\"\\r\\n#TRUE#\\r\\n",
        "write /MyBusinessData.txt \"Acme Builders\",\"1 Main "
        "St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0100\",\"\",\"\"\\r\\n",
        "write /Assignto.txt \"Crew A\"\\r\\n\"Crew B\"\\r\\n\"Crew C\"\\r\\n\"Crew D\"\\r\\n",
        "write /Characteristics.txt \"Framing\",2,2,0,0\\r\\n\"Inspection\",1,2,1,2\\r\\n",
        "write /Phone.txt #FALSE#\\r\\n1\\r\\n",
        "write /Backup/Phone.txt #TRUE#\\r\\n3\\r\\n",
        "write /CallID.txt #FALSE#\\r\\n",
        "write /Prompts.txt #TRUE#,#TRUE#\\r\\n",
        "write /PrintColors.txt 16777215\\r\\n16777215\\r\\n\"Arial\"\\r\\n#TRUE#\\r\\n1\\r\\n",
        "write /Backup/PrintColors.txt 0\\r\\n0\\r\\n\"Arial\"\\r\\n#FALSE#\\r\\n1\\r\\n",
        "write /Backup/MyBusinessData.txt \"Old "
        "Name\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\\r\\n",
        "write /Backup/CustomerData.txt old",
        "write /SoldItems.txt sold",
        "write /TaxRecords.txt tax",
        "mkdir /2026/Team#1",
        "mkdir /2026/Team#2",
        "mkdir /2026/Team#3",
        "mkdir /2026/Team#4",
        "write /2026/Team#1/200.txt \"Pj1-1-Framing\"\\r\\n",
        "write /2026/Team#2/200.txt \"Pj1-1-Inspection\"\\r\\n",
        "write /2026/Team#2/201.txt \"Pj1-1-Inspection\"\\r\\n",
        "write /2026/Team#3/202.txt \"Pj2-1-Framing\"\\r\\n",
        "write /2026/Team#4/203.txt \"Pj3-1-Framing\"\\r\\n",
        "write /PurgedDate.txt 165\\r\\n",
    };
}

// The office a scenario script makes before its start: its lines before "start", the clock
// left out.
std::vector<std::string> OfficeOf(const std::string& scenario) {
    std::ifstream in(std::string(SCENARIO_DIR) + "/" + scenario + ".script", std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line) && line != "start";)
        if (line.starts_with("write ") || line.starts_with("mkdir ")) lines.push_back(line);
    return lines;
}

// The office of four teams with a proposal, on the way to a project of a milestone of a day
// for a team and an administrative one after it.
std::vector<std::string> WizardOffice() {
    std::vector<std::string> office = Office();
    office.push_back(
        "write /NorvaxProposals/P1023.txt "
        "\"FP1023\",1234.5,#2026-03-02#,\"C100\",\"Hammer & Sons\",\"12 Oak St\",\"\","
        "\"Springfield\",\"IL\",\"62701\",\"217-555-0199\"\\r\\n");
    office.push_back("write /ProjectRecords.txt " + std::string(297, 'r'));
    office.push_back("write /PjCounter.txt \"166\",4\\r\\n");
    return office;
}

// From the start to the wizard's summary of that project.
const std::vector<std::string> kToTheWizardSummary = {"clock 6/15/2026 09:00",
                                                      "start",
                                                      "click frmStartup.cmdStart",
                                                      "click frmCustomerSelection.cmdStartup(1)",
                                                      "cell frmCustomerSelection.fgProposals 1 2",
                                                      "click frmCustomerSelection.cmdCreation(1)",
                                                      "type frmMain.cboProjectTitle Deck",
                                                      "click frmMain.cmdContinue",
                                                      "click frmMain.cmdContinue",
                                                      "click frmMain.cmdContinue"};

const std::vector<std::string> kToTheProjects = {"clock 6/15/2026 09:00", "start",
                                                 "dblclick frmStartup.optProgramRoutine(9)",
                                                 "click frmProjectControl.cmdGotoProjects"};

// A meeting of the service-call program on the date given, one record of 297 bytes.
std::string Meeting(const std::string& date, char mark) {
    std::string record = "          Pj1-1     1 Hours 1 " + date;
    record.resize(296, ' ');
    return record + mark;
}

std::vector<CrashAction> Actions() {
    std::vector<CrashAction> actions;
    actions.push_back(
        {"SetupSave",
         Office(),
         {"clock 6/15/2026 09:00", "start", "click frmStartup.mnuCreate", "tab frmSetup.tabSetup 4",
          "type frmSetup.cboMilestones Roofing", "click frmSetup.cmdAddMilestone"},
         {"click frmSetup.cmdQuit"},
         {},
         "6/15/2026 09:00"});
    actions.push_back({"DeleteTeamTwoOfFour",
                       Office(),
                       {"clock 6/15/2026 09:00", "start", "click frmStartup.mnuCreate",
                        "tab frmSetup.tabSetup 3", "choose frmSetup.cboAssignments Crew B"},
                       {"click frmSetup.cmdDelete"},
                       {{"Assignto.txt", "2026"}},
                       "6/15/2026 09:00"});
    actions.push_back({"ExitBackup",
                       Office(),
                       {"clock 6/15/2026 09:00", "start"},
                       {"click frmStartup.mnuExit"},
                       {},
                       "6/15/2026 09:00"});
    std::vector<std::string> book = Office();
    auto account = [&](const std::string& number, const std::string& name) {
        std::string record = number;
        record.resize(20, ' ');
        record += name;
        record.resize(328 - 4, ' ');
        return record + "\\x00\\x00\\x00\\x00";
    };
    book.push_back("write /CustomerData.txt " + account("A1", "Alpha Roofing") +
                   account("B2", "Beta Corp") + account("C3", "Gamma Paving"));
    book.push_back("write /ContractInfo.txt " + std::string(386, '1') + std::string(386, '2') +
                   std::string(386, '3'));
    book.push_back("write /CycleInfo.txt " + std::string(69, 'a') + std::string(69, 'b') +
                   std::string(69, 'c'));
    book.push_back("write /Backup/CustomerData.txt old");
    book.push_back("write /NIActiveAccounts/B2.txt open account\\r\\n");
    actions.push_back(
        {"DeleteCustomer",
         book,
         {"clock 6/15/2026 09:00", "start", "click frmStartup.optProgramRoutine(8)",
          "click frmStartup.cmdStart", "click frmCustomer.cmdNav(2)", "answer Yes"},
         {"click frmCustomer.mnuDelete"},
         {{"CustomerData.txt", "ContractInfo.txt", "CycleInfo.txt", "NIActiveAccounts/B2.txt"}},
         "6/15/2026 09:00"});
    std::vector<std::string> old = Office();
    for (const std::string line :
         {"write /PurgedDate.txt 100\\r\\n", "mkdir /2025/Team#1", "mkdir /2025/Team#2",
          "write /2025/Team#1/300.txt \"Old\"\\r\\n", "mkdir /Backup/2025/Team#1",
          "mkdir /Backup/2025/Team#2", "write /Backup/2025/Team#1/300.txt \"Old\"\\r\\n",
          "write /2026/Team#1/100.txt \"Purged\"\\r\\n",
          "write /2026/Team#2/120.txt \"Purged\"\\r\\n"})
        old.push_back(line);
    old.push_back("write /Meetings.txt " + Meeting("6/1/2026", 'a') + Meeting("6/20/2026", 'b'));
    old.push_back("write /Backup/Meetings.txt " + Meeting("6/1/2026", 'a'));
    actions.push_back(
        {"StartupPurgesAndRolls", old, {"clock 5/1/2026 08:30"}, {"start"}, {}, "5/1/2026 08:30"});
    const std::vector<std::string> project = {"ConstructionProjects", "PjCounter.txt",
                                              "ProjectRecords.txt", "ProjectTempFile.txt",
                                              "Backup/ProjectTempFile.txt"};
    actions.push_back({"WizardSave",
                       WizardOffice(),
                       kToTheWizardSummary,
                       {"click frmMain.cmdSave"},
                       {project},
                       "6/15/2026 09:00"});
    actions.push_back({"WizardAbandon",
                       WizardOffice(),
                       kToTheWizardSummary,
                       {"answer No", "click frmMain.cmdExit"},
                       {{"2026", "ProjectTempFile.txt"}},
                       "6/15/2026 09:00"});
    std::vector<std::string> toMilestone = kToTheProjects;
    for (const char* line : {"dblcell frmProjectControl.fgProjects 1 0",
                             "rightcell frmProjectControl.fgMilestones 2 1",
                             "click frmProjectControl.mnuRescheduleMilestone"})
        toMilestone.push_back(line);
    actions.push_back({"RescheduleCascade",
                       OfficeOf("move-milestone-later"),
                       toMilestone,
                       {"pick frmProjectControl.MSCal 6/24/2026"},
                       {{"2026"}},
                       "6/15/2026 09:00"});
    std::vector<std::string> toProject = kToTheProjects;
    toProject.push_back("rightcell frmProjectControl.fgProjects 1 0");
    toProject.push_back("answer Yes");
    actions.push_back(
        {"DeleteProject",
         OfficeOf("delete-project-two-teams"),
         toProject,
         {"click frmProjectControl.mnuDeleteProject"},
         {{"2026", "ConstructionProjects", "ProjectRecords.txt", "Backup/ProjectRecords.txt"}},
         "6/15/2026 09:00"});
    actions.push_back({"BlockAllTeams",
                       OfficeOf("block-all-teams-conflict-on-team-two"),
                       {"clock 6/15/2026 09:00", "start", "click frmStartup.optProgramRoutine(7)",
                        "click frmStartup.cmdStart", "choose frmBlock.lstAssignto All Assignments",
                        "choose frmBlock.lstReason Holiday", "up frmBlock.sldTimeReq",
                        "pick frmBlock.Calender 6/18/2026", "answer Yes"},
                       {"click frmBlock.cmdAccept"},
                       {{"2026"}},
                       "6/15/2026 09:00"});
    return actions;
}

INSTANTIATE_TEST_SUITE_P(Actions, CrashPoints, ::testing::ValuesIn(Actions()),
                         [](const auto& test) { return test.param.name; });

}  // namespace
