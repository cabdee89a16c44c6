#include "customers/CustomerListExport.h"

#include "customers/CustomerDiskRoutines.h"
#include "customers/CustomerRoutines.h"
#include "customers/frmCustomer.h"
#include "platform/Records.h"
#include "store/CsvFile.h"

using namespace platform;

namespace {

constexpr CsvList kList = {"Save Customer List", "Customers.csv", "customer list", "account",
                           "accounts"};

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
    CsvRow header = {"Name"};
    for (const auto& column : kColumns) header.push_back(column[0]);
    SaveCsvList(kList, header, [] {
        std::vector<CsvRow> rows;
        ForEachCustomer(CountCustomers(), [&](std::int32_t, const Record& record) {
            CsvRow row = {FoundName(record)};
            for (const auto& column : kColumns) row.push_back(record.Trimmed(column[1]));
            rows.push_back(std::move(row));
        });
        return rows;
    });
}
