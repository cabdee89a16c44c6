#pragma once

#include <cstdint>
#include <vector>

#include "contacts/VendorRecord.h"
#include "platform/RecordLayout.h"

// The vendor file, VendorData.txt: one 235-byte record a contact, numbered from 1, edited in
// place. Every routine opens the file, works and closes all again.

// Contacts in the file, as the file layer counts records (a partial last record more than
// half there counts); 0 when there is no file.
std::int32_t CountVendors();
// Record recordNo; a record wholly or partly past the end reads as blanks behind what is there.
platform::Record ReadVendor(std::int32_t recordNo);
void WriteVendor(std::int32_t recordNo, const platform::Record& record);
// Records 1 to count in one read, for the list and the searches.
std::vector<platform::Record> ReadVendors(std::int32_t count);
// Copies every record of 1 to count but recordNo, packed, into Contact.TMP, then puts that
// copy in the place of VendorData.txt. Records the file does not hold are not copied.
void DeleteVendor(std::int32_t recordNo, std::int32_t count);
