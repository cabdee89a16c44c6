#pragma once

#include <string>
#include <vector>

#include "platform/RecordLayout.h"
#include "projects/ProjectRecord.h"

// The service slips that the service-call program books into Slips.txt (projects::kSlipsFile).
// Meetings.txt and ProjectRecords.txt hold records of the same layout, so the slip screen reads all
// three through it. This program only ever reads these files.
namespace workorders {

// A slip is a project record, its fields read under the project record's names: ProjectNo is
// the key that the schedule cell carries (or "Contract" for a contract visit), Team the
// assignment, Time and Mode the duration, StartSlot the hour slot (1 to 12, or blank),
// Milestone the problem reported, and the Site fields the customer's name, address and
// telephone.
inline constexpr const platform::RecordLayout& kSlipRecord = projects::kProjectRecord;

// Every whole record of the file in file order, read in one pass; the count is the file's
// length over the record length, so a cut-off last record is not read. The file is closed
// again, also when the platform fails on it.
std::vector<platform::Record> ReadSlipRecords(const std::string& path);

// The label of the record's hour slot when its StartSlot is a number; empty when it is not
// (a blank one). A number that names no slot is the platform's "Subscript out of range".
std::string SlipHourLabel(const platform::Record& slip);

}  // namespace workorders
