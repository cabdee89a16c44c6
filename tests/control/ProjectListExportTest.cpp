// The project list saved for a spreadsheet: one row a project in the order of the list, with
// the span of its milestones, and the project files untouched.
#include "ControlFixture.h"

#include <algorithm>

#include "platform/headless/HeadlessDialogs.h"

using namespace platform;

namespace control_tests {
namespace {

class ProjectListExport : public ControlTest {};

TEST_F(ProjectListExport, EveryProjectIsARowWithItsFirstAndLastDate) {
    MilestoneLine permit{"Permit", 1, "2026-06-10", 1, 0, 0, "", "Office", "", "", ""};
    MilestoneLine framing{"Framing", 2, "2026-06-17"};
    MilestoneLine roof{"Roof", 2, "2026-07-02"};
    const std::string fence = ProjectBytes("Pj160-1", "Fence, north side", {roof, permit});
    const std::string deck = ProjectBytes("Pj161-2", "Deck", {framing}, "FP1001");
    folder.Write("ConstructionProjects/Pj160-1.txt", fence);
    folder.Write("ConstructionProjects/Pj161-2.txt", deck);
    auto& f = Open();
    QueuedDialogs().QueueFile((folder.Path() / "Documents" / "Jobs.csv").string());
    Do([&] { f.mnuSaveList.Raise("Click"); });

    const std::string site =
        "Jane Doe,5 Elm Road,,Dayton,OH,45402,937-555-0100,Jane Doe,7 Oak Lane,,Kettering,OH,"
        "45429,937-555-0199,";
    EXPECT_EQ(folder.Read("Documents/Jobs.csv"),
              "\xEF\xBB\xBF"
              "Project No,Title,Account,Proposal No,Billing Name,Billing Address 1,"
              "Billing Address 2,Billing City,Billing State,Billing Zip,Billing Telephone,"
              "Site Name,Site Address 1,Site Address 2,Site City,Site State,Site Zip,"
              "Site Telephone,Milestones,First Date,Last Date\r\n"
              "Pj160-1,\"Fence, north side\",A100,," +
                  site + "2,2026-06-10,2026-07-02\r\nPj161-2,Deck,A100,FP1001," + site +
                  "1,2026-06-17,2026-06-17\r\n");
    EXPECT_EQ(folder.Ui().Boxes().back().prompt,
              "The project list was saved in Jobs.csv with 2 projects.");
    EXPECT_EQ(folder.Read("ConstructionProjects/Pj160-1.txt"), fence);
    EXPECT_EQ(folder.Read("ConstructionProjects/Pj161-2.txt"), deck);
}

TEST_F(ProjectListExport, WithoutProjectsTheFileHoldsTheHeaderAlone) {
    auto& f = Open();
    QueuedDialogs().QueueFile((folder.Path() / "none.csv").string());
    Do([&] { f.mnuSaveList.Raise("Click"); });
    const std::string csv = folder.Read("none.csv");
    EXPECT_EQ(csv.substr(0, 14), "\xEF\xBB\xBFProject No,");
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 1);
}

}  // namespace
}  // namespace control_tests
