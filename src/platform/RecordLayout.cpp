#include "platform/RecordLayout.h"

#include <cmath>
#include <cstring>

#include "platform/Files.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"

namespace platform {

namespace {

constexpr int kOverflow = 6;
constexpr double kFirstDate = -657434.0;  // 1 January 100
constexpr double kLastDate = 2958466.0;   // the day after 31 December 9999

// The files are little-endian, as is every machine the program runs on.
template <typename T>
T Load(std::string_view raw) {
    T value;
    std::memcpy(&value, raw.data(), sizeof(T));
    return value;
}

}  // namespace

Record::Record(const RecordLayout& layout) : layout_(&layout), bytes_(layout.Length(), '\0') {
    for (const FieldSpec& f : layout.Fields())
        if (f.kind == FieldKind::Text) bytes_.replace(f.offset, f.length, f.length, ' ');
}

Record::Record(const RecordLayout& layout, std::string bytes)
    : layout_(&layout), bytes_(std::move(bytes)) {
    bytes_.resize(layout.Length(), '\0');
}

const FieldSpec& Record::Checked(std::string_view field, FieldKind kind) const {
    const FieldSpec& f = layout_->Field(field);
    if (f.kind != kind) throw std::logic_error("record field read as another kind");
    return f;
}

std::string_view Record::Raw(const FieldSpec& f) const {
    return std::string_view(bytes_).substr(f.offset, f.length);
}

void Record::Put(const FieldSpec& f, const void* data, std::size_t size) {
    bytes_.replace(f.offset, size, static_cast<const char*>(data), size);
}

std::string Record::Text(std::string_view field) const {
    return std::string(Raw(Checked(field, FieldKind::Text)));
}

std::string Record::Trimmed(std::string_view field) const {
    return Trim(Text(field));
}

std::int16_t Record::Int16(std::string_view field) const {
    return Load<std::int16_t>(Raw(Checked(field, FieldKind::Int16)));
}

std::int32_t Record::Int32(std::string_view field) const {
    return Load<std::int32_t>(Raw(Checked(field, FieldKind::Int32)));
}

std::uint8_t Record::Byte(std::string_view field) const {
    return Load<std::uint8_t>(Raw(Checked(field, FieldKind::Byte)));
}

// A stored number that is no number at all (a damaged file) cannot be used as one.
float Record::Single(std::string_view field) const {
    const float value = Load<float>(Raw(Checked(field, FieldKind::Single)));
    if (!std::isfinite(value)) Raise(kOverflow, std::string(field));
    return value;
}

double Record::Double(std::string_view field) const {
    const double value = Load<double>(Raw(Checked(field, FieldKind::Double)));
    if (!std::isfinite(value)) Raise(kOverflow, std::string(field));
    return value;
}

std::int64_t Record::Currency(std::string_view field) const {
    return Load<std::int64_t>(Raw(Checked(field, FieldKind::Currency)));
}

DateTime Record::Date(std::string_view field) const {
    const double serial = Load<double>(Raw(Checked(field, FieldKind::Date)));
    if (!(serial >= kFirstDate && serial < kLastDate)) Raise(kOverflow, std::string(field));
    return DateTime(serial);
}

bool Record::Boolean(std::string_view field) const {
    return Load<std::int16_t>(Raw(Checked(field, FieldKind::Boolean))) != 0;
}

void Record::SetText(std::string_view field, std::string_view value) {
    const FieldSpec& f = Checked(field, FieldKind::Text);
    std::string padded(value.substr(0, f.length));
    padded.resize(f.length, ' ');
    Put(f, padded.data(), f.length);
}

void Record::SetInt16(std::string_view field, std::int16_t value) {
    Put(Checked(field, FieldKind::Int16), &value, sizeof value);
}

void Record::SetInt32(std::string_view field, std::int32_t value) {
    Put(Checked(field, FieldKind::Int32), &value, sizeof value);
}

void Record::SetByte(std::string_view field, std::uint8_t value) {
    Put(Checked(field, FieldKind::Byte), &value, sizeof value);
}

void Record::SetSingle(std::string_view field, float value) {
    Put(Checked(field, FieldKind::Single), &value, sizeof value);
}

void Record::SetDouble(std::string_view field, double value) {
    Put(Checked(field, FieldKind::Double), &value, sizeof value);
}

void Record::SetCurrency(std::string_view field, std::int64_t tenThousandths) {
    Put(Checked(field, FieldKind::Currency), &tenThousandths, sizeof tenThousandths);
}

void Record::SetDate(std::string_view field, DateTime value) {
    const double serial = value.Serial();
    Put(Checked(field, FieldKind::Date), &serial, sizeof serial);
}

void Record::SetBoolean(std::string_view field, bool value) {
    const std::int16_t flag = value ? -1 : 0;
    Put(Checked(field, FieldKind::Boolean), &flag, sizeof flag);
}

Record GetRecord(int fileNo, long recordNo, const RecordLayout& layout) {
    // A file opened with records shorter than the layout cannot hold it: the platform refuses
    // the read rather than fill the rest with the next record's bytes or zeros.
    std::string bytes = GetRecord(fileNo, recordNo);
    if (bytes.size() < layout.Length()) Raise(err::BadRecordLength, std::string(layout.Name()));
    return Record(layout, std::move(bytes));
}

void PutRecord(int fileNo, long recordNo, const Record& record) {
    PutRecord(fileNo, recordNo, std::string_view(record.Bytes()));
}

}  // namespace platform
