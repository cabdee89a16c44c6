#pragma once

#include <cstdint>
#include <string>

// The hand-off of a completed project to Norvax Invoicer: a partial invoice of 27 lines in
// NorvaxInvoicer\IncompleteInvoices, numbered from NIInvoiceNo.txt. The invoicing program
// itself is not started.

constexpr const char* kInvoiceNumberFile = "/NIInvoiceNo.txt";
constexpr const char* kIncompleteInvoices = "/NorvaxInvoicer/IncompleteInvoices/";

// Writes the partial invoice of the project, tells the user its number, then moves the
// number on.
void CreateInvoiceRecord(int project);
// The number for the next invoice: year and a four-digit running number.
std::int32_t GetInvoiceNumber();
// The 27 lines of the invoice, on the file open as MainFileNo.
void WriteInvoiceRecord(int project, std::int32_t number, const std::string& amount);
void StoreNextInvoiceNumber(std::int32_t number);
