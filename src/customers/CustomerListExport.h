#pragma once

class frmCustomer;

// The account book as a CSV file for a spreadsheet, one row an account, saved where the user
// chooses. The account book itself is only read.
void SaveCustomerList(frmCustomer& form);
