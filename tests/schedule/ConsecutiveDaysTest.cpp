#include <gtest/gtest.h>

#include "platform/Files.h"
#include "schedule/SchedulerRoutines.h"
#include "store/SharedState.h"
#include "support/TestFolder.h"

using namespace platform;
using testing_support::TestFolder;

namespace {

class ConsecutiveDays : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetDayState();
        StartHour = 8;
        WorkWeek = 5;
        CurrentTeam = "1";
        folder.MakeDirs("2026/Team#1");
        folder.MakeDirs("2026/Team#2");
    }
    void Busy(DateTime day, const std::string& team = "1") {
        std::string lines;
        for (int i = 0; i < 12; ++i) lines += "\"Vacation\"\r\n";
        folder.Write("2026/Team#" + team + "/" + std::to_string(day.DayOfYear()) + ".txt", lines);
    }
    TestFolder folder;
};

}  // namespace

TEST_F(ConsecutiveDays, AFreeRunLeavesTheDateOnItsLastWorkday) {
    DateTime date = DateTime::FromYmd(2026, 2, 5);  // a Thursday
    std::int16_t conflict = 0;
    CheckConsecutiveDays(date, 3, conflict);
    EXPECT_EQ(conflict, 0);
    EXPECT_EQ(date, DateTime::FromYmd(2026, 2, 9));  // Thursday, Friday, Monday
    EXPECT_EQ(ScanCount(), 0);
}

TEST_F(ConsecutiveDays, ABusyDayStartsTheSearchAgainBehindIt) {
    Busy(DateTime::FromYmd(2026, 2, 6));  // the Friday
    DateTime date = DateTime::FromYmd(2026, 2, 5);
    std::int16_t conflict = 0;
    CheckConsecutiveDays(date, 2, conflict);
    EXPECT_EQ(conflict, 0);
    EXPECT_EQ(date, DateTime::FromYmd(2026, 2, 10));  // Monday and Tuesday
    EXPECT_EQ(ScanCount(), 1);
    // Another team's busy day is not looked at.
    Busy(DateTime::FromYmd(2026, 2, 11), "2");
    date = DateTime::FromYmd(2026, 2, 11);
    CheckConsecutiveDays(date, 1, conflict);
    EXPECT_EQ(conflict, 0);
    EXPECT_EQ(ScanCount(), 1);
}

// The count of busy days runs over the whole program: the first search through a full
// calendar still succeeds, and from then on every search fails at its first busy day.
TEST_F(ConsecutiveDays, AFullCalendarFailsOnlyOnceSixtyBusyDaysWereCountedInAllSearches) {
    for (int d = 0; d < 120; ++d) Busy(DateTime::FromYmd(2026, 3, 2).AddDays(d));
    DateTime date = DateTime::FromYmd(2026, 3, 2);
    std::int16_t conflict = 0;
    CheckConsecutiveDays(date, 90, conflict);
    EXPECT_EQ(conflict, 0);
    EXPECT_EQ(ScanCount(), 60);

    date = DateTime::FromYmd(2026, 3, 2);
    CheckConsecutiveDays(date, 1, conflict);
    EXPECT_EQ(conflict, -1);
    EXPECT_EQ(ScanCount(), 61);

    // A search that meets no busy day still succeeds.
    CurrentTeam = "2";
    date = DateTime::FromYmd(2026, 3, 2);
    conflict = 0;
    CheckConsecutiveDays(date, 90, conflict);
    EXPECT_EQ(conflict, 0);
    EXPECT_EQ(ScanCount(), 61);
    EXPECT_EQ(OpenFileCount(), 0);
}
