// The daily work schedule as a person sees it: both layouts written to PDF through the desktop
// printer's drawing, to be looked at page by page.
// Before Qt, whose "slots" is a macro.
#include "projects/WizardFixture.h"

#include <QApplication>
#include <cstdlib>
#include <fstream>

#include "platform/headless/HeadlessPrinter.h"
#include "platform/qtdevices/QtDevices.h"
#include "workorders/SlipBytes.h"

using namespace platform;

namespace {

class WorkSchedulePdf : public WizardTest {};

}  // namespace

TEST_F(WorkSchedulePdf, BothLayoutsGoToPdf) {
    Slip longStreet;
    longStreet.key = "SA1003";
    longStreet.amount = "1";
    longStreet.time = "8";
    longStreet.name = "Bob Roe";
    longStreet.street = "1200 West Washington Boulevard";
    folder.Write("Slips.txt",
                 SlipBytes("SA1002", "1", "2", "3", "Jane Doe") + SlipBytes(longStreet));
    folder.Write("2026/Team#1/168.txt", DayWith({{3, "SA1002 Leaking faucet"},
                                                 {4, "SA1002 Leaking faucet"},
                                                 {6, "Recurring Inspection"},
                                                 {8, "SA1003 Leaking faucet"}}));
    RecordingPrinter().Clear();
    frmMain& form = Open(3);
    form.MonthView1.UserPick(DateTime::FromYmd(2026, 6, 17));
    const char* const names[2] = {"work-schedule-extended.pdf", "work-schedule-response-paper.pdf"};
    for (int layout = 0; layout < 2; ++layout) {
        form.lblPrintSched.Raise("Click");
        form.optWorkSchedule[layout].SetValue(true);
        form.cmdInvoiceContinue.Click();
        ASSERT_EQ(RecordingPrinter().Documents().size(), static_cast<size_t>(layout + 1));
        const std::string pdf = std::string(PDF_OUTPUT_DIR) + "/" + names[layout];
        WriteDocumentPdf(RecordingPrinter().LastDocument(), pdf);
        std::ifstream in(pdf, std::ios::binary);
        std::string head(5, '\0');
        in.read(head.data(), 5);
        EXPECT_EQ(head, "%PDF-");
    }
}

int main(int argc, char** argv) {
    // gtest_discover_tests runs this binary at build time, often without a display.
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
