#include "customers/CustomerDiskRoutines.h"

#include <algorithm>
#include <vector>

#include "platform/Files.h"
#include "platform/Ui.h"
#include "store/BasicDiskRoutines.h"
#include "store/Journal.h"

using namespace platform;
using customers::kContractRecord;
using customers::kCustomerRecord;
using customers::kCycleRecord;

platform::Record CustomerRecord{kCustomerRecord};
platform::Record ContractRecord{kContractRecord};
platform::Record CycleRecord{kCycleRecord};

namespace {

int LengthOf(const RecordLayout& layout) {
    return static_cast<int>(layout.Length());
}

// Record recordNo of an open file over the buffer, as far as the file holds it: a record
// wholly past the end leaves the buffer as it stands.
void ReadOver(Record& buffer, int fileNo, std::int32_t recordNo) {
    const std::int64_t length = static_cast<std::int64_t>(buffer.Layout().Length());
    const std::int64_t present = Lof(fileNo) - (recordNo - 1) * length;
    if (present <= 0) return;
    std::string bytes = GetRecord(fileNo, recordNo);
    if (present < length) {
        const auto kept = static_cast<size_t>(present);
        bytes.replace(kept, std::string::npos, buffer.Bytes(), kept, std::string::npos);
    }
    buffer = Record(buffer.Layout(), std::move(bytes));
}

// Records in a billing file, a partial last one included, so that a compaction keeps all of
// what the billing program left there.
std::int32_t RecordsHeld(const std::string& path, const RecordLayout& layout) {
    if (!FindFile(path)) return 0;
    const std::int64_t length = static_cast<std::int64_t>(layout.Length());
    return static_cast<std::int32_t>((FileLen(DataPath(path)) + length - 1) / length);
}

// Copies records 1 to count of path, all but recordNo, to consecutive numbers of the scratch
// file.
void CopyWithout(const std::string& path, const std::string& scratch, const RecordLayout& layout,
                 std::int32_t count, std::int32_t recordNo) {
    const size_t length = layout.Length();
    OpenRandom(scratch, LengthOf(layout));
    const int copy = MainFileNo;
    OpenRandom(path, LengthOf(layout));
    const int source = MainFileNo;
    std::string records = GetRecords(source, 1, count);
    // A record past the end of the file is copied as the platform reads it: zero bytes.
    records.resize(static_cast<size_t>(count) * length, '\0');
    if (recordNo >= 1 && recordNo <= count)
        records.erase(static_cast<size_t>(recordNo - 1) * length, length);
    if (!records.empty()) PutRecords(copy, 1, records);
    CloseAll();
}

// The steps that put the compacted copy in the place of the file, then drop its Backup copy.
void AddReplaceSteps(std::vector<JournalStep>& steps, const std::string& scratch,
                     const std::string& path) {
    steps.push_back({JournalStepKind::Replace, scratch, path});
    steps.push_back({JournalStepKind::Delete, "/Backup" + path, ""});
}

}  // namespace

std::int32_t CountCustomers() {
    return CountRecords(customers::kCustomerFile, LengthOf(kCustomerRecord));
}

void ReadCustomerRecord(std::int32_t recordNo) {
    // No account book yet: the record reads as one past the end would, and no file is made.
    if (!FindFile(customers::kCustomerFile)) {
        CustomerRecord = Record(kCustomerRecord, "");
        return;
    }
    OpenCustomerData();
    CustomerRecord = GetRecord(MainFileNo, recordNo, kCustomerRecord);
    CloseAll();
}

void WriteCustomerRecord(std::int32_t recordNo) {
    OpenCustomerData();
    PutRecord(MainFileNo, recordNo, CustomerRecord);
    CloseAll();
}

void ForEachCustomer(std::int32_t count,
                     const std::function<void(std::int32_t, const platform::Record&)>& visit) {
    // Looking must not make an empty account book where there is none.
    if (count < 1 || !FindFile(customers::kCustomerFile)) return;
    OpenCustomerData();
    const std::string records = GetRecords(MainFileNo, 1, count);
    CloseAll();
    const size_t length = kCustomerRecord.Length();
    for (std::int32_t r = 1; r <= count; ++r) {
        const size_t at = static_cast<size_t>(r - 1) * length;
        visit(r, Record(kCustomerRecord, at < records.size() ? records.substr(at, length) : ""));
    }
}

void ResetBillingRecords() {
    const DateTime today = Today();
    Record& c = ContractRecord;
    c.SetText("ContractName", "None Selected");
    c.SetText("ContractCode", "None");
    c.SetCurrency("ContractAmount", 0);
    c.SetText("ContractDay", WeekdayName(today.Weekday()));
    c.SetText("ContractLine", "None Selected");
    c.SetDate("ContractStart", today);
    c.SetDate("ContractDate2", today);
    c.SetInt16("ContractValue1", 0);
    c.SetInt16("ContractFlag1", -1);
    c.SetInt16("ContractValue2", 0);
    c.SetText("ContractKind", "None");
    for (const char* text :
         {"ContractText1", "ContractText2", "ContractText4", "ContractText5", "ContractText6",
          "ContractText7", "ContractText8", "ContractText9", "ContractText10"})
        c.SetText(text, "");
    c.SetInt16("ContractValue3", 0);

    Record& y = CycleRecord;
    y.SetText("CycleName", "None Selected");
    y.SetCurrency("CycleAmount", 0);
    y.SetInt16("CycleValue1", 0);
    y.SetText("CycleText", "");
    y.SetInt16("CycleValue2", 0);
    y.SetInt16("CycleFlag", -1);
}

