#include <gtest/gtest.h>

#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "schedule/SchedulerRoutines.h"
#include "schedule/Teams.h"
#include "store/SharedState.h"
#include "support/TestFolder.h"

#include <sys/stat.h>

using namespace platform;
using testing_support::TestFolder;

namespace {

class DayFiles : public ::testing::Test {
  protected:
    void SetUp() override {
        StartHour = 8;
        WorkWeek = 5;
        CurrentTeam = "1";
        folder.MakeDirs("2026/Team#1");
        folder.MakeDirs("2027");
    }
    TestFolder folder;
};

std::string Lines(std::initializer_list<std::string> slots) {
    std::string out;
    for (const auto& s : slots) out += "\"" + s + "\"\r\n";
    return out;
}

}  // namespace

TEST_F(DayFiles, ADayWithoutAFileIsFreeAndWritesBackAsTwelveQuotedLines) {
    const DateTime feb3 = DateTime::FromYmd(2026, 2, 3);
    ReadDay(feb3, "1");
    for (int i = 1; i <= 12; ++i) EXPECT_EQ(DaySlots[i], "No Event Scheduled");
    std::int16_t conflict = 0;
    CheckDayFree(feb3, conflict);
    EXPECT_EQ(conflict, 0);
    EXPECT_FALSE(folder.Exists("2026/Team#1/34.txt"));
    WriteDay(feb3, "1");
    EXPECT_EQ(folder.Read("2026/Team#1/34.txt"), testing_support::FreeDayBytes());
    EXPECT_EQ(OpenFileCount(), 0);
}

TEST_F(DayFiles, ShortFilesAndBareBlockedDayLinesReadBack) {
    folder.Write("2026/Team#1/34.txt", "\"Pj12-1-Framing\"\r\n\"Pj12-1-Framing\"\r\n");
    ReadDay(DateTime::FromYmd(2026, 2, 3), "1");
    EXPECT_EQ(DaySlots[2], "Pj12-1-Framing");
    EXPECT_EQ(DaySlots[3], "No Event Scheduled");
    std::string blocked;
    for (int i = 0; i < 12; ++i) blocked += "Sick Day\r\n";
    folder.Write("2026/Team#1/35.txt", blocked);
    ReadDay(DateTime::FromYmd(2026, 2, 4), "1");
    EXPECT_EQ(DaySlots[12], "Sick Day");
    folder.Write("2026/Team#1/36.txt", "Vacation, paid\r\n");
    ReadDay(DateTime::FromYmd(2026, 2, 5), "1");
    EXPECT_EQ(DaySlots[1], "Vacation");  // the reader stops at a comma
}

TEST_F(DayFiles, TheRawReaderFillsSlotsZeroToElevenAndFailsOnAShortFile) {
    std::string blocked;
    for (int i = 1; i <= 12; ++i) blocked += "Holiday" + std::to_string(i) + "\r\n";
    folder.Write("2026/Team#1/34.txt", blocked);
    BuildDayPath(DateTime::FromYmd(2026, 2, 3), "1");
    ReadDayRaw();
    EXPECT_EQ(DaySlots[0], "Holiday1");
    EXPECT_EQ(DaySlots[11], "Holiday12");
    folder.Write("2026/Team#1/34.txt", "\"Holiday\"\r\n");
    try {
        ReadDayRaw();
        FAIL() << "a cut-short day must be the run-time failure";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.Number(), err::InputPastEnd);
    }
    CloseAll();
}

TEST_F(DayFiles, OnlyTheWorkingBlockMakesADayBusy) {
    const DateTime day = DateTime::FromYmd(2026, 2, 3);
    auto busyWith = [&](int slot) {
        ClearDaySlots();
        DaySlots[slot] = "Pj1-1-Meeting";
        WriteDay(day, "1");
        std::int16_t conflict = 0;
        CheckDayFree(day, conflict);
        return conflict == -1;
    };
    StartHour = 8;
    EXPECT_FALSE(busyWith(2));
    EXPECT_FALSE(busyWith(11));
    EXPECT_TRUE(busyWith(3));
    EXPECT_TRUE(busyWith(10));
    StartHour = 7;
    EXPECT_FALSE(busyWith(10));
    EXPECT_TRUE(busyWith(2));
    // An empty slot counts as free too.
    folder.Write("2026/Team#1/34.txt", Lines({"", "", "", "", "", "", "", "", "", "", "", ""}));
    std::int16_t conflict = 0;
    CheckDayFree(day, conflict);
    EXPECT_EQ(conflict, 0);
}

TEST_F(DayFiles, WholeDayEventsFillTheWorkingBlockOnConsecutiveWorkdays) {
    DateTime date = DateTime::FromYmd(2026, 2, 6);  // a Friday
    ReadDay(DateTime::FromYmd(2026, 2, 9), "1");
    DaySlots[1] = "Early call";
    WriteDay(DateTime::FromYmd(2026, 2, 9), "1");
    WriteDays(date, 2, "Pj37-1-Framing");
    EXPECT_EQ(date, DateTime::FromYmd(2026, 2, 10));  // left on the Tuesday
    EXPECT_TRUE(folder.Exists("2026/Team#1/37.txt"));
    EXPECT_FALSE(folder.Exists("2026/Team#1/38.txt"));
    EXPECT_EQ(
        folder.Read("2026/Team#1/37.txt"),
        Lines({"No Event Scheduled", "No Event Scheduled", "Pj37-1-Framing", "Pj37-1-Framing",
               "Pj37-1-Framing", "Pj37-1-Framing", "Pj37-1-Framing", "Pj37-1-Framing",
               "Pj37-1-Framing", "Pj37-1-Framing", "No Event Scheduled", "No Event Scheduled"}));
    ReadDay(DateTime::FromYmd(2026, 2, 9), "1");
    EXPECT_EQ(DaySlots[1], "Early call");  // outside the block, kept
    EXPECT_EQ(DaySlots[3], "Pj37-1-Framing");
}

