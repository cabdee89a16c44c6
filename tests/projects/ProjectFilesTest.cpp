#include <gtest/gtest.h>

#include <functional>

#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "projects/ProjectFiles.h"
#include "projects/ProjectNumbers.h"
#include "projects/ProjectRecord.h"
#include "store/BasicDiskRoutines.h"
#include "support/TestFolder.h"

using namespace platform;
using testing_support::TestFolder;

namespace {

// 15 June 2026 is day 166.
class ProjectFilesTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetProjectNumbers();
        folder.MakeDirs("ConstructionProjects");
    }
    TestFolder folder;
};

ProjectHeader SampleHeader() {
    ProjectHeader h;
    h.projectNo = "Pj166-3";
    h.title = "New Installation";
    h.account = "A1001";
    h.proposalNo = "Proposal Number";
    h.billingName = "Mary Smith";
    h.billingAddress1 = "12 Oak St";
    h.billingCity = "Springfield";
    h.billingState = "IL";
    h.billingZip = "62701";
    h.billingTelephone = "217-555-0100";
    h.siteName = "Smith Cottage";
    h.siteAddress1 = "40 Lake Rd";
    h.siteAddress2 = "Unit 2";
    h.siteCity = "Lakeside";
    h.siteState = "IL";
    h.siteZip = "62702";
    h.siteTelephone = "217-555-0199";
    h.milestoneCount = 3;
    return h;
}

std::vector<Milestone> SampleMilestones() {
    Milestone permit{"Permit Application",
                     1,
                     DateTime::FromYmd(2026, 6, 15),
                     1,
                     0,
                     0,
                     "",
                     "Office",
                     "",
                     "",
                     "",
                     kScheduledStatus,
                     kNotCompleted};
    Milestone framing{"Framing",
                      2,
                      DateTime::FromYmd(2026, 6, 16),
                      2,
                      1,
                      2,
                      "1",
                      "On Site",
                      "3",
                      "2",
                      "Days",
                      kScheduledStatus,
                      kNotCompleted};
    Milestone wiring{"Electrical Rough-in and Inspection Walkthrough",
                     2,
                     DateTime::FromYmd(2026, 6, 19),
                     2,
                     2,
                     0,
                     "2",
                     "Office/Shop",
                     "4",
                     "3",
                     "Hours",
                     kScheduledStatus,
                     kNotCompleted};
    return {permit, framing, wiring};
}

// A record spelled out field by field, as the sibling programs read it.
std::string Padded(const std::string& text, size_t length) {
    std::string out = text.substr(0, length);
    out.resize(length, ' ');
    return out;
}

std::string ExpectedRecord(const std::string& team, const std::string& mode,
                           const std::string& time, const std::string& date,
                           const std::string& slot, const std::string& name,
                           const std::string& sequence) {
    return Padded("", 10) + Padded("Pj166-3", 10) + Padded(team, 2) + Padded(mode, 6) +
           Padded(time, 2) + Padded(date, 10) + Padded(slot, 2) + Padded(name, 30) +
           Padded("Scheduled", 20) + Padded("", 20) + Padded("", 20) + Padded(sequence, 10) +
           Padded("A1001", 20) + Padded("Smith Cottage", 30) + Padded("40 Lake Rd", 35) +
           Padded("Unit 2", 25) + Padded("Lakeside", 20) + Padded("IL", 2) + Padded("62702", 10) +
           Padded("217-555-0199", 13);
}

int ErrorOf(const std::function<void()>& f) {
    try {
        f();
    } catch (const RuntimeError& e) {
        CloseAll();
        return e.Number();
    }
    return 0;
}

}  // namespace

