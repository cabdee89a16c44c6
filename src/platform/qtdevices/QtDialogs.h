#pragma once

#include <QString>
#include <string>

#include "platform/Dialogs.h"

namespace platform {

class QtPrinterDevice;

// The dialogues of the desktop. The printer dialogue chooses the printer of the given device,
// and always offers printing to a PDF file.
class QtDialogs : public DialogBackend {
  public:
    explicit QtDialogs(QtPrinterDevice& printer) : printer_(printer) {}

    ColorAnswer ChooseColor(std::int32_t current) override;
    FontAnswer ChooseFont(const std::string& current, double size, bool printerFonts) override;
    FileAnswer ChooseOpenFile(const std::string& title, const std::string& filter,
                              const std::string& initialDir) override;
    PrinterAnswer ChoosePrinter(int flags, int copies) override;
    FileAnswer ChooseSaveFile(const std::string& title, const std::string& filter,
                              const std::string& proposedPath) override;
    // The pages as the chosen printer will print them, with Print and Cancel.
    bool PreviewDocument(const PrintedDocument& document) override;

  private:
    QtPrinterDevice& printer_;
};

// "Pictures|*.bmp;*.jpg|All|*.*" as Qt writes it: "Pictures (*.bmp *.jpg);;All (*.*)".
QString ToQtFilter(const std::string& filter);

}  // namespace platform
