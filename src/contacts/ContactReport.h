#pragma once

#include <cstdint>

// The contact report: after its question, every contact of VendorData.txt (records 1 to
// count) in blocks of five lines, three across a portrait page, under "Account Information".
void PrintContactReport(std::int32_t count);
