#pragma once

#include "platform/RecordLayout.h"

// One technical milestone of a project in `ProjectRecords.txt`, so that a slot text leads to
// its project without opening every project file. `Slips.txt` and `Meetings.txt` hold
// records of the same layout, written by the family's other programs.
namespace projects {

using platform::FieldKind;

inline constexpr const char* kProjectRecordsFile = "\\ProjectRecords.txt";
inline constexpr const char* kSlipsFile = "\\Slips.txt";
inline constexpr const char* kMeetingsFile = "\\Meetings.txt";

inline constexpr platform::FieldSpec kProjectFields[] = {
    {"Reserved", 0, 10, FieldKind::Text},
    {"ProjectNo", 10, 10, FieldKind::Text},
    {"Team", 20, 2, FieldKind::Text},
    {"Mode", 22, 6, FieldKind::Text},
    {"Time", 28, 2, FieldKind::Text},
    {"Date", 30, 10, FieldKind::Text},  // short date text
    {"StartSlot", 40, 2, FieldKind::Text},
    {"Milestone", 42, 30, FieldKind::Text},
    {"Status", 72, 20, FieldKind::Text},
    {"ReservedText1", 92, 20, FieldKind::Text},
    {"ReservedText2", 112, 20, FieldKind::Text},
    {"Sequence", 132, 10, FieldKind::Text},  // currency-formatted text, never a plain number
    {"Account", 142, 20, FieldKind::Text},
    {"SiteName", 162, 30, FieldKind::Text},
    {"SiteAddress1", 192, 35, FieldKind::Text},
    {"SiteAddress2", 227, 25, FieldKind::Text},
    {"SiteCity", 252, 20, FieldKind::Text},
    {"SiteState", 272, 2, FieldKind::Text},
    {"SiteZip", 274, 10, FieldKind::Text},
    {"SiteTelephone", 284, 13, FieldKind::Text},
};
inline constexpr platform::RecordLayout kProjectRecord{"ProjectRecord", kProjectFields, 297};
static_assert(kProjectRecord.Valid());

// The seven address fields from SiteName on, in the order of the header's address values.
inline constexpr const char* kProjectAddressFields[7] = {
    "SiteName",  "SiteAddress1", "SiteAddress2", "SiteCity",
    "SiteState", "SiteZip",      "SiteTelephone"};

}  // namespace projects
