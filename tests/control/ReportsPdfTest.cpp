// The project reports as a person sees them: written to PDF through the desktop printer, and
// painted small to check that the red rows are red.
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <cstdlib>
#include <fstream>

#include "ControlFixture.h"
#include "platform/headless/HeadlessDialogs.h"
#include "platform/headless/HeadlessPrinter.h"
#include "platform/qtdevices/DocumentPainter.h"
#include "platform/qtdevices/QtDevices.h"

using namespace platform;

namespace control_tests {
namespace {

class ReportsPdf : public ControlTest {
  protected:
    void SetUp() override {
        ControlTest::SetUp();
        std::vector<MilestoneLine> job = {
            {"Permit", 1, "2026-06-10", 1, 0, 0, "", "Office", "", "", ""},
            {"Demolition", 2, "2026-06-11", 2, 0, 0, "1", "On Site", "3", "1", "Days", "Completed",
             "6/11/2026"},
            {"Framing", 2, "2026-06-17", 2, 0, 0, "1", "On Site", "3", "2", "Days"},
            {"Inspection", 2, "2026-06-22", 2, 3, 3, "2", "Office/Shop", "4", "2", "Hours"},
            {"Cleanup", 2, "2026-06-24", 3, 0, 0, "2", "On Site", "3", "1", "Days"},
            {"Walk-through", 1, "2026-06-12", 3, 0, 0, "", "Office", "", "", ""}};
        folder.Write("ConstructionProjects/Pj160-1.txt", ProjectBytes("Pj160-1", "Deck", job));
        RecordingPrinter().Clear();
        QueuedDialogs().ClearQueue();
    }
    static bool Reddish(const QImage& image, double xInches, double yTwips) {
        const QColor c(image.pixel(static_cast<int>(xInches * 60), static_cast<int>(yTwips / 24)));
        return c.red() > 150 && c.green() < 120;
    }
};

TEST_F(ReportsPdf, TheStatusReportAndThePastCompletionReportGoToPdf) {
    auto& f = Open();
    folder.Ui().QueueAnswer(vbYes);
    Do([&] { f.mnuPrint.Raise("Click"); });
    Do([&] { f.cmdPrintPastCompletion.Click(); });
    ASSERT_EQ(RecordingPrinter().Documents().size(), 2u);
    const std::string dir = PDF_OUTPUT_DIR;
    WriteDocumentPdf(RecordingPrinter().Documents()[0], dir + "/project-status-report.pdf");
    WriteDocumentPdf(RecordingPrinter().Documents()[1], dir + "/past-completion-report.pdf");
    std::ifstream in(dir + "/project-status-report.pdf", std::ios::binary);
    std::string head(5, '\0');
    in.read(head.data(), 5);
    EXPECT_EQ(head, "%PDF-");

    const PrintedPage& page = RecordingPrinter().Documents()[0].pages.at(0);
    QImage image(static_cast<int>(page.width / 24), static_cast<int>(page.height / 24),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintPage(painter, page, 60, true);
    painter.end();
    bool red = false;
    for (const auto& op : page.operations)
        if (op.text == "Permit")
            for (double x = 0.8; x < 1.2 && !red; x += 0.02)
                for (double dy = 40; dy < 200 && !red; dy += 10) red = Reddish(image, x, op.y + dy);
    EXPECT_TRUE(red);
}

}  // namespace
}  // namespace control_tests

int main(int argc, char** argv) {
    // gtest_discover_tests runs this binary at build time, often without a display.
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
