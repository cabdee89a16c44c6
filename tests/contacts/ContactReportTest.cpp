// The contact report on paper: the heading centred, the date, blocks of five lines three
// across from 2.25 in, ten rows a page, and the printer dialogue's answers.
#include <cmath>

#include "ContactsFixture.h"

namespace contacts_tests {
namespace {

using platform::PrintedPage;
using platform::PrintOperation;
using platform::RecordingPrinter;
using platform::vbNo;
using platform::vbYes;

constexpr double kLine = 200.0 * 2355.0 / 2048.0;  // a line of 10 points
constexpr double kRow = 5 * kLine;

const PrintOperation* TextAt(const PrintedPage& page, const std::string& text) {
    for (const auto& op : page.operations)
        if (op.kind == PrintOperation::Kind::Text && op.text == text) return &op;
    return nullptr;
}

class ContactReportTest : public ContactsTest {
  protected:
    void WriteMany(int count) {
        std::vector<Contact> contacts;
        for (int i = 1; i <= count; ++i)
            contacts.push_back(Vendor("V" + std::to_string(i), "Vendor " + std::to_string(i),
                                      "Peoria", "309-555-0100"));
        contacts[0].email = "sales@vendor1.com";
        WriteContacts(contacts);
    }
    void PrintReport() {
        frmContacts& form = Open();
        form.mnuPrint.Raise("Click");
        form.cmdPrintContacts.Click();
    }
};

TEST_F(ContactReportTest, TheBlocksStandThreeAcrossUnderTheCentredHeading) {
    WriteMany(4);
    Answer(vbYes);
    PrintReport();
    EXPECT_EQ(BoxTexts().back(), "[Contact Report] Click Yes to print a Contact Report");
    ASSERT_EQ(RecordingPrinter().Documents().size(), 1u);
    const auto& doc = RecordingPrinter().LastDocument();
    ASSERT_EQ(doc.pages.size(), 1u);
    const PrintedPage& page = doc.pages[0];
    EXPECT_EQ(page.orientation, platform::vbPRORPortrait);

    const PrintOperation* heading = TextAt(page, "Account Information");
    ASSERT_NE(heading, nullptr);
    EXPECT_TRUE(heading->font.bold);
    EXPECT_DOUBLE_EQ(heading->y, 720);
    EXPECT_NEAR(heading->x + RecordingPrinter().TextWidth(heading->font, heading->text) / 2, 6120,
                1);
    const PrintOperation* date = TextAt(page, "6/15/2026");
    ASSERT_NE(date, nullptr);
    EXPECT_FALSE(date->font.bold);
    EXPECT_DOUBLE_EQ(date->x, 9 * 1440);
    EXPECT_DOUBLE_EQ(date->y, 720);

    const char* lines[] = {"Vendor 1", "1 Vendor 1 Way", "Peoria, IL 62701", "309-555-0100",
                           "sales@vendor1.com"};
    for (int i = 0; i < 5; ++i) {
        const PrintOperation* op = TextAt(page, lines[i]);
        ASSERT_NE(op, nullptr) << lines[i];
        EXPECT_DOUBLE_EQ(op->x, 1440);
        EXPECT_NEAR(op->y, 3240 + i * kLine, 0.01) << lines[i];
    }
    EXPECT_DOUBLE_EQ(TextAt(page, "Vendor 2")->x, 4 * 1440);
    EXPECT_DOUBLE_EQ(TextAt(page, "Vendor 3")->x, 7 * 1440);
    EXPECT_DOUBLE_EQ(TextAt(page, "Vendor 4")->x, 1440);
    EXPECT_NEAR(TextAt(page, "Vendor 4")->y, 3240 + kRow, 0.01);
}

TEST_F(ContactReportTest, TenRowsFillAPageAndAFullLastRowStillStartsTheNext) {
    WriteMany(31);
    Answer(vbYes);
    PrintReport();
    const auto& pages = RecordingPrinter().LastDocument().pages;
    ASSERT_EQ(pages.size(), 2u);
    EXPECT_NEAR(TextAt(pages[0], "Vendor 30")->y, 3240 + 9 * kRow, 0.01);
    EXPECT_EQ(TextAt(pages[0], "Vendor 31"), nullptr);
    ASSERT_NE(TextAt(pages[1], "Account Information"), nullptr);
    EXPECT_DOUBLE_EQ(TextAt(pages[1], "Vendor 31")->x, 1440);
    EXPECT_NEAR(TextAt(pages[1], "Vendor 31")->y, 3240, 0.01);

    // Thirty contacts end a page with its tenth row, and the page after holds the heading.
    RecordingPrinter().Clear();
    WriteMany(30);
    Answer(vbYes);
    PrintReport();
    const auto& full = RecordingPrinter().LastDocument().pages;
    ASSERT_EQ(full.size(), 2u);
    EXPECT_NE(TextAt(full[1], "Account Information"), nullptr);
    EXPECT_EQ(TextAt(full[1], "Vendor 1"), nullptr);
}

TEST_F(ContactReportTest, NoCancelAndAPrinterFailureAreToldApart) {
    WriteMany(2);
    Answer(vbNo);
    PrintReport();
    EXPECT_TRUE(RecordingPrinter().Documents().empty());
    EXPECT_TRUE(platform::QueuedDialogs().Shown().empty());

    Answer(vbYes);
    platform::QueuedDialogs().QueueCancel();
    PrintReport();
    EXPECT_EQ(BoxTexts().back(),
              "[Norvax Construction Scheduler] The Work Order will not be Printed");

    Answer(vbYes);
    RecordingPrinter().FailNextOutput(platform::err::PrinterError);
    PrintReport();
    EXPECT_EQ(BoxTexts().back(), "[Print Error] A Print Error has occurred");
    EXPECT_TRUE(RecordingPrinter().Documents().empty());
}

}  // namespace
}  // namespace contacts_tests
