#include "blocked/ICalendarFormat.h"

#include <array>
#include <cctype>

using platform::DateTime;

namespace {

constexpr size_t kFoldWidth = 75;

bool IsNameChar(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '-';
}

std::string Upper(std::string text) {
    for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

bool Digits(std::string_view text, size_t from, size_t count, int& value) {
    if (from + count > text.size()) return false;
    value = 0;
    for (size_t i = from; i < from + count; ++i) {
        if (text[i] < '0' || text[i] > '9') return false;
        value = value * 10 + (text[i] - '0');
    }
    return true;
}

std::string Two(int n) {
    return std::string(1, static_cast<char>('0' + n / 10)) + static_cast<char>('0' + n % 10);
}

std::string LineProblem(int line, const std::string& what) {
    return "line " + std::to_string(line) + ": " + what;
}

// One content line: name *(";" param) ":" value.
bool ParseContentLine(int lineNo, const std::string& line, CalendarProperty& property,
                      std::string& problem) {
    size_t i = 0;
    while (i < line.size() && IsNameChar(line[i])) ++i;
    if (i == 0) {
        problem = LineProblem(lineNo, "a line that is not a property");
        return false;
    }
    property.name = Upper(line.substr(0, i));
    property.line = lineNo;
    while (i < line.size() && line[i] == ';') {
        const size_t start = ++i;
        while (i < line.size() && IsNameChar(line[i])) ++i;
        if (i == start || i >= line.size() || line[i] != '=') {
            problem = LineProblem(lineNo, "a parameter of " + property.name + " without a value");
            return false;
        }
        std::string name = Upper(line.substr(start, i - start));
        std::string value;
        bool first = true;
        do {
            ++i;  // past "=" or ","
            if (!first) value += ',';
            first = false;
            if (i < line.size() && line[i] == '"') {
                const size_t close = line.find('"', i + 1);
                if (close == std::string::npos) {
                    problem = LineProblem(lineNo, "a quoted parameter value without its end");
                    return false;
                }
                value += line.substr(i + 1, close - i - 1);
                i = close + 1;
            } else {
                const size_t from = i;
                while (i < line.size() && line[i] != ',' && line[i] != ';' && line[i] != ':' &&
                       line[i] != '"')
                    ++i;
                value += line.substr(from, i - from);
            }
        } while (i < line.size() && line[i] == ',');
        property.parameters.emplace_back(std::move(name), std::move(value));
    }
    if (i >= line.size() || line[i] != ':') {
        problem = LineProblem(lineNo, property.name + " has no \":\" before its value");
        return false;
    }
    property.value = line.substr(i + 1);
    return true;
}

}  // namespace

std::string CalendarProperty::Parameter(const std::string& parameterName) const {
    for (const auto& [name, value] : parameters)
        if (name == parameterName) return value;
    return {};
}

const CalendarProperty* CalendarComponent::Find(const std::string& propertyName) const {
    for (const CalendarProperty& p : properties)
        if (p.name == propertyName) return &p;
    return nullptr;
}

std::vector<std::pair<int, std::string>> UnfoldLines(std::string_view bytes) {
    std::vector<std::pair<int, std::string>> lines;
    int lineNo = 0;
    size_t start = 0;
    while (start < bytes.size()) {
        size_t end = bytes.find('\n', start);
        if (end == std::string_view::npos) end = bytes.size();
        std::string_view physical = bytes.substr(start, end - start);
        if (!physical.empty() && physical.back() == '\r') physical.remove_suffix(1);
        ++lineNo;
        if (!physical.empty() && (physical[0] == ' ' || physical[0] == '\t') && !lines.empty()) {
            lines.back().second.append(physical.substr(1));
        } else {
            lines.emplace_back(lineNo, std::string(physical));
        }
        start = end + 1;
    }
    return lines;
}

std::string FoldLine(std::string_view line) {
    std::string out;
    size_t room = kFoldWidth;
    size_t i = 0;
    while (i < line.size()) {
        size_t take = std::min(room, line.size() - i);
        // Never between the bytes of one UTF-8 character.
        while (take > 0 && i + take < line.size() &&
               (static_cast<unsigned char>(line[i + take]) & 0xC0) == 0x80)
            --take;
        out.append(line.substr(i, take));
        i += take;
        out += "\r\n";
        if (i < line.size()) {
            out += ' ';
            room = kFoldWidth - 1;
        }
    }
    if (line.empty()) out += "\r\n";
    return out;
}

std::string EscapeText(std::string_view text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\\' || c == ';' || c == ',') {
            out += '\\';
            out += c;
        } else if (c == '\r') {
            out += "\\n";
            if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
        } else if (c == '\n') {
            out += "\\n";
        } else {
            out += c;
        }
    }
    return out;
}

std::string UnescapeText(std::string_view value) {
    std::string out;
    for (size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            out += value[i];
            continue;
        }
        const char c = value[++i];
        out += (c == 'n' || c == 'N') ? '\n' : c;
    }
    return out;
}

bool ParseDateValue(std::string_view value, DateTime& date) {
    int year = 0, month = 0, day = 0;
    if (value.size() != 8 || !Digits(value, 0, 4, year) || !Digits(value, 4, 2, month) ||
        !Digits(value, 6, 2, day))
        return false;
    if (year < 1900 || month < 1 || month > 12 || day < 1 ||
        day > platform::DaysInMonth(year, month))
        return false;
    date = DateTime::FromYmd(year, month, day);
    return true;
}

