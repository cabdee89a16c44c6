#include "workorders/SlipFile.h"

#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/RuntimeError.h"
#include "schedule/SchedulerRoutines.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"

using namespace platform;

namespace workorders {

std::vector<Record> ReadSlipRecords(const std::string& path) {
    const long length = static_cast<long>(kSlipRecord.Length());
    OpenRandom(path, static_cast<int>(length));
    std::string bytes;
    try {
        const long count = static_cast<long>(FileLen(DataPath(path)) / length);
        if (count > 0) bytes = GetRecords(MainFileNo, 1, count);
    } catch (const RuntimeError&) {
        CloseAllFiles();
        throw;
    }
    CloseAllFiles();
    std::vector<Record> records;
    records.reserve(bytes.size() / static_cast<size_t>(length));
    for (size_t at = 0; at + static_cast<size_t>(length) <= bytes.size();
         at += static_cast<size_t>(length))
        records.emplace_back(kSlipRecord, bytes.substr(at, static_cast<size_t>(length)));
    return records;
}

std::string SlipHourLabel(const Record& slip) {
    const std::string time = slip.Text("StartSlot");
    if (!IsNumeric(time)) return {};
    const int slot = CInt(Val(time));
    if (slot < 0 || slot >= static_cast<int>(HourLabels.size()))
        Raise(err::SubscriptOutOfRange, "HourLabels");
    return HourLabels[static_cast<size_t>(slot)];
}

}  // namespace workorders