TEST_F(DayFiles, DaysAcrossTheYearEndGoIntoTheNextYearsFolder) {
    folder.MakeDirs("2028");
    ReadDay(DateTime::FromYmd(2028, 12, 31), "2");
    WriteDay(DateTime::FromYmd(2028, 12, 31), "2");
    EXPECT_TRUE(folder.Exists("2028/Team#2/366.txt"));
    DateTime date = DateTime::FromYmd(2026, 12, 31);  // a Thursday
    WriteDays(date, 3, "Pj365-1-Roof");
    EXPECT_TRUE(folder.Exists("2026/Team#1/365.txt"));
    EXPECT_TRUE(folder.Exists("2027/Team#1/1.txt"));
    EXPECT_TRUE(folder.Exists("2027/Team#1/4.txt"));  // Monday 4 January
    // Without the year folder the team folder cannot be made: the platform's error.
    EXPECT_THROW(ReadDay(DateTime::FromYmd(2029, 1, 2), "1"), RuntimeError);
}

TEST_F(DayFiles, TeamsComeFromAssigntoAndGetTheirFolders) {
    LoadAssignments();
    EXPECT_EQ(TeamNames, std::vector<std::string>{"empty"});
    folder.Write("Assignto.txt", "\"Crew A\"\r\n\"Crew B\"\r\n");
    LoadAssignments();
    EXPECT_EQ(TeamNames, (std::vector<std::string>{"populated", "Crew A", "Crew B"}));
    MakeYearTree("2027");
    folder.MakeDirs("Backup");
    EXPECT_TRUE(folder.Exists("2027/Team#2"));
    BuildBackupYearFolders();
    EXPECT_TRUE(folder.Exists("Backup/2028/Team#1"));
    EXPECT_FALSE(folder.Exists("Backup/2029"));
    folder.Write("Assignto.txt", "");
    LoadAssignments();
    EXPECT_EQ(TeamNames, std::vector<std::string>{"populated"});
}

TEST_F(DayFiles, HourLabelsSkipNoon) {
    EXPECT_EQ(HourLabelShown(1), "06:00am");
    EXPECT_EQ(HourLabelShown(6), "11:00am");
    EXPECT_EQ(HourLabelShown(7), "01:00pm");
    EXPECT_EQ(HourLabelShown(12), "06:00pm");
}

TEST_F(DayFiles, MalformedDayFilesReadWithoutHarm) {
    const DateTime feb3 = DateTime::FromYmd(2026, 2, 3);
    const std::string kFolder = "<a folder>";
    const std::string kPipe = "<a pipe>";
    std::string fourteen;
    for (int i = 1; i <= 14; ++i) fourteen += "\"Slot " + std::to_string(i) + "\"\r\n";
    const struct {
        const char* what;
        std::string bytes;
        std::string slot1;  // what the first slot reads
        std::string slot12;
        int rawError;  // what the blocked days' raw reader meets
    } cases[] = {
        {"cut short", "\"Pj1-1-Framing\"\r\n\"Pj1", "Pj1-1-Framing", kFreeSlot, err::InputPastEnd},
        {"fourteen lines", fourteen, "Slot 1", "Slot 12", 0},
        {"NUL bytes", std::string("\"Sick\0Day\"\r\n", 12), std::string("Sick\0Day", 8), kFreeSlot,
         err::InputPastEnd},
        {"unclosed quote", "\"Vacation", "Vacation", kFreeSlot, err::InputPastEnd},
        {"nan", "nan\r\n", "nan", kFreeSlot, err::InputPastEnd},
        {"empty", "", kFreeSlot, kFreeSlot, err::InputPastEnd},
        {"one long line", std::string(1 << 20, 'x'), std::string(1 << 20, 'x'), kFreeSlot,
         err::InputPastEnd},
        {"folder", kFolder, kFreeSlot, kFreeSlot, err::PathFileAccessError},
        {"pipe", kPipe, kFreeSlot, kFreeSlot, err::PathFileAccessError},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const auto path = folder.Path() / "2026/Team#1/34.txt";
        std::filesystem::remove_all(path);
        if (c.bytes == kFolder)
            folder.MakeDirs("2026/Team#1/34.txt");
        else if (c.bytes == kPipe)
            ASSERT_EQ(::mkfifo(path.c_str(), 0666), 0);
        else
            folder.Write("2026/Team#1/34.txt", c.bytes);
        // Nothing waits on a pipe, and a day that is not a file is a free day.
        ReadDay(feb3, "1");
        EXPECT_EQ(DaySlots[1], c.slot1);
        EXPECT_EQ(DaySlots[12], c.slot12);
        EXPECT_EQ(OpenFileCount(), 0);
        int error = 0;
        try {
            ReadDayRaw();
        } catch (const RuntimeError& e) {
            error = e.Number();
        }
        EXPECT_EQ(error, c.rawError);
        AbandonAll();
    }
}

TEST_F(DayFiles, AStartHourOutsideTheDayIsARunTimeFailureNotAStrayRead) {
    StartHour = 200;
    std::int16_t conflict = 0;
    int error = 0;
    try {
        CheckDayFree(DateTime::FromYmd(2026, 2, 3), conflict);
    } catch (const RuntimeError& e) {
        error = e.Number();
    }
    EXPECT_EQ(error, err::SubscriptOutOfRange);
    EXPECT_EQ(conflict, 0);
}
