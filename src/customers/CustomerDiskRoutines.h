#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "customers/CustomerRecords.h"
#include "platform/RecordLayout.h"

// The three record files of the customers, kept in step by record number: the account book
// CustomerData.txt and the billing files ContractInfo.txt and CycleInfo.txt, which this
// program fills with defaults and otherwise passes through unchanged for the billing program.

// The record in hand of each file. Every read of the record on screen fills the buffer and
// every write takes it, so the fields the screen does not show pass through as they stand.
extern platform::Record CustomerRecord;
extern platform::Record ContractRecord;
extern platform::Record CycleRecord;

// Customers in the account book, as the file layer counts them (a partial last record that
// is more than half there counts).
std::int32_t CountCustomers();
void ReadCustomerRecord(std::int32_t recordNo);
void WriteCustomerRecord(std::int32_t recordNo);
// Reads records 1 to count into a record of their own, leaving the record in hand alone;
// nothing when there is no account book.
void ForEachCustomer(std::int32_t count,
                     const std::function<void(std::int32_t, const platform::Record&)>& visit);

// The billing buffers back to their defaults: "None Selected", today's date and weekday,
// zero amounts and the flag True. The third contract text keeps what it held.
void ResetBillingRecords();
// Rewrites ContractInfo.txt with the buffer from the customer count down to firstRecord;
// the records before it are left as a file written past its end leaves them.
void BuildContractInfo(std::int32_t firstRecord);
// Rewrites CycleInfo.txt with the buffer in every record from recordCount down to 1.
void BuildCycleInfo(std::int32_t recordCount);
// A record wholly past the end of a short file, or a missing file, leaves the buffer as it
// stands; no file is made.
void ReadContractRecord(std::int32_t recordNo);
void ReadCycleRecord(std::int32_t recordNo);
void WriteContractRecord(std::int32_t recordNo);
void WriteCycleRecord(std::int32_t recordNo);

// Removes record recordNo of the account book and of both billing files, moving the records
// behind it down by one, each file through a complete copy before the old one goes; the
// account's file of active accounts goes too.
void DeleteCustomerRecords(std::int32_t recordNo, std::int32_t recordCount,
                           const std::string& accountNo);

// The buffers as a new process starts with them.
void ResetCustomerBuffers();
