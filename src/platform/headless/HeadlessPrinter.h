#pragma once

#include <string_view>
#include <vector>

#include "platform/Printer.h"

namespace platform {

// The printer of tests and scripts: keeps every finished document, and measures text with
// the Helvetica widths (metrically the same as Arial), so positions and page breaks come out
// as on a real printer, to the twip, on every machine. The font name does not change the
// widths. When the screens run headless, each document is also written to their transcript.
class HeadlessPrinter : public PrinterDevice {
  public:
    double TextWidth(const PrintFont& font, std::string_view text) override;
    double TextHeight(const PrintFont& font) override;
    void Output(const PrintedDocument& document) override;

    const std::vector<PrintedDocument>& Documents() const { return documents_; }
    // The last document printed; an empty one when none was.
    const PrintedDocument& LastDocument() const;
    void Clear() { documents_.clear(); }
    // The next Output fails with this run-time error (0: none), as a printer that is off.
    void FailNextOutput(int errorNumber) { failNext_ = errorNumber; }

  private:
    std::vector<PrintedDocument> documents_;
    int failNext_ = 0;
};

// The recorder that serves when no other printer device is installed.
HeadlessPrinter& RecordingPrinter();

// Advance width of one Windows-1252 character in thousandths of the em.
int HelveticaWidth(unsigned char character, bool bold);

}  // namespace platform
