#include "platform/DateTime.h"

#include <array>
#include <cctype>
#include <cmath>
#include <cstdio>

namespace platform {
namespace {

// Days from 1970-01-01 for a civil date (Howard Hinnant's algorithm).
long DaysFromCivil(long y, unsigned m, unsigned d) {
    y -= m <= 2;
    const long era = (y >= 0 ? y : y - 399) / 400;
    const unsigned yoe = static_cast<unsigned>(y - era * 400);
    const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + static_cast<long>(doe) - 719468;
}

void CivilFromDays(long z, int& year, int& month, int& day) {
    z += 719468;
    const long era = (z >= 0 ? z : z - 146096) / 146097;
    const unsigned doe = static_cast<unsigned>(z - era * 146097);
    const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const long y = static_cast<long>(yoe) + era * 400;
    const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const unsigned mp = (5 * doy + 2) / 153;
    day = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
    month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    year = static_cast<int>(y + (month <= 2));
}

constexpr long kEpochOffset = 25569;  // 1970-01-01 as a day number from 1899-12-30

int SecondsOfDay(double serial) {
    double frac = std::fabs(serial - std::floor(serial));
    return static_cast<int>(std::lround(frac * 86400.0)) % 86400;
}

// Whole seconds from the start of day 0, the time rounded to the second as the platform
// rounds it when it takes a date apart.
long long TotalSeconds(DateTime date) {
    const double frac = date.Serial() - std::floor(date.Serial());
    return static_cast<long long>(date.DayNumber()) * 86400 + std::llround(frac * 86400.0);
}

long long FloorDivide(long long a, long long b) {
    const long long q = a / b;
    return (a % b != 0 && (a < 0) != (b < 0)) ? q - 1 : q;
}

// The Sunday on or before the date, as a day number.
long WeekStart(DateTime date) {
    return static_cast<long>(date.DayNumber()) - (date.Weekday() - 1);
}

const std::array<const char*, 7> kDayNames = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                              "Thursday", "Friday", "Saturday"};
const std::array<const char*, 12> kMonthNames = {"January",   "February", "March",    "April",
                                                 "May",       "June",     "July",     "August",
                                                 "September", "October",  "November", "December"};

}  // namespace

DateTime DateTime::FromYmd(int year, int month, int day) {
    // Months outside 1..12 roll into neighbouring years, as the platform's DateSerial does.
    int y = year + (month - 1) / 12;
    int m = (month - 1) % 12;
    if (m < 0) {
        m += 12;
        --y;
    }
    return DateTime(static_cast<double>(DaysFromCivil(y, m + 1, 1) + kEpochOffset + day - 1));
}

DateTime DateTime::FromYmdHms(int year, int month, int day, int hour, int minute, int second) {
    return DateTime(FromYmd(year, month, day).serial_ +
                    (hour * 3600 + minute * 60 + second) / 86400.0);
}

std::int32_t DateTime::DayNumber() const {
    return static_cast<std::int32_t>(std::floor(serial_));
}
DateTime DateTime::DateOnly() const {
    return DateTime(std::floor(serial_));
}

int DateTime::Year() const {
    int y, m, d;
    CivilFromDays(DayNumber() - kEpochOffset, y, m, d);
    return y;
}
int DateTime::Month() const {
    int y, m, d;
    CivilFromDays(DayNumber() - kEpochOffset, y, m, d);
    return m;
}
int DateTime::Day() const {
    int y, m, d;
    CivilFromDays(DayNumber() - kEpochOffset, y, m, d);
    return d;
}
int DateTime::Hour() const {
    return SecondsOfDay(serial_) / 3600;
}
int DateTime::Minute() const {
    return SecondsOfDay(serial_) / 60 % 60;
}
int DateTime::Second() const {
    return SecondsOfDay(serial_) % 60;
}
int DateTime::DayOfYear() const {
    return DayNumber() - FromYmd(Year(), 1, 1).DayNumber() + 1;
}
int DateTime::Weekday() const {
    long n = (static_cast<long>(DayNumber()) + 6) % 7;
    if (n < 0) n += 7;
    return static_cast<int>(n) + 1;
}

