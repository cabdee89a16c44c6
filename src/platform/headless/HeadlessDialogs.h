#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "platform/Dialogs.h"

namespace platform {

// The dialogs of tests and scripts: each dialogue takes the next queued answer. With none
// queued, the colour, font and printer dialogues are confirmed as they stand (OK), and the
// file dialogues are cancelled, since there is no file to pick; a print preview prints. Every
// dialogue shown is logged.
class HeadlessDialogs : public DialogBackend {
  public:
    ColorAnswer ChooseColor(std::int32_t current) override;
    FontAnswer ChooseFont(const std::string& current, double size, bool printerFonts) override;
    FileAnswer ChooseOpenFile(const std::string& title, const std::string& filter,
                              const std::string& initialDir) override;
    PrinterAnswer ChoosePrinter(int flags, int copies) override;
    FileAnswer ChooseSaveFile(const std::string& title, const std::string& filter,
                              const std::string& proposedPath) override;
    bool PreviewDocument(const PrintedDocument& document) override;

    void QueueColor(std::int32_t color);
    void QueueFont(const std::string& name);
    // The file chosen in the next open or save dialogue.
    void QueueFile(const std::string& path);
    // OK in the printer dialogue; copies 0 keeps the number offered.
    void QueuePrinter(int copies = 0);
    // The printer dialogue prints into this PDF file.
    void QueuePdfFile(const std::string& path);
    // The next print preview prints (or, with print false, is closed without printing).
    void QueuePreview(bool print);
    // The next dialogue, of whatever kind, is cancelled.
    void QueueCancel();
    void ClearQueue() { answers_.clear(); }
    std::size_t Queued() const { return answers_.size(); }

    // "color", "font", "open", "save", "printer" or "preview" with what was answered, one a
    // dialogue shown.
    const std::vector<std::string>& Shown() const { return shown_; }
    void ClearShown() { shown_.clear(); }

  private:
    struct Answer {
        bool accepted = true;
        bool hasColor = false;
        std::int32_t color = 0;
        std::string text;  // font name or file path
        int copies = 0;
        std::string pdfFile;
    };
    bool Next(Answer& answer);
    FileAnswer ChooseFile(const std::string& kind);  // "open" or "save"
    void Record(const std::string& line);

    std::deque<Answer> answers_;
    std::vector<std::string> shown_;
};

// The dialogs that serve when no other backend is installed.
HeadlessDialogs& QueuedDialogs();

}  // namespace platform
