#include "store/CsvFile.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "platform/Dialogs.h"
#include "platform/Ui.h"
#include "store/BasicDiskRoutines.h"
#include "store/Windows1252.h"

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string CsvLine(const CsvRow& row) {
    std::string line;
    for (size_t i = 0; i < row.size(); ++i) {
        if (i > 0) line += ',';
        line += CsvField(row[i]);
    }
    return line + "\r\n";
}

}  // namespace

std::string CsvField(std::string_view ansiText) {
    const std::string text = AnsiToUtf8(ansiText);
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string quoted = "\"";
    for (char c : text) {
        if (c == '"') quoted += '"';
        quoted += c;
    }
    return quoted + "\"";
}

std::string CsvTable(const CsvRow& header, const std::vector<CsvRow>& rows) {
    std::string bytes(kByteOrderMark);
    bytes += CsvLine(header);
    for (const CsvRow& row : rows) bytes += CsvLine(row);
    return bytes;
}

bool SaveExportFile(const std::string& fullPath, const std::string& bytes) {
    std::error_code ec;
    // A folder of that name is never replaced.
    if (std::filesystem::is_directory(fullPath, ec)) return false;
    const std::string part = fullPath + ".part";
    {
        std::ofstream out(part, std::ios::binary | std::ios::trunc);
        out << bytes;
        out.close();
        if (!out) {
            std::error_code ignored;
            std::filesystem::remove(part, ignored);
            return false;
        }
    }
    std::filesystem::rename(part, fullPath, ec);
    if (ec) std::filesystem::remove(part, ec);
    return !ec;
}

void SaveCsvList(const CsvList& list, const CsvRow& header,
                 const std::function<std::vector<CsvRow>()>& readRows) {
    constexpr const char* kFilter = "CSV (Comma delimited) (*.csv)|*.csv|All Files (*.*)|*.*";
    std::string path = platform::ChooseSaveFile(
        kFilter, list.title, DataPath(std::string("\\Documents\\") + list.fileName));
    if (path.empty()) return;
    if (std::filesystem::path(path).extension().empty()) path += ".csv";

    const std::vector<CsvRow> rows = readRows();
    const std::string fileName = std::filesystem::path(path).filename().string();
    if (!SaveExportFile(path, CsvTable(header, rows))) {
        platform::MsgBox(
            std::string("The ") + list.what + " could not be written to " + fileName + ".",
            platform::vbExclamation, list.title);
        return;
    }
    platform::MsgBox(std::string("The ") + list.what + " was saved in " + fileName + " with " +
                         std::to_string(rows.size()) + " " +
                         (rows.size() == 1 ? list.one : list.many) + ".",
                     platform::vbInformation, list.title);
}
