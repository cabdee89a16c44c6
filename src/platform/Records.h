#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/DateTime.h"

namespace platform {

// Packs the fields of a fixed-length record one behind the other, with no gaps:
// text padded with blanks, little-endian integers, dates as 8-byte day counts,
// currency as a 64-bit count of ten-thousandths.
class RecordWriter {
  public:
    void Text(std::string_view value, size_t length);
    void Int16(std::int16_t value);
    void Int32(std::int32_t value);
    void Byte(std::uint8_t value);
    void Date(DateTime value);
    void Double(double value);
    void Currency(std::int64_t tenThousandths);
    const std::string& Bytes() const { return bytes_; }

  private:
    std::string bytes_;
};

class RecordReader {
  public:
    explicit RecordReader(std::string bytes) : bytes_(std::move(bytes)) {}
    std::string Text(size_t length);  // as stored, blanks kept
    std::int16_t Int16();
    std::int32_t Int32();
    std::uint8_t Byte();
    DateTime Date();
    double Double();
    std::int64_t Currency();
    size_t Position() const { return pos_; }

  private:
    std::string_view Take(size_t n);
    std::string bytes_;
    size_t pos_ = 0;
};

std::string Trim(std::string_view text);
std::string RTrim(std::string_view text);
std::string LTrim(std::string_view text);
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);

}  // namespace platform
