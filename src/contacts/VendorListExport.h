#pragma once

class frmContacts;

// The vendor list as a CSV file for a spreadsheet, one row a contact in the list's order (by
// name), saved where the user chooses. VendorData.txt is only read.
void SaveVendorList(frmContacts& form);
