#include "platform/headless/HeadlessDialogs.h"

#include <stdexcept>

#include "platform/Printer.h"
#include "platform/headless/HeadlessBackend.h"

namespace platform {

bool HeadlessDialogs::Next(Answer& answer) {
    if (answers_.empty()) return false;
    answer = answers_.front();
    answers_.pop_front();
    return true;
}

void HeadlessDialogs::Record(const std::string& line) {
    shown_.push_back(line);
    try {
        if (auto* ui = dynamic_cast<HeadlessBackend*>(&Ui())) ui->Log("dialog " + line);
    } catch (const std::logic_error&) {
        // No screens running: the dialog log alone keeps it.
    }
}

ColorAnswer HeadlessDialogs::ChooseColor(std::int32_t current) {
    Answer queued;
    ColorAnswer result{true, current};
    if (Next(queued)) {
        result.accepted = queued.accepted;
        if (queued.hasColor) result.color = queued.color;
    }
    Record("color -> " + (result.accepted ? std::to_string(result.color) : std::string("cancel")));
    if (!result.accepted) result.color = current;
    return result;
}

FontAnswer HeadlessDialogs::ChooseFont(const std::string& current, double size, bool printerFonts) {
    Answer queued;
    FontAnswer result;
    result.accepted = true;
    result.name = current;
    result.size = size;
    if (Next(queued)) {
        result.accepted = queued.accepted;
        if (!queued.text.empty()) result.name = queued.text;
    }
    Record("font -> " + (result.accepted ? result.name : std::string("cancel")));
    if (!result.accepted) result.name = current;
    return result;
}

FileAnswer HeadlessDialogs::ChooseFile(const std::string& kind) {
    Answer queued;
    FileAnswer result;
    if (Next(queued) && queued.accepted && !queued.text.empty()) {
        result.accepted = true;
        result.path = queued.text;
    }
    Record(kind + " -> " + (result.accepted ? result.path : std::string("cancel")));
    return result;
}

FileAnswer HeadlessDialogs::ChooseOpenFile(const std::string& title, const std::string& filter,
                                           const std::string& initialDir) {
    return ChooseFile("open");
}

FileAnswer HeadlessDialogs::ChooseSaveFile(const std::string& title, const std::string& filter,
                                           const std::string& proposedPath) {
    return ChooseFile("save");
}

PrinterAnswer HeadlessDialogs::ChoosePrinter(int flags, int copies) {
    Answer queued;
    PrinterAnswer result{true, copies, {}};
    if (Next(queued)) {
        result.accepted = queued.accepted;
        if (queued.copies > 0) result.copies = queued.copies;
        result.file = queued.pdfFile;
    }
    std::string shown = "cancel";
    if (result.accepted)
        shown = std::to_string(result.copies) + " copies" +
                (result.file.empty() ? std::string() : " to " + result.file);
    Record("printer -> " + shown);
    if (!result.accepted) result = PrinterAnswer{false, copies, {}};
    return result;
}

bool HeadlessDialogs::PreviewDocument(const PrintedDocument& document) {
    Answer queued;
    const bool print = !Next(queued) || queued.accepted;
    Record("preview " + std::to_string(document.pages.size()) + " page(s) -> " +
           (print ? "print" : "cancel"));
    return print;
}

void HeadlessDialogs::QueueColor(std::int32_t color) {
    Answer answer;
    answer.hasColor = true;
    answer.color = color;
    answers_.push_back(answer);
}

void HeadlessDialogs::QueueFont(const std::string& name) {
    Answer answer;
    answer.text = name;
    answers_.push_back(answer);
}

void HeadlessDialogs::QueueFile(const std::string& path) {
    Answer answer;
    answer.text = path;
    answers_.push_back(answer);
}

void HeadlessDialogs::QueuePrinter(int copies) {
    Answer answer;
    answer.copies = copies;
    answers_.push_back(answer);
}

void HeadlessDialogs::QueuePdfFile(const std::string& path) {
    Answer answer;
    answer.pdfFile = path;
    answers_.push_back(answer);
}

void HeadlessDialogs::QueuePreview(bool print) {
    Answer answer;
    answer.accepted = print;
    answers_.push_back(answer);
}

void HeadlessDialogs::QueueCancel() {
    Answer answer;
    answer.accepted = false;
    answers_.push_back(answer);
}

HeadlessDialogs& QueuedDialogs() {
    static HeadlessDialogs dialogs;
    return dialogs;
}

}  // namespace platform
