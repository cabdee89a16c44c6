#include <gtest/gtest.h>

#include "platform/DateTime.h"
#include "platform/Numbers.h"

using namespace platform;

TEST(DateTime, SerialDaysCountFromThe30thOfDecember1899) {
    EXPECT_EQ(DateTime::FromYmd(1899, 12, 30).Serial(), 0);
    EXPECT_EQ(DateTime::FromYmd(2026, 11, 23).Serial(), 46349);
    EXPECT_EQ(DateTime::FromYmd(2026, 11, 23).Weekday(), 2);  // a Monday
    EXPECT_EQ(DateTime::FromYmd(1899, 12, 30).Weekday(), 7);
}

TEST(DateTime, DayOfYearAndLeapYears) {
    EXPECT_EQ(DatePart("y", DateTime::FromYmd(2026, 2, 3)), 34);
    EXPECT_EQ(DatePart("y", DateTime::FromYmd(2028, 12, 31)), 366);
    EXPECT_EQ(DatePart("y", DateTime::FromYmd(2026, 12, 31)), 365);
    EXPECT_EQ(DatePart("y", DateTime::FromYmd(2026, 4, 30)), 120);
}

TEST(DateTime, FormatsOfTheFixedLocale) {
    DateTime t = DateTime::FromYmdHms(2026, 3, 5, 20, 7, 0);
    EXPECT_EQ(ShortDate(t), "3/5/2026");
    EXPECT_EQ(FormatDate(t, "dddd"), "Thursday");
    EXPECT_EQ(ShortTime(t), "08:07 pm");
    EXPECT_EQ(FormatDate(t, "mmmm d, yyyy"), "March 5, 2026");
    DateTime parsed;
    ASSERT_TRUE(ParseDate("3/5/2026", parsed));
    EXPECT_EQ(parsed, t.DateOnly());
    EXPECT_EQ(DateAdd("m", 1, DateTime::FromYmd(2026, 1, 31)), DateTime::FromYmd(2026, 2, 28));
}

TEST(Numbers, CurrencyOfTheFixedLocale) {
    EXPECT_EQ(FormatCurrency(2), "$2.00");
    EXPECT_EQ(FormatCurrency(1234567.891), "$1,234,567.89");
    EXPECT_EQ(FormatCurrency(-12.5), "($12.50)");
    EXPECT_EQ(FormatCurrency(0.004), "$0.00");
}

TEST(DateTime, DateDiffCountsTheBoundariesCrossed) {
    const auto at = [](int m, int d, int h = 0, int n = 0, int s = 0) {
        return DateTime::FromYmdHms(2026, m, d, h, n, s);
    };
    const struct {
        const char* interval;
        DateTime first;
        DateTime second;
        long expected;
    } cases[] = {
        {"d", at(6, 20, 23), at(6, 21, 1), 1},  // the time of day does not count
        {"d", at(6, 21), at(6, 20), -1},
        {"y", at(1, 1), at(12, 31), 364},
        {"ww", at(6, 20), at(6, 21), 1},  // Saturday to Sunday: one Sunday passed
        {"ww", at(6, 21), at(6, 27), 0},  // Sunday to Saturday: the first day is not counted
        {"ww", at(6, 14), at(6, 28), 2},
        {"ww", at(6, 28), at(6, 20), -2},  // backwards: the same weeks, negative
        {"w", at(6, 20), at(6, 21), 0},    // whole weeks
        {"w", at(6, 1), at(6, 15), 2},
        {"m", at(1, 31), at(2, 1), 1},
        {"m", DateTime::FromYmd(2025, 12, 31), at(1, 1), 1},
        {"q", at(3, 31), at(4, 1), 1},
        {"yyyy", DateTime::FromYmd(2025, 12, 31), at(1, 1), 1},
        {"yyyy", at(1, 1), at(12, 31), 0},
        {"h", at(6, 20, 9, 59), at(6, 20, 10, 1), 1},
        {"h", at(6, 20, 23, 30), at(6, 21, 0, 10), 1},
        {"h", at(6, 20, 9, 0), at(6, 20, 9, 59), 0},
        {"n", at(6, 20, 9, 0, 59), at(6, 20, 9, 1, 0), 1},
        {"n", at(6, 20, 9, 0), at(6, 20, 8, 0), -60},
        {"s", at(6, 20, 9, 0, 0), at(6, 20, 9, 1, 1), 61},
    };
    for (const auto& c : cases)
        EXPECT_EQ(DateDiff(c.interval, c.first, c.second), c.expected)
            << c.interval << " " << ShortDate(c.first) << " " << FormatDate(c.first, "hh:nn:ss")
            << " to " << ShortDate(c.second) << " " << FormatDate(c.second, "hh:nn:ss");
}