bool ParseDateTimeValue(std::string_view value, DateTime& when, bool& utc) {
    utc = value.size() == 16 && value[15] == 'Z';
    if (value.size() != (utc ? 16u : 15u) || value[8] != 'T') return false;
    DateTime date;
    int hour = 0, minute = 0, second = 0;
    if (!ParseDateValue(value.substr(0, 8), date) || !Digits(value, 9, 2, hour) ||
        !Digits(value, 11, 2, minute) || !Digits(value, 13, 2, second))
        return false;
    // A leap second reads as the last second of its minute.
    if (hour > 23 || minute > 59 || second > 60) return false;
    when = DateTime::FromYmdHms(date.Year(), date.Month(), date.Day(), hour, minute,
                                second == 60 ? 59 : second);
    return true;
}

bool ParseCalendarTime(const CalendarProperty& property, CalendarTime& time) {
    const std::string kind = Upper(property.Parameter("VALUE"));
    time = CalendarTime{};
    if (kind == "DATE" || (kind.empty() && property.value.size() == 8)) {
        return ParseDateValue(property.value, time.when);
    }
    if (!kind.empty() && kind != "DATE-TIME") return false;
    time.hasTime = true;
    return ParseDateTimeValue(property.value, time.when, time.utc);
}

bool ParseDurationValue(std::string_view value, long long& seconds) {
    size_t i = 0;
    bool negative = false;
    if (i < value.size() && (value[i] == '+' || value[i] == '-')) negative = value[i++] == '-';
    if (i >= value.size() || value[i++] != 'P') return false;
    seconds = 0;
    bool inTime = false, any = false;
    while (i < value.size()) {
        if (value[i] == 'T') {
            if (inTime) return false;
            inTime = true;
            ++i;
            continue;
        }
        long long n = 0;
        const size_t from = i;
        while (i < value.size() && value[i] >= '0' && value[i] <= '9') {
            n = n * 10 + (value[i++] - '0');
            if (n > 100000000) return false;
        }
        if (i == from || i >= value.size()) return false;
        const char unit = value[i++];
        if (!inTime && unit == 'W')
            n *= 7 * 86400;
        else if (!inTime && unit == 'D')
            n *= 86400;
        else if (inTime && unit == 'H')
            n *= 3600;
        else if (inTime && unit == 'M')
            n *= 60;
        else if (!(inTime && unit == 'S'))
            return false;
        seconds += n;
        any = true;
    }
    if (!any) return false;
    if (negative) seconds = -seconds;
    return true;
}

std::string FormatDateValue(DateTime date) {
    return std::to_string(date.Year()) + Two(date.Month()) + Two(date.Day());
}

std::string FormatDateTimeValue(DateTime when, bool utc) {
    return FormatDateValue(when) + "T" + Two(when.Hour()) + Two(when.Minute()) +
           Two(when.Second()) + (utc ? "Z" : "");
}

bool ReadCalendar(std::string_view bytes, std::vector<CalendarComponent>& calendars,
                  std::string& problem) {
    calendars.clear();
    if (bytes.find('\0') != std::string_view::npos) {
        problem = "it is not a text file";
        return false;
    }
    // A byte order mark is no part of the first line.
    if (bytes.substr(0, 3) == "\xEF\xBB\xBF") bytes.remove_prefix(3);
    std::vector<CalendarComponent> open;
    for (const auto& [lineNo, line] : UnfoldLines(bytes)) {
        if (line.find_first_not_of(" \t") == std::string::npos) continue;
        CalendarProperty property;
        if (!ParseContentLine(lineNo, line, property, problem)) return false;
        if (property.name == "BEGIN") {
            const std::string name = Upper(property.value);
            if (name.empty() || name.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-") !=
                                    std::string::npos) {
                problem = LineProblem(lineNo, "BEGIN names no component");
                return false;
            }
            if (open.empty() && name != "VCALENDAR") {
                problem = LineProblem(lineNo, "the file does not start with BEGIN:VCALENDAR");
                return false;
            }
            CalendarComponent component;
            component.name = name;
            component.line = lineNo;
            open.push_back(std::move(component));
        } else if (property.name == "END") {
            if (open.empty() || Upper(property.value) != open.back().name) {
                problem = LineProblem(lineNo, "END:" + property.value + " closes no " +
                                                  property.value + " that is open");
                return false;
            }
            CalendarComponent done = std::move(open.back());
            open.pop_back();
            if (open.empty())
                calendars.push_back(std::move(done));
            else
                open.back().components.push_back(std::move(done));
        } else if (open.empty()) {
            problem = LineProblem(lineNo, calendars.empty()
                                              ? "the file does not start with BEGIN:VCALENDAR"
                                              : "text after END:VCALENDAR");
            return false;
        } else {
            open.back().properties.push_back(std::move(property));
        }
    }
    if (!open.empty()) {
        problem = "the file ends inside " + open.back().name + ", begun on line " +
                  std::to_string(open.back().line);
        return false;
    }
    if (calendars.empty()) {
        problem = "it holds no calendar";
        return false;
    }
    return true;
}

void CalendarWriter::Begin(const std::string& component) {
    Add("BEGIN", component);
}

void CalendarWriter::End(const std::string& component) {
    Add("END", component);
}

void CalendarWriter::Add(const std::string& name, const std::string& value) {
    bytes_ += FoldLine(name + ":" + value);
}

void CalendarWriter::AddText(const std::string& name, const std::string& text) {
    Add(name, EscapeText(AnsiToUtf8(text)));
}
