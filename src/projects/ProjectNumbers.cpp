#include "projects/ProjectNumbers.h"

#include <cstdint>

#include "platform/Files.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "store/BasicDiskRoutines.h"

using namespace platform;

std::string PjDay;
std::int16_t PjCount = 1;
std::string CurrentProjectNo;

namespace {

constexpr int kOverflow = 6;

std::string TodayText() {
    return std::to_string(DatePart("y", Today()));
}

void BuildProjectNo() {
    CurrentProjectNo = "Pj" + PjDay + "-" + std::to_string(PjCount);
}

}  // namespace

void MakeProjectNo() {
    PjDay = TodayText();
    PjCount = 1;
    if (FindFile(kPjCounterFile)) {
        // A counter that cannot be read is no error: the day's count starts at 1.
        std::string day;
        std::int16_t count = 1;
        bool read = false;
        try {
            OpenForInput(kPjCounterFile);
            day = Trim(InputString(MainFileNo));
            count = InputInt16(MainFileNo);
            read = true;
        } catch (const RuntimeError&) {
        }
        CloseAll();
        if (read && day == PjDay) PjCount = count;
    }
    BuildProjectNo();
    SavePjCounter();
}

void NextProjectNo() {
    if (PjCount == INT16_MAX) Raise(kOverflow, kPjCounterFile);
    ++PjCount;
    BuildProjectNo();
}

void SavePjCounter(const std::string& path) {
    OpenForOutput(path);
    WriteFields(MainFileNo, {Text(PjDay), Field(static_cast<double>(PjCount))});
    CloseAll();
}

void ResetProjectNumbers() {
    PjDay.clear();
    PjCount = 1;
    CurrentProjectNo.clear();
}
