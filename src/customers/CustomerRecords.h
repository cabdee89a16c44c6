#pragma once

#include "platform/RecordLayout.h"

// The account book and the two billing files kept beside it. Record n of ContractInfo.txt
// and of CycleInfo.txt belongs to record n of CustomerData.txt; nothing else links them.
namespace customers {

using platform::FieldKind;

inline constexpr const char* kCustomerFile = "/CustomerData.txt";
inline constexpr const char* kContractFile = "/ContractInfo.txt";
inline constexpr const char* kCycleFile = "/CycleInfo.txt";

inline constexpr platform::FieldSpec kCustomerFields[] = {
    {"AccountNo", 0, 20, FieldKind::Text},
    {"AccountName", 20, 45, FieldKind::Text},
    {"Address1", 65, 35, FieldKind::Text},
    {"Address2", 100, 25, FieldKind::Text},
    {"City", 125, 25, FieldKind::Text},  // or the third address line
    {"CityCopy", 150, 20, FieldKind::Text},
    {"State", 170, 2, FieldKind::Text},
    {"ZipCode", 172, 10, FieldKind::Text},
    {"PostalCode", 182, 25, FieldKind::Text},  // or the fourth address line
    {"Telephone", 207, 13, FieldKind::Text},
    {"CellPhone", 220, 13, FieldKind::Text},
    {"FaxEmail", 233, 30, FieldKind::Text},
    {"Title", 263, 10, FieldKind::Text},
    {"FirstName", 273, 15, FieldKind::Text},
    {"MiddleInitial", 288, 1, FieldKind::Text},
    {"LastName", 289, 25, FieldKind::Text},
    {"AccountType", 314, 10, FieldKind::Text},  // "Business" or "Individual"
    {"Reserved1", 324, 2, FieldKind::Int16},
    {"Reserved2", 326, 2, FieldKind::Int16},
};
inline constexpr platform::RecordLayout kCustomerRecord{"CustomerRecord", kCustomerFields, 328};
static_assert(kCustomerRecord.Valid());

// The billing program owns the meaning of these fields; this program moves their bytes.
inline constexpr platform::FieldSpec kContractFields[] = {
    {"ContractName", 0, 35, FieldKind::Text},       {"ContractCode", 35, 15, FieldKind::Text},
    {"ContractAmount", 50, 8, FieldKind::Currency}, {"ContractDay", 58, 9, FieldKind::Text},
    {"ContractLine", 67, 40, FieldKind::Text},      {"ContractStart", 107, 8, FieldKind::Date},
    {"ContractDate2", 115, 8, FieldKind::Date},     {"ContractValue1", 123, 2, FieldKind::Int16},
    {"ContractFlag1", 125, 2, FieldKind::Int16},    {"ContractValue2", 127, 2, FieldKind::Int16},
    {"ContractKind", 129, 20, FieldKind::Text},     {"ContractText1", 149, 20, FieldKind::Text},
    {"ContractText2", 169, 30, FieldKind::Text},    {"ContractText3", 199, 35, FieldKind::Text},
    {"ContractText4", 234, 25, FieldKind::Text},    {"ContractText5", 259, 20, FieldKind::Text},
    {"ContractText6", 279, 2, FieldKind::Text},     {"ContractText7", 281, 10, FieldKind::Text},
    {"ContractText8", 291, 13, FieldKind::Text},    {"ContractText9", 304, 30, FieldKind::Text},
    {"ContractValue3", 334, 2, FieldKind::Int16},   {"ContractText10", 336, 50, FieldKind::Text},
};
inline constexpr platform::RecordLayout kContractRecord{"ContractRecord", kContractFields, 386};
static_assert(kContractRecord.Valid());

inline constexpr platform::FieldSpec kCycleFields[] = {
    {"CycleName", 0, 35, FieldKind::Text},    {"CycleAmount", 35, 8, FieldKind::Currency},
    {"CycleValue1", 43, 2, FieldKind::Int16}, {"CycleText", 45, 20, FieldKind::Text},
    {"CycleValue2", 65, 2, FieldKind::Int16}, {"CycleFlag", 67, 2, FieldKind::Int16},
};
inline constexpr platform::RecordLayout kCycleRecord{"CycleRecord", kCycleFields, 69};
static_assert(kCycleRecord.Valid());

}  // namespace customers
