#include <gtest/gtest.h>

#include "platform/Files.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "support/TestFolder.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace platform;
using testing_support::ErrorOf;
using testing_support::TestFolder;

namespace {

std::string P(const std::string& rel) {
    return AppFolder() + rel;
}

}  // namespace

TEST(Files, DelimitedWriteGivesQuotedTextBareNumbersFlagsAndDates) {
    TestFolder folder;
    int n = FreeFile();
    Open(n, P("\\out.txt"), OpenMode::Output);
    WriteFields(n, {Field(8.0)});
    WriteFields(n, {Text("")});
    WriteFields(n, {Text("A, B"), Field(-1.0), Field(true), Field(false),
                    Field(DateTime::FromYmd(2026, 2, 3))});
    WriteFields(n, {Field(2.5)});
    Close(n);
    EXPECT_EQ(folder.Read("out.txt"),
              "8\r\n\"\"\r\n\"A, B\",-1,#TRUE#,#FALSE#,#2026-02-03#\r\n2.5\r\n");
}

TEST(Files, DelimitedInputReadsQuotedAndBareValues) {
    TestFolder folder;
    folder.Write("in.txt", "\"Sick Day\",7\r\nVacation Time, 12 ,#TRUE#\r\n,#2026-02-03#\r\n");
    int n = FreeFile();
    Open(n, P("/IN.TXT"), OpenMode::Input);
    EXPECT_EQ(InputString(n), "Sick Day");
    EXPECT_EQ(InputNumber(n), 7);
    EXPECT_EQ(InputString(n), "Vacation Time");
    EXPECT_EQ(InputNumber(n), 12);
    EXPECT_TRUE(InputBool(n));
    EXPECT_EQ(InputNumber(n), 0);  // an empty number reads as 0
    EXPECT_EQ(InputDate(n), DateTime::FromYmd(2026, 2, 3));
    EXPECT_TRUE(Eof(n));
    EXPECT_EQ(ErrorOf([&] { InputString(n); }), err::InputPastEnd);
    CloseAll();
}

TEST(Files, WrongTypeOrMissingFileIsTheRunTimeFailure) {
    TestFolder folder;
    folder.Write("bad.txt", "\"eight\"\r\n");
    int n = FreeFile();
    Open(n, P("/bad.txt"), OpenMode::Input);
    EXPECT_EQ(ErrorOf([&] { InputNumber(n); }), err::TypeMismatch);
    CloseAll();
    EXPECT_EQ(ErrorOf([&] { Open(FreeFile(), P("/none.txt"), OpenMode::Input); }),
              err::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { Open(FreeFile(), P("/nofolder/x.txt"), OpenMode::Output); }),
              err::PathNotFound);
}

TEST(Files, OutputReachesItsNameOnlyWhenClosed) {
    TestFolder folder;
    folder.Write("day.txt", "old\r\n");
    int n = FreeFile();
    Open(n, P("/day.txt"), OpenMode::Output);
    PrintLine(n, "new");
    EXPECT_EQ(folder.Read("day.txt"), "old\r\n");
    Close(n);
    EXPECT_EQ(folder.Read("day.txt"), "new\r\n");
    // A run-time failure drops what was not yet in place.
    Open(n, P("/day.txt"), OpenMode::Output);
    PrintLine(n, "torn");
    AbandonAll();
    EXPECT_EQ(folder.Read("day.txt"), "new\r\n");
    EXPECT_EQ(Dir(P("/*.*")).size(), 1u);
}

TEST(Files, OutputReplacesAHardLinkRatherThanWritingThroughIt) {
    TestFolder folder;
    folder.Write("a.txt", "shared\r\n");
    std::filesystem::create_hard_link(folder.Path() / "a.txt", folder.Path() / "b.txt");
    int n = FreeFile();
    Open(n, P("/a.txt"), OpenMode::Output);
    PrintLine(n, "changed");
    Close(n);
    EXPECT_EQ(folder.Read("b.txt"), "shared\r\n");
}

