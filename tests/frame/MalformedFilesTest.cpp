// Each data file that start-up and the set-up screen read, malformed in the ways the disk
// and other programs leave them: the start comes through or stops with the platform's own
// error, and no other file is touched.
#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "OfficeFolder.h"
#include "frame/frmStartup.h"
#include "platform/RuntimeError.h"
#include "setup/frmSetup.h"
#include "store/SharedState.h"

using namespace platform;
using testing_support::TestFolder;

namespace {

const std::string kFolder = "<a folder>";  // a folder stands in the file's place

struct Case {
    const char* what;
    std::string bytes;
    int error;              // the run-time error the start stops with, 0 when it comes through
    std::string gone = {};  // a file the case rightly takes away
};

// Starts the program on a well-formed office in which `file` holds each case in turn.
void CheckReader(const std::string& file, const std::vector<Case>& cases,
                 const std::function<void(const Case&, TestFolder&)>& more = {}) {
    for (const auto& c : cases) {
        SCOPED_TRACE(file + ", " + c.what);
        TestFolder folder;
        for (const auto& [name, bytes] : office::WellFormedFiles()) folder.Write(name, bytes);
        // A past day that no purge of the stored day reaches.
        folder.Write("2026/Team#2/150.txt", "\"Pj140-1-Framing\"\r\n");
        std::error_code ec;
        std::filesystem::remove(folder.Path() / file, ec);
        if (c.bytes == kFolder)
            folder.MakeDirs(file);
        else
            folder.Write(file, c.bytes);
        const auto before = office::Snapshot(folder);

        EXPECT_EQ(office::StartAndOpenSetup(folder), c.error);

        const auto after = office::Snapshot(folder);
        for (const auto& [name, bytes] : before) {
            if (office::WrittenByTheStart(name)) continue;
            const auto it = after.find(name);
            if (name == c.gone)
                EXPECT_TRUE(it == after.end()) << name << " was kept";
            else
                EXPECT_TRUE(it != after.end() && it->second == bytes) << name << " was changed";
        }
        if (more) more(c, folder);
    }
}

std::string Nul(const std::string& before, const std::string& after) {
    return before + std::string(1, '\0') + after;
}

}  // namespace

TEST(MalformedFiles, PurgedDate) {
    CheckReader("PurgedDate.txt",
                {
                    {"empty", "", err::InputPastEnd},
                    {"nan", "nan\r\n", err::TypeMismatch},
                    {"inf", "inf\r\n", err::TypeMismatch},
                    {"C hexadecimal", "0x1A\r\n", err::TypeMismatch},
                    {"NUL byte", Nul("16", "0\r\n"), err::TypeMismatch},
                    {"huge", "99999999999999999999\r\n", err::Overflow},
                    {"past 16 bits", "40000\r\n", err::Overflow},
                    {"platform hexadecimal", "&HA0\r\n", 0},
                    {"two values", "160,junk\r\n", 0},
                    {"negative", "-5\r\n", 0, "2026/Team#2/150.txt"},
                    {"quoted", "\"160\"\r\n", 0},
                    {"folder", kFolder, err::PathFileAccessError, "2026/Team#2/150.txt"},
                });
}

TEST(MalformedFiles, Assignments) {
    std::string many;
    for (int i = 1; i <= 300; ++i) many += "\"Crew " + std::to_string(i) + "\",";
    CheckReader("Assignto.txt",
                {
                    {"empty", "", 0},
                    {"unclosed quote", "\"Crew A", 0},
                    {"NUL byte", Nul("\"Crew", " A\"\r\n"), 0},
                    {"nan", "nan\r\n", 0},
                    {"blank lines", "\r\n\r\n", 0},
                    {"three hundred names on one line", many, 0},
                    {"folder", kFolder, 0},
                },
                [](const Case& c, TestFolder& folder) {
                    if (std::string(c.what) == "three hundred names on one line") {
                        EXPECT_TRUE(folder.Exists("Backup/2028/Team#300"));
                    }
                });
}

