#include <gtest/gtest.h>

#include "blocked/frmAdmin.h"
#include "control/ProjectTables.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Printer.h"
#include "platform/Ui.h"
#include "platform/headless/HeadlessDialogs.h"
#include "platform/headless/HeadlessPrinter.h"
#include "setup/SetupHooks.h"
#include "store/SharedState.h"
#include "support/TestFolder.h"

using namespace platform;

namespace {

std::string Header(const std::string& projectNo, const std::string& title,
                   const std::string& customer, int milestones) {
    return "\"" + projectNo + "\",\"" + title + "\",\"A100\",\"Proposal Number\",\"" + customer +
           "\",\"1 Elm St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0101\",\"" + customer +
           "\",\"1 Elm St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0101\"," +
           std::to_string(milestones) + "\r\n";
}

std::string Line(const std::string& name, int type, const std::string& date) {
    const bool office = type == 1;
    return "\"" + name + "\"," + std::to_string(type) + ",#" + date + "#,1,0,0,\"" +
           (office ? "" : "1") + "\",\"" + (office ? "Office" : "On Site") + "\",\"" +
           (office ? "" : "3") + "\",\"" + (office ? "" : "1") + "\",\"" + (office ? "" : "Days") +
           "\",\"Scheduled\",\"Not Completed \"\r\n";
}

// Monday 15 June 2026; two projects, the first longer than the second.
class AdminTest : public ::testing::Test {
  protected:
    AdminTest() {
        ExitProgramHook = nullptr;
        ShowMainMenuHook = nullptr;
        ResetSharedState();
        ResetProjectTables();
        SoundAlarms = true;
        QueuedDialogs().ClearQueue();
        RecordingPrinter().Clear();
        Printer().Reset();
        folder.MakeDirs("ConstructionProjects");
    }

    void WriteProjects() {
        folder.Write("ConstructionProjects/Pj160-1.txt",
                     Header("Pj160-1", "Kitchen remodel", "John Smith", 4) +
                         Line("Permit", 1, "2026-06-20") + Line("Framing", 2, "2026-06-22") +
                         Line("Old paperwork", 1, "2026-06-14") +
                         Line("Final invoice", 1, "2026-07-15"));
        folder.Write("ConstructionProjects/Pj161-1.txt",
                     Header("Pj161-1", "Roof", "Mary Jones", 2) +
                         Line("Order shingles", 1, "2026-06-16") +
                         Line("Sign-off", 1, "2026-07-16"));
    }

    frmAdmin& Open() {
        frmAdmin& form = Screen<frmAdmin>();
        form.Show();
        return form;
    }

    std::vector<std::string> Rows(frmAdmin& form) {
        std::vector<std::string> rows;
        for (int r = 1; r < form.fgAdminSchedule.Rows(); ++r) {
            std::string row;
            for (int c = 0; c < 6; ++c)
                row += (c ? "|" : "") + form.fgAdminSchedule.TextMatrix(r, c);
            rows.push_back(row);
        }
        return rows;
    }

    testing_support::TestFolder folder{DateTime::FromYmdHms(2026, 6, 15, 9, 0, 0)};
};

}  // namespace

TEST_F(AdminTest, WithoutProjectsTheGridStaysEmptyAndNothingCanBePrinted) {
    frmAdmin& form = Open();
    EXPECT_FALSE(ProjectsLoaded);
    EXPECT_EQ(form.fgAdminSchedule.Rows(), 2);
    EXPECT_EQ(form.fgAdminSchedule.TextMatrix(1, 0), "");
    EXPECT_FALSE(form.cmdAdmin[1].Enabled());
    EXPECT_EQ(form.fgAdminSchedule.TextMatrix(0, 3), "Milestone Event");
}

TEST_F(AdminTest, TheMonthListsAdministrativeMilestonesProjectByProjectUpToTheLastDay) {
    WriteProjects();
    frmAdmin& form = Open();
    EXPECT_EQ(Rows(form), (std::vector<std::string>{
                              "Pj160-1|Kitchen remodel|6/20/2026|Permit|John Smith|217-555-0101",
                              "Pj160-1|Kitchen remodel|7/15/2026|Final invoice|John "
                              "Smith|217-555-0101",
                              "Pj161-1|Roof|6/16/2026|Order shingles|Mary Jones|217-555-0101"}));
    EXPECT_TRUE(form.cmdAdmin[1].Enabled());

    // "Next Qtr" widens the range and loads at once.
    form.cmdWeekly[7].Click();
    EXPECT_EQ(form.DTEnd.Value(), DateTime::FromYmd(2026, 9, 15));
    EXPECT_EQ(Rows(form).size(), 4u);

    // A range with no administrative milestone: an empty grid and no printing.
    form.DTEnd.SetValue(DateTime::FromYmd(2026, 9, 20));
    form.DTStart.SetValue(DateTime::FromYmd(2026, 8, 1));
    form.cmdWeekly[3].Click();
    EXPECT_EQ(form.fgAdminSchedule.Rows(), 2);
    EXPECT_FALSE(form.cmdAdmin[1].Enabled());
}

