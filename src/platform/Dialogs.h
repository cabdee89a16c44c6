#pragma once

#include <cstdint>
#include <string>

// The common dialogs: colour, font, file choice and the printer dialogue. One shared
// instance serves the whole program, as the one dialog control of the start screen did;
// its properties keep the last choice between calls.
namespace platform {

struct PrintedDocument;

// Flags of the printer dialogue, as the platform numbers them.
constexpr int cdlPDAllPages = 0x0;
constexpr int cdlPDNoPageNums = 0x8;
constexpr int cdlPDCollate = 0x10;
constexpr int cdlPDHidePrintToFile = 0x100000;
// Flags of the font dialogue.
constexpr int cdlCFScreenFonts = 0x1;
constexpr int cdlCFPrinterFonts = 0x2;
constexpr int cdlCFBoth = 0x3;
// Flags of the file dialogue.
constexpr int cdlOFNFileMustExist = 0x1000;
constexpr int cdlOFNHideReadOnly = 0x4;

// The error a dialogue raises when the user cancels and CancelError is set.
constexpr int cdlCancel = 32755;

// What the user answered in one dialogue. `accepted` false is a cancel.
struct ColorAnswer {
    bool accepted = false;
    std::int32_t color = 0;  // &H00BBGGRR
};
struct FontAnswer {
    bool accepted = false;
    std::string name;
    double size = 0;  // 0 keeps the size
    bool bold = false;
    bool italic = false;
};
struct FileAnswer {
    bool accepted = false;
    std::string path;  // full path of the chosen file
};
struct PrinterAnswer {
    bool accepted = false;
    int copies = 1;
    std::string file;  // a PDF file to print into, empty for the printer
};

// The part that shows the dialogues: windows on the desktop, queued answers headless.
class DialogBackend {
  public:
    virtual ~DialogBackend() = default;
    virtual ColorAnswer ChooseColor(std::int32_t current) = 0;
    virtual FontAnswer ChooseFont(const std::string& current, double size, bool printerFonts) = 0;
    // filter is the platform's "Description|pattern|Description|pattern" form.
    virtual FileAnswer ChooseOpenFile(const std::string& title, const std::string& filter,
                                      const std::string& initialDir) = 0;
    // Also chooses the printer that the next print job goes to.
    virtual PrinterAnswer ChoosePrinter(int flags, int copies) = 0;
    // The print preview of a finished document: true prints it, false lets it go. A backend
    // without one prints.
    virtual bool PreviewDocument(const PrintedDocument& document) { return true; }
    // The file to write to, offering proposedPath; a backend without one cancels.
    virtual FileAnswer ChooseSaveFile(const std::string& title, const std::string& filter,
                                      const std::string& proposedPath) {
        return {};
    }
};

// The active dialog backend; headless unless the desktop program installs its own.
DialogBackend& Dialogs();
// Installs a backend (not owned); nullptr goes back to the headless one.
void SetDialogBackend(DialogBackend* backend);

// The shared dialog object, with the properties the system reads and writes.
class CommonDialog {
  public:
    // When set, a cancel raises the run-time error 32755 "Cancel was selected.".
    bool CancelError = false;
    int Flags = 0;
    std::string DialogTitle;
    std::string Filter;  // "Pictures|*.bmp;*.jpg|All|*.*"
    std::string InitDir;
    std::string FileName;  // in: proposed; out: the chosen full path
    std::int32_t Color = 0;
    std::string FontName = "Arial";
    double FontSize = 10;
    bool FontBold = false;
    bool FontItalic = false;
    int Copies = 1;

    // Each returns false on a cancel (or raises 32755 when CancelError is set) and
    // leaves the properties as they were; on OK the properties hold the choice.
    bool ShowColor();
    bool ShowFont();
    bool ShowOpen();
    bool ShowSave();  // FileName in: the proposed path
    bool ShowPrinter();
};

// The one instance shared by every screen.
CommonDialog& SharedDialog();

// Short forms over the shared instance.
// In/out colour; false on cancel, with the colour unchanged.
bool ChooseColor(std::int32_t& color);
// In/out font name, offering the printer's fonts; false on cancel.
bool ChoosePrinterFont(std::string& fontName);
// The chosen full path, or empty on cancel.
std::string ChooseOpenFile(const std::string& filter, const std::string& title = {});
// The full path to write to, proposing proposedPath; empty on cancel.
std::string ChooseSaveFile(const std::string& filter, const std::string& title,
                           const std::string& proposedPath);
// The printer dialogue with the given flags and the shared copies. With cancelError a cancel
// raises 32755; otherwise it returns false.
bool ShowPrinterDialog(int flags, bool cancelError = true);

}  // namespace platform
