#pragma once

#include <string>

class frmCustomer;

// Finding accounts in the account book, and the customer report.

// Choices of optSearch, and the list of every account.
constexpr int kSearchByTelephone = 6;
constexpr int kSearchByAccountNo = 8;
constexpr int kSearchAll = 10;
// The column of fgCustomersFound that holds the record number a choice reads back.
constexpr int kRecordColumn = 4;

// Lists the accounts whose field of the chosen search holds the text (already trimmed and in
// upper case) in fgCustomersFound. By account number the exact number is looked for first,
// then numbers that begin with the text. The whole list (kSearchAll) only fills the grid;
// a search with one match shows that account, with more the list, with none offers a new one.
void FindCustomers(frmCustomer& form, int index, const std::string& text);