bool IsLeapYear(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int DaysInMonth(int year, int month) {
    static const int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeapYear(year) ? 29 : days[month - 1];
}

int DatePart(const std::string& interval, DateTime date) {
    if (interval == "yyyy") return date.Year();
    if (interval == "q") return (date.Month() - 1) / 3 + 1;
    if (interval == "m") return date.Month();
    if (interval == "y") return date.DayOfYear();
    if (interval == "d") return date.Day();
    if (interval == "w") return date.Weekday();
    if (interval == "h") return date.Hour();
    if (interval == "n") return date.Minute();
    if (interval == "s") return date.Second();
    return 0;
}

DateTime DateAdd(const std::string& interval, int number, DateTime date) {
    const double time = date.Serial() - std::floor(date.Serial());
    if (interval == "d" || interval == "y" || interval == "w")
        return DateTime(date.Serial() + number);
    if (interval == "ww") return DateTime(date.Serial() + 7.0 * number);
    if (interval == "h") return DateTime(date.Serial() + number / 24.0);
    if (interval == "n") return DateTime(date.Serial() + number / 1440.0);
    if (interval == "s") return DateTime(date.Serial() + number / 86400.0);
    if (interval == "m" || interval == "yyyy" || interval == "q") {
        int months = interval == "m" ? number : interval == "q" ? number * 3 : number * 12;
        int total = date.Year() * 12 + (date.Month() - 1) + months;
        int y = total / 12;
        int m = total % 12 + 1;
        int d = std::min(date.Day(), DaysInMonth(y, m));
        return DateTime(DateTime::FromYmd(y, m, d).Serial() + time);
    }
    return date;
}

long DateDiff(const std::string& interval, DateTime first, DateTime second) {
    if (interval == "d" || interval == "y") return second.DayNumber() - first.DayNumber();
    // Whole weeks from the first date's weekday on.
    if (interval == "w") return (second.DayNumber() - first.DayNumber()) / 7;
    // Calendar weeks: the Sundays after the first date up to the second.
    if (interval == "ww") return (WeekStart(second) - WeekStart(first)) / 7;
    if (interval == "m")
        return (second.Year() - first.Year()) * 12L + second.Month() - first.Month();
    if (interval == "q")
        return (second.Year() - first.Year()) * 4L + (second.Month() - 1) / 3 -
               (first.Month() - 1) / 3;
    if (interval == "yyyy") return second.Year() - first.Year();
    // Hours, minutes and seconds count the boundaries crossed, as days do.
    if (interval == "h")
        return static_cast<long>(FloorDivide(TotalSeconds(second), 3600) -
                                 FloorDivide(TotalSeconds(first), 3600));
    if (interval == "n")
        return static_cast<long>(FloorDivide(TotalSeconds(second), 60) -
                                 FloorDivide(TotalSeconds(first), 60));
    if (interval == "s") return static_cast<long>(TotalSeconds(second) - TotalSeconds(first));
    return 0;
}

std::string ShortDate(DateTime date) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "%d/%d/%d", date.Month(), date.Day(), date.Year());
    return buf;
}

std::string LongTime(DateTime date) {
    char buf[32];
    int h = date.Hour() % 12;
    std::snprintf(buf, sizeof buf, "%d:%02d:%02d %s", h == 0 ? 12 : h, date.Minute(), date.Second(),
                  date.Hour() < 12 ? "AM" : "PM");
    return buf;
}

std::string ShortTime(DateTime date) {
    return FormatDate(date, "hh:nn am/pm");
}

std::string WeekdayName(int weekday) {
    return weekday >= 1 && weekday <= 7 ? kDayNames[static_cast<size_t>(weekday - 1)] : "";
}

std::string MonthName(int month) {
    return month >= 1 && month <= 12 ? kMonthNames[static_cast<size_t>(month - 1)] : "";
}

