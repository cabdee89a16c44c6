#include <gtest/gtest.h>

#include "schedule/Workdays.h"
#include "store/SharedState.h"
#include "support/TestFolder.h"

using namespace platform;
using testing_support::TestFolder;

namespace {
const DateTime kFriday = DateTime::FromYmd(2026, 6, 19);
const DateTime kSaturday = kFriday.AddDays(1);
const DateTime kSunday = kFriday.AddDays(2);
const DateTime kMonday = kFriday.AddDays(3);

DateTime Next(int code, DateTime d) {
    WorkWeek = static_cast<std::uint8_t>(code);
    return NextWorkday(d);
}
}  // namespace

TEST(Workdays, EachWeekCodeMovesOnlyItsDaysOff) {
    EXPECT_EQ(Next(5, kSaturday), kMonday);
    EXPECT_EQ(Next(5, kSunday), kMonday);
    EXPECT_EQ(Next(5, kMonday), kMonday);
    EXPECT_EQ(Next(61, kSaturday), kSaturday);
    EXPECT_EQ(Next(61, kSunday), kMonday);
    EXPECT_EQ(Next(62, kSaturday), kSunday);
    EXPECT_EQ(Next(62, kSunday), kSunday);
    EXPECT_EQ(Next(7, kSaturday), kSaturday);
    EXPECT_EQ(Next(6, kSaturday), kSaturday);  // an unknown code moves nothing
    DateTime inPlace = kSaturday;
    WorkWeek = 5;
    NextWorkday(inPlace);
    EXPECT_EQ(inPlace, kMonday);
}

TEST(Workdays, TheDefaultStartIsTomorrowFromEightInTheEvening) {
    TestFolder folder(DateTime::FromYmdHms(2026, 6, 19, 19, 59, 0));
    EXPECT_EQ(DefaultStartDate(), kFriday);
    folder.SetNow(DateTime::FromYmdHms(2026, 6, 19, 20, 0, 0));
    EXPECT_EQ(DefaultStartDate(), kSaturday);
}

TEST(Workdays, TheSpinnerStopsAtTheEndOfTheFiveWorkingDays) {
    TestFolder folder(DateTime::FromYmdHms(2026, 6, 15, 9, 0, 0));
    const DateTime max = DateTime::FromYmd(2028, 6, 15);
    EXPECT_EQ(SpinDateUp(kFriday, max, WeekOptionsOf(5)), kMonday);
    EXPECT_EQ(SpinDateUp(kFriday, max, WeekOptionsOf(61)), kFriday);
    EXPECT_EQ(SpinDateUp(kFriday, max, WeekOptionsOf(7)), kFriday);
    EXPECT_EQ(SpinDateUp(kMonday, max, WeekOptionsOf(5)), kMonday.AddDays(1));
    EXPECT_EQ(SpinDateDown(kMonday, WeekOptionsOf(5)), kFriday);
    EXPECT_EQ(SpinDateDown(kMonday, WeekOptionsOf(62)), kMonday);
    EXPECT_TRUE(folder.Ui().Boxes().empty());
    EXPECT_EQ(SpinDateUp(max, max, WeekOptionsOf(5)), max);
    ASSERT_EQ(folder.Ui().Boxes().size(), 1u);
    EXPECT_EQ(folder.Ui().Boxes()[0].prompt, "Date cannot be more than Two Years");
    EXPECT_EQ(folder.Ui().Boxes()[0].title, "Invalid date");
    EXPECT_EQ(SpinDateDown(DateTime::FromYmd(2026, 6, 15), WeekOptionsOf(5)),
              DateTime::FromYmd(2026, 6, 15));
    EXPECT_EQ(folder.Ui().Boxes()[1].prompt, "Date cannot be before Today");
}

TEST(Workdays, TheSpinnerNeverStepsOverTheWeekendOutOfTheCalendarsRange) {
    // A Saturday: the calendar opens on Monday; back over the weekend lies yesterday.
    TestFolder folder(DateTime::FromYmdHms(2026, 6, 20, 10, 0, 0));
    EXPECT_EQ(SpinDateDown(kMonday, WeekOptionsOf(5)), kSaturday);
    ASSERT_EQ(folder.Ui().Boxes().size(), 1u);
    EXPECT_EQ(folder.Ui().Boxes()[0].prompt, "Date cannot be before Today");
    // Forward over a weekend past the last date the calendar takes.
    EXPECT_EQ(SpinDateUp(kFriday, kSunday, WeekOptionsOf(5)), kFriday);
    EXPECT_EQ(folder.Ui().Boxes()[1].prompt, "Date cannot be more than Two Years");
}
