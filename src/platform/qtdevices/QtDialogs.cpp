#include "platform/qtdevices/QtDialogs.h"

#include <QAbstractPrintDialog>
#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFontDialog>
#include <QPageLayout>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>

#include "platform/qtdevices/DocumentPainter.h"
#include "platform/qtdevices/MetricFonts.h"
#include "platform/qtdevices/QtPrinterDevice.h"

namespace platform {

namespace {

std::string ToAnsiPath(const QString& path) {
    const QByteArray bytes = path.toLocal8Bit();
    return std::string(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

}  // namespace

QString ToQtFilter(const std::string& filter) {
    const QStringList parts =
        QString::fromLocal8Bit(filter.data(), static_cast<qsizetype>(filter.size()))
            .split(QLatin1Char('|'));
    QStringList entries;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns;
        for (QString pattern : parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            // Patterns written in brackets or with blanks still mean their files.
            pattern.remove(QLatin1Char('(')).remove(QLatin1Char(')'));
            pattern = pattern.trimmed();
            if (!pattern.isEmpty()) patterns << pattern;
        }
        entries << parts[i].trimmed() + QStringLiteral(" (") + patterns.join(QLatin1Char(' ')) +
                       QLatin1Char(')');
    }
    return entries.join(QStringLiteral(";;"));
}

ColorAnswer QtDialogs::ChooseColor(std::int32_t current) {
    const QColor chosen = QColorDialog::getColor(ToQColor(current), QApplication::activeWindow());
    if (!chosen.isValid()) return {false, current};
    return {true, chosen.red() | (chosen.green() << 8) | (chosen.blue() << 16)};
}

FontAnswer QtDialogs::ChooseFont(const std::string& current, double size, bool printerFonts) {
    PrintFont start;
    start.name = current;
    start.size = size > 0 ? size : 10;
    // The dialog lists installed families: it opens on the one that shows the current name.
    QFont shown = ToQFont(start);
    shown.setFamily(InstalledFamily(current));
    bool ok = false;
    const QFont chosen = QFontDialog::getFont(&ok, shown, QApplication::activeWindow());
    FontAnswer answer;
    answer.accepted = ok;
    answer.name = ok ? KeptFontName(chosen.family()) : current;
    answer.size = ok ? chosen.pointSizeF() : size;
    answer.bold = ok && chosen.bold();
    answer.italic = ok && chosen.italic();
    return answer;
}

FileAnswer QtDialogs::ChooseOpenFile(const std::string& title, const std::string& filter,
                                     const std::string& initialDir) {
    const QString file = QFileDialog::getOpenFileName(
        QApplication::activeWindow(), QString::fromStdString(title.empty() ? "Open" : title),
        QString::fromLocal8Bit(initialDir.data(), static_cast<qsizetype>(initialDir.size())),
        ToQtFilter(filter));
    if (file.isEmpty()) return {};
    return {true, ToAnsiPath(file)};
}

FileAnswer QtDialogs::ChooseSaveFile(const std::string& title, const std::string& filter,
                                     const std::string& proposedPath) {
    const QString file = QFileDialog::getSaveFileName(
        QApplication::activeWindow(), QString::fromStdString(title.empty() ? "Save As" : title),
        QString::fromLocal8Bit(proposedPath.data(), static_cast<qsizetype>(proposedPath.size())),
        ToQtFilter(filter));
    if (file.isEmpty()) return {};
    return {true, ToAnsiPath(file)};
}

PrinterAnswer QtDialogs::ChoosePrinter(int flags, int copies) {
    QPrinter& printer = printer_.Device();
    printer.setCopyCount(copies);
    printer.setCollateCopies((flags & cdlPDCollate) != 0);
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    // Printing to a PDF file stays on offer: many offices have no printer on this machine.
    dialog.setOption(QAbstractPrintDialog::PrintToFile, true);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, (flags & cdlPDNoPageNums) == 0);
    dialog.setOption(QAbstractPrintDialog::PrintCollateCopies, true);
    // A PDF file chosen here is the Qt printer's own output file; the document goes there.
    if (dialog.exec() != QDialog::Accepted) return {false, copies, {}};
    return {true, printer.copyCount() < 1 ? 1 : printer.copyCount(), {}};
}

bool QtDialogs::PreviewDocument(const PrintedDocument& document) {
    if (document.pages.empty()) return true;
    QPrinter& printer = printer_.Device();
    const auto firstOrientation = document.pages.front().orientation == vbPRORLandscape
                                      ? QPageLayout::Landscape
                                      : QPageLayout::Portrait;
    printer.setPageOrientation(firstOrientation);
    QDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(QStringLiteral("Print Preview"));
    auto* layout = new QVBoxLayout(&dialog);
    auto* preview = new QPrintPreviewWidget(&printer, &dialog);
    // The same drawing as the print job, page for page.
    QObject::connect(preview, &QPrintPreviewWidget::paintRequested, preview,
                     [&document, firstOrientation](QPrinter* device) {
                         device->setPageOrientation(firstOrientation);
                         QPainter painter(device);
                         PaintDocument(painter, *device, document);
                     });
    layout->addWidget(preview, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, &dialog);
    QPushButton* print = buttons->addButton(QStringLiteral("&Print"), QDialogButtonBox::AcceptRole);
    print->setDefault(true);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    dialog.resize(900, 1000);
    preview->fitInView();
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace platform
