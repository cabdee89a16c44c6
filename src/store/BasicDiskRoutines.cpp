#include "store/BasicDiskRoutines.h"

#include <cmath>

#include "customers/CustomerRecords.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/RuntimeError.h"

using namespace platform;

std::int32_t MainFileNo = 0;
std::int16_t SecondFileNo = 0;
std::int16_t TempFileNo = 0;

namespace {

// The names the exit backup copies, ".txt" appended.
const char* const kBackedUpFiles[] = {
    "CompanyLogo", "CustomerData", "AuxHeadings", "LogoSettings", "Phone",       "MyBusinessData",
    "PrintColors", "SoldItems",    "MyWebSite",   "TaxRecords",   "SpeedNumbers"};

}  // namespace

std::string DataPath(const std::string& path) {
    return AppFolder() + path;
}

bool FindFile(const std::string& path) {
    if (FileExists(DataPath(path))) return true;
    const std::string backup = DataPath("\\Backup" + path);
    if (!FileExists(backup)) return false;
    FileCopy(backup, DataPath(path));
    return true;
}

void CopyDataFile(const std::string& source, const std::string& target) {
    FileCopy(DataPath(source), DataPath(target));
}

std::int16_t CountRecords(const std::string& path, int recordLength) {
    if (!FindFile(path)) return 0;
    const double records = static_cast<double>(FileLen(DataPath(path))) / recordLength;
    // Rounded to the nearest whole record, a half going to the even one.
    return CInt(records);
}

void OpenForInput(const std::string& path) {
    MainFileNo = FreeFile();
    Open(MainFileNo, DataPath(path), OpenMode::Input);
}

void OpenForOutput(const std::string& path) {
    MainFileNo = FreeFile();
    Open(MainFileNo, DataPath(path), OpenMode::Output);
}

void OpenForRewrite(const std::string& path) {
    CloseAll();
    OpenForOutput(path);
}

void OpenForAppend(const std::string& path) {
    CloseAll();
    MainFileNo = FreeFile();
    Open(MainFileNo, DataPath(path), OpenMode::Append);
}

void OpenRandom(const std::string& path, int recordLength) {
    MainFileNo = FreeFile();
    Open(MainFileNo, DataPath(path), OpenMode::Random, recordLength);
}

void OpenRandomSecond(const std::string& path, int recordLength) {
    SecondFileNo = static_cast<std::int16_t>(FreeFile());
    Open(SecondFileNo, DataPath(path), OpenMode::Random, recordLength);
}

void OpenTemporaryFile(int recordLength) {
    // A scratch file left by a run that stopped half way holds records of its own: every
    // compaction starts from an empty one.
    const std::string scratch = DataPath("/TemporaryFile.txt");
    if (FileExists(scratch)) Kill(scratch);
    TempFileNo = static_cast<std::int16_t>(FreeFile());
    Open(TempFileNo, DataPath("/TemporaryFile.txt"), OpenMode::Random, recordLength);
}

void OpenCustomerData() {
    OpenRandom(customers::kCustomerFile, static_cast<int>(customers::kCustomerRecord.Length()));
}
void OpenContractInfo() {
    OpenRandomSecond(customers::kContractFile,
                     static_cast<int>(customers::kContractRecord.Length()));
}
void OpenCycleInfo() {
    OpenRandomSecond(customers::kCycleFile, static_cast<int>(customers::kCycleRecord.Length()));
}
void CloseAllFiles() {
    CloseAll();
}

bool NameStaysInFolder(const std::string& name) {
    return name != "." && name != ".." &&
           name.find_first_of(std::string("/\\\0", 3)) == std::string::npos;
}

const std::string& CheckedName(const std::string& name) {
    if (!NameStaysInFolder(name)) Raise(err::PathFileAccessError, name);
    return name;
}

void MakeFolder(const std::string& path) {
    if (!FolderExists(DataPath(path))) MkDir(DataPath(path));
}

void DeleteFile(const std::string& path) {
    CloseAll();
    const std::string full = DataPath(path);
    const bool wild = path.find_first_of("*?") != std::string::npos;
    if (wild ? !Dir(full).empty() : FileExists(full)) Kill(full);
}

void DeleteEverywhere(const std::string& path) {
    DeleteFile("/Backup" + path);
    DeleteFile(path);
}

void ReplaceWithTemporary(const std::string& path) {
    ReplaceWithScratch("\\TemporaryFile.txt", path);
}

void ReplaceWithScratch(const std::string& scratch, const std::string& path) {
    CloseAll();
    // The new file takes the old one's place in one rename; the Backup copy goes only once
    // the new file is there, so that a crash in between loses neither.
    NameOver(DataPath(scratch), DataPath(path));
    DeleteFile("/Backup" + path);
}

void BackupDataFiles() {
    const std::string source = AppFolder() + "\\";
    const std::string target = AppFolder() + "\\Backup\\";
    for (const char* name : kBackedUpFiles) {
        const std::string file = std::string(name) + ".txt";
        // A failure on one file must not stop the others.
        try {
            if (!FileExists(source + file)) continue;
            // The copy replaces the old one in one rename: the old copy stays until then.
            FileCopy(source + file, target + file);
        } catch (const RuntimeError&) {
        }
    }
}