TEST_F(ProjectFilesTest, TheFirstProjectOfADayIsNumberOneWhateverYesterdaysCounterSaid) {
    folder.Write("PjCounter.txt", "\"165\",7\r\n");
    MakeProjectNo();
    EXPECT_EQ(CurrentProjectNo, "Pj166-1");
    // Opening the creation screen changes nothing but the day of the counter.
    EXPECT_EQ(folder.Read("PjCounter.txt"), "\"166\",1\r\n");
    MakeProjectNo();
    EXPECT_EQ(CurrentProjectNo, "Pj166-1");

    // Saving uses the number up; the next one of the same day is one higher.
    NextProjectNo();
    SavePjCounter();
    MakeProjectNo();
    EXPECT_EQ(CurrentProjectNo, "Pj166-2");
    EXPECT_EQ(folder.Read("PjCounter.txt"), "\"166\",2\r\n");

    // A lost counter file is found in Backup; with neither, the day starts at 1 again.
    folder.Write("Backup/PjCounter.txt", "\"166\",9\r\n");
    DeleteFile("/PjCounter.txt");
    MakeProjectNo();
    EXPECT_EQ(CurrentProjectNo, "Pj166-9");
    DeleteEverywhere("/PjCounter.txt");
    MakeProjectNo();
    EXPECT_EQ(CurrentProjectNo, "Pj166-1");

    // The count is a 16-bit number.
    folder.Write("PjCounter.txt", "\"166\",32767\r\n");
    MakeProjectNo();
    EXPECT_EQ(ErrorOf([] { NextProjectNo(); }), 6);
}

TEST_F(ProjectFilesTest, TheCreationWritesTheHeaderAndMilestoneLinesByteForByte) {
    const ProjectHeader header = SampleHeader();
    folder.Write("ProjectTempFile.txt", "left over from an abandoned run\r\n");
    WriteProjectHeader(header);
    for (const Milestone& m : SampleMilestones()) WriteMilestoneLine(m);
    EXPECT_EQ(folder.Read("ProjectTempFile.txt"), TestFolder::Golden("projects/Pj166-3.txt"));
    EXPECT_EQ(OpenFileCount(), 0);

    folder.Write("ConstructionProjects/Pj166-3.txt", TestFolder::Golden("projects/Pj166-3.txt"));
    const ProjectFile read = LoadProjectFile(ProjectFilePath("Pj166-3"));
    EXPECT_EQ(read.header.siteAddress2, "Unit 2");
    EXPECT_EQ(read.header.billingTelephone, "217-555-0100");
    EXPECT_EQ(read.header.milestoneCount, 3);
    ASSERT_EQ(read.milestones.size(), 3u);
    EXPECT_EQ(read.milestones[1].date, DateTime::FromYmd(2026, 6, 16));
    EXPECT_EQ(read.milestones[1].lead, 2);
    EXPECT_EQ(read.milestones[2].completion, "Not Completed ");
    EXPECT_EQ(OpenFileCount(), 0);

    // Written back from what was read, the file is the same.
    OpenForOutput("/Copy.txt");
    WriteHeaderValues(MainFileNo, read.header);
    for (const Milestone& m : read.milestones) WriteMilestoneValues(MainFileNo, m);
    CloseAll();
    EXPECT_EQ(folder.Read("Copy.txt"), TestFolder::Golden("projects/Pj166-3.txt"));
}

TEST_F(ProjectFilesTest, OneRecordATechnicalMilestoneWithTheSiteAndAFormattedSequence) {
    const ProjectHeader header = SampleHeader();
    const auto milestones = SampleMilestones();
    for (int m = 1; m <= 3; ++m) {
        const Milestone& line = milestones[static_cast<size_t>(m - 1)];
        if (line.type == 2)
            AddProjectRecord(projects::kProjectRecordsFile, BuildProjectRecord(header, line, m));
    }
    const std::string expected =
        ExpectedRecord("1", "Days", "2", "6/16/2026", "3", "Framing", "$2.00") +
        ExpectedRecord("2", "Hours", "3", "6/19/2026", "4", "Electrical Rough-in and Inspecti",
                       "$3.00");
    EXPECT_EQ(folder.Read("ProjectRecords.txt"), expected);
    EXPECT_EQ(projects::kProjectRecord.Length(), 297u);
    EXPECT_EQ(OpenFileCount(), 0);
}