TEST(MalformedFiles, ConstructionSettings) {
    CheckReader("NorvaxConstructionSchedulerSettings.txt",
                {
                    {"cut short", "8\r\n", err::InputPastEnd},
                    {"nan", "nan\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n", err::TypeMismatch},
                    {"hour past a byte", "300\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n", err::Overflow},
                    {"negative hour", "-1\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n", err::Overflow},
                    {"hour outside the day", "200\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n", 0},
                    {"unknown week", "8\r\n99\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n", 0},
                    {"flag as a word", "8\r\n5\r\n\"\"\r\n\"\"\r\nmaybe\r\n", err::TypeMismatch},
                    {"NUL bytes", Nul("8\r\n5\r\n\"", "\"\r\n\"\"\r\n#TRUE#\r\n"), 0},
                    {"one line", "8,5,\"\",\"\",#TRUE#", 0},
                    {"folder", kFolder, 0},
                },
                [](const Case&, TestFolder&) {
                    if (ProgramHasEnded()) return;
                    EXPECT_TRUE(StartHour == 7 || StartHour == 8) << int(StartHour);
                    EXPECT_TRUE(WorkWeek == 5 || WorkWeek == 61 || WorkWeek == 62 || WorkWeek == 7);
                });
}

TEST(MalformedFiles, Prompts) {
    CheckReader("Prompts.txt", {
                                   {"cut short", "#TRUE#", err::InputPastEnd},
                                   {"nan", "nan,nan\r\n", err::TypeMismatch},
                                   {"numbers", "1,0\r\n", 0},
                                   {"quoted flags", "\"#TRUE#\",#FALSE#\r\n", 0},
                                   {"empty", "", err::InputPastEnd},
                                   {"folder", kFolder, 0},
                               });
}

TEST(MalformedFiles, BusinessData) {
    CheckReader(
        "MyBusinessData.txt",
        {
            {"cut short", "\"Acme\",\"1 Main St\",\"\",\"Springfield\",\"IL\"\r\n",
             err::InputPastEnd},
            {"empty", "", err::InputPastEnd},
            {"NUL bytes", Nul("\"Ac", "me\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"), 0},
            {"nan zip", "\"Acme\",\"\",\"\",\"\",\"\",\"nan\",\"\",\"\",\"\"\r\n", 0},
            {"too many values", std::string(20, ',') + "\r\n", 0},
            {"folder", kFolder, 0},
        });
}

TEST(MalformedFiles, Characteristics) {
    CheckReader(
        "Characteristics.txt",
        {
            {"wrong field count", "\"Framing\",2,2\r\n", err::InputPastEnd},
            {"nan", "\"Framing\",nan,2,0,0\r\n", err::TypeMismatch},
            {"past 16 bits", "\"Framing\",70000,2,0,0\r\n", err::Overflow},
            {"dependency past the list", "\"Framing\",2,2,999,0\r\n", err::SubscriptOutOfRange},
            {"negative dependency", "\"Framing\",2,2,-1,0\r\n", err::SubscriptOutOfRange},
            {"quote inside a name", "\"Fr\"aming\",2,2,0,0\r\n", 0},
            {"NUL byte", Nul("\"Fra", "ming\",2,2,0,0\r\n"), 0},
            {"empty", "", 0},
            {"folder", kFolder, 0},
        });
}

TEST(MalformedFiles, LogoSettings) {
    CheckReader("LogoSettings.txt",
                {
                    {"one value", "1440\r\n", err::InputPastEnd},
                    {"nan", "nan,inf\r\n", 0},
                    {"past 16 bits", "40000,32768\r\n", 0},
                    {"huge", "1e300,1e30\r\n", 0},
                    {"past a double", "1e400,1\r\n", err::Overflow},
                    {"negative", "-5,100\r\n", err::InvalidPropertyValue},
                    {"NUL byte", Nul("14", "40,1440\r\n"), 0},
                    {"folder", kFolder, 0},
                },
                [](const Case& c, TestFolder&) {
                    if (ProgramHasEnded()) return;
                    auto& setup = Screen<frmSetup>();
                    if (std::string(c.what) == "past 16 bits" || std::string(c.what) == "huge") {
                        EXPECT_EQ(setup.Image3.Width(), 1440);
                        EXPECT_EQ(setup.Image3.Height(), 1440);
                    }
                    if (std::string(c.what) == "nan") {
                        EXPECT_EQ(setup.Image3.Width(), 0);
                    }
                });
}

