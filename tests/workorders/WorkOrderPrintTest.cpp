// The printed work order: every text at its place on the page, the narrative or the ruled
// lines, the parts pages and where they break, the heading cut to twelve characters, and
// the summary report sent after the screen went back to the menu.
#include "WorkOrderFixture.h"

namespace workorders_tests {
namespace {

using platform::PrintedPage;
using platform::PrintOperation;
using platform::RecordingPrinter;

constexpr double kLine10 = 200.0 * 2355.0 / 2048.0;  // a line of 10 points

const PrintOperation* TextAt(const PrintedPage& page, const std::string& text) {
    for (const auto& op : page.operations)
        if (op.kind == PrintOperation::Kind::Text && op.text == text) return &op;
    return nullptr;
}

std::vector<const PrintOperation*> Lines(const PrintedPage& page) {
    std::vector<const PrintOperation*> lines;
    for (const auto& op : page.operations)
        if (op.kind == PrintOperation::Kind::Line) lines.push_back(&op);
    return lines;
}

bool HasLine(const PrintedPage& page, double x1, double y1, double x2, double y2) {
    for (const PrintOperation* op : Lines(page))
        if (op->x == x1 && op->y == y1 && op->x2 == x2 && op->y2 == y2) return true;
    return false;
}

#define EXPECT_AT(page, text, left, top)                \
    do {                                                \
        const PrintOperation* op_ = TextAt(page, text); \
        ASSERT_NE(op_, nullptr) << text;                \
        EXPECT_NEAR(op_->x, left, 0.01) << text;        \
        EXPECT_NEAR(op_->y, top, 0.01) << text;         \
    } while (false)

class WorkOrderPrintTest : public WorkOrderTest {
  protected:
    const std::vector<platform::PrintedDocument>& Print(frmWorkOrder& form) {
        form.cmdWO[frmWorkOrder::kPrint].Click();
        return RecordingPrinter().Documents();
    }
};

TEST_F(WorkOrderPrintTest, TheFormWithoutNarrativeHasElevenRulesForInstructions) {
    frmWorkOrder& form = Open();
    const auto& docs = Print(form);
    ASSERT_EQ(docs.size(), 1u);
    ASSERT_EQ(docs[0].pages.size(), 1u);
    const PrintedPage& page = docs[0].pages[0];
    EXPECT_EQ(page.orientation, platform::vbPRORPortrait);

    const PrintOperation* heading = TextAt(page, "Work Order");
    ASSERT_NE(heading, nullptr);
    EXPECT_EQ(heading->font.size, 28);
    EXPECT_TRUE(heading->font.bold);
    EXPECT_AT(page, "Work Order", 720, 720);
    EXPECT_AT(page, "Acme Builders", 1440, 576);
    EXPECT_AT(page, "Date 6/15/2026", 8640, 1296);
    EXPECT_AT(page, "Acct: C100", 8640, 1296 + kLine10);
    EXPECT_AT(page, "Page 1", 8640, 1296 + 2 * kLine10);
    EXPECT_AT(page, "Hammer & Sons", 1440, 3312);
    EXPECT_AT(page, "12 Oakwood Dr", 1440, 3312 + kLine10);
    EXPECT_AT(page, "Decatur, IL 62521", 1440, 3312 + 2 * kLine10);
    EXPECT_AT(page, "Enter Instructions", 1440, 5472);
    for (int i = 0; i < 11; ++i)
        EXPECT_TRUE(HasLine(page, 360, 6480 + i * 720, 11880, 6480 + i * 720)) << i;
    // The body box.
    EXPECT_TRUE(HasLine(page, 360, 5760, 11880, 5760));
    EXPECT_TRUE(HasLine(page, 360, 14400, 11880, 14400));
    EXPECT_TRUE(HasLine(page, 360, 5760, 360, 14400));
    EXPECT_TRUE(HasLine(page, 11880, 5760, 11880, 14400));
    // Printing ends at the main menu; the narrative of the print is kept in Templates.
    EXPECT_FALSE(form.Visible());
    EXPECT_FALSE(Exists("Templates/WONarrativeTEMP.txt"));
}

TEST_F(WorkOrderPrintTest, TheNarrativeRunsOnToAFreshFormPastItsFoot) {
    frmWorkOrder& form = Open();
    std::string narrative;
    for (int i = 1; i <= 34; ++i) narrative += "Step " + std::to_string(i) + "\r\n";
    form.txtWONarrative.SetText(narrative);
    const auto& docs = Print(form);
    EXPECT_EQ(Read("Templates/WONarrativeTEMP.txt"), narrative + "\r\n");
    ASSERT_EQ(docs.size(), 1u);
    const auto& pages = docs[0].pages;
    ASSERT_EQ(pages.size(), 2u);
    EXPECT_AT(pages[0], "Step 1", 720, 6480);
    EXPECT_EQ(TextAt(pages[0], "Enter Instructions"), nullptr);
    // Lines of 10 points from 4.5 in, each begun at a whole twip: 230 twips apart. The last
    // that ends by 14040 twips is the 32nd.
    EXPECT_AT(pages[0], "Step 2", 720, 6480 + 230);
    EXPECT_AT(pages[0], "Step 32", 720, 6480 + 31 * 230);
    EXPECT_EQ(TextAt(pages[0], "Step 33"), nullptr);
    EXPECT_AT(pages[1], "Step 33", 720, 6480);
    EXPECT_AT(pages[1], "Step 34", 720, 6480 + 230);
    EXPECT_AT(pages[1], "Page 2", 8640, 1296 + 2 * kLine10);
    EXPECT_NE(TextAt(pages[1], "Work Order"), nullptr);
}

TEST_F(WorkOrderPrintTest, PartsAndServicesStandInTheirColumnsAndBreakBeforeTheFoot) {
    std::vector<std::string> inventory;
    for (int i = 1; i <= 16; ++i)
        inventory.push_back(InventoryBytes("Item " + std::to_string(i), 10000 * i));
    WriteItems(inventory, {}, {ServiceBytes("Roof inspection", "75.00")});
    frmWorkOrder& form = Open();
    form.cmdWO[frmWorkOrder::kAllItems].Click();
    form.cmdWO[frmWorkOrder::kAllServices].Click();
    form.cboHeading.SetText("Roof Replacement Estimate");
    const auto& docs = Print(form);
    EXPECT_EQ(form.cboHeading.Text(), "Roof Replace");
    ASSERT_EQ(docs.size(), 1u);
    const auto& pages = docs[0].pages;
    ASSERT_EQ(pages.size(), 3u);
    EXPECT_AT(pages[0], "Roof Replace", 720, 720);

    const PrintedPage& parts = pages[1];
    EXPECT_AT(parts, "Roof Replace", 5.5 * 1440, 720);
    EXPECT_AT(parts, "Parts and Services List", 4320, 5184);
    EXPECT_AT(parts, "Page 2", 8640, 1296 + 2 * kLine10);
    const char* headings[] = {"QTY", "DATE", "DESCRIPTION", "PRICE", "TOTAL"};
    const double lefts[] = {0.6, 1.5, 3.1, 6.1, 7.5};
    for (int i = 0; i < 5; ++i) EXPECT_AT(parts, headings[i], lefts[i] * 1440, 5832);
    // A row is a line of text and a rule 72 twips below it, then 72 more.
    const double row = kLine10 + 144;
    EXPECT_AT(parts, "Item 1", 3312, 6192);
    const PrintOperation* price = TextAt(parts, "$1.00");
    ASSERT_NE(price, nullptr);
    EXPECT_NEAR(price->x + RecordingPrinter().TextWidth(price->font, "$1.00"), 9360, 0.01);
    EXPECT_NEAR(price->y, 6192, 0.01);
    EXPECT_TRUE(HasLine(parts, 360, 6192 + kLine10 + 72, 11880, 6192 + kLine10 + 72));
    // Rows while y + a line stays below 11520: fourteen of them.
    EXPECT_AT(parts, "Item 14", 3312, 6192 + 13 * row);
    EXPECT_EQ(TextAt(parts, "Item 15"), nullptr);
    EXPECT_AT(pages[2], "Item 15", 3312, 6192);
    EXPECT_AT(pages[2], "Roof inspection", 3312, 6192 + 2 * row);
    EXPECT_AT(pages[2], "Page 3", 8640, 1296 + 2 * kLine10);
}

TEST_F(WorkOrderPrintTest, TheSummaryReportIsASecondJobSentFromTheMainMenu) {
    frmWorkOrder& form = Open();
    form.ckCompletion.SetValue(1);
    std::vector<size_t> printedAtMenu;
    ShowMainMenuHook = [&] { printedAtMenu.push_back(RecordingPrinter().Documents().size()); };
    const auto& docs = Print(form);
    EXPECT_EQ(printedAtMenu, std::vector<size_t>{1});
    ASSERT_EQ(docs.size(), 2u);
    ASSERT_EQ(docs[1].pages.size(), 1u);
    const PrintedPage& page = docs[1].pages[0];
    EXPECT_AT(page, "Work Order", 720, 720);
    EXPECT_AT(page, "Summary Report", 7200, 720);
    EXPECT_AT(page, "Date 6/15/2026", 7200, 2160);
    EXPECT_AT(page, "Acct: C100", 7200, 2160 + kLine10);
    EXPECT_AT(page, "Start Time:", 7200, 2160 + 3 * kLine10);
    EXPECT_AT(page, "Ending Odometer:", 7200, 2160 + 9 * kLine10);
    const PrintOperation* blank = TextAt(page, "______:______");
    ASSERT_NE(blank, nullptr);
    EXPECT_NEAR(blank->x, 9360, 0.01);
    EXPECT_AT(page, "Hammer & Sons", 1440, 3312);
    EXPECT_AT(page, "List any Anomalies prior to Commencement", 720, 6192);
    const double row = kLine10 + 144;
    const double second = 6192 + kLine10 + 9 * row + 2 * kLine10;
    EXPECT_AT(page, "List any Services that could not be Performed and the Reason", 720, second);
    EXPECT_AT(page, "Service performed by: ______________________________________________", 720,
              second + kLine10 + 9 * row + 2 * kLine10);
}

TEST_F(WorkOrderPrintTest, ACancelledDialogueAndAPrinterFailureAreTold) {
    frmWorkOrder& form = Open();
    platform::QueuedDialogs().QueueCancel();
    Print(form);
    EXPECT_EQ(BoxTexts().back(),
              "[Norvax Construction Scheduler] The Work Order will not be Printed");
    EXPECT_TRUE(form.Visible());
    EXPECT_TRUE(RecordingPrinter().Documents().empty());

    // A failure of the work order itself passes unseen; the summary's is reported.
    form.ckCompletion.SetValue(1);
    RecordingPrinter().FailNextOutput(platform::err::PrinterError);
    Print(form);
    EXPECT_EQ(BoxTexts().size(), 1u);
    form.Show();
    RecordingPrinter().Clear();
    platform::QueuedDialogs().QueuePrinter();
    form.cmdWO[frmWorkOrder::kPrint].Click();
    ASSERT_EQ(RecordingPrinter().Documents().size(), 2u);
}

}  // namespace
}  // namespace workorders_tests
