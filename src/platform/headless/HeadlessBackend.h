#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/Ui.h"

namespace platform {

// The backend of tests and scripts: no windows. Message box answers come from a queue
// (the first button when it is empty), the clock is set by the caller, and everything
// the user would see or hear is written to a transcript.
class HeadlessBackend : public Backend {
  public:
    struct ShownBox {
        std::string title;
        std::string prompt;
        int buttons;
        int answer;
    };

    int MsgBox(const std::string& prompt, int buttons, const std::string& title) override;
    void Beep() override;
    DateTime Now() override { return now_; }
    void RunModal(Form& form) override;
    void DoEvents() override;
    void FormShown(Form& form) override;
    void FormHidden(Form& form) override;
    void PopupMenu(Form& form, Control& menu) override;
    // Another copy as the script plays it, or a real process holding the program folder.
    bool PrevInstance() override;
    void OpenUrl(const std::string& url) override;
    void Quit() override;

    void SetNow(DateTime now) { now_ = now; }
    void QueueAnswer(int answer) { answers_.push_back(answer); }
    void SetOtherInstanceRunning(bool running) { otherInstanceRunning_ = running; }
    // Drives a modal form until it hides; without one, a modal Show returns at once.
    void SetModalDriver(std::function<void(Form&)> driver) { modalDriver_ = std::move(driver); }
    void SetDoEventsHook(std::function<void()> hook) { doEventsHook_ = std::move(hook); }

    const std::vector<ShownBox>& Boxes() const { return boxes_; }
    const std::vector<std::string>& Transcript() const { return transcript_; }
    const std::vector<std::string>& OpenedUrls() const { return urls_; }
    int Beeps() const { return beeps_; }
    bool QuitCalled() const { return quit_; }
    void Log(const std::string& line) { transcript_.push_back(line); }
    void ClearLog();

  private:
    DateTime now_ = DateTime::FromYmdHms(2026, 6, 15, 9, 0, 0);
    std::deque<int> answers_;
    std::vector<ShownBox> boxes_;
    std::vector<std::string> transcript_;
    std::vector<std::string> urls_;
    int beeps_ = 0;
    bool quit_ = false;
    bool otherInstanceRunning_ = false;
    std::function<void(Form&)> modalDriver_;
    std::function<void()> doEventsHook_;
};

}  // namespace platform
