// The daily work schedule printed from the team schedule: both layouts, the completion strip of
// the response paper, and all teams one after the other.
#include "projects/WizardFixture.h"

#include "platform/Dialogs.h"
#include "platform/Printer.h"
#include "platform/RuntimeError.h"
#include "platform/headless/HeadlessDialogs.h"
#include "platform/headless/HeadlessPrinter.h"
#include "printing/WorkSchedulePrintout.h"
#include "workorders/SlipBytes.h"

using namespace platform;

namespace {

constexpr double kInch = 1440;

class WorkSchedulePrintout : public WizardTest {
  protected:
    void SetUp() override {
        WizardTest::SetUp();
        RecordingPrinter().Clear();
        QueuedDialogs().ClearQueue();
        Printer().Reset();
        // Wednesday 17 June: a slip of two hours from 08:00, a recurring inspection without an
        // account at 11:00, and a slip of one hour at 01:00pm for team 1; one slip for team 2.
        folder.Write("Slips.txt", SlipBytes("SA1002", "1", "2", "3", "Jane Doe") +
                                      SlipBytes("SA1003", "1", "1", "8", "Bob Roe") +
                                      SlipBytes("SA2001", "2", "1", "4", "Ann Poe"));
        folder.Write("2026/Team#1/168.txt", DayWith({{3, "SA1002 Leaking faucet"},
                                                     {4, "SA1002 Leaking faucet"},
                                                     {6, "Recurring Inspection"},
                                                     {8, "SA1003 Leaking faucet"}}));
        folder.Write("2026/Team#2/168.txt", DayWith({{4, "SA2001 Leaking faucet"}}));
    }

    frmMain& OpenDay(int listIndex) {
        frmMain& form = Open(3);
        form.MonthView1.UserPick(DateTime::FromYmd(2026, 6, 17));
        form.lstTeam.SetListIndex(listIndex);
        form.lblPrintSched.Raise("Click");
        return form;
    }

    static const PrintOperation* Text(const PrintedPage& page, const std::string& text) {
        for (const PrintOperation& op : page.operations)
            if (op.kind == PrintOperation::Kind::Text && op.text == text) return &op;
        return nullptr;
    }
    static int Count(const PrintedPage& page, const std::string& text) {
        int n = 0;
        for (const PrintOperation& op : page.operations)
            if (op.kind == PrintOperation::Kind::Text && op.text == text) ++n;
        return n;
    }
    // The text stands at x and y inches.
    static void ExpectAt(const PrintedPage& page, const std::string& text, double x, double y) {
        SCOPED_TRACE(text);
        const PrintOperation* op = Text(page, text);
        ASSERT_NE(op, nullptr);
        EXPECT_NEAR(op->x, x * kInch, 0.5);
        EXPECT_NEAR(op->y, y * kInch, 0.5);
    }
};

// One line of Arial at a size, as the recorder measures it.
double Line(double points) {
    return points * 20.0 * 2355.0 / 2048.0 / kInch;
}

}  // namespace

TEST_F(WorkSchedulePrintout, TheWorkDayOnResponsePaperWithItsCompletionStrip) {
    frmMain& form = OpenDay(0);
    form.optWorkSchedule[1].SetValue(true);
    form.cmdInvoiceContinue.Click();

    ASSERT_EQ(RecordingPrinter().Documents().size(), 1u);
    const PrintedDocument& doc = RecordingPrinter().LastDocument();
    ASSERT_EQ(doc.pages.size(), 1u);
    const PrintedPage& page = doc.pages[0];
    EXPECT_EQ(page.orientation, vbPRORLandscape);
    EXPECT_FALSE(form.fraPrint.Visible());
    EXPECT_TRUE(form.cmdView.Visible());

    ExpectAt(page, "Daily Work Schedule", 1.0, 0.3);
    EXPECT_TRUE(Text(page, "Daily Work Schedule")->font.bold);
    ExpectAt(page, "Assigned to : Crew A", 1.0, 0.3 + Line(10));
    ExpectAt(page, "Date: 6/17/2026", 1.0, 0.3 + 2 * Line(10));
    ExpectAt(page, "Account Information", 0.75, 1.1);
    ExpectAt(page, "Problem", 3.25, 1.1);
    ExpectAt(page, "Times", 4.85, 1.1);
    ExpectAt(page, "Total Time", 6.1, 1.1);
    ExpectAt(page, "COMPLETION REPORT", 8.0, 0.3);
    EXPECT_TRUE(Text(page, "COMPLETION REPORT")->font.underline);
    EXPECT_NEAR(Text(page, "Crew A")->x, 8.0 * kInch, 0.5);

    // The eight working hours from 08:00, 0.75 in apart; a free hour is its time alone.
    const char* const labels[8] = {"08:00am", "09:00am", "10:00am", "11:00am",
                                   "01:00pm", "02:00pm", "03:00pm", "04:00pm"};
    for (int i = 0; i < 8; ++i) ExpectAt(page, labels[i], 0.75, 1.35 + 0.75 * i);
    EXPECT_EQ(Text(page, "06:00am"), nullptr);
    EXPECT_EQ(Count(page, "SA1002 Leaking faucet"), 2);
    ExpectAt(page, "SA1002 Leaking faucet", 3.0, 1.35);
    ExpectAt(page, "Start", 4.5, 1.35);
    ExpectAt(page, "Jane Doe", 0.75, 1.35 + Line(9));
    ExpectAt(page, "9 Elm St", 0.75, 1.35 + 2 * Line(9));
    EXPECT_TRUE(Text(page, "9 Elm St")->font.bold);
    ExpectAt(page, "Stop", 4.5, 1.35 + 2 * Line(9));
    ExpectAt(page, "Springfield, IL 62704", 2.5, 1.35 + 3 * Line(9));
    // The recurring event has no account: its text and times, empty account lines.
    ExpectAt(page, "Recurring Inspection", 3.0, 1.35 + 3 * 0.75);
    EXPECT_EQ(Count(page, "Start"), 4);

    // The grid: ten rows of lines and five columns, black.
    int lines = 0;
    for (const PrintOperation& op : page.operations)
        if (op.kind == PrintOperation::Kind::Line) {
            ++lines;
            EXPECT_EQ(op.color, 0);
        }
    EXPECT_EQ(lines, 16);

    // One entry in the strip a job: two hours of SA1002 give one, SA1003 its own.
    EXPECT_EQ(Count(page, "___Collected"), 2);
    ExpectAt(page, "SA1002", 7.5, 1.35 + Line(10));
    EXPECT_NEAR(Text(page, "___Collected")->x, 9.4 * kInch, 0.5);
    EXPECT_NEAR(Text(page, "___Collected")->y, 1.35 * kInch, 0.5);
    ExpectAt(page, "SA1003", 7.5, 1.35 + 5 * 0.75 + Line(10));
    EXPECT_EQ(Count(page, "AMOUNT    _______________"), 2);
}

