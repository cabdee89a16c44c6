#pragma once

#include <string>

#include "platform/RuntimeError.h"

class frmWorkOrder;

// The printed documents of the work order, drawn by position on portrait Letter pages in
// twips. Each ends its own print job.

// The work order form with the narrative of Templates\WONarrativeTEMP.txt (or ruled lines
// for instructions by hand), then the "Parts and Services List" pages when anything was
// chosen. Errors on the way are passed over; the printing goes on with the next step.
void PrintWorkOrder(frmWorkOrder& form);
// The "Summary Report" the worker fills in by hand, one page, as a print job of its own.
void PrintSummaryReport(frmWorkOrder& form);

// The account's block at the top right: date, account and page number.
void PrintWOHeader(const std::string& account);
// The column headings of a parts page.
void PrintInvoiceHeaderLine();

// What the user is told when a printing routine stops: a cancelled printer dialogue means the
// document is not printed, anything else is a print error. Any job under way is abandoned.
void ReportPrintFailure(const platform::RuntimeError& error);