TEST(Files, PathsMatchWithoutRegardToCaseOrSeparator) {
    TestFolder folder;
    folder.Write("AuxFiles/A100/AuxFile0/x.txt", "1");
    EXPECT_TRUE(FileExists(P("/Auxfiles/a100\\AUXFILE0/X.txt")));
    EXPECT_TRUE(FolderExists(P("\\auxfiles")));
    EXPECT_FALSE(FileExists(P("/Auxfiles")));
    EXPECT_EQ(ErrorOf([&] { MkDir(P("/auxfiles")); }), err::PathFileAccessError);
    EXPECT_EQ(ErrorOf([&] { RmDir(P("/AUXFILES")); }), err::PathFileAccessError);  // not empty
}

TEST(Files, WildCardsListAndDelete) {
    TestFolder folder;
    folder.Write("T/1.txt", "");
    folder.Write("T/2.TXT", "");
    folder.Write("T/readme", "");
    EXPECT_EQ(Dir(P("/T/*.txt")), (std::vector<std::string>{"1.txt", "2.TXT"}));
    Kill(P("/T/*.*"));
    EXPECT_TRUE(Dir(P("/T/*.*")).empty());
    EXPECT_EQ(ErrorOf([&] { Kill(P("/T/*.*")); }), err::FileNotFound);
}

TEST(Files, RandomRecordsArePackedAndNumberedFromOne) {
    TestFolder folder;
    RecordWriter w;
    w.Text("Smith", 8);
    w.Int16(-2);
    w.Int32(70000);
    w.Date(DateTime::FromYmd(1899, 12, 31));
    w.Currency(12345678);
    ASSERT_EQ(w.Bytes().size(), 8u + 2 + 4 + 8 + 8);
    int n = FreeFile();
    Open(n, P("/rec.txt"), OpenMode::Random, 30);
    PutRecord(n, 2, w.Bytes());
    EXPECT_EQ(Lof(n), 60);
    RecordReader r(GetRecord(n, 2));
    EXPECT_EQ(r.Text(8), "Smith   ");
    EXPECT_EQ(r.Int16(), -2);
    EXPECT_EQ(r.Int32(), 70000);
    EXPECT_EQ(r.Date().Serial(), 1.0);
    EXPECT_EQ(r.Currency(), 12345678);
    CloseAll();
    std::string bytes = folder.Read("rec.txt");
    EXPECT_EQ(bytes.substr(30, 10), std::string("Smith   \xFE\xFF", 10));
    EXPECT_EQ(bytes.substr(0, 30), std::string(30, '\0'));
}

TEST(Files, NumbersReadIntoSmallVariablesOverflowPastTheirRange) {
    TestFolder folder;
    folder.Write("n.txt", "2.5\r\n255\r\n256\r\n-32769\r\n");
    int n = FreeFile();
    Open(n, P("/n.txt"), OpenMode::Input);
    EXPECT_EQ(InputByte(n), 2);  // half to even
    EXPECT_EQ(InputByte(n), 255);
    EXPECT_EQ(ErrorOf([&] { InputByte(n); }), 6);
    EXPECT_EQ(ErrorOf([&] { InputInt16(n); }), 6);
    CloseAll();
}

