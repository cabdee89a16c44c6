#include "contacts/VendorListExport.h"

#include "contacts/frmContacts.h"
#include "platform/Records.h"
#include "store/CsvFile.h"

using namespace platform;

namespace {

constexpr CsvList kList = {"Save Vendor List", "Vendors.csv", "vendor list", "contact", "contacts"};

// Columns and the record fields they show: first those of the vendor list, then the rest.
constexpr const char* kColumns[][2] = {
    {"Name", "Name"},
    {"Account No", "AccountNo"},
    {"Telephone", "Telephone"},
    {"Category", "Category"},
    {"Address 1", "Address1"},
    {"Address 2", "Address2"},
    {"City", "City"},
    {"State", "State"},
    {"Postal Code", "Zip"},
    {"E-mail", "EMail"},
    {"Key Contact", "KeyContact"},
};

}  // namespace

void SaveVendorList(frmContacts& form) {
    CsvRow header;
    for (const auto& column : kColumns) header.push_back(column[0]);
    SaveCsvList(kList, header, [&form] {
        std::vector<CsvRow> rows;
        for (const Record& vendor : form.ListedVendors()) {
            CsvRow row;
            for (const auto& column : kColumns) row.push_back(vendor.Trimmed(column[1]));
            rows.push_back(std::move(row));
        }
        return rows;
    });
}
