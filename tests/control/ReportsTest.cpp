#include "control/ProjectReports.h"

#include <algorithm>

#include "ControlFixture.h"
#include "platform/Printer.h"
#include "platform/headless/HeadlessDialogs.h"
#include "platform/headless/HeadlessPrinter.h"

using namespace platform;

namespace control_tests {
namespace {

std::vector<MilestoneLine> Job() {
    MilestoneLine permit{"Permit", 1, "2026-06-10", 1, 0, 0, "", "Office", "", "", ""};
    MilestoneLine done{"Demolition", 2,   "2026-06-11", 2,      0,           0,          "1",
                       "On Site",    "3", "1",          "Days", "Completed", "6/11/2026"};
    MilestoneLine framing{"Framing",     2,   "2026-06-17", 2,     0, 0, "2",
                          "Office/Shop", "3", "2",          "Days"};
    return {permit, done, framing};
}

// The texts of a page, in drawing order.
std::vector<PrintOperation> Texts(const PrintedPage& page) {
    std::vector<PrintOperation> texts;
    for (const auto& op : page.operations)
        if (op.kind == PrintOperation::Kind::Text && !op.text.empty()) texts.push_back(op);
    return texts;
}

const PrintOperation& Find(const std::vector<PrintOperation>& texts, const std::string& text) {
    auto it = std::find_if(texts.begin(), texts.end(),
                           [&](const PrintOperation& op) { return op.text == text; });
    if (it == texts.end()) throw std::runtime_error("not printed: " + text);
    return *it;
}

class Reports : public ControlTest {
  protected:
    void SetUp() override {
        ControlTest::SetUp();
        folder.Write("ConstructionProjects/Pj160-1.txt", ProjectBytes("Pj160-1", "Deck", Job()));
        RecordingPrinter().Clear();
        QueuedDialogs().ClearQueue();
    }
};

TEST_F(Reports, TheProjectReportShowsEveryMilestoneWithPastOnesInRed) {
    auto& f = Open();
    folder.Ui().QueueAnswer(vbYes);
    Do([&] { f.mnuPrint.Raise("Click"); });
    EXPECT_EQ(folder.Ui().Boxes()[0].title, "Print Project");
    EXPECT_EQ(folder.Ui().Boxes()[0].prompt,
              "This Routine Prints the Selected Project\r\nClick Yes to Continue");
    ASSERT_EQ(RecordingPrinter().Documents().size(), 1u);
    const PrintedPage& page = RecordingPrinter().LastDocument().pages.at(0);
    EXPECT_EQ(page.orientation, vbPRORLandscape);
    const auto texts = Texts(page);
    const auto& title = Find(texts, "Construction Project Status and Event Report");
    EXPECT_EQ(title.font.size, 15);
    EXPECT_EQ(title.y, 720);
    EXPECT_NEAR(title.x + RecordingPrinter().TextWidth(title.font, title.text) / 2, 15840 / 2, 1);
    EXPECT_EQ(Find(texts, "6/15/2026").x, 9 * 1440);
    EXPECT_EQ(Find(texts, "Account").y, 1440);
    EXPECT_EQ(Find(texts, "Pj160-1").x, 9 * 1440);
    EXPECT_EQ(Find(texts, "Telephone  937-555-0100").x, 1440);
    EXPECT_TRUE(Find(texts, "Milestone Event").font.bold);
    EXPECT_EQ(Find(texts, "Work Location").x, 5.75 * 1440);
    EXPECT_EQ(Find(texts, "Office/Shop").x, 6 * 1440);
    // Past and not completed: red. Completed, or still to come: black.
    EXPECT_EQ(Find(texts, "Permit").color, Rgb(255, 0, 0));
    EXPECT_EQ(Find(texts, "Administrative").color, Rgb(255, 0, 0));
    EXPECT_EQ(Find(texts, "Demolition").color, 0);
    EXPECT_EQ(Find(texts, "Framing").color, 0);
    EXPECT_EQ(Find(texts, "Crew B").y, Find(texts, "Framing").y);
}

TEST_F(Reports, LongProjectsGoOnANewPageWithTheHeaderAgain) {
    std::vector<MilestoneLine> many;
    for (int i = 1; i <= 60; ++i)
        many.push_back({"Step " + std::to_string(i), 2, "2026-07-01", 2, 0, 0, "1"});
    folder.Write("ConstructionProjects/Pj160-1.txt", ProjectBytes("Pj160-1", "Deck", many));
    auto& f = Open();
    QueuedDialogs().QueuePrinter();
    folder.Ui().QueueAnswer(vbYes);
    Do([&] { f.mnuPrintAll.Raise("Click"); });
    ASSERT_EQ(RecordingPrinter().Documents().size(), 1u);
    const auto& pages = RecordingPrinter().LastDocument().pages;
    ASSERT_GE(pages.size(), 2u);
    for (const auto& page : pages) {
        const auto texts = Texts(page);
        Find(texts, "Construction Project Status and Event Report");
        for (const auto& op : texts) EXPECT_LT(op.y, page.height) << op.text;
    }
    Find(Texts(pages.back()), "Step 60");
}

TEST_F(Reports, AllProjectsPrintOneDocumentAProject) {
    folder.Write("ConstructionProjects/Pj161-1.txt", ProjectBytes("Pj161-1", "Fence", Job()));
    auto& f = Open();
    folder.Ui().QueueAnswer(vbYes);
    Do([&] { f.mnuPrintAll.Raise("Click"); });
    EXPECT_EQ(RecordingPrinter().Documents().size(), 2u);
}

TEST_F(Reports, ACancelledDialogPrintsNothingAndSaysNothing) {
    auto& f = Open();
    QueuedDialogs().QueueCancel();
    folder.Ui().QueueAnswer(vbYes);
    Do([&] { f.mnuPrint.Raise("Click"); });
    EXPECT_TRUE(RecordingPrinter().Documents().empty());
    EXPECT_EQ(folder.Ui().Boxes().size(), 1u);
    EXPECT_FALSE(ProgramHasEnded());
}

TEST_F(Reports, ThePastCompletionReportPrintsEveryRowOfTheListWithTheEmptyOne) {
    auto& f = Open();
    Do([&] { f.cmdPrintPastCompletion.Click(); });
    ASSERT_EQ(RecordingPrinter().Documents().size(), 1u);
    const PrintedPage& page = RecordingPrinter().LastDocument().pages.at(0);
    EXPECT_EQ(page.orientation, vbPRORPortrait);
    const auto texts = Texts(page);
    EXPECT_EQ(Find(texts, "Milestones Past Competion Report").x, 2.25 * 1440);
    EXPECT_EQ(Find(texts, "Scheduled Date").x, 6 * 1440);
    EXPECT_EQ(Find(texts, "Permit").x, 4 * 1440);
    EXPECT_EQ(Find(texts, "6/10/2026").x, 6.25 * 1440);
    EXPECT_EQ(Find(texts, "Pj160-1").x, 1440);
}

}  // namespace
}  // namespace control_tests
