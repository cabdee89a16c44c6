#pragma once

#include "platform/RecordLayout.h"

// One call that the call monitor took from the modem, in `TelCall.txt`: record n is row n of
// the call list. The date of a call is not kept.
namespace telephony {

using platform::FieldKind;

inline constexpr const char* kTelCallFile = "\\TelCall.txt";

inline constexpr platform::FieldSpec kTelCallFields[] = {
    {"Name", 0, 15, FieldKind::Text},     // as the modem sent it, cut at 15 characters
    {"Number", 15, 12, FieldKind::Text},  // "NNN-NNN-NNNN"
    {"Time", 27, 8, FieldKind::Text},     // "hh:mm am/pm"
};
inline constexpr platform::RecordLayout kTelCallRecord{"TelCallRecord", kTelCallFields, 35};
static_assert(kTelCallRecord.Valid());

}  // namespace telephony
