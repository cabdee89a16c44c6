#include "platform/Dialogs.h"

#include "platform/Printer.h"
#include "platform/RuntimeError.h"
#include "platform/headless/HeadlessDialogs.h"

namespace platform {

namespace {

DialogBackend* installedBackend = nullptr;

// A cancel is an error only when the caller asked for it.
bool Cancelled(const CommonDialog& dialog, const char* where) {
    if (dialog.CancelError) Raise(cdlCancel, where);
    return false;
}

}  // namespace

DialogBackend& Dialogs() {
    if (installedBackend) return *installedBackend;
    return QueuedDialogs();
}

void SetDialogBackend(DialogBackend* backend) {
    installedBackend = backend;
}

bool CommonDialog::ShowColor() {
    ColorAnswer answer = Dialogs().ChooseColor(Color);
    if (!answer.accepted) return Cancelled(*this, "CommonDialog.ShowColor");
    Color = answer.color;
    return true;
}

bool CommonDialog::ShowFont() {
    FontAnswer answer = Dialogs().ChooseFont(FontName, FontSize, (Flags & cdlCFPrinterFonts) != 0);
    if (!answer.accepted) return Cancelled(*this, "CommonDialog.ShowFont");
    FontName = answer.name;
    if (answer.size > 0) FontSize = answer.size;
    FontBold = answer.bold;
    FontItalic = answer.italic;
    return true;
}

bool CommonDialog::ShowOpen() {
    FileAnswer answer = Dialogs().ChooseOpenFile(DialogTitle, Filter, InitDir);
    if (!answer.accepted) return Cancelled(*this, "CommonDialog.ShowOpen");
    FileName = answer.path;
    return true;
}

bool CommonDialog::ShowSave() {
    FileAnswer answer = Dialogs().ChooseSaveFile(DialogTitle, Filter, FileName);
    if (!answer.accepted) return Cancelled(*this, "CommonDialog.ShowSave");
    FileName = answer.path;
    return true;
}

bool CommonDialog::ShowPrinter() {
    PrinterAnswer answer = Dialogs().ChoosePrinter(Flags, Copies < 1 ? 1 : Copies);
    if (!answer.accepted) return Cancelled(*this, "CommonDialog.ShowPrinter");
    Copies = answer.copies < 1 ? 1 : answer.copies;
    Printer().SetCopies(Copies);
    Printer().SetOutputFile(answer.file);
    return true;
}

CommonDialog& SharedDialog() {
    static CommonDialog dialog;
    return dialog;
}

bool ChooseColor(std::int32_t& color) {
    CommonDialog& dialog = SharedDialog();
    dialog.CancelError = false;
    dialog.Color = color;
    if (!dialog.ShowColor()) return false;
    color = dialog.Color;
    return true;
}

bool ChoosePrinterFont(std::string& fontName) {
    CommonDialog& dialog = SharedDialog();
    dialog.CancelError = false;
    dialog.Flags = cdlCFPrinterFonts;
    dialog.FontName = fontName;
    if (!dialog.ShowFont()) return false;
    fontName = dialog.FontName;
    return true;
}

std::string ChooseOpenFile(const std::string& filter, const std::string& title) {
    CommonDialog& dialog = SharedDialog();
    dialog.CancelError = false;
    dialog.Filter = filter;
    dialog.DialogTitle = title;
    if (!dialog.ShowOpen()) return {};
    return dialog.FileName;
}

std::string ChooseSaveFile(const std::string& filter, const std::string& title,
                           const std::string& proposedPath) {
    CommonDialog& dialog = SharedDialog();
    dialog.CancelError = false;
    dialog.Filter = filter;
    dialog.DialogTitle = title;
    dialog.FileName = proposedPath;
    if (!dialog.ShowSave()) return {};
    return dialog.FileName;
}

bool ShowPrinterDialog(int flags, bool cancelError) {
    CommonDialog& dialog = SharedDialog();
    dialog.CancelError = cancelError;
    dialog.Flags = flags;
    return dialog.ShowPrinter();
}

}  // namespace platform