TEST(Files, AFileOpenForOutputIsOpenForNothingElse) {
    TestFolder folder;
    folder.Write("a.txt", "old\r\n");
    const int out = FreeFile();
    Open(out, P("/a.txt"), OpenMode::Output);
    EXPECT_EQ(ErrorOf([&] { Open(FreeFile(), P("/A.TXT"), OpenMode::Output); }),
              err::FileAlreadyOpen);
    EXPECT_EQ(ErrorOf([&] { Open(FreeFile(), P("/a.txt"), OpenMode::Input); }),
              err::FileAlreadyOpen);
    EXPECT_EQ(ErrorOf([&] { Open(FreeFile(), P("/a.txt"), OpenMode::Random, 10); }),
              err::FileAlreadyOpen);
    EXPECT_EQ(ErrorOf([&] { Open(out, P("/b.txt"), OpenMode::Output); }), err::FileAlreadyOpen);
    EXPECT_EQ(ErrorOf([&] { Kill(P("/a.txt")); }), err::PathFileAccessError);
    EXPECT_EQ(ErrorOf([&] { Name(P("/a.txt"), P("/c.txt")); }), err::PathFileAccessError);
    EXPECT_EQ(ErrorOf([&] { FileCopy(P("/a.txt"), P("/c.txt")); }), err::PermissionDenied);
    PrintLine(out, "new");
    // Until the close the file keeps what it had; its length is that before the open.
    EXPECT_EQ(FileLen(P("/a.txt")), 5);
    Close(out);
    EXPECT_EQ(folder.Read("a.txt"), "new\r\n");

    // Reading twice is allowed, but not writing what is being read.
    const int first = FreeFile();
    Open(first, P("/a.txt"), OpenMode::Input);
    const int second = FreeFile();
    Open(second, P("/a.txt"), OpenMode::Input);
    EXPECT_EQ(ErrorOf([&] { Open(FreeFile(), P("/a.txt"), OpenMode::Append); }),
              err::FileAlreadyOpen);
    CloseAll();
}

TEST(Files, ANewFileIsThereFromTheOpenAndGoesWithAFailedRun) {
    TestFolder folder;
    const int n = FreeFile();
    Open(n, P("/new.txt"), OpenMode::Output);
    EXPECT_TRUE(FileExists(P("/NEW.txt")));
    EXPECT_EQ(FileLen(P("/new.txt")), 0);
    EXPECT_EQ(Dir(P("/*.txt")), std::vector<std::string>{"new.txt"});
    // ... but the disk gets it only complete: a process that dies now leaves nothing.
    EXPECT_FALSE(folder.Exists("new.txt"));
    PrintLine(n, "line");
    AbandonAll();
    EXPECT_FALSE(folder.Exists("new.txt"));
    EXPECT_TRUE(Dir(P("/*.*")).empty());
}

TEST(Files, NoPathBuiltFromDataLeavesTheProgramFolder) {
    TestFolder folder;
    folder.MakeDirs("AuxFiles");
    const auto outside = folder.Path().parent_path() / "escape";
    for (const char* name : {"/AuxFiles/../../escape", "\\AuxFiles\\..\\..\\escape", "/../escape",
                             "/AuxFiles/./../../escape/x"}) {
        EXPECT_EQ(ErrorOf([&] { MkDir(P(name)); }), err::PathFileAccessError) << name;
        EXPECT_EQ(ErrorOf([&] { FileExists(P(name)); }), err::PathFileAccessError) << name;
        EXPECT_EQ(ErrorOf([&] { Open(FreeFile(), P(name), OpenMode::Output); }),
                  err::PathFileAccessError)
            << name;
        EXPECT_EQ(ErrorOf([&] { Kill(P(name)); }), err::PathFileAccessError) << name;
        EXPECT_EQ(ErrorOf([&] { Dir(P(name) + "/*.*"); }), err::PathFileAccessError) << name;
    }
    EXPECT_FALSE(std::filesystem::exists(outside));
    // Climbing within the folder stays allowed; a NUL byte names no file.
    MkDir(P("/AuxFiles/../Inside"));
    EXPECT_TRUE(folder.Exists("Inside"));
    EXPECT_EQ(ErrorOf([&] { MkDir(P(std::string("/a\0b", 4))); }), err::BadFileNameOrNumber);
    EXPECT_EQ(OpenFileCount(), 0);
}

