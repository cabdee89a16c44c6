#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/DateTime.h"

class frmBlock;

// Public holidays from an iCalendar file, blocked for all teams through the screen's own
// reserve routine and its checks.

// One holiday as the reserve routine takes it: consecutive workdays from the first.
struct HolidayRequest {
    platform::DateTime firstWorkday;
    int workdays = 0;
    std::string summary;  // the program's own text
};

struct HolidayFile {
    std::vector<HolidayRequest> holidays;  // in date order, each once
    int leftOut = 0;  // events with no workday in the range, cancelled, or of a repeat rule not
                      // followed
};

// The holidays of a calendar file with workdays from `first` to `last`. A file that breaks
// the format, or an event whose dates cannot be read, gives false and what is wrong.
bool ReadHolidays(std::string_view bytes, platform::DateTime first, platform::DateTime last,
                  HolidayFile& file, std::string& problem);

// The import as the user starts it: the file dialogue, the question, the blocking, the result.
void ImportHolidays(frmBlock& form);
