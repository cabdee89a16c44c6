// What flushing the data files to disk costs: the set-up save, the customer save and the
// project save of the creation wizard, each
// timed with flushing and without it, on fresh copies of one program folder. Prints the
// median of several runs of each and their ratio.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "app/script/ScriptDriver.h"
#include "platform/FileSafety.h"

namespace fs = std::filesystem;

namespace {

constexpr int kRuns = 15;

const std::vector<std::string> kOffice = {
    "clock 6/15/2026 09:00",
    "write /NorvaxConstructionSchedulerSettings.txt 8\\r\\n5\\r\\n\"\"\\r\\n\"\"\\r\\n#TRUE#\\r\\n",
    "write /Prompts.txt #TRUE#,#TRUE#\\r\\n",
    "write /MyBusinessData.txt \"Acme Builders\",\"1 Main "
    "St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0100\",\"\",\"\"\\r\\n",
    "write /Assignto.txt \"Crew A\"\\r\\n\"Crew B\"\\r\\n",
    "write /Characteristics.txt \"Framing\",2,2,0,0\\r\\n\"Inspection\",1,2,1,2\\r\\n",
    "write /Phone.txt #FALSE#\\r\\n1\\r\\n",
    "write /NorvaxProposals/P1023.txt \"FP1023\",1234.5,#2026-03-02#,\"C100\",\"Hammer & "
    "Sons\",\"12 Oak St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0199\"\\r\\n",
};

struct Action {
    const char* name;
    std::vector<std::string> lead;
    std::vector<std::string> timed;
};

// One run of the action on a fresh folder: the time of its timed lines.
double RunOnce(const Action& action, bool flush, int run) {
    const fs::path folder =
        fs::temp_directory_path() / ("scheduler-flush-bench-" + std::to_string(run));
    fs::remove_all(folder);
    fs::create_directories(folder);
    std::ostringstream transcript;
    double ms = 0;
    {
        ScriptDriver driver(folder.string(), transcript);
        platform::SetFlushToDisk(true);
        driver.Run(kOffice);
        driver.Run(action.lead);
        platform::SetFlushToDisk(flush);
        const auto start = std::chrono::steady_clock::now();
        driver.Run(action.timed);
        ms = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                 .count();
        platform::SetFlushToDisk(true);
    }
    fs::remove_all(folder);
    return ms;
}

double Median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

}  // namespace

int main() {
    const Action actions[] = {
        {"set-up save",
         {"start", "click frmStartup.mnuCreate", "tab frmSetup.tabSetup 4",
          "type frmSetup.cboMilestones Roofing", "click frmSetup.cmdAddMilestone"},
         {"click frmSetup.cmdQuit"}},
        {"customer save",
         {"start", "click frmStartup.cmdStart", "type frmCustomer.txtCustomer(0) C100",
          "choose frmCustomer.cboTitle Mr.", "type frmCustomer.txtCustomer(8) John",
          "type frmCustomer.txtCustomer(10) Smith",
          "type frmCustomer.txtCustomer(2) 12 Oakwood Dr"},
         {"click frmCustomer.cmdExit"}},
        {"project save",
         // An account book that holds no account yet: the wizard is reached by a proposal.
         {"write /Backup/CustomerData.txt old", "start", "click frmStartup.cmdStart",
          "click frmCustomerSelection.cmdStartup(1)", "cell frmCustomerSelection.fgProposals 1 2",
          "click frmCustomerSelection.cmdCreation(1)", "type frmMain.cboProjectTitle Deck",
          "click frmMain.cmdContinue", "click frmMain.cmdContinue", "click frmMain.cmdContinue"},
         {"click frmMain.cmdSave"}},
    };
    for (const Action& action : actions) {
        // Runs with and without flushing take turns, so that the load of the machine weighs
        // on both alike.
        std::vector<double> with, without;
        for (int run = 0; run < kRuns; ++run) {
            with.push_back(RunOnce(action, true, run));
            without.push_back(RunOnce(action, false, run));
        }
        const double flushed = Median(with);
        const double plain = Median(without);
        std::printf("%s: %.1f ms\n", action.name, flushed);
        std::printf("%s, not flushed: %.1f ms\n", action.name, plain);
        std::printf("%s / not flushed: %.2f\n", action.name, plain > 0 ? flushed / plain : 0.0);
    }
}
