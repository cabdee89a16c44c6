#include "workorders/ItemFiles.h"

#include <cstdint>

#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/RecordLayout.h"
#include "platform/Records.h"
#include "store/BasicDiskRoutines.h"
#include "workorders/ItemRecords.h"

using namespace platform;

namespace {

// Every record of the file, through its layout; the count as the loaders keep it, in a byte.
std::vector<Record> ReadRecords(const std::string& path, const RecordLayout& layout) {
    const int length = static_cast<int>(layout.Length());
    const std::uint8_t count = CByte(static_cast<double>(FileLen(DataPath(path))) / length);
    std::vector<Record> records;
    if (count == 0) return records;
    OpenRandom(path, length);
    const std::string bytes = GetRecords(MainFileNo, 1, count);
    CloseAll();
    records.reserve(count);
    for (size_t r = 0; r < count; ++r) {
        const size_t at = r * layout.Length();
        // A partial last record reads as zero bytes behind what is there.
        records.emplace_back(layout, at < bytes.size() ? bytes.substr(at, layout.Length()) : "");
    }
    return records;
}

std::string CurrencyText(std::int64_t tenThousandths) {
    return FormatCurrency(static_cast<double>(tenThousandths) / 10000.0);
}

std::vector<ItemRow> PricedInCurrency(const std::string& path, const RecordLayout& layout) {
    std::vector<ItemRow> rows;
    for (const Record& record : ReadRecords(path, layout))
        rows.push_back(
            {record.Trimmed("Description"), Trim(CurrencyText(record.Currency("Price")))});
    return rows;
}

}  // namespace

std::vector<ItemRow> ReadInventoryItems() {
    return PricedInCurrency(workorders::kInventoryFile, workorders::kInventoryRecord);
}

std::vector<ItemRow> ReadServices() {
    std::vector<ItemRow> rows;
    for (const Record& record : ReadRecords(workorders::kServicesFile, workorders::kServiceRecord))
        rows.push_back({record.Trimmed("Description"), record.Trimmed("Price")});
    return rows;
}

std::vector<ItemRow> ReadCustomItems() {
    return PricedInCurrency(workorders::kCustomItemsFile, workorders::kCustomItemRecord);
}
