#include "platform/qtdevices/QtDevices.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <cstdlib>
#include <memory>

#include "platform/Dialogs.h"
#include "platform/RuntimeError.h"
#include "platform/SerialPort.h"
#include "platform/qtdevices/DocumentPainter.h"
#include "platform/qtdevices/QtDialogs.h"
#include "platform/qtdevices/QtPrinterDevice.h"
#include "platform/qtdevices/QtSerialPort.h"

namespace platform {

namespace {

constexpr int kPdfResolution = 1200;

// Fonts need a GUI application; scripts and tests may have none.
void EnsureGuiApplication() {
    if (QCoreApplication::instance()) return;
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 0);
    static int argc = 1;
    static char name[] = "scheduler";
    static char* argv[] = {name, nullptr};
    static QGuiApplication application(argc, argv);
}

QPageLayout::Orientation ToQtOrientation(int orientation) {
    return orientation == vbPRORLandscape ? QPageLayout::Landscape : QPageLayout::Portrait;
}

}  // namespace

void InstallQtDevices() {
    static QtPrinterDevice printer;
    static QtDialogs dialogs(printer);
    static QtSerialLines serialLines;
    SetPrinterDevice(&printer);
    SetDialogBackend(&dialogs);
    SetSerialBackend(&serialLines);
    // The port is closed while the application still exists.
    qAddPostRoutine([] { SharedSerialPort().Reset(); });
}

void WriteDocumentPdf(const PrintedDocument& document, const std::string& path) {
    EnsureGuiApplication();
    QPdfWriter writer(QString::fromLocal8Bit(path.data(), static_cast<qsizetype>(path.size())));
    writer.setResolution(kPdfResolution);
    writer.setCreator(QStringLiteral("Norvax Construction Scheduler"));
    const int firstOrientation =
        document.pages.empty() ? vbPRORPortrait : document.pages.front().orientation;
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter),
                                     ToQtOrientation(firstOrientation), QMarginsF(0, 0, 0, 0)));
    QPainter painter;
    if (!painter.begin(&writer)) Raise(err::PathFileAccessError, "WriteDocumentPdf");
    for (std::size_t i = 0; i < document.pages.size(); ++i) {
        if (i > 0) {
            writer.setPageOrientation(ToQtOrientation(document.pages[i].orientation));
            writer.newPage();
        }
        PaintPage(painter, document.pages[i], kPdfResolution, true);
    }
    painter.end();
}

}  // namespace platform
