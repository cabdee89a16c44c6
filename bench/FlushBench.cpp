// What flushing the data files to disk costs: the set-up save and the customer save, each
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

constexpr int kRuns = 9;

const std::vector<std::string> kOffice = {
    "clock 6/15/2026 09:00",
    "write /NorvaxConstructionSchedulerSettings.txt 8\\r\\n5\\r\\n\"\"\\r\\n\"\"\\r\\n#TRUE#\\r\\n",
    "write /Prompts.txt #TRUE#,#TRUE#\\r\\n",
    "write /MyBusinessData.txt \"Acme Builders\",\"1 Main "
    "St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0100\",\"\",\"\"\\r\\n",
    "write /Assignto.txt \"Crew A\"\\r\\n\"Crew B\"\\r\\n",
    "write /Characteristics.txt \"Framing\",2,2,0,0\\r\\n\"Inspection\",1,2,1,2\\r\\n",
    "write /Phone.txt #FALSE#\\r\\n1\\r\\n",
    "start",
};

struct Action {
    const char* name;
    std::vector<std::string> lead;
    std::vector<std::string> timed;
};

double MedianMs(const Action& action, bool flush) {
    std::vector<double> times;
    for (int run = 0; run < kRuns; ++run) {
        const fs::path folder =
            fs::temp_directory_path() / ("scheduler-flush-bench-" + std::to_string(run));
        fs::remove_all(folder);
        fs::create_directories(folder);
        std::ostringstream transcript;
        {
            ScriptDriver driver(folder.string(), transcript);
            platform::SetFlushToDisk(true);
            driver.Run(kOffice);
            driver.Run(action.lead);
            platform::SetFlushToDisk(flush);
            const auto start = std::chrono::steady_clock::now();
            driver.Run(action.timed);
            times.push_back(
                std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                    .count());
            platform::SetFlushToDisk(true);
        }
        fs::remove_all(folder);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

}  // namespace

int main() {
    const Action actions[] = {
        {"set-up save",
         {"click frmStartup.mnuCreate", "tab frmSetup.tabSetup 4",
          "type frmSetup.cboMilestones Roofing", "click frmSetup.cmdAddMilestone"},
         {"click frmSetup.cmdQuit"}},
        {"customer save",
         {"click frmStartup.cmdStart", "type frmCustomer.txtCustomer(0) C100",
          "choose frmCustomer.cboTitle Mr.", "type frmCustomer.txtCustomer(8) John",
          "type frmCustomer.txtCustomer(10) Smith",
          "type frmCustomer.txtCustomer(2) 12 Oakwood Dr"},
         {"click frmCustomer.cmdExit"}},
    };
    for (const Action& action : actions) {
        const double with = MedianMs(action, true);
        const double without = MedianMs(action, false);
        std::printf("%s: %.1f ms\n", action.name, with);
        std::printf("%s, not flushed: %.1f ms\n", action.name, without);
        std::printf("%s / not flushed: %.2f\n", action.name, without > 0 ? with / without : 0.0);
    }
}
