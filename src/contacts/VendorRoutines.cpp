#include "contacts/VendorRoutines.h"

#include <algorithm>
#include <string>

#include "platform/Files.h"
#include "store/BasicDiskRoutines.h"

using namespace platform;
using contacts::kVendorFile;
using contacts::kVendorRecord;

namespace {

constexpr const char* kScratchFile = "\\Contact.TMP";

int RecordLength() {
    return static_cast<int>(kVendorRecord.Length());
}

// The bytes of a record as far as the file holds them; the rest of the record stays blank.
Record FromBytes(const std::string& bytes) {
    Record record(kVendorRecord);
    std::string filled = record.Bytes();
    filled.replace(0, std::min(bytes.size(), filled.size()), bytes, 0, filled.size());
    return Record(kVendorRecord, std::move(filled));
}

}  // namespace

std::int32_t CountVendors() {
    return CountRecords(kVendorFile, RecordLength());
}

Record ReadVendor(std::int32_t recordNo) {
    OpenRandom(kVendorFile, RecordLength());
    const std::string bytes = GetRecords(MainFileNo, recordNo, 1);
    CloseAll();
    return FromBytes(bytes);
}

void WriteVendor(std::int32_t recordNo, const Record& record) {
    OpenRandom(kVendorFile, RecordLength());
    PutRecord(MainFileNo, recordNo, record);
    CloseAll();
}

std::vector<Record> ReadVendors(std::int32_t count) {
    std::vector<Record> vendors;
    if (count < 1) return vendors;
    OpenRandom(kVendorFile, RecordLength());
    const std::string bytes = GetRecords(MainFileNo, 1, count);
    CloseAll();
    const size_t length = kVendorRecord.Length();
    vendors.reserve(static_cast<size_t>(count));
    for (std::int32_t r = 0; r < count; ++r) {
        const size_t at = static_cast<size_t>(r) * length;
        vendors.push_back(FromBytes(at < bytes.size() ? bytes.substr(at, length) : ""));
    }
    return vendors;
}

void DeleteVendor(std::int32_t recordNo, std::int32_t count) {
    DeleteFile(kScratchFile);
    OpenRandom(kScratchFile, RecordLength());
    const int copy = MainFileNo;
    OpenRandom(kVendorFile, RecordLength());
    std::string records = count > 0 ? GetRecords(MainFileNo, 1, count) : std::string();
    const size_t length = kVendorRecord.Length();
    const size_t at = static_cast<size_t>(std::max(recordNo - 1, 0)) * length;
    if (recordNo >= 1 && at < records.size()) records.erase(at, length);
    if (!records.empty()) PutRecords(copy, 1, records);
    // The packed copy takes the file's place in one rename.
    ReplaceWithScratch(kScratchFile, kVendorFile);
}
