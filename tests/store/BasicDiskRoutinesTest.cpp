#include <gtest/gtest.h>

#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "store/BasicDiskRoutines.h"
#include "support/TestFolder.h"

using namespace platform;
using testing_support::TestFolder;

TEST(BasicDiskRoutines, AFileMissingHereIsRestoredFromBackupAndRead) {
    TestFolder folder;
    folder.Write("Backup/Assignto.txt", "\"Crew A\"\r\n");
    EXPECT_TRUE(FindFile("\\Assignto.txt"));
    EXPECT_EQ(folder.Read("Assignto.txt"), "\"Crew A\"\r\n");
    OpenForInput("/assignto.TXT");  // another spelling finds the same file
    EXPECT_EQ(InputString(MainFileNo), "Crew A");
    CloseAll();
    EXPECT_FALSE(FindFile("/Nothing.txt"));
    EXPECT_FALSE(folder.Exists("Nothing.txt"));
    folder.MakeDirs("Backup/Folder.txt");
    EXPECT_FALSE(FindFile("/Folder.txt"));  // folders are never found
}

TEST(BasicDiskRoutines, CountRecordsRoundsHalvesToEven) {
    TestFolder folder;
    auto count = [&](size_t bytes) {
        folder.Write("CustomerData.txt", std::string(bytes, 'x'));
        return CountRecords("/CustomerData.txt", 328);
    };
    EXPECT_EQ(count(0), 0);
    EXPECT_EQ(count(328), 1);
    EXPECT_EQ(count(492), 2);  // 1.5
    EXPECT_EQ(count(164), 0);  // 0.5
    EXPECT_EQ(count(820), 2);  // 2.5
    EXPECT_EQ(count(500), 2);  // a partial record over half long counts
    EXPECT_EQ(CountRecords("/None.txt", 328), 0);
}

TEST(BasicDiskRoutines, DeleteEverywhereAndReplaceLeaveNoBackupCopy) {
    TestFolder folder;
    folder.Write("Backup/Meetings.txt", "old");
    DeleteEverywhere("/Meetings.txt");
    EXPECT_FALSE(FindFile("\\Meetings.txt"));

    folder.Write("Meetings.txt", std::string(297 * 2, 'm'));
    folder.Write("Backup/Meetings.txt", "backup");
    OpenRandom("/Meetings.txt", 297);
    const int source = MainFileNo;
    OpenTemporaryFile(297);
    PutRecord(TempFileNo, 1, GetRecord(source, 2));
    CloseAll();
    ReplaceWithTemporary("/Meetings.txt");
    EXPECT_EQ(folder.Read("Meetings.txt"), std::string(297, 'm'));
    EXPECT_FALSE(folder.Exists("Backup/Meetings.txt"));
    EXPECT_FALSE(folder.Exists("TemporaryFile.txt"));
}

TEST(BasicDiskRoutines, OnlyAppendAndDeleteCloseOtherFiles) {
    TestFolder folder;
    folder.Write("a.txt", "1\r\n");
    OpenForInput("/a.txt");
    OpenRandom("/r.txt", 10);
    EXPECT_EQ(OpenFileCount(), 2);
    OpenForAppend("/a.txt");
    EXPECT_EQ(OpenFileCount(), 1);
    WriteFields(MainFileNo, {Field(2.0)});
    DeleteFile("/nothing*.txt");
    EXPECT_EQ(OpenFileCount(), 0);
    EXPECT_EQ(folder.Read("a.txt"), "1\r\n2\r\n");
}

TEST(BasicDiskRoutines, TheExitBackupCopiesItsElevenFilesAndNothingElse) {
    TestFolder folder;
    folder.MakeDirs("Backup");
    folder.Write("CustomerData.txt", "new");
    folder.Write("Backup/CustomerData.txt", "old");
    folder.Write("SpeedNumbers.txt", "s");
    folder.Write("Backup/Phone.txt", "kept");   // missing here: the old copy stays
    folder.Write("Assignto.txt", "\"A\"\r\n");  // not one of the eleven
    BackupDataFiles();
    EXPECT_EQ(folder.Read("Backup/CustomerData.txt"), "new");
    EXPECT_EQ(folder.Read("Backup/SpeedNumbers.txt"), "s");
    EXPECT_EQ(folder.Read("Backup/Phone.txt"), "kept");
    EXPECT_FALSE(folder.Exists("Backup/Assignto.txt"));
}

TEST(BasicDiskRoutines, MakeFolderNeedsItsParent) {
    TestFolder folder;
    MakeFolder("/Documents");
    MakeFolder("/Documents");  // harmless when it exists
    EXPECT_TRUE(folder.Exists("Documents"));
    EXPECT_THROW(MakeFolder("/No/Such"), RuntimeError);
}
