#include "platform/qtdevices/QtPrinterDevice.h"

#include <QApplication>
#include <QFileDialog>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>

#include "platform/RuntimeError.h"
#include "platform/qtdevices/DocumentPainter.h"

namespace platform {

namespace {

constexpr int kPrinterError = 482;

QPageLayout::Orientation ToQtOrientation(int orientation) {
    return orientation == vbPRORLandscape ? QPageLayout::Landscape : QPageLayout::Portrait;
}

}  // namespace

bool PaintDocument(QPainter& painter, QPrinter& printer, const PrintedDocument& document) {
    for (std::size_t i = 0; i < document.pages.size(); ++i) {
        if (i > 0) {
            printer.setPageOrientation(ToQtOrientation(document.pages[i].orientation));
            if (!printer.newPage()) return false;
        }
        PaintPage(painter, document.pages[i], printer.resolution(), false);
    }
    return true;
}

QtPrinterDevice::QtPrinterDevice()
    : printer_(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
    printer_->setPageSize(QPageSize(QPageSize::Letter));
    printer_->setFullPage(true);  // twips count from the paper's corner
    printer_->setDocName(QStringLiteral("Norvax Construction Scheduler"));
}

QtPrinterDevice::~QtPrinterDevice() = default;

double QtPrinterDevice::TextWidth(const PrintFont& font, std::string_view text) {
    const QFontMetricsF metrics(ToQFont(font), printer_.get());
    return metrics.horizontalAdvance(FromAnsi(text)) * kTwipsPerInch / printer_->resolution();
}

double QtPrinterDevice::TextHeight(const PrintFont& font) {
    const QFontMetricsF metrics(ToQFont(font), printer_.get());
    return metrics.lineSpacing() * kTwipsPerInch / printer_->resolution();
}

void QtPrinterDevice::Output(const PrintedDocument& document) {
    if (document.pages.empty()) return;
    if (printer_->outputFormat() == QPrinter::PdfFormat && printer_->outputFileName().isEmpty()) {
        // No printer was chosen and none is installed: the job goes to a PDF file.
        const QString file = QFileDialog::getSaveFileName(QApplication::activeWindow(),
                                                          QStringLiteral("Print to PDF"), QString(),
                                                          QStringLiteral("PDF (*.pdf)"));
        if (file.isEmpty()) return;
        printer_->setOutputFileName(file);
    }
    printer_->setCopyCount(document.copies);
    printer_->setColorMode(document.colorMode == vbPRCMColor ? QPrinter::Color
                                                             : QPrinter::GrayScale);
    printer_->setPageOrientation(ToQtOrientation(document.pages.front().orientation));
    QPainter painter;
    if (!painter.begin(printer_.get())) {
        throw RuntimeError(kPrinterError, "Printer error", "Printer.EndDoc");
    }
    if (!PaintDocument(painter, *printer_, document)) {
        painter.end();
        throw RuntimeError(kPrinterError, "Printer error", "Printer.NewPage");
    }
    painter.end();
}

}  // namespace platform
