// The CSV files saved for spreadsheets: what a spreadsheet needs to read them back field for
// field, and the Windows-1252 texts of the data files arriving as the same letters.
#include <gtest/gtest.h>

#include <filesystem>

#include "store/CsvFile.h"
#include "support/TestFolder.h"

namespace {

const std::string kMark = "\xEF\xBB\xBF";

TEST(CsvFile, FieldsAreQuotedOnlyWhenTheyMustBe) {
    EXPECT_EQ(CsvField("Acme Builders"), "Acme Builders");
    EXPECT_EQ(CsvField(""), "");
    EXPECT_EQ(CsvField("Smith, John"), "\"Smith, John\"");
    EXPECT_EQ(CsvField("The \"Big\" Job"), "\"The \"\"Big\"\" Job\"");
    EXPECT_EQ(CsvField("\""), "\"\"\"\"");
    EXPECT_EQ(CsvField("line one\r\nline two"), "\"line one\r\nline two\"");
    EXPECT_EQ(CsvField("lone\nfeed"), "\"lone\nfeed\"");
    // Leading blanks and a leading zero stay as they are.
    EXPECT_EQ(CsvField("  007"), "  007");
}

TEST(CsvFile, Windows1252TextBecomesUtf8) {
    // é, the euro sign, curly quotes and ß of the code page.
    EXPECT_EQ(CsvField("Caf\xE9"), "Caf\xC3\xA9");
    EXPECT_EQ(CsvField("\x80 5"), "\xE2\x82\xAC 5");
    EXPECT_EQ(CsvField("\x93Stra\xDF"
                       "e\x94"),
              "\xE2\x80\x9CStra\xC3\x9F"
              "e\xE2\x80\x9D");
    // A byte the code page leaves unused cannot be carried over.
    EXPECT_EQ(CsvField("a\x81"
                       "b"),
              "a?b");
}

TEST(CsvFile, ATableIsTheMarkTheHeaderAndOneLineARow) {
    EXPECT_EQ(CsvTable({"Account No", "Name"}, {}), kMark + "Account No,Name\r\n");
    EXPECT_EQ(
        CsvTable({"No", "Name", "City"}, {{"A1", "Smith, John", "Z\xFCrich"}, {"A2", "", ""}}),
        kMark + "No,Name,City\r\nA1,\"Smith, John\",Z\xC3\xBCrich\r\nA2,,\r\n");
}

TEST(CsvFile, SavingWritesTheWholeFileOrNothing) {
    testing_support::TestFolder folder;
    const std::string path = (folder.Path() / "list.csv").string();
    ASSERT_TRUE(SaveExportFile(path, "a,b\r\n"));
    EXPECT_EQ(folder.Read("list.csv"), "a,b\r\n");
    ASSERT_TRUE(SaveExportFile(path, "c\r\n"));
    EXPECT_EQ(folder.Read("list.csv"), "c\r\n");
    EXPECT_FALSE(folder.Exists("list.csv.part"));

    // A folder where the file should go, and a folder that does not exist.
    folder.MakeDirs("taken.csv");
    EXPECT_FALSE(SaveExportFile((folder.Path() / "taken.csv").string(), "x"));
    EXPECT_FALSE(folder.Exists("taken.csv.part"));
    EXPECT_FALSE(SaveExportFile((folder.Path() / "missing" / "x.csv").string(), "x"));
}

}  // namespace
