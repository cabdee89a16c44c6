#pragma once

#include <QPainter>
#include <QPrinter>
#include <memory>

#include "platform/Printer.h"

namespace platform {

// The desktop printer: the printer chosen in the printer dialogue, which may also be a PDF
// file. Text is measured with the printer's own fonts.
// Paints the pages of a document onto a printer that is ready for them, each page in its own
// orientation, as the printer's job or as the pages of a print preview.
// False when the printer refused a page.
bool PaintDocument(QPainter& painter, QPrinter& printer, const PrintedDocument& document);

class QtPrinterDevice : public PrinterDevice {
  public:
    QtPrinterDevice();
    ~QtPrinterDevice() override;

    double TextWidth(const PrintFont& font, std::string_view text) override;
    double TextHeight(const PrintFont& font) override;
    void Output(const PrintedDocument& document) override;

    QPrinter& Device() { return *printer_; }

  private:
    std::unique_ptr<QPrinter> printer_;
};

}  // namespace platform
