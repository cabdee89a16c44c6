#pragma once

#include <cstdint>
#include <string>

// Every access to the data files goes through these routines. Paths are relative to the
// program folder and begin with `/` or `\`. A file found missing is looked for below
// Backup and silently restored, so a caller's test for a file is also its repair.

// File numbers of the files opened last, as the open routines leave them.
extern std::int32_t MainFileNo;
extern std::int16_t SecondFileNo;
extern std::int16_t TempFileNo;

// Record lengths of the record files.
constexpr int kTelCallRecordLength = 35;
constexpr int kInventoryRecordLength = 124;
constexpr int kServiceRecordLength = 72;
constexpr int kCustomItemRecordLength = 70;

std::string DataPath(const std::string& path);  // the program folder + path

bool FindFile(const std::string& path);
void CopyDataFile(const std::string& source, const std::string& target);
std::int16_t CountRecords(const std::string& path, int recordLength);

void OpenForInput(const std::string& path);
void OpenForOutput(const std::string& path);
// Closes every open file, then opens the file to be written anew: its old content stays in
// place until the close puts the new content over it in one rename.
void OpenForRewrite(const std::string& path);
void OpenForAppend(const std::string& path);  // closes every open file first
void OpenRandom(const std::string& path, int recordLength);
void OpenRandomSecond(const std::string& path, int recordLength);
void OpenTemporaryFile(int recordLength);
void OpenCustomerData();
void OpenContractInfo();
void OpenCycleInfo();
void CloseAllFiles();

// A file or folder name taken from data (an account number) for a path below the program
// folder: returned as it is, or refused with the run-time failure "Path/File access error"
// when it could lead out of its folder.
const std::string& CheckedName(const std::string& name);
// True when the name is one name within its folder: no separator, not "." or "..".
bool NameStaysInFolder(const std::string& name);

void MakeFolder(const std::string& path);
void DeleteFile(const std::string& path);  // closes every open file first; wild cards allowed
void DeleteEverywhere(const std::string& path);
// The scratch file takes the place of the file in one rename, then the file's Backup copy
// is deleted.
void ReplaceWithTemporary(const std::string& path);
void ReplaceWithScratch(const std::string& scratch, const std::string& path);
void BackupDataFiles();
