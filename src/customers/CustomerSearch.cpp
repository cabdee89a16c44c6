#include "customers/CustomerSearch.h"

#include <vector>

#include "customers/CustomerDiskRoutines.h"
#include "customers/CustomerRoutines.h"
#include "customers/frmCustomer.h"
#include "platform/Records.h"
#include "platform/Ui.h"

using namespace platform;

namespace {

constexpr const char* kFoundFormat =
    "Customer                          |^Phone           |Street              |City                "
    "|^Rec";

// The field each search looks in, by the index of optSearch.
constexpr const char* kSearchFields[] = {"AccountName", "Address1",   "Address2",  "City",
                                         "State",       "PostalCode", "Telephone", "LastName"};

struct Found {
    std::int32_t recordNo;
    std::string row;
};

std::string FoundRow(std::int32_t recordNo, const Record& record) {
    return FoundRowName(record) + "\t" + record.Trimmed("Telephone") + "\t" +
           record.Trimmed("Address1") + "\t" + record.Trimmed("City") + "\t" +
           std::to_string(recordNo);
}

std::vector<Found> Matches(int index, const std::string& text) {
    std::vector<Found> exact, found;
    ForEachCustomer(CountCustomers(), [&](std::int32_t recordNo, const Record& record) {
        if (index == kSearchAll) {
            found.push_back({recordNo, FoundRow(recordNo, record)});
        } else if (index == kSearchByAccountNo) {
            const std::string number = UCase(Trim(record.Text("AccountNo")));
            if (number == text)
                exact.push_back({recordNo, FoundRow(recordNo, record)});
            else if (number.starts_with(text))
                found.push_back({recordNo, FoundRow(recordNo, record)});
        } else if (UCase(record.Trimmed(kSearchFields[index])).find(text) != std::string::npos) {
            found.push_back({recordNo, FoundRow(recordNo, record)});
        }
    });
    return exact.empty() ? found : exact;
}

}  // namespace

void FindCustomers(frmCustomer& form, int index, const std::string& text) {
    Grid& grid = form.fgCustomersFound;
    grid.SetRows(1);
    grid.SetFormatString(kFoundFormat);
    const std::vector<Found> found = Matches(index, text);
    for (const Found& match : found) grid.AddItem(match.row);
    if (index == kSearchAll) return;
    if (found.empty()) {
        form.txtSearchfor.SetText("");
        if (MsgBox("No Accounts Matching the Search Data were Found\r\nWould you like to Create a "
                   "New Account?",
                   vbYesNo + vbQuestion, "Customer not Found") == vbYes) {
            form.fraSearch.SetVisible(false);
            form.mnuAdd_Click();
        } else {
            form.cmdRetry_Click();
        }
    } else if (found.size() == 1) {
        form.fraSearch.SetVisible(false);
        form.CurrentRecord = found.front().recordNo;
        DisplayCustomer(form);
    } else {
        form.fraSearch.SetVisible(false);
        form.fraCustomersFound.SetCaption("Customers Search Results");
        form.fraCustomersFound.SetVisible(true);
        form.cmdPrintCustomers.SetVisible(false);
    }
}
