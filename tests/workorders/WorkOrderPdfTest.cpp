// The work order's documents as a person sees them: written to PDF through the desktop
// printer, one file a document, and painted small to check the ruled lines are there.
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <cstdlib>
#include <fstream>

#include "WorkOrderFixture.h"
#include "platform/qtdevices/DocumentPainter.h"
#include "platform/qtdevices/QtDevices.h"

namespace workorders_tests {
namespace {

using platform::RecordingPrinter;

class WorkOrderPdfTest : public WorkOrderTest {};

bool Inked(const QImage& image, double xTwips, double yTwips) {
    return QColor(image.pixel(static_cast<int>(xTwips / 24), static_cast<int>(yTwips / 24)))
               .lightness() < 200;
}

TEST_F(WorkOrderPdfTest, TheThreeDocumentsGoToPdf) {
    WriteUsualItems();
    frmWorkOrder& form = Open();
    form.cmdWO[frmWorkOrder::kAllItems].Click();
    form.cmdWO[frmWorkOrder::kAllServices].Click();
    form.txtWONarrative.SetText(
        "Remove the old shingles down to the decking and replace any soft boards.\r\nFlash the "
        "chimney and the skylight.");
    form.ckCompletion.SetValue(1);
    form.cmdWO[frmWorkOrder::kPrint].Click();
    ASSERT_EQ(RecordingPrinter().Documents().size(), 2u);
    const std::string dir = PDF_OUTPUT_DIR;
    platform::WriteDocumentPdf(RecordingPrinter().Documents()[0], dir + "/work-order.pdf");
    platform::WriteDocumentPdf(RecordingPrinter().Documents()[1], dir + "/summary-report.pdf");
    std::ifstream in(dir + "/work-order.pdf", std::ios::binary);
    std::string head(5, '\0');
    in.read(head.data(), 5);
    EXPECT_EQ(head, "%PDF-");

    // The rules of the summary's first list stand across the page.
    const auto& page = RecordingPrinter().Documents()[1].pages.at(0);
    QImage image(static_cast<int>(page.width / 24), static_cast<int>(page.height / 24),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    platform::PaintPage(painter, page, 60, true);
    painter.end();
    int inked = 0;
    for (double y = 6600; y < 6850; y += 24) inked += Inked(image, 6000, y) ? 1 : 0;
    EXPECT_GE(inked, 1);
}

}  // namespace
}  // namespace workorders_tests

int main(int argc, char** argv) {
    // gtest_discover_tests runs this binary at build time, often without a display.
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
