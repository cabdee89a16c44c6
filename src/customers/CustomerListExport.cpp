#include "customers/CustomerListExport.h"

#include <filesystem>

#include "customers/CustomerDiskRoutines.h"
#include "customers/CustomerRoutines.h"
#include "customers/frmCustomer.h"
#include "platform/Dialogs.h"
#include "platform/Records.h"
#include "platform/Ui.h"
#include "store/BasicDiskRoutines.h"
#include "store/CsvFile.h"

using namespace platform;

namespace {

constexpr const char* kTitle = "Save Customer List";
constexpr const char* kFilter = "CSV (Comma delimited) (*.csv)|*.csv|All Files (*.*)|*.*";

// Columns and the record fields they show, after the name as the customer list shows it.
constexpr const char* kColumns[][2] = {
    {"Account No", "AccountNo"},
    {"Type", "AccountType"},
    {"Title", "Title"},
    {"First Name", "FirstName"},
    {"Middle Initial", "MiddleInitial"},
    {"Last Name", "LastName"},
    {"Address 1", "Address1"},
    {"Address 2", "Address2"},
    {"City", "City"},
    {"State", "State"},
    {"Postal Code", "PostalCode"},
    {"Telephone", "Telephone"},
    {"Cell Phone", "CellPhone"},
    {"Fax/E-mail", "FaxEmail"},
};

}  // namespace

void SaveCustomerList(frmCustomer&) {
    std::string path = ChooseSaveFile(kFilter, kTitle, DataPath("\\Documents\\Customers.csv"));
    if (path.empty()) return;
    if (std::filesystem::path(path).extension().empty()) path += ".csv";

    CsvRow header = {"Name"};
    for (const auto& column : kColumns) header.push_back(column[0]);
    std::vector<CsvRow> rows;
    ForEachCustomer(CountCustomers(), [&](std::int32_t, const Record& record) {
        CsvRow row = {FoundName(record)};
        for (const auto& column : kColumns) row.push_back(record.Trimmed(column[1]));
        rows.push_back(std::move(row));
    });

    const std::string fileName = std::filesystem::path(path).filename().string();
    if (!SaveExportFile(path, CsvTable(header, rows))) {
        MsgBox("The customer list could not be written to " + fileName + ".", vbExclamation,
               kTitle);
        return;
    }
    MsgBox("The customer list was saved in " + fileName + " with " + std::to_string(rows.size()) +
               (rows.size() == 1 ? " account." : " accounts."),
           vbInformation, kTitle);
}
