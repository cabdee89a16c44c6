#include <charconv>
#include <cmath>
#include <string>
#include <string_view>

#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/OpenFileTable.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"

// Lines of delimited values, as the platform's Write # and Input # put and read them.
namespace platform {

using detail::OpenFile;

namespace {

OpenFile& Get(int fileNo, const char* where) {
    return detail::OpenFileOf(fileNo, where);
}

std::string TrimBlanksRight(std::string_view s) {
    size_t e = s.size();
    while (e > 0 && (s[e - 1] == ' ' || s[e - 1] == '\t')) --e;
    return std::string(s.substr(0, e));
}

// Reads one value of a delimited line and steps over its delimiter (a comma or a line end).
std::string NextToken(OpenFile& f, bool& quoted) {
    if (f.mode != OpenMode::Input) Raise(err::BadFileMode, f.target.string());
    const std::string& b = f.buffer;
    size_t& p = f.pos;
    while (p < b.size() && (b[p] == ' ' || b[p] == '\t')) ++p;
    if (p >= b.size()) Raise(err::InputPastEnd, f.target.string());
    std::string token;
    quoted = false;
    if (b[p] == '"') {
        quoted = true;
        size_t close = b.find('"', p + 1);
        if (close == std::string::npos) close = b.size();
        token = b.substr(p + 1, close - p - 1);
        p = std::min(close + 1, b.size());
        while (p < b.size() && b[p] != ',' && b[p] != '\r' && b[p] != '\n') ++p;
    } else {
        size_t end = p;
        while (end < b.size() && b[end] != ',' && b[end] != '\r' && b[end] != '\n') ++end;
        token = TrimBlanksRight(std::string_view(b).substr(p, end - p));
        p = end;
    }
    if (p < b.size()) {
        if (b[p] == ',') {
            ++p;
        } else if (b[p] == '\r') {
            ++p;
            if (p < b.size() && b[p] == '\n') ++p;
        } else if (b[p] == '\n') {
            ++p;
        }
    }
    return token;
}

// A value of a delimited line read into a number: empty is 0 and the flags are -1 and 0;
// anything else goes by the platform's rules for numbers in text.
NumberText TokenNumber(const std::string& token, double& out) {
    if (token.empty()) {
        out = 0;
        return NumberText::Number;
    }
    if (token == "#TRUE#") return out = -1, NumberText::Number;
    if (token == "#FALSE#") return out = 0, NumberText::Number;
    return ParseNumber(token, out);
}

}  // namespace

std::string FormatNumber(double value) {
    if (value == std::floor(value) && std::fabs(value) < 1e15) {
        return std::to_string(static_cast<long long>(value));
    }
    char buf[64];
    auto res = std::to_chars(buf, buf + sizeof buf, value);
    return std::string(buf, res.ptr);
}

void WriteFields(int fileNo, const std::vector<Field>& fields) {
    OpenFile& f = Get(fileNo, "Write");
    if (f.mode != OpenMode::Output && f.mode != OpenMode::Append)
        Raise(err::BadFileMode, f.target.string());
    bool first = true;
    for (const auto& field : fields) {
        if (!first) f.buffer += ',';
        first = false;
        if (auto s = std::get_if<std::string>(&field)) {
            f.buffer += '"';
            f.buffer += *s;
            f.buffer += '"';
        } else if (auto d = std::get_if<double>(&field)) {
            f.buffer += FormatNumber(*d);
        } else if (auto b = std::get_if<bool>(&field)) {
            f.buffer += *b ? "#TRUE#" : "#FALSE#";
        } else if (auto t = std::get_if<DateTime>(&field)) {
            f.buffer += '#';
            if (t->DayNumber() != 0 || t->Serial() == t->DateOnly().Serial())
                f.buffer += FormatDate(*t, "yyyy-mm-dd");
            if (t->Serial() != t->DateOnly().Serial()) {
                if (t->DayNumber() != 0) f.buffer += ' ';
                f.buffer += FormatDate(*t, "hh:nn:ss");
            }
            f.buffer += '#';
        }
    }
    f.buffer += "\r\n";
}

void WriteFields(int fileNo, std::initializer_list<Field> fields) {
    WriteFields(fileNo, std::vector<Field>(fields));
}

void PrintLine(int fileNo, std::string_view text) {
    OpenFile& f = Get(fileNo, "Print");
    if (f.mode != OpenMode::Output && f.mode != OpenMode::Append)
        Raise(err::BadFileMode, f.target.string());
    f.buffer += text;
    f.buffer += "\r\n";
}

std::string InputString(int fileNo) {
    bool quoted;
    return NextToken(Get(fileNo, "Input"), quoted);
}

double InputNumber(int fileNo) {
    OpenFile& f = Get(fileNo, "Input");
    bool quoted;
    const std::string token = NextToken(f, quoted);
    double value = 0;
    switch (TokenNumber(token, value)) {
        case NumberText::Number:
            return value;
        case NumberText::Overflow:
            Raise(err::Overflow, f.target.string());
        case NumberText::NotANumber:
            break;
    }
    Raise(err::TypeMismatch, f.target.string());
}

std::int32_t InputInt32(int fileNo) {
    return CLng(InputNumber(fileNo));
}

std::int16_t InputInt16(int fileNo) {
    return CInt(InputNumber(fileNo));
}

std::uint8_t InputByte(int fileNo) {
    return CByte(InputNumber(fileNo));
}

bool InputBool(int fileNo) {
    OpenFile& f = Get(fileNo, "Input");
    bool quoted;
    std::string token = NextToken(f, quoted);
    const std::string upper = UCase(token);
    if (upper == "#TRUE#" || upper == "TRUE") return true;
    if (upper == "#FALSE#" || upper == "FALSE") return false;
    double value;
    if (!quoted && !token.empty() && ParseNumber(token, value) == NumberText::Number)
        return value != 0;
    Raise(err::TypeMismatch, f.target.string());
}

DateTime InputDate(int fileNo) {
    OpenFile& f = Get(fileNo, "Input");
    bool quoted;
    std::string token = NextToken(f, quoted);
    if (token.size() >= 2 && token.front() == '#' && token.back() == '#')
        token = token.substr(1, token.size() - 2);
    DateTime value;
    if (!ParseDate(token, value)) Raise(err::TypeMismatch, f.target.string());
    return value;
}

std::string LineInput(int fileNo) {
    OpenFile& f = Get(fileNo, "Line Input");
    if (f.mode != OpenMode::Input) Raise(err::BadFileMode, f.target.string());
    if (f.pos >= f.buffer.size()) Raise(err::InputPastEnd, f.target.string());
    size_t end = f.pos;
    while (end < f.buffer.size() && f.buffer[end] != '\r' && f.buffer[end] != '\n') ++end;
    std::string line = f.buffer.substr(f.pos, end - f.pos);
    f.pos = end;
    if (f.pos < f.buffer.size() && f.buffer[f.pos] == '\r') ++f.pos;
    if (f.pos < f.buffer.size() && f.buffer[f.pos] == '\n') ++f.pos;
    return line;
}

}  // namespace platform
