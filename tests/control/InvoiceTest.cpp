#include "control/InvoiceRoutines.h"

#include "ControlFixture.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "platform/headless/HeadlessDialogs.h"
#include "platform/headless/HeadlessPrinter.h"

using namespace platform;

namespace control_tests {
namespace {

std::vector<MilestoneLine> Job() {
    return {{"Framing", 2, "2026-06-17", 2, 0, 0, "1", "On Site", "3", "2", "Days"}};
}

class Invoicing : public ControlTest {
  protected:
    void SetUp() override {
        ControlTest::SetUp();
        folder.Write("ConstructionProjects/Pj160-1.txt",
                     ProjectBytes("Pj160-1", "Deck", Job(), "P-77"));
        folder.Write("2026/Team#1/168.txt", BlockDay("Pj160-1-Framing"));
        folder.MakeDirs("NorvaxInvoicer/IncompleteInvoices");
        folder.Write("NorvaxInvoicer.exe", "");
        RecordingPrinter().Clear();
        QueuedDialogs().ClearQueue();
    }

    // Completes the project, answering the print and invoice questions.
    void CompleteProject(int printAnswer, int invoiceAnswer) {
        auto& f = Open();
        folder.Ui().QueueAnswer(vbYes);
        folder.Ui().QueueAnswer(printAnswer);
        folder.Ui().QueueAnswer(invoiceAnswer);
        Do([&] { f.mnuCompleteProject.Raise("Click"); });
    }

    std::string Invoice(int number) const {
        return folder.Read("NorvaxInvoicer/IncompleteInvoices/" + std::to_string(number) + ".txt");
    }
};

std::string Lines(std::initializer_list<std::string> lines) {
    std::string out;
    for (const auto& l : lines) out += l + "\r\n";
    return out;
}

TEST_F(Invoicing, CompletingAProjectLeavesAPartialInvoiceAndRemovesTheProject) {
    folder.Write("NorvaxProposals/ProposalPayments/P-77.txt", "$1,250.00\r\nsecond line\r\n");
    CompleteProject(vbNo, vbYes);
    const auto& boxes = folder.Ui().Boxes();
    ASSERT_EQ(boxes.size(), 4u);
    EXPECT_EQ(boxes[0].title, "Project Completion");
    EXPECT_EQ(boxes[0].prompt,
              "Click YES to complete all Project Milestones\r\nClick  NO to exit Project "
              "Completion");
    EXPECT_EQ(boxes[1].title, "Project Summary");
    EXPECT_EQ(boxes[2].title, "Invoice Record");
    EXPECT_EQ(boxes[3].prompt,
              "A Partial Invoice Record has been created with\r\nan Invoice Number of "
              "20260001\r\nFollow the Partial Invoice Routine of Norvax Invoicer\r\nto Complete "
              "the Invoice");
    EXPECT_EQ(Invoice(20260001), Lines({"20260001",
                                        "A100",
                                        "Jane Doe",
                                        "6/15/2026",
                                        "\"Jane Doe\"",
                                        "\"5 Elm Road\"",
                                        "\"\"",
                                        "\"Dayton\"",
                                        "\"OH\"",
                                        "\"45402\"",
                                        "\"Jane Doe\"",
                                        "\"7 Oak Lane\"",
                                        "\"\"",
                                        "\"Kettering\"",
                                        "\"OH\"",
                                        "\"45429\"",
                                        "20260001",
                                        "A100",
                                        "Pj160-1",
                                        "",
                                        "1",
                                        "1",
                                        "Deck",
                                        "6/15/2026",
                                        "$1,250.00",
                                        "$1,250.00",
                                        "False"}));
    EXPECT_EQ(folder.Read("NIInvoiceNo.txt"), "20260002\r\n");
    EXPECT_FALSE(folder.Exists("ConstructionProjects/Pj160-1.txt"));
    EXPECT_EQ(Day(1, 168), testing_support::FreeDayBytes());
    EXPECT_FALSE(ProjectsLoaded);
}

TEST_F(Invoicing, TheInvoiceNumberFollowsItsYearRule) {
    struct Case {
        const char* stored;  // nullptr: no file
        int number;
    } cases[] = {
        {nullptr, 20260001},   {"20170057\r\n", 20260001}, {"0\r\n", 20260000},
        {"abc\r\n", 20260000}, {"20260012\r\n", 20260012}, {"", 20260000},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.stored ? c.stored : "missing");
        if (c.stored) {
            folder.Write("NIInvoiceNo.txt", c.stored);
        } else {
            std::filesystem::remove(folder.Path() / "NIInvoiceNo.txt");
        }
        EXPECT_EQ(GetInvoiceNumber(), c.number);
    }
}

TEST_F(Invoicing, WithoutPaymentsTheAmountIsZeroAndWithoutTheInvoicerNoQuestion) {
    CompleteProject(vbNo, vbYes);
    const std::string invoice = Invoice(20260001);
    EXPECT_NE(invoice.find("\r\n$0.00\r\n$0.00\r\nFalse\r\n"), std::string::npos);

    folder.Write("ConstructionProjects/Pj160-1.txt", ProjectBytes("Pj160-1", "Deck", Job()));
    std::filesystem::remove(folder.Path() / "NorvaxInvoicer.exe");
    CompleteProject(vbNo, vbYes);
    EXPECT_EQ(folder.Ui().Boxes().size(), 2u);
    EXPECT_FALSE(folder.Exists("NorvaxInvoicer/IncompleteInvoices/20260002.txt"));
    EXPECT_FALSE(folder.Exists("ConstructionProjects/Pj160-1.txt"));
}

TEST_F(Invoicing, AMissingInvoiceFolderLeavesTheProjectItsFile) {
    auto& f = Open();
    // Removed after the start, which makes it.
    std::filesystem::remove_all(folder.Path() / "NorvaxInvoicer");
    for (int answer : {vbYes, vbNo, vbYes}) folder.Ui().QueueAnswer(answer);
    Do([&] { f.mnuCompleteProject.Raise("Click"); });
    EXPECT_FALSE(ProgramHasEnded());
    EXPECT_TRUE(folder.Exists("ConstructionProjects/Pj160-1.txt"));
    EXPECT_FALSE(folder.Exists("NIInvoiceNo.txt"));
    // The slots are freed all the same, and the tables say completed.
    EXPECT_EQ(Day(1, 168), testing_support::FreeDayBytes());
    EXPECT_TRUE(ProjectChanged.at(1));
}

TEST_F(Invoicing, ACancelledPrinterDialogStopsTheCompletionBeforeTheInvoice) {
    QueuedDialogs().QueueCancel();
    CompleteProject(vbYes, vbYes);
    EXPECT_EQ(folder.Ui().Boxes().size(), 2u);
    EXPECT_TRUE(folder.Exists("ConstructionProjects/Pj160-1.txt"));
    EXPECT_TRUE(RecordingPrinter().Documents().empty());
}

TEST_F(Invoicing, APrintedSummaryComesBeforeTheInvoice) {
    QueuedDialogs().QueuePrinter();
    CompleteProject(vbYes, vbNo);
    ASSERT_EQ(RecordingPrinter().Documents().size(), 1u);
    EXPECT_FALSE(folder.Exists("ConstructionProjects/Pj160-1.txt"));
}

}  // namespace
}  // namespace control_tests
