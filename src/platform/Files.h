#pragma once

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/DateTime.h"

// File services of the platform. Paths are full paths as text; `/` and `\` are both
// separators, and a path names the same file whatever the case of its components.
// A path that starts in the program folder and climbs out of it with ".." is the run-time
// failure "Path/File access error" (75), before anything is made or deleted. A file with no
// write permission is read-only: writing, replacing or deleting it is "Permission denied"
// (70), as is reading one that may not be read. Only regular files are read or written.
namespace platform {

void SetAppFolder(const std::string& folder);
const std::string& AppFolder();
std::string ProgramFileName();  // the program's own file name without extension
void SetProgramFileName(const std::string& name);

std::filesystem::path ResolvePath(const std::string& path);
bool FileExists(const std::string& path);  // a regular file; folders do not count
bool FolderExists(const std::string& path);
bool WildcardMatch(std::string_view name, std::string_view pattern);  // * and ?, no case

void MkDir(const std::string& path);
void RmDir(const std::string& path);
void Kill(const std::string& pattern);  // wild cards in the file name
void FileCopy(const std::string& source, const std::string& target);
void Name(const std::string& oldPath, const std::string& newPath);
// Puts a complete file in the place of another in one rename: whoever looks finds the old
// file or the new one, never neither. A missing target is simply made.
void NameOver(const std::string& oldPath, const std::string& newPath);
std::int64_t FileLen(const std::string& path);
// Adds one line (CR LF ended) to the end of a file of the program's own, in place and by one
// write, making the file where there is none: a process that dies leaves the line whole or
// not there. For journals only, which no other program reads.
void AppendLine(const std::string& path, std::string_view line);
std::vector<std::string> Dir(const std::string& pattern, bool folders = false);
// How often a folder has been listed to match a name without regard to case; the folders
// the program changes itself are known without listing them again.
long FolderScans();

enum class OpenMode { Input, Output, Append, Random };

int FreeFile();
// A file open for output or append is open for nothing else, and may not be opened for
// output while it is open in any way: "File already open" (55). The file exists from the
// open on (empty, when it is new); what is written reaches it at the close.
void Open(int fileNo, const std::string& path, OpenMode mode, int recordLength = 128);
void Close(int fileNo);
void CloseAll();
// After a run-time failure: closes every file and drops sequential output not yet in place.
void AbandonAll();
int OpenFileCount();
bool Eof(int fileNo);
std::int64_t Lof(int fileNo);

// One value of a delimited line: text, number, flag or date.
using Field = std::variant<std::string, double, bool, DateTime>;
inline Field Text(std::string s) {
    return Field(std::move(s));
}

void WriteFields(int fileNo, std::initializer_list<Field> fields);
void WriteFields(int fileNo, const std::vector<Field>& fields);
void PrintLine(int fileNo, std::string_view text);

std::string InputString(int fileNo);
double InputNumber(int fileNo);
// A number read into a 32-bit, 16-bit or byte variable: rounded half to even, Overflow past
// its range.
std::int32_t InputInt32(int fileNo);
std::int16_t InputInt16(int fileNo);
std::uint8_t InputByte(int fileNo);
bool InputBool(int fileNo);
DateTime InputDate(int fileNo);
std::string LineInput(int fileNo);

std::string GetRecord(int fileNo, long recordNo);
void PutRecord(int fileNo, long recordNo, std::string_view bytes);
// Records firstRecordNo to firstRecordNo + count - 1 in one read, for scans of a whole file:
// what lies past the end is left out, so a partial last record comes as it stands.
std::string GetRecords(int fileNo, long firstRecordNo, long count);
// Consecutive whole records from firstRecordNo on, in one write.
void PutRecords(int fileNo, long firstRecordNo, std::string_view bytes);

std::string FormatNumber(double value);  // plain decimal as the delimited write puts it

}  // namespace platform
