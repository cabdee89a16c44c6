#include "platform/Records.h"

#include <cctype>
#include <cstring>

namespace platform {

void RecordWriter::Text(std::string_view value, size_t length) {
    std::string field(value.substr(0, length));
    field.resize(length, ' ');
    bytes_ += field;
}

void RecordWriter::Int16(std::int16_t value) {
    auto u = static_cast<std::uint16_t>(value);
    bytes_ += static_cast<char>(u & 0xFF);
    bytes_ += static_cast<char>(u >> 8);
}

void RecordWriter::Int32(std::int32_t value) {
    auto u = static_cast<std::uint32_t>(value);
    for (int i = 0; i < 4; ++i) bytes_ += static_cast<char>((u >> (8 * i)) & 0xFF);
}

void RecordWriter::Byte(std::uint8_t value) {
    bytes_ += static_cast<char>(value);
}

void RecordWriter::Double(double value) {
    char raw[8];
    std::memcpy(raw, &value, 8);  // the machine is little-endian, as the files are
    bytes_.append(raw, 8);
}

void RecordWriter::Date(DateTime value) {
    Double(value.Serial());
}

void RecordWriter::Currency(std::int64_t tenThousandths) {
    auto u = static_cast<std::uint64_t>(tenThousandths);
    for (int i = 0; i < 8; ++i) bytes_ += static_cast<char>((u >> (8 * i)) & 0xFF);
}

std::string_view RecordReader::Take(size_t n) {
    static const char zeros[8] = {};
    if (pos_ + n > bytes_.size()) {
        pos_ += n;
        return std::string_view(zeros, n <= 8 ? n : 0);
    }
    auto part = std::string_view(bytes_).substr(pos_, n);
    pos_ += n;
    return part;
}

std::string RecordReader::Text(size_t length) {
    if (pos_ >= bytes_.size()) {
        pos_ += length;
        return std::string(length, ' ');
    }
    std::string field = bytes_.substr(pos_, length);
    pos_ += length;
    field.resize(length, ' ');
    return field;
}

std::int16_t RecordReader::Int16() {
    auto b = Take(2);
    auto u = static_cast<std::uint16_t>(static_cast<unsigned char>(b[0]) |
                                        (static_cast<unsigned char>(b[1]) << 8));
    return static_cast<std::int16_t>(u);
}

std::int32_t RecordReader::Int32() {
    auto b = Take(4);
    std::uint32_t u = 0;
    for (int i = 3; i >= 0; --i)
        u = (u << 8) | static_cast<unsigned char>(b[static_cast<size_t>(i)]);
    return static_cast<std::int32_t>(u);
}

std::uint8_t RecordReader::Byte() {
    return static_cast<std::uint8_t>(Take(1)[0]);
}

double RecordReader::Double() {
    auto b = Take(8);
    double value;
    std::memcpy(&value, b.data(), 8);
    return value;
}

DateTime RecordReader::Date() {
    return DateTime(Double());
}

std::int64_t RecordReader::Currency() {
    auto b = Take(8);
    std::uint64_t u = 0;
    for (int i = 7; i >= 0; --i)
        u = (u << 8) | static_cast<unsigned char>(b[static_cast<size_t>(i)]);
    return static_cast<std::int64_t>(u);
}

std::string LTrim(std::string_view text) {
    size_t b = 0;
    while (b < text.size() && text[b] == ' ') ++b;
    return std::string(text.substr(b));
}

std::string RTrim(std::string_view text) {
    size_t e = text.size();
    while (e > 0 && (text[e - 1] == ' ' || text[e - 1] == '\0')) --e;
    return std::string(text.substr(0, e));
}

std::string Trim(std::string_view text) {
    return LTrim(RTrim(text));
}

std::string UCase(std::string_view text) {
    std::string out(text);
    for (auto& c : out) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return out;
}

std::string LCase(std::string_view text) {
    std::string out(text);
    for (auto& c : out) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return out;
}

}  // namespace platform