TEST(Files, AReadOnlyFileIsNeitherReplacedNorDeleted) {
    TestFolder folder;
    folder.Write("data.txt", "kept\r\n");
    folder.Write("other.txt", "x");
    std::filesystem::permissions(
        folder.Path() / "data.txt",
        std::filesystem::perms::owner_read | std::filesystem::perms::group_read);
    EXPECT_EQ(ErrorOf([&] { Open(FreeFile(), P("/data.txt"), OpenMode::Output); }),
              err::PermissionDenied);
    EXPECT_EQ(ErrorOf([&] { Open(FreeFile(), P("/data.txt"), OpenMode::Append); }),
              err::PermissionDenied);
    EXPECT_EQ(ErrorOf([&] { Open(FreeFile(), P("/data.txt"), OpenMode::Random, 4); }),
              err::PermissionDenied);
    EXPECT_EQ(ErrorOf([&] { Kill(P("/data.txt")); }), err::PermissionDenied);
    EXPECT_EQ(ErrorOf([&] { FileCopy(P("/other.txt"), P("/data.txt")); }), err::PermissionDenied);
    EXPECT_EQ(folder.Read("data.txt"), "kept\r\n");
    // Reading it is allowed.
    const int n = FreeFile();
    Open(n, P("/data.txt"), OpenMode::Input);
    EXPECT_EQ(InputString(n), "kept");
    CloseAll();
}

TEST(Files, AFileThatMayNotBeReadIsPermissionDenied) {
    if (::geteuid() == 0) GTEST_SKIP() << "the superuser may read any file";
    TestFolder folder;
    folder.Write("secret.txt", "x");
    std::filesystem::permissions(folder.Path() / "secret.txt", std::filesystem::perms::none);
    EXPECT_EQ(ErrorOf([&] { Open(FreeFile(), P("/secret.txt"), OpenMode::Input); }),
              err::PermissionDenied);
}

TEST(Files, OnlyRegularFilesAreReadOrWritten) {
    TestFolder folder;
    folder.MakeDirs("T/1.txt");
    ASSERT_EQ(::mkfifo((folder.Path() / "T/2.txt").c_str(), 0666), 0);
    for (const char* name : {"/T/1.txt", "/T/2.txt"}) {
        for (OpenMode mode :
             {OpenMode::Input, OpenMode::Output, OpenMode::Append, OpenMode::Random})
            EXPECT_EQ(ErrorOf([&] { Open(FreeFile(), P(name), mode); }), err::PathFileAccessError)
                << name;
        EXPECT_FALSE(FileExists(P(name)));
        EXPECT_EQ(ErrorOf([&] { FileCopy(P("/T"), P(name)); }), err::FileNotFound);
    }
    folder.Write("a.txt", "a");
    EXPECT_EQ(ErrorOf([&] { FileCopy(P("/a.txt"), P("/T/2.txt")); }), err::PathFileAccessError);
    EXPECT_EQ(OpenFileCount(), 0);
}

TEST(Files, FoldersTheProgramMakesAreKnownWithoutListingThemAgain) {
    TestFolder folder;
    folder.MakeDirs("2026");
    const long before = FolderScans();
    for (int n = 1; n <= 200; ++n) {
        const std::string team = P("/2026/Team#" + std::to_string(n));
        if (!FolderExists(team)) MkDir(team);
    }
    EXPECT_LE(FolderScans() - before, 2);
    // A name made by someone else is still seen, in any spelling.
    folder.MakeDirs("2026/Extra");
    EXPECT_TRUE(FolderExists(P("/2026/EXTRA")));
    EXPECT_TRUE(FolderExists(P("/2026/team#200")));
    RmDir(P("/2026/TEAM#200"));
    EXPECT_FALSE(FolderExists(P("/2026/team#200")));
    Name(P("/2026/team#199"), P("/2026/Team#300"));
    EXPECT_TRUE(FolderExists(P("/2026/TEAM#300")));
    EXPECT_FALSE(FolderExists(P("/2026/TEAM#199")));
}
