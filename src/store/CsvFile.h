#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Tables saved for a spreadsheet: CSV as RFC 4180 has it, in UTF-8 with a byte-order mark
// (which tells spreadsheets the encoding), a header row naming the columns, CR LF after every
// row. The texts come from the Windows-1252 data files and are converted on the way out.

using CsvRow = std::vector<std::string>;

// One field: in double quotes, with its quotes doubled, when it holds a comma, a quote or a
// line break; as it stands otherwise.
std::string CsvField(std::string_view ansiText);
// The whole file: the mark, the header and the rows.
std::string CsvTable(const CsvRow& header, const std::vector<CsvRow>& rows);

// Writes a file the user chose outside the program's data: under a temporary name beside it,
// renamed into place once whole. False when it could not be written; nothing is left behind.
bool SaveExportFile(const std::string& fullPath, const std::string& bytes);

// A list of the program saved where the user chooses, as its screens' menus offer it.
struct CsvList {
    const char* title;     // of the dialogue and the messages: "Save Customer List"
    const char* fileName;  // offered in the Documents folder: "Customers.csv"
    const char* what;      // "customer list"
    const char* one;       // a row in the message: "account"
    const char* many;      // "accounts"
};

// Asks for the file (".csv" is added to a name without an extension), writes the header and
// the rows and tells the user how it went. The rows are read only once a file is chosen; a
// cancelled dialogue does nothing.
void SaveCsvList(const CsvList& list, const CsvRow& header,
                 const std::function<std::vector<CsvRow>()>& readRows);
