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
