#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/DateTime.h"

// Fixed-length records as declared tables. Each record type of the data files is one table
// of fields (name, offset, length, kind) kept next to the code that owns the file; its
// reader and writer go through the table, so no caller does offset arithmetic.
//
//     inline constexpr platform::FieldSpec kCycleFields[] = {
//         {"AcctNo", 0, 10, platform::FieldKind::Text},
//         {"Amount", 10, 8, platform::FieldKind::Currency}, ...};
//     inline constexpr platform::RecordLayout kCycleRecord{"CycleRecord", kCycleFields, 69};
//     static_assert(kCycleRecord.Valid());
namespace platform {

enum class FieldKind {
    Text,      // ANSI, padded with blanks on the right
    Int16,     // little-endian
    Int32,     // little-endian
    Byte,      // one unsigned byte
    Single,    // 4-byte IEEE
    Double,    // 8-byte IEEE
    Currency,  // 64-bit integer of ten-thousandths
    Date,      // 8-byte IEEE, days since 30 December 1899
    Boolean,   // 16-bit, True -1 and False 0
};

// The size a field of this kind takes; Text fields carry their own.
constexpr std::size_t KindSize(FieldKind kind) {
    switch (kind) {
        case FieldKind::Int16:
        case FieldKind::Boolean:
            return 2;
        case FieldKind::Int32:
        case FieldKind::Single:
            return 4;
        case FieldKind::Byte:
            return 1;
        case FieldKind::Double:
        case FieldKind::Currency:
        case FieldKind::Date:
            return 8;
        case FieldKind::Text:
            return 0;
    }
    return 0;
}

struct FieldSpec {
    std::string_view name;
    std::size_t offset;
    std::size_t length;
    FieldKind kind;
};

class RecordLayout {
  public:
    constexpr RecordLayout(std::string_view name, std::span<const FieldSpec> fields,
                           std::size_t length)
        : name_(name), fields_(fields), length_(length) {}

    // True when the fields follow each other without gaps from offset 0, every number has
    // its kind's size, no name repeats, and they fill exactly the declared length.
    constexpr bool Valid() const {
        std::size_t at = 0;
        for (std::size_t i = 0; i < fields_.size(); ++i) {
            const FieldSpec& f = fields_[i];
            if (f.offset != at || f.length == 0 || f.name.empty()) return false;
            if (f.kind != FieldKind::Text && f.length != KindSize(f.kind)) return false;
            for (std::size_t j = 0; j < i; ++j)
                if (fields_[j].name == f.name) return false;
            at += f.length;
        }
        return at == length_;
    }

    // The field of this name; a name the table does not hold is a programming error
    // (and does not compile where the lookup is made in a constant expression).
    constexpr const FieldSpec& Field(std::string_view name) const {
        for (const FieldSpec& f : fields_)
            if (f.name == name) return f;
        throw std::out_of_range("record field not declared");
    }
    constexpr bool Has(std::string_view name) const {
        for (const FieldSpec& f : fields_)
            if (f.name == name) return true;
        return false;
    }

    constexpr std::string_view Name() const { return name_; }
    constexpr std::size_t Length() const { return length_; }
    constexpr std::span<const FieldSpec> Fields() const { return fields_; }

  private:
    std::string_view name_;
    std::span<const FieldSpec> fields_;
    std::size_t length_;
};

// The bytes of one record, read and written field by field through its layout. A new
// record holds blanks in its text fields and zero in every number.
class Record {
  public:
    explicit Record(const RecordLayout& layout);
    // Bytes as read from a file; a short read (past the end) is filled with zero bytes.
    Record(const RecordLayout& layout, std::string bytes);

    const RecordLayout& Layout() const { return *layout_; }
    const std::string& Bytes() const { return bytes_; }

    std::string Text(std::string_view field) const;  // as stored, blanks kept
    std::string Trimmed(std::string_view field) const;
    std::int16_t Int16(std::string_view field) const;
    std::int32_t Int32(std::string_view field) const;
    std::uint8_t Byte(std::string_view field) const;
    float Single(std::string_view field) const;
    double Double(std::string_view field) const;
    std::int64_t Currency(std::string_view field) const;  // ten-thousandths
    DateTime Date(std::string_view field) const;
    bool Boolean(std::string_view field) const;  // any value but 0 is True

    void SetText(std::string_view field, std::string_view value);  // cut or padded
    void SetInt16(std::string_view field, std::int16_t value);
    void SetInt32(std::string_view field, std::int32_t value);
    void SetByte(std::string_view field, std::uint8_t value);
    void SetSingle(std::string_view field, float value);
    void SetDouble(std::string_view field, double value);
    void SetCurrency(std::string_view field, std::int64_t tenThousandths);
    void SetDate(std::string_view field, DateTime value);
    void SetBoolean(std::string_view field, bool value);  // -1 or 0

  private:
    const FieldSpec& Checked(std::string_view field, FieldKind kind) const;
    std::string_view Raw(const FieldSpec& f) const;
    void Put(const FieldSpec& f, const void* data, std::size_t size);

    const RecordLayout* layout_;
    std::string bytes_;
};

// Record `recordNo` (from 1) of a file opened for random access with the layout's length.
Record GetRecord(int fileNo, long recordNo, const RecordLayout& layout);
void PutRecord(int fileNo, long recordNo, const Record& record);

}  // namespace platform