TEST_F(AdminTest, AnEndBeforeTheStartBeepsAndTakesTheMonthFromToday) {
    frmAdmin& form = Open();
    form.DTStart.SetValue(DateTime::FromYmd(2026, 8, 1));
    form.DTEnd.UserPick(DateTime::FromYmd(2026, 7, 1));
    EXPECT_EQ(folder.Ui().Beeps(), 1);
    EXPECT_EQ(form.DTStart.Value(), DateTime::FromYmd(2026, 6, 15));
    EXPECT_EQ(form.DTEnd.Value(), DateTime::FromYmd(2026, 7, 15));
    EXPECT_TRUE(form.DTStart.HasFocus());
}

TEST_F(AdminTest, ThePrintoutStandsAtItsPositionsWithALineForTheStatus) {
    WriteProjects();
    frmAdmin& form = Open();
    form.cmdAdmin[1].Click();
    const PrintedDocument& document = RecordingPrinter().LastDocument();
    ASSERT_EQ(document.pages.size(), 1u);
    EXPECT_EQ(document.pages[0].orientation, vbPRORPortrait);
    std::vector<std::string> texts;
    for (const auto& op : document.pages[0].operations)
        if (op.kind == PrintOperation::Kind::Text)
            texts.push_back(std::to_string(static_cast<int>(op.x)) + "," +
                            std::to_string(static_cast<int>(op.y)) + " " + op.text);
    ASSERT_GE(texts.size(), 8u + 3 * 7);
    EXPECT_EQ(texts[0], "1440,432 Administrative Tasks");
    EXPECT_EQ(texts[1].substr(texts[1].find(' ')), " Date Range: 6/15/2026to 7/15/2026");
    EXPECT_EQ(texts[1].substr(0, 5), "1440,");
    const char* headings[] = {"1080,1584 Project No.", "2520,1584 Project Title",
                              "5040,1584 Milestone",   "7200,1584 Acct Name",
                              "10800,1584 Acct Tel",   "12960,1584 Status"};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(texts[2 + i], headings[i]);
    // First row: every column at its place on one line, then 32 underscores at 9 inches.
    const int xs[] = {1080, 2520, 4320, 5400, 7200, 10800, 12960};
    const std::string y = texts[8].substr(texts[8].find(',') + 1, texts[8].find(' ') - 5);
    for (int c = 0; c < 7; ++c)
        EXPECT_EQ(texts[8 + c].substr(0, texts[8 + c].find(',')), std::to_string(xs[c]));
    EXPECT_EQ(texts[9].substr(texts[9].find(' ') + 1), "Kitchen remodel");
    EXPECT_EQ(texts[14].substr(texts[14].find(' ') + 1), std::string(32, '_'));
}

TEST_F(AdminTest, ALongListGoesOnToANewPageWithTheHeaderAgain) {
    std::string lines;
    for (int m = 1; m <= 60; ++m) lines += Line("Call " + std::to_string(m), 1, "2026-06-20");
    folder.Write("ConstructionProjects/Pj160-1.txt",
                 Header("Pj160-1", "Big job", "John Smith", 60) + lines);
    frmAdmin& form = Open();
    ASSERT_EQ(form.fgAdminSchedule.Rows(), 61);
    form.cmdAdmin[1].Click();
    const PrintedDocument& document = RecordingPrinter().LastDocument();
    ASSERT_EQ(document.pages.size(), 2u);
    EXPECT_EQ(document.pages[1].operations.front().text, "Administrative Tasks");
    // After every fifth row a line is left empty.
    auto rowY = [&](const std::string& name) {
        for (const auto& page : document.pages)
            for (const auto& op : page.operations)
                if (op.text == name) return op.y;
        return -1.0;
    };
    const double step = rowY("Call 2") - rowY("Call 1");
    EXPECT_DOUBLE_EQ(rowY("Call 6") - rowY("Call 5"), 2 * step);
    EXPECT_DOUBLE_EQ(rowY("Call 5") - rowY("Call 4"), step);
}

TEST_F(AdminTest, TheListGoesToThePrinterWithoutADialogueAndAFailureSaysSo) {
    WriteProjects();
    frmAdmin& form = Open();
    form.cmdAdmin[1].Click();
    EXPECT_TRUE(QueuedDialogs().Shown().empty());
    EXPECT_EQ(RecordingPrinter().Documents().size(), 1u);
    EXPECT_TRUE(folder.Ui().Boxes().empty());
    RecordingPrinter().FailNextOutput(482);
    form.cmdAdmin[1].Click();
    ASSERT_EQ(folder.Ui().Boxes().size(), 1u);
    EXPECT_EQ(folder.Ui().Boxes()[0].title, "Print Error");
    EXPECT_EQ(folder.Ui().Boxes()[0].prompt, "A Print Error has occurred");
}
