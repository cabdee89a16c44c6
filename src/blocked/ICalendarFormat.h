#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/DateTime.h"
#include "store/Windows1252.h"

// The iCalendar format (RFC 5545) as far as holidays and a team's schedule need it: content
// lines folded at 75 octets and ended by CR LF, escaped text, DATE and DATE-TIME values,
// durations, and components made of properties. Text in the file is UTF-8; the program's own
// text is Windows-1252.

struct CalendarProperty {
    std::string name;  // upper case
    // Parameter names upper case; values without their quotes, several joined by commas.
    std::vector<std::pair<std::string, std::string>> parameters;
    std::string value;  // as written: text values are still escaped
    int line = 0;       // physical line on which the property starts

    std::string Parameter(const std::string& parameterName) const;  // empty when absent
};

struct CalendarComponent {
    std::string name;  // "VCALENDAR", "VEVENT", ...
    std::vector<CalendarProperty> properties;
    std::vector<CalendarComponent> components;
    int line = 0;

    const CalendarProperty* Find(const std::string& propertyName) const;
};

// Reads a calendar stream: one or more VCALENDAR objects. A file that breaks the format gives
// false and, in `problem`, what is wrong and on which line.
bool ReadCalendar(std::string_view bytes, std::vector<CalendarComponent>& calendars,
                  std::string& problem);

// Physical lines joined where a line break is followed by a blank or a tab; with the number
// of the physical line each logical line starts on. Line ends may be CR LF or LF alone.
std::vector<std::pair<int, std::string>> UnfoldLines(std::string_view bytes);
// One content line as written: folded into lines of at most 75 octets, without cutting a
// UTF-8 character, each ended by CR LF.
std::string FoldLine(std::string_view line);

// TEXT values: backslash, semicolon, comma and line breaks escaped.
std::string EscapeText(std::string_view text);
std::string UnescapeText(std::string_view value);

// A DATE (yyyymmdd) or DATE-TIME (yyyymmddThhmmss, Z for UTC) value.
struct CalendarTime {
    platform::DateTime when;
    bool hasTime = false;
    bool utc = false;
};
bool ParseDateValue(std::string_view value, platform::DateTime& date);
bool ParseDateTimeValue(std::string_view value, platform::DateTime& when, bool& utc);
// The value of DTSTART, DTEND and the like, by its VALUE parameter or else by its form.
bool ParseCalendarTime(const CalendarProperty& property, CalendarTime& time);
// A DURATION value ("P1D", "PT8H", "P1W", "-P2D"), in whole seconds.
bool ParseDurationValue(std::string_view value, long long& seconds);
std::string FormatDateValue(platform::DateTime date);
std::string FormatDateTimeValue(platform::DateTime when, bool utc);

// Builds a calendar file line by line.
class CalendarWriter {
  public:
    void Begin(const std::string& component);
    void End(const std::string& component);
    // A property whose value is already in its form (a date, a number, an identifier).
    void Add(const std::string& name, const std::string& value);
    // A TEXT property from the program's own text: escaped and made UTF-8.
    void AddText(const std::string& name, const std::string& text);
    const std::string& Bytes() const { return bytes_; }

  private:
    std::string bytes_;
};
