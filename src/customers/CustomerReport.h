#pragma once

class frmCustomer;

// After its question, prints every account of the book in address blocks, three across a
// landscape page, under the heading "Account Information" and the date.
void PrintCustomerReport(frmCustomer& form);