TEST_F(WorkSchedulePrintout, TheExtendedScheduleListsTwelveHoursOnAPortraitPage) {
    frmMain& form = OpenDay(0);
    form.optWorkSchedule[0].SetValue(true);
    form.cmdInvoiceContinue.Click();
    ASSERT_EQ(RecordingPrinter().Documents().size(), 1u);
    const PrintedPage& page = RecordingPrinter().LastDocument().pages.at(0);
    EXPECT_EQ(page.orientation, vbPRORPortrait);
    ExpectAt(page, "Time", 0.75, 1.1);
    ExpectAt(page, "Account Info", 2.5, 1.1);
    ExpectAt(page, "Project Event/Reason", 4.5, 1.1);
    EXPECT_EQ(Text(page, "COMPLETION REPORT"), nullptr);
    ExpectAt(page, "06:00am", 0.75, 1.35);
    ExpectAt(page, "06:00pm", 0.75, 1.35 + 11 * 0.75);
    ExpectAt(page, "217-555-0142", 2.5, 1.35 + 2 * 0.75);
    ExpectAt(page, "SA1002 Leaking faucet", 4.5, 1.35 + 2 * 0.75);
    ExpectAt(page, "Jane Doe", 2.5, 1.35 + 2 * 0.75 + Line(9));
    ExpectAt(page, "9 Elm St", 2.5, 1.35 + 2 * 0.75 + 2 * Line(9));
    ExpectAt(page, "Springfield, IL 62704", 2.5, 1.35 + 2 * 0.75 + 3 * Line(9));
    for (const PrintOperation& op : page.operations) EXPECT_NE(op.kind, PrintOperation::Kind::Line);
}

TEST_F(WorkSchedulePrintout, AllTeamsPrintFromTheLastToTheFirst) {
    frmMain& form = OpenDay(2);  // "All Teams"
    form.cmdInvoiceContinue.Click();
    const auto& docs = RecordingPrinter().Documents();
    ASSERT_EQ(docs.size(), 2u);
    EXPECT_NE(Text(docs[0].pages.at(0), "Assigned to : Crew B"), nullptr);
    EXPECT_NE(Text(docs[0].pages.at(0), "Ann Poe"), nullptr);
    EXPECT_EQ(Text(docs[0].pages.at(0), "Jane Doe"), nullptr);
    EXPECT_NE(Text(docs[1].pages.at(0), "Assigned to : Crew A"), nullptr);
    EXPECT_NE(Text(docs[1].pages.at(0), "Jane Doe"), nullptr);
    // The list stays on all teams.
    EXPECT_EQ(form.lstTeam.ListIndex(), 2);
    EXPECT_EQ(CurrentTeam, "3");
}

TEST_F(WorkSchedulePrintout, ACancelledDialogueOrAFailingPrinterIsAPrintError) {
    frmMain& form = OpenDay(0);
    QueuedDialogs().QueueCancel();
    form.cmdInvoiceContinue.Click();
    EXPECT_EQ(LastBox(), "Print Error: A Print Error has occurred");
    EXPECT_TRUE(RecordingPrinter().Documents().empty());
    EXPECT_TRUE(form.fraPrint.Visible());

    RecordingPrinter().FailNextOutput(err::PrinterError);
    form.cmdInvoiceContinue.Click();
    EXPECT_EQ(LastBox(), "Print Error: A Print Error has occurred");
    EXPECT_TRUE(RecordingPrinter().Documents().empty());
    EXPECT_FALSE(Printer().DocumentOpen());
    EXPECT_FALSE(form.fraPrint.Visible());  // the print ran its course
    EXPECT_EQ(folder.Read("Slips.txt").size(), 3u * 297);
}