TEST_F(ProjectFilesTest, ARecordGoesBehindTheLastOneAsTheRoundedCountSays) {
    const ProjectHeader header = SampleHeader();
    const Milestone framing = SampleMilestones()[1];
    const std::string one = ExpectedRecord("1", "Days", "2", "6/16/2026", "3", "Framing", "$2.00");
    // Two records and a third less than half written: the new one overwrites the rest.
    folder.Write("ProjectRecords.txt", one + one + std::string(100, 'x'));
    AddProjectRecord(projects::kProjectRecordsFile, BuildProjectRecord(header, framing, 2));
    EXPECT_EQ(folder.Read("ProjectRecords.txt"), one + one + one);
    // More than half written: it counts as a record.
    folder.Write("ProjectRecords.txt", one + std::string(200, 'x'));
    AddProjectRecord(projects::kProjectRecordsFile, BuildProjectRecord(header, framing, 2));
    EXPECT_EQ(folder.Read("ProjectRecords.txt"),
              one + std::string(200, 'x') + std::string(97, '\0') + one);
}

TEST_F(ProjectFilesTest, AProjectNumberNeverNamesAFileOutsideTheProjectFolder) {
    EXPECT_EQ(ProjectFilePath("Pj166-3"), "\\ConstructionProjects\\Pj166-3.txt");
    for (const char* bad : {"", "..", "../Assignto", "Pj1\\..\\..\\x", "C:x"})
        EXPECT_EQ(ErrorOf([&] { ProjectFilePath(bad); }), err::PathFileAccessError) << bad;
}

// Every malformed counter or project file: the counter starts the day again at 1, a project
// file stops with the platform's run-time failure, and neither writes a wrong value.
TEST_F(ProjectFilesTest, MalformedCounterAndProjectFiles) {
    const std::string good = TestFolder::Golden("projects/Pj166-3.txt");
    const std::string header = good.substr(0, good.find("\r\n") + 2);
    const std::string headerOfOne = header.substr(0, header.size() - 3) + "1\r\n";
    struct Case {
        const char* what;
        std::string counter;  // bytes of PjCounter.txt
        std::string project;  // bytes of the project file
        int error;            // the project file's run-time failure
    };
    const Case cases[] = {
        {"cut short", "\"166\"", good.substr(0, good.size() - 40), err::InputPastEnd},
        {"header only", "\"166\",", header, err::InputPastEnd},
        {"wrong field count", "\"166\"\r\n",
         header.substr(0, header.find(",3\r\n")) + "\r\n" + good.substr(header.size()),
         err::TypeMismatch},
        {"nan", "\"166\",nan\r\n",
         headerOfOne + "\"Framing\",nan,#2026-06-16#,2,1,2,\"1\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n",
         err::TypeMismatch},
        {"huge number", "\"166\",99999999999\r\n",
         header.substr(0, header.size() - 3) + "99999\r\n", 6},
        {"bad date", "\"166\",2x\r\n",
         headerOfOne + "\"Framing\",2,#2026-13-45#,2,1,2,\"1\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n",
         err::TypeMismatch},
        {"NUL bytes", std::string("\"166\",\0\0\r\n", 10),
         header.substr(0, header.size() - 3) + std::string(2, '\0') + "\r\n", err::TypeMismatch},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        folder.Write("PjCounter.txt", c.counter);
        MakeProjectNo();
        EXPECT_EQ(CurrentProjectNo, "Pj166-1");
        EXPECT_EQ(folder.Read("PjCounter.txt"), "\"166\",1\r\n");
        folder.Write("ConstructionProjects/Pj166-3.txt", c.project);
        EXPECT_EQ(ErrorOf([] { LoadProjectFile(ProjectFilePath("Pj166-3")); }), c.error);
        EXPECT_EQ(OpenFileCount(), 0);
    }

    // A folder in place of either file: the counter is not found and cannot be written; the
    // project file cannot be opened.
    std::filesystem::remove(folder.Path() / "PjCounter.txt");
    folder.MakeDirs("PjCounter.txt");
    EXPECT_EQ(ErrorOf([] { MakeProjectNo(); }), err::PathFileAccessError);
    std::filesystem::remove(folder.Path() / "ConstructionProjects/Pj166-3.txt");
    folder.MakeDirs("ConstructionProjects/Pj166-3.txt");
    EXPECT_NE(ErrorOf([] { LoadProjectFile(ProjectFilePath("Pj166-3")); }), 0);
}