TEST(MalformedFiles, PrintColors) {
    CheckReader(
        "PrintColors.txt",
        {
            {"cut short", "0\r\n0\r\n", err::InputPastEnd},
            {"nan", "nan\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n", err::TypeMismatch},
            {"past 32 bits", "1e10\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n", err::Overflow},
            {"copies past a byte", "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n300\r\n", err::Overflow},
            {"no copies", "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n0\r\n", 0},
            {"hexadecimal colour", "&HFF\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n", 0},
            {"NUL in the font", Nul("0\r\n0\r\n\"Ar", "ial\"\r\n#TRUE#\r\n3\r\n"), 0},
            {"folder", kFolder, 0},
        });
}

TEST(MalformedFiles, CompanyLogo) {
    CheckReader("CompanyLogo.txt",
                {
                    {"empty", "", err::InputPastEnd},
                    {"missing picture", "\"/no/such/picture.bmp\"\r\n", 0},
                    {"unclosed quote", "\"C:\\Logos", 0},
                    {"NUL byte", Nul("\"C:\\Lo", "gos\\acme.bmp\"\r\n"), err::BadFileNameOrNumber},
                    {"folder", kFolder, 0},
                });
}

TEST(MalformedFiles, PhoneAndCallerID) {
    CheckReader("Phone.txt", {
                                 {"cut short", "#TRUE#\r\n", err::InputPastEnd},
                                 {"nan port", "#TRUE#\r\nnan\r\n", err::TypeMismatch},
                                 {"port past 16 bits", "#TRUE#\r\n70000\r\n", err::Overflow},
                                 {"flag as a word", "yes\r\n3\r\n", err::TypeMismatch},
                                 {"folder", kFolder, 0},
                             });
    CheckReader("CallID.txt", {
                                  {"empty", "", err::InputPastEnd},
                                  {"nan", "nan\r\n", err::TypeMismatch},
                                  {"NUL byte", Nul("#TRUE", "#\r\n"), err::TypeMismatch},
                                  {"folder", kFolder, 0},
                              });
}

TEST(MalformedFiles, CustomerAccounts) {
    const std::string a100 = office::CustomerRecord("A100");
    CheckReader("CustomerData.txt",
                {
                    {"less than half a record", a100.substr(0, 100), 0},
                    {"a record and a half", a100 + a100.substr(0, 200), 0},
                    {"NUL inside an account", office::CustomerRecord(Nul("A1", "00")),
                     err::PathFileAccessError},
                    {"an account out of the folder", office::CustomerRecord("../../escape"),
                     err::PathFileAccessError},
                    {"an account naming the folder above", office::CustomerRecord(".."),
                     err::PathFileAccessError},
                    {"folder", kFolder, 0},
                },
                [](const Case&, TestFolder& folder) {
                    EXPECT_FALSE(std::filesystem::exists(folder.Path().parent_path() / "escape"));
                });
}

TEST(MalformedFiles, Meetings) {
    const std::string june20 = office::MeetingRecord("6/20/2026");
    std::string nulDate = june20;
    nulDate[33] = '\0';
    CheckReader("Meetings.txt",
                {
                    {"date that is none", office::MeetingRecord("31/31/2026"), err::TypeMismatch},
                    {"empty date", office::MeetingRecord(""), err::TypeMismatch},
                    {"NUL inside the date", nulDate, err::TypeMismatch},
                    {"cut short", june20.substr(0, 200), 0},
                    {"too short to count", june20.substr(0, 100), 0},
                    {"folder", kFolder, 0},
                },
                [&](const Case& c, TestFolder& folder) {
                    if (std::string(c.what) == "cut short") {
                        EXPECT_EQ(folder.Read("Meetings.txt"),
                                  june20.substr(0, 200) + std::string(97, '\0'));
                    }
                });
}

TEST(MalformedFiles, SubContractors) {
    const std::string ace = office::VendorRecord("Ace Plumbing", "Sub-Contractor");
    CheckReader("VendorData.txt",
                {
                    {"less than half a record", ace.substr(0, 100), 0},
                    // More than half a record counts, and this half holds the category.
                    {"a record and a half", ace + ace.substr(0, 200), 0},
                    {"NUL bytes", std::string(235, '\0'), 0},
                    {"empty", "", 0},
                    {"folder", kFolder, 0},
                },
                [](const Case& c, TestFolder&) {
                    if (std::string(c.what) == "a record and a half") {
                        EXPECT_EQ(Screen<frmSetup>().lstContacts.ListCount(), 2);
                    }
                });
}
