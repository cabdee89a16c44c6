#pragma once

#include "platform/RecordLayout.h"

// The item files of the service-call program, read here for the work order. The reserved
// fields belong to that program; their bytes are declared so that the records add up.
namespace workorders {

using platform::FieldKind;

inline constexpr const char* kInventoryFile = "/UpdatedInventory.txt";
inline constexpr const char* kServicesFile = "/Services.txt";
inline constexpr const char* kCustomItemsFile = "/CustomItems.txt";

inline constexpr platform::FieldSpec kInventoryFields[] = {
    {"Description", 0, 40, FieldKind::Text}, {"Reserved1", 40, 20, FieldKind::Text},
    {"Reserved2", 60, 8, FieldKind::Text},   {"Price", 68, 8, FieldKind::Currency},
    {"Reserved3", 76, 2, FieldKind::Text},   {"Reserved4", 78, 8, FieldKind::Text},
    {"Reserved5", 86, 4, FieldKind::Text},   {"Reserved6", 90, 2, FieldKind::Text},
    {"Reserved7", 92, 2, FieldKind::Text},   {"Reserved8", 94, 20, FieldKind::Text},
    {"Reserved9", 114, 2, FieldKind::Text},  {"Reserved10", 116, 8, FieldKind::Text},
};
inline constexpr platform::RecordLayout kInventoryRecord{"InventoryRecord", kInventoryFields, 124};
static_assert(kInventoryRecord.Valid());

inline constexpr platform::FieldSpec kServiceFields[] = {
    {"Description", 0, 60, FieldKind::Text},
    {"Price", 60, 10, FieldKind::Text},  // the price as text, shown as it stands
    {"Reserved1", 70, 2, FieldKind::Text},
};
inline constexpr platform::RecordLayout kServiceRecord{"ServiceRecord", kServiceFields, 72};
static_assert(kServiceRecord.Valid());

inline constexpr platform::FieldSpec kCustomItemFields[] = {
    {"Description", 0, 50, FieldKind::Text},
    {"Price", 50, 8, FieldKind::Currency},
    {"Reserved1", 58, 8, FieldKind::Text},
    {"Reserved2", 66, 4, FieldKind::Text},
};
inline constexpr platform::RecordLayout kCustomItemRecord{"CustomItemRecord", kCustomItemFields,
                                                          70};
static_assert(kCustomItemRecord.Valid());

}  // namespace workorders
