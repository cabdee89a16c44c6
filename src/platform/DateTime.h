#pragma once

#include <cstdint>
#include <string>

namespace platform {

// A date and time as the platform keeps it: days since 30 December 1899, the fraction
// being the time of day. Whole dates have no fraction.
class DateTime {
  public:
    DateTime() = default;
    explicit DateTime(double serial) : serial_(serial) {}
    static DateTime FromYmd(int year, int month, int day);
    static DateTime FromYmdHms(int year, int month, int day, int hour, int minute, int second);

    double Serial() const { return serial_; }
    std::int32_t DayNumber() const;  // whole days since 30 December 1899
    DateTime DateOnly() const;

    int Year() const;
    int Month() const;
    int Day() const;
    int Hour() const;
    int Minute() const;
    int Second() const;
    int DayOfYear() const;  // 1 to 366
    int Weekday() const;    // 1 = Sunday to 7 = Saturday

    DateTime AddDays(int days) const { return DateTime(serial_ + days); }

    friend bool operator==(DateTime a, DateTime b) { return a.serial_ == b.serial_; }
    friend auto operator<=>(DateTime a, DateTime b) { return a.serial_ <=> b.serial_; }

  private:
    double serial_ = 0;
};

bool IsLeapYear(int year);
int DaysInMonth(int year, int month);

// Date services of the one fixed locale (United States English).
int DatePart(const std::string& interval,
             DateTime date);  // "yyyy", "q", "m", "y", "d", "w", "h", "n", "s"
DateTime DateAdd(const std::string& interval, int number,
                 DateTime date);  // "yyyy", "q", "m", "d", "w", "ww", "h", "n", "s"
// The boundaries crossed from the first date to the second: "ww" counts the Sundays after
// the first up to the second, "h" and "n" the whole hours and minutes of the clock.
long DateDiff(const std::string& interval, DateTime first,
              DateTime second);        // "yyyy", "q", "m", "d", "y", "w", "ww", "h", "n", "s"
std::string ShortDate(DateTime date);  // M/d/yyyy
std::string LongTime(DateTime date);   // h:mm:ss AM
std::string ShortTime(DateTime date);  // hh:mm am/pm
std::string WeekdayName(int weekday);  // 1 = "Sunday"
std::string MonthName(int month);      // 1 = "January"
std::string FormatDate(DateTime date,
                       const std::string& pattern);      // d, dd, ddd, dddd, m, mm, mmm, mmmm, yy,
                                                         // yyyy, h, hh, nn, ss, am/pm
bool ParseDate(const std::string& text, DateTime& out);  // M/d/yyyy, yyyy-mm-dd, with optional time

}  // namespace platform