std::string FormatDate(DateTime date, const std::string& pattern) {
    std::string out;
    const bool twelveHour =
        pattern.find("am/pm") != std::string::npos || pattern.find("AM/PM") != std::string::npos;
    size_t i = 0;
    auto run = [&](char c) {
        size_t n = 0;
        while (i + n < pattern.size() &&
               std::tolower(static_cast<unsigned char>(pattern[i + n])) == c)
            ++n;
        return n;
    };
    char buf[16];
    while (i < pattern.size()) {
        const char c = static_cast<char>(std::tolower(static_cast<unsigned char>(pattern[i])));
        if (pattern.compare(i, 5, "am/pm") == 0 || pattern.compare(i, 5, "AM/PM") == 0) {
            const bool upper = pattern[i] == 'A';
            out += date.Hour() < 12 ? (upper ? "AM" : "am") : (upper ? "PM" : "pm");
            i += 5;
        } else if (c == 'd') {
            size_t n = run('d');
            if (n >= 4)
                out += WeekdayName(date.Weekday());
            else if (n == 3)
                out += WeekdayName(date.Weekday()).substr(0, 3);
            else {
                std::snprintf(buf, sizeof buf, n == 2 ? "%02d" : "%d", date.Day());
                out += buf;
            }
            i += n;
        } else if (c == 'm') {
            size_t n = run('m');
            if (n >= 4)
                out += MonthName(date.Month());
            else if (n == 3)
                out += MonthName(date.Month()).substr(0, 3);
            else {
                std::snprintf(buf, sizeof buf, n == 2 ? "%02d" : "%d", date.Month());
                out += buf;
            }
            i += n;
        } else if (c == 'y') {
            size_t n = run('y');
            std::snprintf(buf, sizeof buf, n >= 4 ? "%04d" : "%02d",
                          n >= 4 ? date.Year() : date.Year() % 100);
            out += buf;
            i += n;
        } else if (c == 'h') {
            size_t n = run('h');
            int h = date.Hour();
            if (twelveHour) h = h % 12 == 0 ? 12 : h % 12;
            std::snprintf(buf, sizeof buf, n >= 2 ? "%02d" : "%d", h);
            out += buf;
            i += n;
        } else if (c == 'n') {
            size_t n = run('n');
            std::snprintf(buf, sizeof buf, n >= 2 ? "%02d" : "%d", date.Minute());
            out += buf;
            i += n;
        } else if (c == 's') {
            size_t n = run('s');
            std::snprintf(buf, sizeof buf, n >= 2 ? "%02d" : "%d", date.Second());
            out += buf;
            i += n;
        } else {
            out += pattern[i++];
        }
    }
    return out;
}

bool ParseDate(const std::string& text, DateTime& out) {
    int a = 0, b = 0, c = 0, h = 0, n = 0, s = 0;
    char sep1 = 0, sep2 = 0;
    if (std::sscanf(text.c_str(), " %d%c%d%c%d", &a, &sep1, &b, &sep2, &c) != 5) return false;
    if (sep1 != sep2 || (sep1 != '/' && sep1 != '-')) return false;
    int y, m, d;
    if (sep1 == '-' && a > 31) {
        y = a, m = b, d = c;
    } else {
        m = a, d = b, y = c;
        if (y < 100) y += y < 30 ? 2000 : 1900;
    }
    if (m < 1 || m > 12 || d < 1 || d > DaysInMonth(y, m)) return false;
    out = DateTime::FromYmd(y, m, d);
    const auto space = text.find(' ', text.find_first_not_of(' '));
    if (space != std::string::npos) {
        char ampm[3] = {0, 0, 0};
        int got = std::sscanf(text.c_str() + space, " %d:%d:%d %2s", &h, &n, &s, ampm);
        if (got < 3) {
            s = 0;
            got = std::sscanf(text.c_str() + space, " %d:%d %2s", &h, &n, ampm);
        }
        if (got >= 2) {
            if ((ampm[0] == 'P' || ampm[0] == 'p') && h < 12) h += 12;
            if ((ampm[0] == 'A' || ampm[0] == 'a') && h == 12) h = 0;
            out = DateTime(out.Serial() + (h * 3600 + n * 60 + s) / 86400.0);
        }
    }
    return true;
}

}  // namespace platform