namespace {

bool CustomerFileMissing(const std::string& whatCannotBeRebuilt) {
    if (FindFile(customers::kCustomerFile)) return false;
    MsgBox("Your Customer Information File is missing\r\n" + whatCannotBeRebuilt +
               "\r\nThis is normal when creating your 1st Customer",
           vbOKOnly + vbInformation, "No Customer File Found");
    return true;
}

// Writes the buffer at record numbers `last` down to `first` of a new billing file, built
// under its staging name: it takes the old file's place in one rename, and the Backup copy
// goes after that.
void BuildBillingFile(const std::string& path, const Record& buffer, std::int32_t last,
                      std::int32_t first) {
    const std::string staging = StagingName(path);
    DeleteFile(staging);
    OpenRandomSecond(staging, LengthOf(buffer.Layout()));
    const int file = SecondFileNo;
    for (std::int32_t r = last; r >= first; --r) PutRecord(file, r, buffer);
    ReplaceWithScratch(staging, path);
}

}  // namespace

void BuildContractInfo(std::int32_t firstRecord) {
    if (CustomerFileMissing("The Contract File can not be rebuilt")) return;
    // Record numbers start at 1: an empty account book writes nothing.
    BuildBillingFile(customers::kContractFile, ContractRecord, CountCustomers(),
                     std::max(firstRecord, 1));
}

void BuildCycleInfo(std::int32_t recordCount) {
    if (CustomerFileMissing("The Cycle File can not be rebuilt")) return;
    MsgBox("Your Billing Information File will be Built with Default Values",
           vbOKOnly + vbInformation, "Building Billing Info");
    BuildBillingFile(customers::kCycleFile, CycleRecord, recordCount, 1);
}

// Reading makes no file: a missing billing file is rebuilt when the screen next opens.
void ReadContractRecord(std::int32_t recordNo) {
    if (!FindFile(customers::kContractFile)) return;
    OpenContractInfo();
    ReadOver(ContractRecord, SecondFileNo, recordNo);
    CloseAll();
}

void ReadCycleRecord(std::int32_t recordNo) {
    if (!FindFile(customers::kCycleFile)) return;
    OpenCycleInfo();
    ReadOver(CycleRecord, SecondFileNo, recordNo);
    CloseAll();
}

void WriteContractRecord(std::int32_t recordNo) {
    OpenContractInfo();
    PutRecord(SecondFileNo, recordNo, ContractRecord);
    CloseAll();
}

void WriteCycleRecord(std::int32_t recordNo) {
    OpenCycleInfo();
    PutRecord(SecondFileNo, recordNo, CycleRecord);
    CloseAll();
}

void DeleteCustomerRecords(std::int32_t recordNo, std::int32_t recordCount,
                           const std::string& accountNo) {
    const std::string activeAccount = "/NIActiveAccounts/" + CheckedName(accountNo) + ".txt";
    // The three record files keep record n for one account: all three copies are made before
    // the first takes its file's place, and a crash in between is finished at the next start.
    const std::string contractScratch = StagingName("\\ContractInfo.txt");
    for (const char* scratch : {"\\CUSTOMER.TMP", "\\Temp.txt"}) DeleteFile(scratch);
    DeleteFile(contractScratch);
    CopyWithout("\\CustomerData.txt", "\\CUSTOMER.TMP", kCustomerRecord, recordCount, recordNo);
    // A billing file longer than the account book keeps its surplus records.
    CopyWithout("\\CycleInfo.txt", "\\Temp.txt", kCycleRecord,
                std::max(recordCount, RecordsHeld(customers::kCycleFile, kCycleRecord)), recordNo);
    CopyWithout("\\ContractInfo.txt", contractScratch, kContractRecord,
                std::max(recordCount, RecordsHeld(customers::kContractFile, kContractRecord)),
                recordNo);
    std::vector<JournalStep> steps = {{JournalStepKind::Delete, "/Backup" + activeAccount, ""},
                                      {JournalStepKind::Delete, activeAccount, ""}};
    AddReplaceSteps(steps, "\\CUSTOMER.TMP", "\\CustomerData.txt");
    AddReplaceSteps(steps, "\\Temp.txt", "\\CycleInfo.txt");
    AddReplaceSteps(steps, contractScratch, "\\ContractInfo.txt");
    RunJournal(steps);
}

void ResetCustomerBuffers() {
    CustomerRecord = Record(kCustomerRecord);
    ContractRecord = Record(kContractRecord);
    CycleRecord = Record(kCycleRecord);
}
