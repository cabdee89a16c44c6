#pragma once

#include "platform/RecordLayout.h"

// One contact of `VendorData.txt`: vendors, suppliers, sub-contractors and card companies.
namespace contacts {

using platform::FieldKind;

inline constexpr const char* kVendorFile = "/VendorData.txt";

inline constexpr platform::FieldSpec kVendorFields[] = {
    {"AccountNo", 0, 20, FieldKind::Text},    {"Name", 20, 30, FieldKind::Text},
    {"Address1", 50, 35, FieldKind::Text},    {"Address2", 85, 25, FieldKind::Text},
    {"City", 110, 20, FieldKind::Text},       {"State", 130, 2, FieldKind::Text},
    {"Zip", 132, 10, FieldKind::Text},        {"Telephone", 142, 13, FieldKind::Text},
    {"EMail", 155, 30, FieldKind::Text},      {"Category", 185, 20, FieldKind::Text},
    {"KeyContact", 205, 30, FieldKind::Text},
};
inline constexpr platform::RecordLayout kVendorRecord{"VendorRecord", kVendorFields, 235};
static_assert(kVendorRecord.Valid());

}  // namespace contacts
